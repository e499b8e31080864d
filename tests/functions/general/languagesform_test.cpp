#include "functions/general/languages.h"
#include "functions/general/languagesform.h"
#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>

namespace quillfen {
namespace {

using test::answering;
using test::sameBytes;

struct LanguageWords
{
    const char* key;
    const char* form;
    const char* caption;
    const char* list;
    const char* table;
    const char* folder;
    const char* textTable;
    const char* keyColumn;
    const char* textColumn;
    const char* newTitle;
    const char* newPrompt;
    const char* duplicate;
    const char* refusal;
    const char* editTitle;
    const char* label;
};

class LanguageForms : public test::FormTest, public testing::WithParamInterface<LanguageWords>
{
protected:
    LanguageForms()
    {
        list = std::string(words.table) + " = {\r\n\t[1] = \"DEFAULT\",\r\n\tCurrent = \"german\",\r\n}\r\n";
        file("DEFAULT") =
            std::string(words.textTable) + " = {\r\n\tsHelp = \"help\",\r\n\tsKick = \"kick\",\r\n}\r\n";
        file("german") =
            std::string(words.textTable) + " = {\r\n\tsKick = \"tritt\",\r\n\tsOld = \"alt\",\r\n}\r\n";
    }

    std::string& file(const std::string& name) { return hub.file(std::string(words.folder) + name + ".tbl"); }
    bool hasFile(const std::string& name) const { return hub.has(std::string(words.folder) + name + ".tbl"); }

    EditorForm& openForm() { return open(words.key); }
    static RowList& files(EditorForm& form) { return find<RowList>(form, "lvwFiles"); }
    static RowList& texts(EditorForm& form) { return find<RowList>(form, "lvwTexts"); }
    static QAction& fileTool(EditorForm& form, const char* key) { return button(form, key, "tlbFiles"); }
    static QAction& textTool(EditorForm& form, const char* key) { return button(form, key, "tlbTexts"); }

    static void edit(EditorForm& form, const char* language)
    {
        clickRow(files(form), rowOf(files(form), language));
        fileTool(form, "EDIT").trigger();
    }

    /// Answers each dialog that edits a text with the next of these; an empty one presses Cancel.
    static void typing(
        const QStringList& answers, const std::function<void()>& action,
        const std::function<void(QWidget&)>& look = [](QWidget&) {})
    {
        int shownDialogs = 0;
        test::withModal(action, [&](QWidget& dialog) {
            look(dialog);
            const QString text = answers.value(shownDialogs++);
            find<QLineEdit>(dialog, "txtTextBox(0)").setText(text);
            find<QPushButton>(dialog, text.isEmpty() ? "cmdCancel" : "cmdOK").click();
        });
        EXPECT_EQ(shownDialogs, answers.size());
    }

    /// Chooses NEW and types a name.
    void newLanguage(EditorForm& form, const QString& name)
    {
        test::withModal([&form] { fileTool(form, "NEW").trigger(); },
                        [&](QWidget& dialog) {
                            EXPECT_EQ(dialog.windowTitle(), words.newTitle);
                            EXPECT_EQ(qobject_cast<QInputDialog*>(&dialog)->labelText(), words.newPrompt);
                            test::typeInto(dialog, name);
                        });
    }

    /// The names that a file dialog lists, once it has read its folder.
    static QStringList listedFiles(QFileDialog& dialog)
    {
        auto* list = dialog.findChild<QAbstractItemView*>("listView");
        QStringList names;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            names.clear();
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                names.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
            return names.size() > 1;
        }));
        names.sort();
        return names;
    }

    /// What is lit of the texts' toolbar.
    static QStringList lit(EditorForm& form)
    {
        QStringList keys;
        for (auto* action : find<QToolBar>(form, "tlbTexts").actions()) {
            if (action->isEnabled())
                keys.append(action->objectName());
        }
        return keys;
    }

    const LanguageWords words = GetParam();
    std::string& list = hub.file(words.list);
};

