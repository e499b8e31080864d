// The window of earlier versions, and the menu of the tree's root that opens it.
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "shell/window/differencetext.h"
#include "shell/window/versionsdialog.h"
#include "store/history.h"
#include "support/dialogs.h"
#include "support/formtest.h"

#include <QDesktopServices>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace quillfen {
namespace {

class EarlierVersions : public test::FormTest
{
protected:
    EarlierVersions()
    {
        versionDisk.folders = {"", "/data"};
        versions.now = [this] { return now++; };
        hub.files.store().keepVersionsIn(&history);
        window().offerVersions(history);
    }

    ~EarlierVersions() override { hub.files.store().keepVersionsIn(nullptr); }

    void saveSlotMachine(const char* text)
    {
        auto& form = open("Games~SlotMachine");
        auto& box = find<NumberBox>(form, "updUpDown(0)");
        box.setText(text);
        button(form, "SAVE").trigger();
        EXPECT_FALSE(isDirty(form));
    }

    /// Opens the window, does something in it, and closes it when it is in front again; message boxes are
    /// answered with a button. Returns their texts.
    QStringList inWindow(const std::function<void(VersionsDialog&)>& action,
                         QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        QStringList texts;
        bool isDone = false;
        const auto use = [&](QWidget& modal) {
            if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                texts.append(box->text());
                box->button(box->button(answer) ? answer : QMessageBox::Ok)->click();
            } else if (!std::exchange(isDone, true)) {
                action(*qobject_cast<VersionsDialog*>(&modal));
            } else {
                find<QPushButton>(modal, "cmdClose").click();
            }
        };
        test::withModal([this] { find<QAction>(window(), "mnuRootVersions").trigger(); }, use);
        return texts;
    }

    /// Presses a button whose box is answered afterwards.
    static void press(VersionsDialog& dialog, const char* name)
    {
        QMetaObject::invokeMethod(&find<QPushButton>(dialog, name), "click", Qt::QueuedConnection);
    }

    static QTreeWidget& list(VersionsDialog& dialog) { return find<QTreeWidget>(dialog, "tvwVersions"); }
    static QString difference(VersionsDialog& dialog)
    {
        return find<QPlainTextEdit>(dialog, "txtDifference").toPlainText();
    }

    std::string& file() { return hub.file("Games/SlotMachine/SlotMachineSettings.tbl"); }

    std::time_t now = 1'795'000'000;
    test::MemoryStore versionDisk;
    VersionStore versions{versionDisk, "/data/versions"};
    History history{hub.store, hub.root, versions};
};

TEST_F(EarlierVersions, AreOfferedByARightClickOnTheRootRow)
{
    auto& tree = find<QTreeWidget>(window(), "tvwFunctions");
    auto& menu = find<QMenu>(window(), "mnuRoot");
    const auto press = [&](QTreeWidgetItem* item) {
        emit tree.customContextMenuRequested(tree.visualItemRect(item).center());
    };
    press(tree.topLevelItem(0)->child(0));
    EXPECT_FALSE(menu.isVisible()) << "only the root has it";
    press(tree.topLevelItem(0));
    EXPECT_TRUE(menu.isVisible());
    QStringList entries;
    for (const auto* action : menu.actions())
        entries.append(action->text().remove('&'));
    EXPECT_EQ(entries, QStringList({"Earlier versions...", "Back up now", "Open the settings folder",
                                    "Check the settings"}));
    menu.close();
}

TEST_F(EarlierVersions, NoneYetIsSaid)
{
    inWindow([](VersionsDialog& dialog) {
        EXPECT_EQ(list(dialog).topLevelItemCount(), 0);
        EXPECT_TRUE(difference(dialog).startsWith("There are no earlier versions yet."));
        for (const char* name : {"cmdFile", "cmdEntry", "cmdTree"})
            EXPECT_FALSE(find<QPushButton>(dialog, name).isEnabled()) << name;
    });
}

TEST_F(EarlierVersions, StandNewestFirstWithTheirFilesAndWhatDiffers)
{
    saveSlotMachine("11");
    saveSlotMachine("12");
    inWindow([](VersionsDialog& dialog) {
        auto& entries = list(dialog);
        ASSERT_EQ(entries.topLevelItemCount(), 2);
        EXPECT_GT(entries.topLevelItem(0)->text(0), entries.topLevelItem(1)->text(0));
        EXPECT_EQ(entries.topLevelItem(0)->text(1), "Games ~ SlotMachine");
        EXPECT_EQ(entries.currentItem(), entries.topLevelItem(0));
        EXPECT_TRUE(difference(dialog).contains("= 11,"));
        const QStringList lines = difference(dialog).split('\n');
        const auto isGone = [](const QString& line) {
            return line.startsWith("- ") && line.contains("= 11,");
        };
        const auto isNew = [](const QString& line) {
            return line.startsWith("+ ") && line.contains("= 12,");
        };
        EXPECT_EQ(std::count_if(lines.begin(), lines.end(), isGone), 1);
        EXPECT_EQ(std::count_if(lines.begin(), lines.end(), isNew), 1);
        EXPECT_EQ(find<QPlainTextEdit>(dialog, "txtDifference").extraSelections().size(), 2)
            << "both coloured";
        entries.topLevelItem(0)->setExpanded(true);
        ASSERT_EQ(entries.topLevelItem(0)->childCount(), 1);
        EXPECT_EQ(entries.topLevelItem(0)->child(0)->text(0), R"(Games\SlotMachine\SlotMachineSettings.tbl)");
    });
}

