#include "app/hubdata.h"
#include "app/start.h"
#include "support/boxes.h"
#include "support/diskfolder.h"
#include "support/hub.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QStatusBar>

#include <gtest/gtest.h>

namespace quillfen {
namespace {

class DataOfAHub : public testing::Test
{
protected:
    DataOfAHub()
    {
        std::filesystem::create_directories(settings());
        disk.write(settings() + "/a.tbl", "old");
    }

    QString programFolder() const { return QString::fromStdString(place.path()) + "/My Hub/scripts"; }
    QString dataFolder() const { return QString::fromStdString(place.path()) + "/user/data"; }
    std::string settings() const { return programFolder().toStdString() + "/Morvaleth's Quillfen/Settings"; }
    QFileInfoList hubs() const
    {
        return QDir(dataFolder() + "/hubs").entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    }

    test::DiskFolder place;
    DiskStore disk;
};

TEST_F(DataOfAHub, LiesInAFolderOfItsOwnThatNobodyElseMayRead)
{
    const HubData data(disk, programFolder(), dataFolder());
    const HubData other(disk, QString::fromStdString(place.path()) + "/Other/scripts", dataFolder());
    const auto folders = hubs();
    ASSERT_EQ(folders.size(), 2);
    EXPECT_TRUE(folders[0].fileName().startsWith("My_Hub-"));
    EXPECT_TRUE(folders[1].fileName().startsWith("Other-"));
#ifndef _WIN32 // where the user's own data folder lets nobody else in
    constexpr auto ownersAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    constexpr auto users = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
    EXPECT_EQ(folders[0].permissions(), ownersAlone | users);
#endif
}

TEST_F(DataOfAHub, KeepsVersionsOfTheHubsSettings)
{
    {
        HubData data(disk, programFolder(), dataFolder());
        data.history().keep({"a save"}, {{settings() + "/a.tbl", "old"}});
    }
    HubData next(disk, programFolder() + "/../scripts", dataFolder());
    const auto entries = next.history().entries().entries;
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].files.at(0).told, "a.tbl");
    EXPECT_EQ(next.history().keptBytes(entries[0].files[0]), "old");
}

TEST_F(DataOfAHub, TellsASecondEditorOfTheFirst)
{
    {
        const HubData first(disk, programFolder(), dataFolder());
        EXPECT_TRUE(first.isOnlyEditor());
        const HubData second(disk, programFolder(), dataFolder());
        EXPECT_FALSE(second.isOnlyEditor());
    }
    const HubData later(disk, programFolder(), dataFolder());
    EXPECT_TRUE(later.isOnlyEditor());
}

TEST_F(DataOfAHub, SweepsUnlessAnotherEditorRuns)
{
    const std::string left = settings() + "/.quillfen-1-2.aside";
    HubData first(disk, programFolder(), dataFolder());
    HubData second(disk, programFolder(), dataFolder());
    disk.write(left, "left");
    second.sweep();
    EXPECT_TRUE(disk.exists(left)) << "the first may be at it";
    first.sweep();
    EXPECT_FALSE(disk.exists(left));
    EXPECT_EQ(disk.read(settings() + "/a.tbl"), "old");
}

TEST_F(DataOfAHub, WithoutARoomForItFailsWhenAVersionIsKeptAndNotBefore)
{
    disk.write(place.path() + "/user", "a file in the folder's place");
    HubData data(disk, programFolder(), dataFolder());
    EXPECT_TRUE(data.isOnlyEditor());
    EXPECT_THROW(data.history().keep({"a save"}, {{settings() + "/a.tbl", "old"}}), StoreError);
    EXPECT_TRUE(data.history().entries().entries.empty());
}

TEST_F(DataOfAHub, TheWindowOfASecondEditorSaysThatAnotherRuns)
{
    const auto saysSo = [this](HubData& data) {
        test::Hub hub;
        hub.store.files["/hub/cfg/Profiles.xml"] = "<Name>Master</Name>\r\n";
        Program program(hub.store, "/hub/scripts", {"5.2.0"});
        program.use(data);
        test::answering(QMessageBox::Ok, [&program] { EXPECT_EQ(program.start(), std::nullopt); });
        const auto* panel = program.window().statusBar()->findChild<QLabel*>("OTHERS");
        return panel ? panel->text() : QString();
    };
    HubData first(disk, programFolder(), dataFolder());
    HubData second(disk, programFolder(), dataFolder());
    EXPECT_EQ(saysSo(first), "");
    EXPECT_EQ(saysSo(second), "Morvaleth's Quillfen runs on this hub already");
}

} // namespace
} // namespace quillfen