INSTANTIATE_TEST_SUITE_P(
    All, LanguageForms,
    testing::Values(LanguageWords{"General~Commands", "frmLanguageCommands", "Language ~ Commands",
                                  "Language/Commands/CommandLanguages.tbl", "tCommandLanguages",
                                  "Language/Commands/Files/", "tScriptCommands", "Command ID", "Command",
                                  "Add New Command", "Enter name of new Command File:",
                                  " already exists as a Command Language File",
                                  "DEFAULT Command File cannot be deleted", "Edit Command", "Command"},
                    LanguageWords{"General~RightClicks", "frmLanguageRightClick", "Language ~ RightClick",
                                  "Language/RightClick/RightClickLanguages.tbl", "tRightClickLanguages",
                                  "Language/RightClick/Files/", "tScriptRightClick", "RightClick ID",
                                  "RightClick", "Add New RightClick", "Enter name of new RightClick:",
                                  " already exists as a RightClick Language File",
                                  "DEFAULT RightClick cannot be deleted", "Edit RightClick", "RightClick"},
                    LanguageWords{"General~Messages", "frmLanguageMessages", "Language ~ Messages",
                                  "Language/Messages/MessageLanguages.tbl", "tMessageLanguages",
                                  "Language/Messages/Files/", "tScriptMessages", "Message ID", "Message",
                                  "Add New Command", "Enter name of new Message File:",
                                  " already exists as a Message Language File",
                                  "DEFAULT Command File cannot be deleted", "Edit Message", "Message"}),
    [](const auto& each) { return std::string(each.param.form); });

TEST_P(LanguageForms, ShowTheLanguagesWithTheCurrentOneChecked)
{
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), words.form);
    EXPECT_EQ(form.windowTitle(), words.caption);
    EXPECT_EQ(files(form).rows(), (std::vector<CellRow>{{{"DEFAULT"}}, {{"german"}, true}}));
    EXPECT_EQ(files(form).model()->headerData(0, Qt::Horizontal).toString(), "Languages");
    EXPECT_EQ(texts(form).model()->headerData(0, Qt::Horizontal).toString(), words.keyColumn);
    EXPECT_EQ(texts(form).model()->headerData(1, Qt::Horizontal).toString(), words.textColumn);
    EXPECT_FALSE(texts(form).isEnabled());
    EXPECT_TRUE(lit(form).isEmpty());
    const auto buttons = [&form](const char* toolbar) {
        QStringList all;
        for (auto* action : find<QToolBar>(form, toolbar).actions())
            all.append(action->objectName() + '=' + action->toolTip());
        return all;
    };
    EXPECT_EQ(buttons("tlbFiles"), (QStringList{"NEW=Create new file", "OPEN=Add existing file",
                                                "DELETE=Delete question file", "EDIT=Edit question file"}));
    EXPECT_EQ(buttons("tlbTexts"), (QStringList{"SAVE=Save changes", "CLOSE=Discard changes",
                                                "EDIT=Edit question", "EDITALL=Edit All"}));
    EXPECT_FALSE(isDirty(form));
}

TEST_P(LanguageForms, LeaveTheRegistryWhenTheyClose)
{
    auto& form = openForm();
    EXPECT_TRUE(form.tag().startsWith("General ~ "));
    EXPECT_EQ(window().openWindows().Count(), 1);
    form.parentWidget()->close();
    EXPECT_EQ(window().openWindows().Count(), 0);
}

TEST_P(LanguageForms, AClickOnATickMakesThatLanguageTheOnlyCurrentOne)
{
    auto& form = openForm();
    clickTick(files(form), 0);
    EXPECT_EQ(files(form).rows(), (std::vector<CellRow>{{{"DEFAULT"}, true}, {{"german"}}}));
    EXPECT_TRUE(isDirty(form));
    clickTick(files(form), 0); // a second click keeps it checked
    EXPECT_EQ(files(form).rows(), (std::vector<CellRow>{{{"DEFAULT"}, true}, {{"german"}}}));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(list, std::string(words.table) +
                                    " = {\r\n\tCurrent = \"DEFAULT\",\r\n\t[1] = \"german\",\r\n}\r\n"));
    EXPECT_FALSE(isDirty(form));
}

