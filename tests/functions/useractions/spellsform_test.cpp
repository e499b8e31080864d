#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QCheckBox>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::golden;
using test::sameBytes;
using test::SeenDialog;

/// One of the two books.
struct Book
{
    const char* key;
    const char* form;
    const char* caption;
    std::string file;
    std::string folder;
    std::string nick; ///< in front of tables and golden files
};

const std::vector<Book> books = {
    {"UserActions~Spells~SpellBook", "frmUserActionsSpellsSpellBook", "UserActions ~ Spells ~ SpellBook",
     "UserActions/Spells/SpellBook.tbl", "UserActions/Spells/Spells/", ""},
    {"UserActions~NickSpells~SpellBook", "frmUserActionsNickSpellsSpellBook",
     "UserActions ~ Nick Spells ~ SpellBook", "UserActions/NickSpells/NickSpellBook.tbl",
     "UserActions/NickSpells/NickSpells/", "Nick"},
};

class SpellForms : public test::FormTest
{
protected:
    static RowList& spells(EditorForm& form) { return find<RowList>(form, "lvwSpells"); }
    static RowList& phrases(EditorForm& form) { return find<RowList>(form, "lvwSpellPhrases"); }
    static QAction& spellButton(EditorForm& form, const char* key) { return button(form, key, "tlbSpells"); }
    static QAction& phraseButton(EditorForm& form, const char* key)
    {
        return button(form, key, "tlbSpellPhrases");
    }

    /// A book of two spells; the frog's phrases are a and b.
    void fill(const Book& book)
    {
        hub.file(book.file) = golden("useractions/" + book.nick + "SpellBook.save.tbl");
        hub.file(book.folder + "frog.tbl") = "t" + book.nick + "Spell = {\r\n\t\"a\",\r\n\t\"b\",\r\n}\r\n";
    }

    static void amend(EditorForm& form, int row)
    {
        spells(form).select(row);
        spellButton(form, "AMEND").trigger();
    }

    static QList<SeenDialog> addPhrase(EditorForm& form, const QString& phrase)
    {
        return entering({{{phrase}}}, [&form] { phraseButton(form, "NEW").trigger(); });
    }
};

TEST_F(SpellForms, SettingsAreSavedBeforeTheWards)
{
    auto& form = open("UserActions~Spells~Settings");
    EXPECT_EQ(form.objectName(), "frmUserActionsSpellSettings");
    EXPECT_EQ(form.windowTitle(), "UserActions ~ Spells ~ Settings");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(0)").text(), "Enable Wards");
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Timeout");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(1)").text(), "Enabled Profiles");
    QStringList texts;
    for (const auto* label : form.findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains("Allows IPs beginning with 0 (such as 0.3.6.0)"));
    EXPECT_TRUE(texts.contains("Warded Users"));
    EXPECT_EQ(find<RowList>(form, "lvwWards").model()->headerData(0, Qt::Horizontal), "Warded User");
    EXPECT_FALSE(button(form, "DELETE", "tlbWards").isEnabled());
    EXPECT_FALSE(button(form, "EDIT", "tlbWards").isEnabled());

    find<QCheckBox>(form, "chkCheckBox(0)").click();
    auto& delay = find<NumberBox>(form, "updUpDown(0)");
    delay.stepBy(999);
    EXPECT_EQ(delay.text(), "180");
    delay.stepBy(-999);
    EXPECT_EQ(delay.text(), "1");
    delay.stepBy(3);
    clickTick(find<RowList>(form, "lvwEnabledProfiles"), 1);
    const auto dialogs =
        entering({{{"Merle"}, "cmdAdd"}, {{"0.3.6.0"}}}, [&] { button(form, "NEW", "tlbWards").trigger(); });
    ASSERT_EQ(dialogs.size(), 2);
    EXPECT_EQ(dialogs[0], (SeenDialog{"frmGlobalEditOneFields", "Add Warded User", {"Warded User"}, {""}}));
    EXPECT_TRUE(isDirty(form));
    hub.store.log.clear();
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    const std::string folder = "write " + hub.root + "/UserActions/Spells/";
    EXPECT_EQ(hub.store.log,
              (std::vector<std::string>{folder + "SpellSettings.tbl", folder + "SpellWards.tbl"}));
    EXPECT_TRUE(sameBytes(hub.file("UserActions/Spells/SpellSettings.tbl"),
                          golden("useractions/SpellSettings.save.tbl")));
    EXPECT_TRUE(
        sameBytes(hub.file("UserActions/Spells/SpellWards.tbl"), golden("useractions/SpellWards.save.tbl")));
}

