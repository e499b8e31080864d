#include "shell/window/filewatch.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace quillfen {
namespace {

class Watch : public testing::Test
{
protected:
    Watch() { write("file", "old"); }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    std::string path(const char* name) const { return folder.filePath(name).toStdString(); }

    bool isTold()
    {
        const bool told = !changes.isEmpty() || changes.wait();
        changes.clear();
        return told;
    }

    QTemporaryDir folder;
    FileWatch watch;
    QSignalSpy changes{&watch, &FileWatch::changed};
};

TEST_F(Watch, TellsOfAChangeAReplacementAndADeletionOneAfterTheOther)
{
    watch.follow({path("file")});
    for (const char* bytes : {"new", "newer"}) {
        write("file", bytes);
        EXPECT_TRUE(isTold()) << bytes;
        write("aside", bytes);
        QFile::remove(folder.filePath("file"));
        EXPECT_TRUE(QFile::rename(folder.filePath("aside"), folder.filePath("file")));
        EXPECT_TRUE(isTold()) << "replaced by " << bytes;
    }
    QFile::remove(folder.filePath("file"));
    EXPECT_TRUE(isTold());
}

TEST_F(Watch, TellsOfAFileThatComes)
{
    watch.follow({path("to come")});
    write("to come", "here");
    EXPECT_TRUE(isTold());
}

TEST_F(Watch, TellsABurstOnce)
{
    watch.follow({path("file")});
    for (int time = 0; time < 50; ++time)
        write("file", QByteArray::number(time));
    EXPECT_TRUE(changes.wait());
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(Watch, ForgetsWhatItFollowedBefore)
{
    QDir(folder.path()).mkdir("other");
    write("other/file", "old");
    watch.follow({path("file")});
    watch.follow({path("other/file")});
    write("file", "new");
    write("other/file", "new");
    EXPECT_TRUE(isTold());
    watch.follow({});
    write("file", "newer");
    write("other/file", "newer");
    EXPECT_FALSE(changes.wait(500));
}

} // namespace
} // namespace quillfen