TEST_P(LanguageForms, ADoubleClickLaysALanguageOverTheReference)
{
    auto& form = openForm();
    doubleClickRow(files(form), rowOf(files(form), "german"));
    EXPECT_EQ(shown(texts(form)), (QStringList{"sHelp|help", "sKick|tritt"}));
    EXPECT_EQ(texts(form).currentRow(), 0);
    EXPECT_EQ(lit(form), (QStringList{"CLOSE", "EDIT", "EDITALL"}));
    EXPECT_TRUE(texts(form).isEnabled());
    EXPECT_FALSE(isDirty(form));
}

TEST_P(LanguageForms, ASavedLanguageBearsItsNameInCapitalsAndJoinsTheList)
{
    auto& form = openForm();
    edit(form, "german");
    typing(
        {"Hilfe"}, [&form] { textTool(form, "EDIT").trigger(); },
        [this](QWidget& dialog) {
            EXPECT_EQ(dialog.objectName(), "frmGlobalEditOneFields");
            EXPECT_EQ(dialog.windowTitle(), words.editTitle);
            EXPECT_EQ(find<QLabel>(dialog, "lblLabel(0)").text(), words.label);
            EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(0)").text(), "help");
        });
    EXPECT_TRUE(lit(form).contains("SAVE"));
    EXPECT_TRUE(isDirty(form));
    textTool(form, "SAVE").trigger();
    EXPECT_TRUE(
        sameBytes(file("GERMAN"), std::string(words.textTable) +
                                      " = {\r\n\tsHelp = \"Hilfe\",\r\n\tsKick = \"tritt\",\r\n}\r\n"));
    EXPECT_EQ(shown(files(form)), (QStringList{"DEFAULT", "german", "GERMAN"}));
    EXPECT_TRUE(texts(form).isEmpty());
    EXPECT_FALSE(texts(form).isEnabled());
    EXPECT_TRUE(lit(form).isEmpty());
    EXPECT_TRUE(isDirty(form)); // the list is still to be saved
}

TEST_P(LanguageForms, TheFormsSaveLeavesTheOpenLanguageAlone)
{
    auto& form = openForm();
    edit(form, "german");
    typing({"Hilfe"}, [&form] { doubleClickRow(texts(form), 0); });
    button(form, "SAVE").trigger();
    EXPECT_FALSE(hasFile("GERMAN"));
    EXPECT_FALSE(texts(form).isEmpty());
    EXPECT_FALSE(isDirty(form));
}

TEST_P(LanguageForms, EditAllShowsTheDialogForEachRow)
{
    auto& form = openForm();
    edit(form, "german");
    typing({"a", "b"}, [&form] { textTool(form, "EDITALL").trigger(); });
    EXPECT_EQ(shown(texts(form)), (QStringList{"sHelp|a", "sKick|b"}));
}

TEST_P(LanguageForms, EditAllGoesOnAfterACancel)
{
    auto& form = openForm();
    edit(form, "german");
    typing({"", "b"}, [&form] { textTool(form, "EDITALL").trigger(); });
    EXPECT_EQ(shown(texts(form)), (QStringList{"sHelp|help", "sKick|b"}));
}

TEST_P(LanguageForms, EditAllEndsWhenItsDialogIsClosed)
{
    auto& form = openForm();
    edit(form, "german");
    const QList<std::function<void(QWidget&)>> closings = {
        [](QWidget& dialog) { dialog.close(); },
        [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }};
    for (const auto& close : closings) {
        int dialogs = 0;
        test::withModal([&form] { textTool(form, "EDITALL").trigger(); },
                        [&](QWidget& dialog) {
                            ++dialogs;
                            close(dialog);
                        });
        EXPECT_EQ(dialogs, 1);
    }
    EXPECT_EQ(shown(texts(form)), (QStringList{"sHelp|help", "sKick|tritt"}));
}