TEST_F(SpellForms, NickSettingsHaveNoWards)
{
    auto& form = open("UserActions~NickSpells~Settings");
    EXPECT_EQ(form.objectName(), "frmUserActionsNickSpellSettings");
    EXPECT_EQ(form.windowTitle(), "UserActions ~ NickSpells ~ Settings");
    EXPECT_FALSE(form.findChild<RowList*>("lvwWards"));
    EXPECT_FALSE(form.findChild<QCheckBox*>("chkCheckBox(0)"));
    auto& delay = find<NumberBox>(form, "updUpDown(0)");
    delay.stepBy(999);
    EXPECT_EQ(delay.text(), "180");
    delay.stepBy(-999);
    EXPECT_EQ(delay.text(), "1");
    delay.stepBy(3);
    clickTick(find<RowList>(form, "lvwEnabledProfiles"), 1);
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(hub.file("UserActions/NickSpells/NickSpellSettings.tbl"),
                          golden("useractions/NickSpellSettings.save.tbl")));
}

TEST_F(SpellForms, TheLastWardedUserCanGo)
{
    hub.file("UserActions/Spells/SpellWards.tbl") = "tSpellWards = {\r\n\t[\"Merle\"] = 1,\r\n}\r\n";
    auto& form = open("UserActions~Spells~Settings");
    auto& wards = find<RowList>(form, "lvwWards");
    EXPECT_EQ(shown(wards), QStringList{"Merle"});
    wards.select(0);
    const auto dialogs = entering({{{"Nimue"}}}, [&] { button(form, "EDIT", "tlbWards").trigger(); });
    EXPECT_EQ(dialogs, (QList<SeenDialog>{
                           {"frmGlobalEditOneFields", "Edit Warded User", {"Warded User"}, {"Merle"}}}));
    EXPECT_EQ(shown(wards), QStringList{"Nimue"});
    const auto boxes = answering(QMessageBox::Ok, [&] { button(form, "DELETE", "tlbWards").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Warded User?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Warded User?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_TRUE(wards.isEmpty());
    EXPECT_FALSE(button(form, "DELETE", "tlbWards").isEnabled());
}

TEST_F(SpellForms, ARestoreOfTheSettingsUnchecksTheProfilesAndLeavesTheWardsAlone)
{
    hub.file("UserActions/Spells/SpellSettings.tbl") = golden("useractions/SpellSettings.save.tbl");
    hub.file("UserActions/Spells/SpellWards.tbl") = golden("useractions/SpellWards.save.tbl");
    auto& form = open("UserActions~Spells~Settings");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_EQ(find<NumberBox>(form, "updUpDown(0)").text(), "3");
    EXPECT_FALSE(find<RowList>(form, "lvwEnabledProfiles").rows()[1].checked);
    EXPECT_EQ(shown(find<RowList>(form, "lvwWards")), (QStringList{"Merle", "0.3.6.0"}));
    EXPECT_TRUE(isDirty(form));
}

TEST_F(SpellForms, ABookShowsItsSpellsWithoutTheirPhrases)
{
    for (const Book& book : books) {
        fill(book);
        hub.store.readings.clear();
        auto& form = open(book.key);
        EXPECT_EQ(form.objectName(), book.form);
        EXPECT_EQ(form.windowTitle(), book.caption);
        EXPECT_EQ(shown(spells(form)), (QStringList{"frog|makes a frog", "owl|makes an owl"}));
        const QStringList columns = {"Spell Name", "Spell Description", "Spell Phrases", "Spell LInes"};
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(spells(form).model()->headerData(column, Qt::Horizontal), columns[column]);
        EXPECT_EQ(spellButton(form, "AMEND").toolTip(), "Amend Spell Phrases");
        for (const char* key : {"NEW", "DELETE", "EDIT", "AMEND"})
            EXPECT_TRUE(spellButton(form, key).isEnabled()) << key;
        for (const char* key : {"NEW", "DELETE", "EDIT"})
            EXPECT_FALSE(phraseButton(form, key).isEnabled()) << key;
        EXPECT_EQ(hub.store.readings[hub.root + '/' + book.folder + "frog.tbl"], 0);
        EXPECT_FALSE(isDirty(form));
    }
}

TEST_F(SpellForms, AnEmptyBookOffersOnlyNew)
{
    for (const Book& book : books) {
        auto& form = open(book.key);
        EXPECT_TRUE(spellButton(form, "NEW").isEnabled());
        for (const char* key : {"DELETE", "EDIT", "AMEND"})
            EXPECT_FALSE(spellButton(form, key).isEnabled()) << key;
        form.routine("gMenuSecondAddClick")(); // no spell, no phrase: nothing comes up
        EXPECT_TRUE(phrases(form).isEmpty());
    }
}

TEST_F(SpellForms, NewSpellsGetNoPhraseFileUntilTheyAreAmended)
{
    for (const Book& book : books) {
        auto& form = open(book.key);
        const auto dialogs = entering({{{"frog", "makes a frog"}, "cmdAdd"}, {{"owl", "makes an owl"}}},
                                      [&] { spellButton(form, "NEW").trigger(); });
        ASSERT_EQ(dialogs.size(), 2);
        EXPECT_EQ(
            dialogs[0],
            (SeenDialog{
                "frmGlobalEditTwoFields", "Add New Spell", {"Spell Name", "Spell Description"}, {"", ""}}));
        EXPECT_TRUE(isDirty(form));
        hub.store.log.clear();
        button(form, "SAVE").trigger();
        EXPECT_FALSE(isDirty(form));
        EXPECT_EQ(hub.store.log, std::vector<std::string>{"write " + hub.root + '/' + book.file});
        EXPECT_TRUE(
            sameBytes(hub.file(book.file), golden("useractions/" + book.nick + "SpellBook.save.tbl")));
    }
}

TEST_F(SpellForms, AnEditBearsTheWardsTitle)
{
    for (const Book& book : books) {
        fill(book);
        auto& form = open(book.key);
        spells(form).select(1);
        const auto dialogs =
            entering({{{QString(), "makes a tawny owl"}}}, [&] { spellButton(form, "EDIT").trigger(); });
        EXPECT_EQ(dialogs, (QList<SeenDialog>{{"frmGlobalEditTwoFields",
                                               "Edit Warded User",
                                               {"Spell Name", "Spell Description"},
                                               {"owl", "makes an owl"}}}));
        EXPECT_EQ(shown(spells(form)).value(1), "owl|makes a tawny owl");
        EXPECT_TRUE(isDirty(form));
    }
}

TEST_F(SpellForms, DeletingASpellAsksAndNeverTakesTheLast)
{
    for (const Book& book : books) {
        fill(book);
        auto& form = open(book.key);
        const auto remove = [&] {
            spells(form).select(0);
            spellButton(form, "DELETE").trigger();
        };
        const auto question = answering(QMessageBox::Ok, remove);
        ASSERT_EQ(question.size(), 1);
        EXPECT_EQ(question[0].title, "Delete Spell?");
        EXPECT_EQ(question[0].text, "Do you really want to delete this Spell?");
        EXPECT_EQ(question[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
        const auto refusal = answering(QMessageBox::Ok, remove);
        ASSERT_EQ(refusal.size(), 1);
        EXPECT_EQ(refusal[0].title, "Cannot delete");
        EXPECT_EQ(refusal[0].text, "There must be a minimum of one Spell");
        EXPECT_EQ(refusal[0].icon, QMessageBox::Critical);
        EXPECT_EQ(shown(spells(form)), QStringList{"owl|makes an owl"});
    }
}

TEST_F(SpellForms, ADoubleClickAmends)
{
    for (const Book& book : books) {
        fill(book);
        auto& form = open(book.key);
        doubleClickRow(spells(form), 0);
        EXPECT_EQ(shown(phrases(form)), (QStringList{"a", "b"}));
        for (const char* key : {"NEW", "DELETE", "EDIT"})
            EXPECT_TRUE(phraseButton(form, key).isEnabled()) << key;
        EXPECT_FALSE(isDirty(form));
        amend(form, 1); // the owl has no phrases yet
        EXPECT_TRUE(phrases(form).isEmpty());
        EXPECT_TRUE(phraseButton(form, "NEW").isEnabled());
        EXPECT_FALSE(phraseButton(form, "DELETE").isEnabled());
    }
}

TEST_F(SpellForms, TheFirstPhraseIsLostAtASaveAfterOneChangeAndComesBackAfterTwo)
{
    for (const Book& book : books) {
        fill(book);
        auto& form = open(book.key);
        amend(form, 0);
        const auto dialogs = addPhrase(form, "c");
        EXPECT_EQ(dialogs, (QList<SeenDialog>{
                               {"frmGlobalEditOneFields", "Add New Spell Phrase", {"Spell Phrase"}, {""}}}));
        EXPECT_EQ(spells(form).rows()[0].cells[2], "a|b|c|");
        EXPECT_EQ(spells(form).rows()[0].cells[3], "3");
        EXPECT_TRUE(isDirty(form));
        hub.store.log.clear();
        button(form, "SAVE").trigger();
        const std::string written = "write " + hub.root + '/';
        EXPECT_EQ(hub.store.log,
                  (std::vector<std::string>{written + book.folder + "frog.tbl", written + book.file}));
        EXPECT_TRUE(sameBytes(hub.file(book.folder + "frog.tbl"),
                              golden("useractions/" + book.nick + "Spell.once.tbl")));
        EXPECT_TRUE(
            sameBytes(hub.file(book.file), golden("useractions/" + book.nick + "SpellBook.save.tbl")));
        addPhrase(form, "d");
        EXPECT_EQ(spells(form).rows()[0].cells[2], "a|b|c|a|b|c|d|");
        button(form, "SAVE").trigger();
        EXPECT_TRUE(sameBytes(hub.file(book.folder + "frog.tbl"),
                              golden("useractions/" + book.nick + "Spell.twice.tbl")));
    }
}

TEST_F(SpellForms, EachPhraseOfOneRoundOfAddingIsGatheredAnew)
{
    for (const Book& book : books) {
        fill(book);
        auto& form = open(book.key);
        amend(form, 0);
        entering({{{"c"}, "cmdAdd"}, {{"d"}}}, [&form] { phraseButton(form, "NEW").trigger(); });
        EXPECT_EQ(spells(form).rows()[0].cells[2], "a|b|c|a|b|c|d|");
        EXPECT_EQ(spells(form).rows()[0].cells[3], "4");
    }
}

TEST_F(SpellForms, PhrasesAreEditedAndDeletedWithAGatheringEach)
{
    for (const Book& book : books) {
        fill(book);
        auto& form = open(book.key);
        amend(form, 0);
        phrases(form).select(0);
        const auto dialogs = entering({{{"A"}}}, [&] { phraseButton(form, "EDIT").trigger(); });
        EXPECT_EQ(dialogs, (QList<SeenDialog>{
                               {"frmGlobalEditOneFields", "Edit Spell Phrase", {"Spell Phrase"}, {"a"}}}));
        EXPECT_EQ(spells(form).rows()[0].cells[2], "A|b|");
        const auto remove = [&] {
            phrases(form).select(0);
            phraseButton(form, "DELETE").trigger();
        };
        const auto question = answering(QMessageBox::Ok, remove);
        ASSERT_EQ(question.size(), 1);
        EXPECT_EQ(question[0].title, "Delete Spell Phrase?");
        EXPECT_EQ(question[0].text, "Do you really want to delete this Spell Phrase?");
        EXPECT_EQ(question[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(spells(form).rows()[0].cells[2], "A|b|b|");
        EXPECT_EQ(spells(form).rows()[0].cells[3], "1");
        const auto refusal = answering(QMessageBox::Ok, remove);
        ASSERT_EQ(refusal.size(), 1);
        EXPECT_EQ(refusal[0].title, "Cannot delete");
        EXPECT_EQ(refusal[0].text, "There must be a minimum of one Spell Phrase");
        EXPECT_EQ(refusal[0].icon, QMessageBox::Critical);
        EXPECT_EQ(spells(form).rows()[0].cells[2], "A|b|b|");
    }
}

TEST_F(SpellForms, OpenedButUnchangedPhrasesKeepTheirFile)
{
    for (const Book& book : books) {
        fill(book);
        const std::string before = hub.file(book.folder + "frog.tbl");
        auto& form = open(book.key);
        amend(form, 0);
        spells(form).select(1);
        entering({{{QString(), "makes a tawny owl"}}}, [&] { spellButton(form, "EDIT").trigger(); });
        button(form, "SAVE").trigger();
        EXPECT_EQ(hub.file(book.folder + "frog.tbl"), before);
    }
}

TEST_F(SpellForms, ANameThatLeavesTheFolderIsRefused)
{
    for (const Book& book : books) {
        fill(book);
        auto& form = open(book.key);
        for (const char* name : {R"(..\frog)", "a/b", "frog?"}) {
            QString refusal;
            test::withModal([&] { spellButton(form, "NEW").trigger(); },
                            [&](QWidget& modal) {
                                if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                                    refusal = box->windowTitle();
                                    box->close();
                                    return;
                                }
                                test::fillField(test::fieldOf(modal, 0), name);
                                test::fillField(test::fieldOf(modal, 1), "text");
                                find<QPushButton>(modal, "cmdOK").click();
                            });
            EXPECT_EQ(refusal, "Cannot create file") << name;
        }
        EXPECT_EQ(spells(form).rows().size(), 2U);
        EXPECT_FALSE(isDirty(form));
    }
}

TEST_F(SpellForms, ASpellOfAHandMadeBookThatLeavesTheFolderIsNotAmended)
{
    hub.file("UserActions/Spells/SpellBook.tbl") = "tSpellBook = {\r\n\t[\"..\\..\\x\"] = \"\",\r\n}\r\n";
    auto& form = open("UserActions~Spells~SpellBook");
    spells(form).select(0);
    const auto boxes = answering(QMessageBox::Ok, [&] { spellButton(form, "AMEND").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot open file");
    EXPECT_FALSE(phraseButton(form, "NEW").isEnabled());
}

TEST_F(SpellForms, ASpellOfTheBookKeepsANameThatWeWouldNotGive)
{
    hub.file("UserActions/Spells/SpellBook.tbl") = "tSpellBook = {\r\n\t[\"con\"] = \"a\",\r\n}\r\n";
    hub.file("UserActions/Spells/Spells/con.tbl") = "tSpell = {\r\n\t\"x\",\r\n}\r\n";
    auto& form = open("UserActions~Spells~SpellBook");
    spells(form).select(0);
    entering({{{QString(), "b"}}}, [&] { spellButton(form, "EDIT").trigger(); });
    EXPECT_EQ(shown(spells(form)), QStringList{"con|b"});
    amend(form, 0);
    EXPECT_EQ(shown(phrases(form)), QStringList{"x"});
}

TEST_F(SpellForms, ASpellRenamedWhileItIsAmendedStaysTheOneAmended)
{
    const Book& book = books.front();
    fill(book);
    auto& form = open(book.key);
    amend(form, 0);
    entering({{{"toad", QString()}}}, [&] { spellButton(form, "EDIT").trigger(); });
    addPhrase(form, "c");
    EXPECT_EQ(spells(form).rows()[0].cells,
              (std::vector<std::string>{"toad", "makes a frog", "a|b|c|", "3"}));
    spells(form).select(0);
    answering(QMessageBox::Ok, [&] { spellButton(form, "DELETE").trigger(); });
    EXPECT_TRUE(phrases(form).isEmpty()); // a deleted spell's phrases go with it
    EXPECT_FALSE(phraseButton(form, "NEW").isEnabled());
}

TEST_F(SpellForms, ARestoreLeavesSpellsAndPhrasesAlone)
{
    const Book& book = books.front();
    fill(book);
    auto& form = open(book.key);
    amend(form, 0);
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(spells(form).rows().size(), 2U);
    EXPECT_EQ(phrases(form).rows().size(), 2U);
    EXPECT_TRUE(isDirty(form));
}

TEST_F(SpellForms, ADiscardForgetsWhatWasGathered)
{
    const Book& book = books.front();
    fill(book);
    auto& form = open(book.key);
    amend(form, 0);
    addPhrase(form, "c");
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(spells(form).rows()[0].cells[2], "");
    EXPECT_TRUE(phrases(form).isEmpty());
    EXPECT_FALSE(isDirty(form));
}

} // namespace
} // namespace quillfen
