#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"
#include "support/lua.h"

#include <QCheckBox>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::golden;
using test::LuaValues;
using test::luaValues;
using test::sameBytes;
using test::SeenDialog;

class AutoCorrectForm : public test::FormTest
{
protected:
    AutoCorrectForm()
    {
        wordsFile = words("\t[\"teh\"] = \"the\",\r\n\t[\"adn\"] = \"and\",\r\n");
        filtersFile = "tAutoCorrectFilters = {\r\n\tbMute = 1,\r\n\tbTalk = 0,\r\n\tbbold = 1,\r\n}\r\n";
    }

    static std::string words(const std::string& rows) { return "tAutoCorrectWords = {\r\n" + rows + "}\r\n"; }
    EditorForm& openForm() { return open("Communication~AutoCorrect"); }
    static RowList& wordList(EditorForm& form) { return find<RowList>(form, "lvwAutoCorrectWords"); }
    static RowList& filters(EditorForm& form) { return find<RowList>(form, "lvwFilters"); }
    static RowList& enabled(EditorForm& form) { return find<RowList>(form, "lvwEnabledProfiles"); }
    static QAction& tool(EditorForm& form, const char* key)
    {
        return button(form, key, "tlbAutoCorrectWords");
    }

    std::string& settings = hub.file("Communication/AutoCorrect/AutoCorrectSettings.tbl");
    std::string& wordsFile = hub.file("Communication/AutoCorrect/AutoCorrectWords.tbl");
    std::string& filtersFile = hub.file("Communication/AutoCorrect/AutoCorrectFilters.tbl");
};

TEST_F(AutoCorrectForm, ShowsSettingsWordsAndFilters)
{
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmCommunicationAutoCorrect");
    EXPECT_EQ(form.windowTitle(), "Communication ~ AutoCorrect");
    EXPECT_EQ(find<QCheckBox>(form, "chkNotifyOps").text(), "Notify Ops");
    EXPECT_TRUE(find<QCheckBox>(form, "chkNotifyOps").isChecked());
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Enabled Profiles");
    EXPECT_EQ(shown(enabled(form)), (QStringList{"Unregistered", "Master", "Operator", "VIP"}));
    EXPECT_EQ(shown(wordList(form)), (QStringList{"teh|the", "adn|and"}));
    EXPECT_EQ(wordList(form).model()->headerData(1, Qt::Horizontal).toString(), "Replacement");
    EXPECT_EQ(filters(form).accessibleName(), "Filtered Actions");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(AutoCorrectForm, CutsOneLetterOffAFiltersKey)
{
    auto& form = openForm();
    EXPECT_EQ(filters(form).rows(),
              (std::vector<CellRow>{{{"Mute", ""}, true}, {{"Talk", ""}, false}, {{"bold", ""}, true}}));
}

TEST_F(AutoCorrectForm, SavesItsThreeFilesInOrder)
{
    auto& form = openForm();
    find<QCheckBox>(form, "chkNotifyOps").click();
    clickTick(enabled(form), 0);
    clickTick(enabled(form), 2);
    clickTick(filters(form), 0);
    clickTick(filters(form), 1);
    EXPECT_TRUE(isDirty(form));
    hub.store.log.clear();
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    const std::string write = "write " + hub.root + "/Communication/AutoCorrect/AutoCorrect";
    EXPECT_EQ(hub.store.log,
              (std::vector<std::string>{write + "Settings.tbl", write + "Words.tbl", write + "Filters.tbl"}));
    EXPECT_TRUE(sameBytes(settings, golden("communication/AutoCorrectSettings.save.tbl")));
    EXPECT_TRUE(sameBytes(wordsFile, words("\t[\"teh\"] = \"the\",\r\n\t[\"adn\"] = \"and\",\r\n")));
    EXPECT_EQ(luaValues(settings).at("tAutoCorrectSettings.tEnabledProfiles.1"), "1");
    EXPECT_EQ(luaValues(wordsFile),
              (LuaValues{{"tAutoCorrectWords.teh", "the"}, {"tAutoCorrectWords.adn", "and"}}));
}

TEST_F(AutoCorrectForm, AFilterThatLosesItsTickWritesZeroAndStaysInTheFile)
{
    auto& form = openForm();
    clickTick(filters(form), 0);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(
        filtersFile, "tAutoCorrectFilters = {\r\n\tbMute = 0,\r\n\tbTalk = 0,\r\n\tbbold = 1,\r\n}\r\n"));
    EXPECT_EQ(luaValues(filtersFile), (LuaValues{{"tAutoCorrectFilters.bMute", "0"},
                                                 {"tAutoCorrectFilters.bTalk", "0"},
                                                 {"tAutoCorrectFilters.bbold", "1"}}));
}