TEST_P(LanguageForms, TheReferenceIsReadOnlyAndAChangeStaysOnTheScreen)
{
    auto& form = openForm();
    const auto boxes = answering(QMessageBox::Ok, [&form] { edit(form, "DEFAULT"); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Read Only");
    EXPECT_EQ(boxes[0].text, "DEFAULT file cannot be edited");
    EXPECT_EQ(lit(form), QStringList{"CLOSE"});
    EXPECT_EQ(shown(texts(form)), (QStringList{"sHelp|help", "sKick|kick"}));
    typing({"mine"}, [&form] { doubleClickRow(texts(form), 0); });
    EXPECT_EQ(shown(texts(form))[0], "sHelp|mine");
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(answering(QMessageBox::Ok, [&form] { textTool(form, "CLOSE").trigger(); }).isEmpty());
    EXPECT_TRUE(texts(form).isEmpty());
}

TEST_P(LanguageForms, TheReferenceIsNotSavedUntilANewLanguageTakesItsPlace)
{
    auto& form = openForm();
    answering(QMessageBox::Ok, [&form] { edit(form, "DEFAULT"); });
    const std::string before = file("DEFAULT");
    typing({"mine"}, [&form] { doubleClickRow(texts(form), 0); });
    textTool(form, "SAVE").setEnabled(true);
    textTool(form, "SAVE").trigger();
    EXPECT_EQ(file("DEFAULT"), before);
    EXPECT_FALSE(texts(form).isEmpty());
    newLanguage(form, "French");
    EXPECT_EQ(lit(form), (QStringList{"CLOSE", "EDIT", "EDITALL"}));
    typing({"aide"}, [&form] { doubleClickRow(texts(form), 0); });
    EXPECT_TRUE(isDirty(form));
    textTool(form, "SAVE").trigger();
    EXPECT_TRUE(hasFile("French"));
    EXPECT_EQ(file("DEFAULT"), before);
}

TEST_P(LanguageForms, OneLanguageIsEditedAtATime)
{
    auto& form = openForm();
    edit(form, "german");
    const auto boxes = answering(QMessageBox::Ok, [&form] { edit(form, "DEFAULT"); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot Edit");
    EXPECT_EQ(boxes[0].text, "There is already a file being edited");
    files(form).clearSelection();
    EXPECT_EQ(answering(QMessageBox::Ok, [&form] { fileTool(form, "EDIT").trigger(); }).value(0).title,
              "Cannot Edit");
}

TEST_P(LanguageForms, ALanguageThatLeadsOutOfItsFolderIsNotOpened)
{
    list = std::string(words.table) + " = {\r\n\t[1] = \"..\\..\\x\",\r\n\t[2] = \"con\",\r\n}\r\n";
    auto& form = openForm();
    const auto boxes = answering(QMessageBox::Ok, [&form] { edit(form, "..\\..\\x"); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot open file");
    EXPECT_TRUE(texts(form).isEmpty());
    edit(form, "con"); // a bad name that stays there
}

TEST_P(LanguageForms, ClosingALanguageAsksAndACancelLeavesItOpen)
{
    auto& form = openForm();
    edit(form, "german");
    auto boxes = answering(QMessageBox::Cancel, [&form] { textTool(form, "CLOSE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Are you sure you'd like to discard changes?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_FALSE(texts(form).isEmpty());
    answering(QMessageBox::Ok, [&form] { textTool(form, "CLOSE").trigger(); });
    EXPECT_TRUE(texts(form).isEmpty());
    EXPECT_FALSE(texts(form).isEnabled());
    EXPECT_TRUE(lit(form).isEmpty());
}

TEST_P(LanguageForms, ANewLanguageStartsWithTheReferencesTextsAndKeepsItsNameAsTyped)
{
    auto& form = openForm();
    newLanguage(form, "French");
    EXPECT_EQ(shown(texts(form)), (QStringList{"sHelp|help", "sKick|kick"}));
    EXPECT_EQ(texts(form).currentRow(), 0);
    EXPECT_FALSE(hasFile("French"));
    typing({"aide"}, [&form] { textTool(form, "EDIT").trigger(); });
    textTool(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(file("French"), std::string(words.textTable) +
                                              " = {\r\n\tsHelp = \"aide\",\r\n\tsKick = \"kick\",\r\n}\r\n"));
    EXPECT_EQ(shown(files(form)).last(), "French");
}

TEST_P(LanguageForms, ANewLanguageOfAListedNameReplacesItsFileAndIsNotListedTwice)
{
    auto& form = openForm();
    newLanguage(form, "german");
    typing({"Hilfe"}, [&form] { textTool(form, "EDIT").trigger(); });
    textTool(form, "SAVE").trigger();
    EXPECT_TRUE(
        sameBytes(file("german"), std::string(words.textTable) +
                                      " = {\r\n\tsHelp = \"Hilfe\",\r\n\tsKick = \"kick\",\r\n}\r\n"));
    EXPECT_EQ(shown(files(form)), (QStringList{"DEFAULT", "german"}));
}

TEST_P(LanguageForms, AnEmptyNameDoesNothingAndABadOneIsRefused)
{
    auto& form = openForm();
    newLanguage(form, "");
    EXPECT_TRUE(texts(form).isEmpty());
    const auto boxes = answering(
        QMessageBox::Ok, [&form] { fileTool(form, "NEW").trigger(); },
        [](QWidget& modal) { test::typeInto(modal, "..\\x"); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot create file");
    EXPECT_TRUE(boxes[0].text.startsWith("..\\x\n\nA file name can't hold any of"));
    EXPECT_TRUE(texts(form).isEmpty());
    EXPECT_FALSE(hasFile("..\\x"));
}

TEST_P(LanguageForms, WithoutAReferenceANewLanguageHasNoKeys)
{
    hub.store.files.erase(hub.root + "/" + words.folder + "DEFAULT.tbl");
    auto& form = openForm();
    newLanguage(form, "French");
    EXPECT_TRUE(texts(form).isEmpty());
    EXPECT_TRUE(lit(form).contains("SAVE")); // there is nothing to change first
    textTool(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(file("French"), std::string(words.textTable) + " = {\r\n}\r\n"));
}

TEST_P(LanguageForms, DeleteAsksAndLeavesTheFileOnTheDisk)
{
    auto& form = openForm();
    clickRow(files(form), 1);
    auto boxes = answering(QMessageBox::No, [&form] { fileTool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Language File?");
    EXPECT_EQ(boxes[0].text, "Are you sure you wish to delete german?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(files(form).rows().size(), 2U);
    answering(QMessageBox::Yes, [&form] { fileTool(form, "DELETE").trigger(); });
    EXPECT_EQ(shown(files(form)), QStringList{"DEFAULT"});
    EXPECT_TRUE(hasFile("german"));
    EXPECT_TRUE(isDirty(form));
}

TEST_P(LanguageForms, TheReferenceCannotBeDeleted)
{
    auto& form = openForm();
    clickRow(files(form), 0);
    const auto boxes = answering(QMessageBox::Ok, [&form] { fileTool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_EQ(boxes[0].text, words.refusal);
    EXPECT_EQ(files(form).rows().size(), 2U);
}

TEST_P(LanguageForms, OpenListsANameAndRefusesOneThatIsListedInAnyCase)
{
    QTemporaryDir folder;
    for (const char* name : {"/spanish.tbl", "/GERMAN.tbl", "/abc"}) {
        QFile made(folder.path() + name);
        ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    }
    auto& form = openForm();
    const auto choose = [&](const char* name) {
        return answering(
            QMessageBox::Ok, [&form] { fileTool(form, "OPEN").trigger(); },
            [&](QWidget& modal) {
                EXPECT_EQ(modal.windowTitle(), "Select Language File to open");
                test::chooseFile(modal, folder.path(), name);
            });
    };
    EXPECT_TRUE(choose("spanish.tbl").isEmpty());
    EXPECT_EQ(shown(files(form)).last(), "spanish");
    EXPECT_TRUE(isDirty(form));
    EXPECT_FALSE(hasFile("spanish")); // nothing is copied
    const auto boxes = choose("GERMAN.tbl");
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot Add Language File");
    EXPECT_EQ(boxes[0].text, QString("GERMAN") + words.duplicate);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
    EXPECT_EQ(files(form).rows().size(), 3U);
    EXPECT_TRUE(choose("abc").isEmpty()); // four characters go whichever they are
    EXPECT_EQ(shown(files(form)).last(), "");
}

TEST_P(LanguageForms, OpenStartsInTheSetsFolderAndACancelAddsNothing)
{
    const QTemporaryDir scripts;
    const QString folder =
        scripts.path() + "/Morvaleth's Quillfen/Settings/" + QString(words.folder).chopped(1);
    ASSERT_TRUE(QDir().mkpath(folder));
    const SettingsFiles onDisk{hub.store, SettingsPaths(scripts.path().toStdString())};
    const auto sets = languageSets();
    const auto set = std::find_if(sets.begin(), sets.end(),
                                  [this](const LanguageSet& each) { return each.form == words.form; });
    const OwnPart part = {OwnPartKind::Languages, static_cast<std::size_t>(set - sets.begin())};
    const std::unique_ptr<EditorForm> form =
        makeForm({{"frmLanguage", "Languages"}, {part}}, makers, {onDisk, hub.profiles});
    form->open();
    const auto offered = test::offeredFiles([&form] { fileTool(*form, "OPEN").trigger(); });
    EXPECT_EQ(offered.folder, folder);
    EXPECT_EQ(offered.filters, QStringList{"(*.TBL)"});
    EXPECT_TRUE(files(*form).isEmpty());
    EXPECT_FALSE(form->isDirty());
}

TEST_P(LanguageForms, OpenListsLanguageFilesInWhateverCase)
{
    QTemporaryDir folder;
    for (const char* name : {"/spanish.tbl", "/FRENCH.TBL", "/notes.txt"}) {
        QFile made(folder.path() + name);
        ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    }
    auto& form = openForm();
    QStringList listed;
    test::withModal([&form] { fileTool(form, "OPEN").trigger(); },
                    [&](QWidget& modal) {
                        auto* dialog = qobject_cast<QFileDialog*>(&modal);
                        dialog->setDirectory(folder.path());
                        listed = listedFiles(*dialog);
                        dialog->reject();
                    });
    EXPECT_EQ(listed, (QStringList{"FRENCH.TBL", "spanish.tbl"}));
}

TEST_P(LanguageForms, TheLanguagesMenuServesThem)
{
    auto& form = openForm();
    emit files(form).menuAsked({0, 0}, true);
    EXPECT_TRUE(window().popUpMenu("mnuFirst")->isVisible());
    window().popUpMenu("mnuFirst")->hide();
    clickRow(files(form), rowOf(files(form), "german"));
    find<QAction>(window(), "mnuFirstEdit").trigger();
    answering(QMessageBox::Yes, [this] { find<QAction>(window(), "mnuFirstDelete").trigger(); });
    EXPECT_EQ(shown(files(form)), QStringList{"DEFAULT"});
    test::withModal([this] { find<QAction>(window(), "mnuFirstAdd").trigger(); },
                    [](QWidget& modal) { test::typeInto(modal, "French"); });
}

TEST_P(LanguageForms, ADiscardShowsTheListAsTheFileHasIt)
{
    auto& form = openForm();
    clickTick(files(form), 0);
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(files(form).rows(), (std::vector<CellRow>{{{"DEFAULT"}}, {{"german"}, true}}));
    EXPECT_FALSE(isDirty(form));
}

TEST_P(LanguageForms, ARestoreOnlyMakesTheFormDirty)
{
    auto& form = openForm();
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Restore defaults?");
    EXPECT_EQ(boxes[0].text, "Restore to defaults?");
    EXPECT_EQ(files(form).rows(), (std::vector<CellRow>{{{"DEFAULT"}}, {{"german"}, true}}));
    EXPECT_TRUE(isDirty(form));
}

} // namespace
} // namespace quillfen
