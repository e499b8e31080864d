// What a window keeps of what its forms replace, and what the user sees of it.
#include "shell/kit/numberbox.h"
#include "store/history.h"
#include "support/formtest.h"

#include <QCheckBox>

namespace quillfen {
namespace {

class VersionsOfForms : public test::FormTest
{
protected:
    VersionsOfForms()
    {
        versionDisk.folders = {"", "/data"};
        hub.files.store().keepVersionsIn(&history);
    }

    void changeAndSave(EditorForm& form)
    {
        find<NumberBox>(form, "updUpDown(0)").stepBy(1);
        button(form, "SAVE").trigger();
    }

    std::vector<VersionEntry> entries() { return history.entries().entries; }

    test::MemoryStore versionDisk;
    VersionStore versions{versionDisk, "/data/versions"};
    History history{hub.store, hub.root, versions};
};

TEST_F(VersionsOfForms, ASaveIsKeptUnderItsFormsCaption)
{
    const std::string before = hub.file("Games/SlotMachine/SlotMachineSettings.tbl");
    changeAndSave(open("Games~SlotMachine"));
    const auto kept = entries();
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(kept[0].cause, Cause{"Games ~ SlotMachine"});
    ASSERT_EQ(kept[0].files.size(), 1U);
    EXPECT_EQ(kept[0].files[0].told, "Games\\SlotMachine\\SlotMachineSettings.tbl");
    EXPECT_EQ(history.keptBytes(kept[0].files[0]), before);
}

TEST_F(VersionsOfForms, ADeletionAtOnceIsKeptUnderTheFormInFront)
{
    hub.file("Communication/RotatingMainMessage/Files/old.txt") = "a text";
    hub.file("Communication/RotatingMainMessage/Files/other.txt") = "another";
    auto& form = open("Communication~RotatingMainMessage");
    hub.files.removeFile(R"(Communication\RotatingMainMessage\Files\old.txt)");
    ASSERT_EQ(entries().size(), 1U);
    EXPECT_EQ(entries()[0].cause.words, form.caption().toStdString());
}

TEST_F(VersionsOfForms, ThatNoVersionWasKeptShowsInTheSecondPanelUntilOneIs)
{
    auto& form = open("Games~SlotMachine");
    EXPECT_EQ(secondPanel(form).text(), "");
    versionDisk.failingCall = 0;
    changeAndSave(form);
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(secondPanel(form).text().startsWith("No version was kept: "))
        << secondPanel(form).text().toStdString();
    EXPECT_TRUE(secondPanel(form).text().contains("No space left on device"));
    versionDisk.failingCall = -1;
    changeAndSave(form);
    EXPECT_EQ(secondPanel(form).text(), "");
}

TEST_F(VersionsOfForms, ASaveThatStopsHalfWayTellsWhatIsNewAndWhatIsOld)
{
    auto& form = open("Security~AntiAdvertise~Settings"); // which saves two files
    form.findChild<QCheckBox*>()->click();
    hub.store.log.clear();
    hub.store.failingCall = 1;
    const auto boxes = test::answering(QMessageBox::Ok, [&form] { button(form, "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(
        boxes[0].text.toStdString(),
        form.caption().toStdString() + " couldn't be saved. " +
            test::native(hub.root + "/Security/AntiAdvertise/AntiAdvertiseBlockedActions.tbl") +
            ": No space left on device. Nothing that you typed is lost: mend it and save again. New already: "
            "AntiAdvertiseSettings.tbl. Still as before: AntiAdvertiseBlockedActions.tbl.");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(VersionsOfForms, TheWindowsEndLeavesTheFilesToOthers)
{
    {
        MainWindow another(program, FormContext{hub.files, hub.profiles}, functionNodes(), forms, makers);
    }
    hub.files.WriteSettingsFile(R"(Games\SlotMachine\SlotMachineSettings.tbl)", "new");
    ASSERT_EQ(entries().size(), 1U);
    EXPECT_EQ(entries()[0].cause, Cause{"Quillfen"});
}

} // namespace
} // namespace quillfen