TEST_F(AutoCorrectForm, AddsWordsInRoundsAndRefusesNoDuplicate)
{
    auto& form = openForm();
    const auto seen = entering({{{"teh", "the"}, "cmdAdd"}, {{"hte", "the"}, "cmdOK"}},
                               [&form] { tool(form, "NEW").trigger(); });
    ASSERT_EQ(seen.size(), 2);
    EXPECT_EQ(seen[0], (SeenDialog{"frmGlobalEditTwoFields",
                                   "Add AutoCorrect Word",
                                   {"Original Word", "Replacement Word"},
                                   {"", ""}}));
    EXPECT_EQ(shown(wordList(form)), (QStringList{"teh|the", "adn|and", "teh|the", "hte|the"}));
    EXPECT_TRUE(isDirty(form));
}

TEST_F(AutoCorrectForm, EditsBothColumnsByButtonAndByDoubleClick)
{
    auto& form = openForm();
    clickRow(wordList(form), 1);
    const auto seen = entering({{{"nad", "and!"}}}, [&form] { tool(form, "EDIT").trigger(); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen[0], (SeenDialog{"frmGlobalEditTwoFields",
                                   "Edit AutoCorrect Word",
                                   {"Original Word", "Replacement Word"},
                                   {"adn", "and"}}));
    entering({{{QString(), "THE"}}}, [&form] { doubleClickRow(wordList(form), 0); });
    EXPECT_EQ(shown(wordList(form)), (QStringList{"teh|THE", "nad|and!"}));
    EXPECT_TRUE(isDirty(form));
}

TEST_F(AutoCorrectForm, ADeleteAsksAndTheLastWordStays)
{
    auto& form = openForm();
    clickRow(wordList(form), 0);
    auto boxes = answering(QMessageBox::Ok, [&form] { QTest::keyClick(&wordList(form), Qt::Key_Delete); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Word?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Word?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(shown(wordList(form)), QStringList{"adn|and"});
    EXPECT_TRUE(isDirty(form));
    clickRow(wordList(form), 0);
    boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_EQ(boxes[0].text, "There must be a minimum of one Word");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(shown(wordList(form)), QStringList{"adn|and"});
}

TEST_F(AutoCorrectForm, AnEmptyListOfARebuildStaysOpenToAdd)
{
    wordsFile = words("");
    auto& form = openForm();
    EXPECT_FALSE(tool(form, "DELETE").isEnabled());
    EXPECT_FALSE(tool(form, "EDIT").isEnabled());
    entering({{{"teh", "the"}}}, [&form] { tool(form, "NEW").trigger(); });
    EXPECT_TRUE(tool(form, "DELETE").isEnabled());
    EXPECT_TRUE(tool(form, "EDIT").isEnabled());
    EXPECT_EQ(shown(wordList(form)), QStringList{"teh|the"});
}

TEST_F(AutoCorrectForm, ARestoreTicksNotifyUnticksTheProfilesAndLeavesWordsAndFilters)
{
    settings = golden("communication/AutoCorrectSettings.save.tbl");
    auto& form = openForm();
    EXPECT_EQ(enabled(form).rows()[2].checked, true);
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(find<QCheckBox>(form, "chkNotifyOps").isChecked());
    for (const CellRow& row : enabled(form).rows())
        EXPECT_FALSE(row.checked);
    EXPECT_EQ(wordList(form).rows().size(), 2U);
    EXPECT_FALSE(filters(form).rows()[1].checked);
    EXPECT_TRUE(filters(form).rows()[2].checked);
    EXPECT_TRUE(isDirty(form));
}

TEST_F(AutoCorrectForm, ADiscardEmptiesTheListsBeforeItFillsThem)
{
    auto& form = openForm();
    clickTick(filters(form), 0);
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(wordList(form).rows().size(), 2U);
    EXPECT_EQ(filters(form).rows().size(), 3U);
    EXPECT_EQ(enabled(form).rows().size(), 4U);
    EXPECT_TRUE(filters(form).rows()[0].checked);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(AutoCorrectForm, TheBorrowedMenuServesTheWords)
{
    auto& form = openForm();
    clickRow(wordList(form), 1);
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstDelete").trigger(); });
    EXPECT_EQ(shown(wordList(form)), QStringList{"teh|the"});
}

} // namespace
} // namespace quillfen