TEST_F(EarlierVersions, AFileIsBroughtBackAndTheCleanFormLoadsAnew)
{
    saveSlotMachine("11");
    const std::string wanted = file();
    saveSlotMachine("12");
    auto& form = open("Games~SlotMachine");
    const auto texts = inWindow([](VersionsDialog& dialog) { press(dialog, "cmdFile"); });
    EXPECT_EQ(texts, QStringList{R"(Bring back Games\SlotMachine\SlotMachineSettings.tbl?)"});
    EXPECT_EQ(file(), wanted);
    EXPECT_EQ(find<NumberBox>(form, "updUpDown(0)").text(), "11");
    EXPECT_FALSE(isDirty(form));
    ASSERT_EQ(history.entries().entries.size(), 3U) << "bringing back is an entry itself";
    EXPECT_TRUE(history.entries().entries[0].cause.words.starts_with("Brought back: "));
}

TEST_F(EarlierVersions, ADirtyFormIsNamedAndLeftAlone)
{
    saveSlotMachine("11");
    saveSlotMachine("12");
    auto& form = open("Games~SlotMachine");
    find<NumberBox>(form, "updUpDown(0)").setText("13");
    ASSERT_TRUE(isDirty(form));
    const auto texts = inWindow([](VersionsDialog& dialog) { press(dialog, "cmdEntry"); });
    ASSERT_EQ(texts.size(), 1);
    EXPECT_TRUE(texts[0].endsWith("replaces what is brought back: Games ~ SlotMachine"))
        << texts[0].toStdString();
    EXPECT_NE(file().find("= 11,"), std::string::npos);
    EXPECT_EQ(find<NumberBox>(form, "updUpDown(0)").text(), "13");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(EarlierVersions, ACancelBringsNothingBack)
{
    saveSlotMachine("11");
    saveSlotMachine("12");
    const std::string before = file();
    inWindow([](VersionsDialog& dialog) { press(dialog, "cmdFile"); }, QMessageBox::Cancel);
    EXPECT_EQ(file(), before);
    EXPECT_EQ(history.entries().entries.size(), 2U);
}

TEST_F(EarlierVersions, TheWholeTreeIsBroughtBackAsItStoodBeforeAnEntry)
{
    const auto tree = hub.store.files;
    saveSlotMachine("11");
    auto& report = open("Security~CommandSpy");
    clickTick(find<RowList>(report, "lvwEnabledProfiles"), 1);
    button(report, "SAVE").trigger();
    ASSERT_NE(hub.store.files, tree);
    inWindow([](VersionsDialog& dialog) {
        list(dialog).setCurrentItem(list(dialog).topLevelItem(1)); // the older one
        press(dialog, "cmdTree");
    });
    EXPECT_EQ(hub.store.files, tree);
}

TEST_F(EarlierVersions, WhatStandsSoTodayIsSaidAndAsksNothing)
{
    saveSlotMachine("11");
    inWindow([](VersionsDialog& dialog) { press(dialog, "cmdFile"); });
    const auto texts = inWindow([](VersionsDialog& dialog) {
        list(dialog).setCurrentItem(list(dialog).topLevelItem(1));
        EXPECT_EQ(difference(dialog), "The file stands so today.");
        press(dialog, "cmdFile");
    });
    EXPECT_EQ(texts, QStringList{"Nothing to do: all of it stands so today."});
}

TEST_F(EarlierVersions, ABackupKeepsAllFilesAndSaysSo)
{
    const auto boxes =
        test::answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuRootBackUp").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Information);
    const auto entries = history.entries().entries;
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_GT(entries[0].files.size(), 150U);
    inWindow([](VersionsDialog& dialog) {
        EXPECT_EQ(difference(dialog), "Open the entry and choose one of its files.");
        EXPECT_FALSE(find<QPushButton>(dialog, "cmdFile").isEnabled());
    });
}

TEST_F(EarlierVersions, WhatIsDamagedIsSaid)
{
    saveSlotMachine("11");
    saveSlotMachine("12");
    for (auto& [path, bytes] : versionDisk.files)
        bytes = bytes.substr(0, bytes.size() / 2);
    inWindow([](VersionsDialog& dialog) {
        const bool listed = list(dialog).topLevelItemCount() > 0;
        EXPECT_TRUE(listed || find<QLabel>(dialog, "lblSkipped").isVisible());
        if (listed) {
            EXPECT_FALSE(difference(dialog).contains("+ "));
        }
    });
}

TEST(DifferenceText, ShowsAFewLinesAroundWhatDiffers)
{
    QPlainTextEdit view;
    showDifference(view, "1\n2\n3\n4\n5\nold\n7\n8\n9\n10\n11\n", "1\n2\n3\n4\n5\nnew\n7\n8\n9\n10\n11\n");
    EXPECT_EQ(view.toPlainText().toStdString(),
              "  \u22ee\n  3\n  4\n  5\n- old\n+ new\n  7\n  8\n  9\n  \u22ee");
}

TEST(DifferenceText, SaysWhereThereWasOrIsNoFile)
{
    QPlainTextEdit view;
    showDifference(view, std::nullopt, "a\n");
    EXPECT_EQ(view.toPlainText(), "There was no such file; today's:\n+ a");
    showDifference(view, "a\n", std::nullopt);
    EXPECT_EQ(view.toPlainText(), "There is no such file today; the earlier one:\n- a");
    showDifference(view, std::nullopt, std::nullopt);
    EXPECT_EQ(view.toPlainText(), "There is no such file today either.");
    EXPECT_TRUE(view.extraSelections().isEmpty());
}

} // namespace
} // namespace quillfen
