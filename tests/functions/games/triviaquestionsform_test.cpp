#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

namespace quillfen {
namespace {

using test::answering;
using test::sameBytes;

class TriviaQuestions : public test::FormTest
{
protected:
    TriviaQuestions()
    {
        table = "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = "
                "\"music\",\r\n\t\"zoo\",\r\n\t\"trivia\",\r\n}\r\n";
        lst("zoo") = "Zoo:Big cat?*lion\r\nZoo:Long neck?*giraffe\r\n\r\n";
        lst("music") = "Music:A:B?*piano\r\n";
    }

    std::string& lst(const std::string& name)
    {
        return hub.file("Games/Trivia/QuestionFiles/" + name + ".lst");
    }
    bool hasLst(const std::string& name) const
    {
        return hub.has("Games/Trivia/QuestionFiles/" + name + ".lst");
    }

    EditorForm& openForm() { return open("Games~Trivia~Questions"); }
    static RowList& files(EditorForm& form) { return find<RowList>(form, "lvwQuestionFiles"); }
    static RowList& questions(EditorForm& form) { return find<RowList>(form, "lvwQuestions"); }
    static QComboBox& preset(EditorForm& form) { return find<QComboBox>(form, "cboQuestionFileDefault"); }
    static QAction& fileTool(EditorForm& form, const char* key)
    {
        return button(form, key, "tlbQuestionFiles");
    }
    static QAction& tool(EditorForm& form, const char* key) { return button(form, key, "tlbQuestions"); }

    static QList<test::SeenBox> load(EditorForm& form, const char* name,
                                     QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        clickRow(files(form), rowOf(files(form), name));
        return answering(answer, [&form] { fileTool(form, "EDIT").trigger(); });
    }

    static QString lit(EditorForm& form)
    {
        QString keys;
        for (auto* action : find<QToolBar>(form, "tlbQuestions").actions())
            keys += action->isEnabled() ? '1' : '0';
        return keys;
    }

    /// Chooses NEW of the files and types a name. Returns the boxes that came behind it.
    static QList<test::SeenBox> newFile(EditorForm& form, const QString& name)
    {
        return answering(
            QMessageBox::Ok, [&form] { fileTool(form, "NEW").trigger(); },
            [&name](QWidget& modal) { test::typeInto(modal, name); });
    }

    static void typeQuestion(QWidget& dialog, const QStringList& fields, const char* command = "cmdOK")
    {
        for (int field = 0; field < fields.size(); ++field)
            find<QLineEdit>(dialog, QString("txtTextBox(%1)").arg(field)).setText(fields[field]);
        find<QPushButton>(dialog, command).click();
    }

    static void addQuestion(EditorForm& form, const QStringList& fields)
    {
        test::withModal([&form] { tool(form, "NEW").trigger(); },
                        [&fields](QWidget& dialog) { typeQuestion(dialog, fields); });
    }

    std::string& table = hub.file("Games/Trivia/TriviaQuestionFiles.tbl");
};

TEST_F(TriviaQuestions, ShowTheFilesSortedWithTheirDefault)
{
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmGamesTriviaQuestions");
    EXPECT_EQ(form.windowTitle(), "Games ~ Trivia ~ Questions");
    EXPECT_EQ(shown(files(form)), (QStringList{"music", "trivia", "zoo"}));
    EXPECT_EQ(preset(form).currentText(), "music");
    EXPECT_EQ(preset(form).count(), 3);
    EXPECT_EQ(files(form).model()->headerData(0, Qt::Horizontal).toString(), "Available Question Files");
    EXPECT_EQ(questions(form).model()->headerData(0, Qt::Horizontal).toString(), "Questions");
    EXPECT_EQ(questions(form).model()->headerData(1, Qt::Horizontal).toString(), "Answers");
    EXPECT_EQ(lit(form), "00000");
    EXPECT_EQ(form.findChild<QAction*>("RESTORE"), nullptr);
    QStringList captions;
    for (const auto* label : form.findChildren<QLabel*>()) {
        if (label->buddy() == &preset(form))
            captions.append(label->text());
    }
    EXPECT_EQ(captions, QStringList{"Default Question File"});
    EXPECT_FALSE(isDirty(form));
    QStringList tips;
    for (auto* action : find<QToolBar>(form, "tlbQuestions").actions())
        tips.append(action->objectName() + '=' + action->toolTip());
    EXPECT_EQ(tips, (QStringList{"SAVE=Save changes", "CLOSE=Discard changes", "NEW=Add new question",
                                 "EDIT=Edit question", "DELETE=Delete question"}));
}

TEST_F(TriviaQuestions, WithoutADefaultBothListsAreEmpty)
{
    table = "tTriviaQuestionFiles = {\r\n\t\"zoo\",\r\n}\r\n";
    auto& form = openForm();
    EXPECT_TRUE(files(form).isEmpty());
    EXPECT_EQ(preset(form).count(), 0);
}

TEST_F(TriviaQuestions, AChangedDefaultIsSaved)
{
    auto& form = openForm();
    preset(form).setCurrentIndex(2);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(table,
                          "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = \"zoo\",\r\n\t\"music\",\r\n"
                          "\t\"trivia\",\r\n}\r\n"));
}

TEST_F(TriviaQuestions, EditAsksAndLoadsTheFile)
{
    auto& form = openForm();
    const auto boxes = load(form, "zoo");
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Load file?");
    EXPECT_EQ(boxes[0].text, "Loading the question file may take some time. Do you wish to proceed?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(shown(questions(form)), (QStringList{"Zoo:Big cat?|lion", "Zoo:Long neck?|giraffe"}));
    EXPECT_EQ(lit(form), "01111");
    EXPECT_FALSE(isDirty(form));
    const auto again = answering(QMessageBox::Ok, [&form] { doubleClickRow(files(form), 0); });
    ASSERT_EQ(again.size(), 1);
    EXPECT_EQ(again[0].title, "Load file?");
    EXPECT_EQ(shown(questions(form)), QStringList{"Music:A:B?|piano"});
}

TEST_F(TriviaQuestions, CancellingTheLoadLeavesTheListClearedAndASaveEmptiesTheFile)
{
    auto& form = openForm();
    load(form, "zoo");
    load(form, "music", QMessageBox::Cancel);
    EXPECT_TRUE(questions(form).isEmpty());
    EXPECT_EQ(lit(form), "10000");
    tool(form, "SAVE").trigger();
    EXPECT_EQ(lst("music"), "\r\n"); // the selected one
    EXPECT_EQ(lit(form), "00000");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(TriviaQuestions, QuestionsAreAddedOneAfterTheOther)
{
    auto& form = openForm();
    load(form, "zoo");
    int round = 0;
    test::withModal([&form] { tool(form, "NEW").trigger(); },
                    [&round](QWidget& dialog) {
                        EXPECT_EQ(dialog.objectName(), "frmGlobalEditThreeFields");
                        EXPECT_EQ(dialog.windowTitle(), "Add Trivia Question");
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(0)").text(), "Category");
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(1)").text(), "Question");
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(2)").text(), "Answer");
                        typeQuestion(dialog, {"Zoo", "Q?", "a"}, ++round < 2 ? "cmdAdd" : "cmdOK");
                    });
    EXPECT_EQ(shown(questions(form)).mid(2), (QStringList{"Zoo:Q?|a", "Zoo:Q?|a"}));
    EXPECT_EQ(lit(form), "11111");
    EXPECT_TRUE(fileTool(form, "NEW").isEnabled());
    EXPECT_FALSE(isDirty(form)); // an open file is no business of the form's yet
}

TEST_F(TriviaQuestions, AnEditedQuestionLosesWhatStandsBehindItsSecondColon)
{
    auto& form = openForm();
    load(form, "music");
    test::withModal([&form] { doubleClickRow(questions(form), 0); },
                    [](QWidget& dialog) {
                        EXPECT_EQ(dialog.windowTitle(), "Edit Trivia Question");
                        EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(0)").text(), "Music");
                        EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(1)").text(), "A");
                        EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(2)").text(), "piano");
                        find<QPushButton>(dialog, "cmdOK").click();
                    });
    EXPECT_EQ(shown(questions(form)), QStringList{"Music:A|piano"});
    EXPECT_TRUE(tool(form, "SAVE").isEnabled());
}

TEST_F(TriviaQuestions, OneQuestionMustStay)
{
    auto& form = openForm();
    load(form, "zoo");
    clickRow(questions(form), 1);
    auto boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Question?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this question?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(shown(questions(form)), QStringList{"Zoo:Big cat?|lion"});
    EXPECT_EQ(questions(form).currentRow(), 0);
    boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_EQ(boxes[0].text, "There must be a minimum of one Question");
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(questions(form).rows().size(), 1U);
    questions(form).clearSelection();
    boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    EXPECT_EQ(boxes.value(0).text, "There must be a minimum of one Question");
}

TEST_F(TriviaQuestions, ASaveGoesToTheSelectedFileAndMakesTheFormDirty)
{
    auto& form = openForm();
    load(form, "zoo");
    addQuestion(form, {"Zoo", "Q?", "a"});
    const std::string before = lst("zoo");
    clickRow(files(form), rowOf(files(form), "trivia")); // another than the one that was loaded
    tool(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(lst("trivia"), "Zoo:Big cat?*lion\r\nZoo:Long neck?*giraffe\r\nZoo:Q?*a\r\n\r\n"));
    EXPECT_EQ(lst("zoo"), before);
    EXPECT_FALSE(tool(form, "SAVE").isEnabled());
    EXPECT_TRUE(isDirty(form));
}

TEST_F(TriviaQuestions, ClosingAFileAsksAndClearsItsList)
{
    auto& form = openForm();
    load(form, "zoo");
    addQuestion(form, {"Zoo", "Q?", "a"});
    EXPECT_EQ(lit(form), "11111");
    auto boxes = answering(QMessageBox::Cancel, [&form] { tool(form, "CLOSE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Are you sure you want to discard unsaved changes?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(questions(form).rows().size(), 3U);
    EXPECT_EQ(lit(form), "01111"); // SAVE goes off also after Cancel
    answering(QMessageBox::Ok, [&form] { tool(form, "CLOSE").trigger(); });
    EXPECT_TRUE(questions(form).isEmpty());
    EXPECT_EQ(lit(form), "00000");
}

TEST_F(TriviaQuestions, ANewFileIsWrittenAtOnceInLowerCase)
{
    auto& form = openForm();
    test::withModal([&form] { fileTool(form, "NEW").trigger(); },
                    [](QWidget& modal) {
                        auto* input = qobject_cast<QInputDialog*>(&modal);
                        ASSERT_TRUE(input);
                        EXPECT_EQ(input->windowTitle(), "Enter filename");
                        EXPECT_EQ(input->labelText(), "Enter filename");
                        test::typeInto(modal, "Foo");
                    });
    EXPECT_TRUE(shown(files(form)).contains("foo"));
    EXPECT_TRUE(lst("foo").starts_with("Literature:"));
    EXPECT_TRUE(questions(form).isEmpty());
    EXPECT_EQ(lit(form), "00110");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(TriviaQuestions, ANewFileLeavesALoadedListInSightOfWhichNoQuestionGoes)
{
    auto& form = openForm();
    load(form, "zoo");
    addQuestion(form, {"Zoo", "Q?", "a"});
    const QStringList loaded = shown(questions(form));
    newFile(form, "foo");
    EXPECT_EQ(shown(questions(form)), loaded);
    EXPECT_EQ(lit(form), "10110"); // SAVE as it stood
    clickRow(questions(form), 0);
    EXPECT_TRUE(
        answering(QMessageBox::Ok, [&form] { QTest::keyClick(&questions(form), Qt::Key_Delete); }).isEmpty());
    EXPECT_EQ(shown(questions(form)), loaded);
}

TEST_F(TriviaQuestions, WithoutANameThereIsNoNewFile)
{
    auto& form = openForm();
    hub.store.log.clear();
    EXPECT_TRUE(newFile(form, "").isEmpty());
    test::withModal([&form] { fileTool(form, "NEW").trigger(); },
                    [](QWidget& modal) {
                        auto* input = qobject_cast<QInputDialog*>(&modal);
                        input->setTextValue("foo");
                        input->reject();
                    });
    EXPECT_TRUE(hub.store.log.empty());
    EXPECT_EQ(files(form).rows().size(), 3U);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(TriviaQuestions, ANameThatIsListedInAnyCaseIsRefusedWithTheLanguageFormsTitle)
{
    table.replace(table.find("zoo"), 3, "Zoo");
    auto& form = openForm();
    const auto boxes = newFile(form, "ZOO");
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot create language file");
    EXPECT_EQ(boxes[0].text, "zoo already exists");
    EXPECT_EQ(files(form).rows().size(), 3U);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(TriviaQuestions, ANameThatWouldLeaveTheFolderIsRefusedAndNothingIsTouched)
{
    auto& form = openForm();
    hub.store.log.clear();
    for (const char* name : {"..\\x", "a/b", "con", "a?"}) {
        const auto boxes = newFile(form, name);
        ASSERT_EQ(boxes.size(), 1) << name;
        EXPECT_EQ(boxes[0].title, "Cannot create file");
    }
    EXPECT_TRUE(hub.store.log.empty());
    EXPECT_EQ(files(form).rows().size(), 3U);
}

TEST_F(TriviaQuestions, ANewFileThatCantBeWrittenIsToldAndNotListed)
{
    auto& form = openForm();
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const auto boxes = newFile(form, "foo");
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].text.toStdString(),
              test::native(
                  "foo couldn't be made. " + hub.root +
                  "/Games/Trivia/QuestionFiles/foo.lst: No space left on device. It doesn't join the list: "
                  "mend it and make it again."));
    EXPECT_EQ(files(form).rows().size(), 3U);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(TriviaQuestions, AnExistingFileIsListedButNotWhenItsNameBeginsAListedOne)
{
    QTemporaryDir folder;
    for (const char* name : {"/birds.lst", "/triv.lst", "/abc"}) {
        QFile made(folder.path() + name);
        ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    }
    auto& form = openForm();
    const auto choose = [&](const char* name) {
        return answering(
            QMessageBox::Ok, [&form] { fileTool(form, "OPEN").trigger(); },
            [&](QWidget& modal) {
                EXPECT_EQ(modal.windowTitle(), "Select Trivia File to open");
                test::chooseFile(modal, folder.path(), name);
            });
    };
    EXPECT_TRUE(choose("triv.lst").isEmpty()); // "trivia" begins so: nothing happens, and nothing is said
    EXPECT_TRUE(choose("abc").isEmpty());      // its four last characters are more than it has
    EXPECT_EQ(files(form).rows().size(), 3U);
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(choose("birds.lst").isEmpty());
    EXPECT_TRUE(shown(files(form)).contains("birds"));
    EXPECT_TRUE(isDirty(form));
    EXPECT_FALSE(hasLst("birds"));
}

TEST_F(TriviaQuestions, OpenStartsInTheGamesFolderAndACancelAddsNothing)
{
    const QTemporaryDir scripts;
    const QString folder = scripts.path() + "/Morvaleth's Quillfen/Settings/Games/Trivia";
    ASSERT_TRUE(QDir().mkpath(folder));
    const SettingsFiles onDisk{hub.store, SettingsPaths(scripts.path().toStdString())};
    const std::unique_ptr<EditorForm> form =
        makeForm({{"frmGamesTriviaQuestions", "Questions"}, {OwnPart{OwnPartKind::TriviaQuestions}}}, makers,
                 {onDisk, hub.profiles});
    form->open();
    const auto offered = test::offeredFiles([&form] { fileTool(*form, "OPEN").trigger(); });
    EXPECT_EQ(offered.folder, folder);
    EXPECT_EQ(offered.filters, QStringList{"(*.lst)"});
    EXPECT_TRUE(files(*form).isEmpty());
    EXPECT_FALSE(form->isDirty());
}

TEST_F(TriviaQuestions, DeletingTheDefaultMovesItToItsNeighbour)
{
    auto& form = openForm();
    preset(form).setCurrentIndex(1);
    button(form, "SAVE").trigger();
    clickRow(files(form), rowOf(files(form), "trivia"));
    const auto boxes = answering(QMessageBox::Ok, [&form] { fileTool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Question File?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete trivia?");
    EXPECT_EQ(boxes[0].preset, QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(preset(form).currentText(), "music"); // the entry before it
    EXPECT_EQ(shown(files(form)), (QStringList{"music", "zoo"}));
    EXPECT_EQ(files(form).currentRow(), 0);
    EXPECT_FALSE(isDirty(form)); // it reaches the table with the next save
    answering(QMessageBox::Ok, [&form] { fileTool(form, "DELETE").trigger(); });
    EXPECT_EQ(preset(form).currentText(), "zoo"); // the first was deleted: the first that is left
    EXPECT_TRUE(hasLst("music"));
}

TEST_F(TriviaQuestions, DeletingAnotherFileMovesTheDefaultToo)
{
    auto& form = openForm();
    EXPECT_EQ(preset(form).currentText(), "music");
    clickRow(files(form), rowOf(files(form), "zoo"));
    answering(QMessageBox::Ok, [&form] { fileTool(form, "DELETE").trigger(); });
    EXPECT_EQ(preset(form).currentText(), "trivia");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(TriviaQuestions, ADiscardReadsTheFilesAgainAndClosesTheOpenOne)
{
    auto& form = openForm();
    load(form, "zoo");
    addQuestion(form, {"Zoo", "Q?", "a"});
    newFile(form, "foo");
    EXPECT_TRUE(isDirty(form));
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(shown(files(form)), (QStringList{"music", "trivia", "zoo"}));
    EXPECT_EQ(preset(form).count(), 3);
    EXPECT_TRUE(questions(form).isEmpty());
    EXPECT_EQ(lit(form), "00000");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(TriviaQuestions, OneFileMustStay)
{
    table = "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = \"zoo\",\r\n}\r\n";
    auto& form = openForm();
    clickRow(files(form), 0);
    const auto boxes = answering(QMessageBox::Ok, [&form] { fileTool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_EQ(boxes[0].text, "There must be a minimum of one Question File");
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    files(form).clearSelection();
    EXPECT_EQ(answering(QMessageBox::Ok, [&form] { fileTool(form, "DELETE").trigger(); }).value(0).text,
              "There must be a minimum of one Question File");
}

TEST_F(TriviaQuestions, AFileThatLeadsOutOfTheFolderIsNeitherOpenedNorSaved)
{
    table = "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = \"..\\x\",\r\n\t\"con\",\r\n}\r\n";
    lst("con") = "Con:Q?*a\r\n";
    auto& form = openForm();
    load(form, "con"); // a bad name that stays there
    EXPECT_EQ(shown(questions(form)), QStringList{"Con:Q?|a"});
    const auto boxes = load(form, "..\\x");
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot open file");
    EXPECT_EQ(shown(questions(form)), QStringList{"Con:Q?|a"});
    addQuestion(form, {"Con", "R?", "b"});
    hub.store.log.clear();
    const auto refusals = answering(QMessageBox::Ok, [&form] { tool(form, "SAVE").trigger(); });
    ASSERT_EQ(refusals.size(), 1);
    EXPECT_EQ(refusals[0].title, "Cannot save file");
    EXPECT_TRUE(hub.store.log.empty());
    EXPECT_TRUE(tool(form, "SAVE").isEnabled());
}

TEST_F(TriviaQuestions, TheirMenuIsLitAsTheButtonsAre)
{
    auto& form = openForm();
    const auto lit = [&](RowList& list, const QString& menu) {
        emit list.menuAsked({0, 0}, true);
        QString keys;
        for (const auto* item : window().popUpMenu(menu)->actions())
            keys += item->isEnabled() ? '1' : '0';
        window().popUpMenu(menu)->hide();
        return keys;
    };
    EXPECT_EQ(lit(questions(form), "mnuTriviaQuestions"), "000");
    EXPECT_EQ(lit(files(form), "mnuFirst"), "111");
    load(form, "zoo");
    EXPECT_EQ(lit(questions(form), "mnuTriviaQuestions"), "111");
    newFile(form, "foo");
    EXPECT_EQ(lit(questions(form), "mnuTriviaQuestions"), "101"); // DELETE went out
}

TEST_F(TriviaQuestions, TheMenuOfTheQuestionsDoesNothingThoughTheFormServesItsRoutines)
{
    auto& form = openForm();
    load(form, "zoo");
    clickRow(questions(form), 0);
    for (const char* item : {"mnuTriviaQuestionsAdd", "mnuTriviaQuestionsDelete", "mnuTriviaQuestionsEdit"}) {
        EXPECT_TRUE(answering(QMessageBox::Ok, [&] { find<QAction>(window(), item).trigger(); }).isEmpty());
    }
    EXPECT_EQ(questions(form).rows().size(), 2U);
    answering(QMessageBox::Ok, [&form] { form.routine("gMenuTriviaQuestionsDeleteClick")(); });
    EXPECT_EQ(questions(form).rows().size(), 1U);
    EXPECT_TRUE(form.routine("gMenuTriviaQuestionsAddClick"));
    EXPECT_TRUE(form.routine("gMenuTriviaQuestionsEditClick"));
}

TEST_F(TriviaQuestions, EachListOpensAMenuOfItsOwnAndTheFilesOneServesThem)
{
    auto& form = openForm();
    const auto opened = [this](RowList& list) {
        emit list.menuAsked({0, 0}, true);
        QStringList names;
        for (const char* name : {"mnuFirst", "mnuTriviaQuestions"}) {
            if (window().popUpMenu(name)->isVisible())
                names.append(name);
            window().popUpMenu(name)->hide();
        }
        return names;
    };
    EXPECT_EQ(opened(files(form)), QStringList{"mnuFirst"});
    EXPECT_EQ(opened(questions(form)), QStringList{"mnuTriviaQuestions"});
    clickRow(files(form), rowOf(files(form), "zoo"));
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstEdit").trigger(); });
    EXPECT_EQ(questions(form).rows().size(), 2U);
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstDelete").trigger(); });
    EXPECT_EQ(shown(files(form)), (QStringList{"music", "trivia"}));
    answering(
        QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstAdd").trigger(); },
        [](QWidget& modal) { test::typeInto(modal, "foo"); });
    EXPECT_EQ(shown(files(form)), (QStringList{"music", "trivia", "foo"}));
}

TEST_F(TriviaQuestions, AFileOf50000RowsLoadsScrollsAndSaves)
{
    std::string& big = lst("zoo");
    big.clear();
    for (int row = 0; row < 50000; ++row)
        big += "Zoo:Question " + std::to_string(row) + "?*a lion\r\n";
    auto& form = openForm();
    load(form, "zoo");
    EXPECT_EQ(questions(form).rows().size(), 50000U);
    questions(form).scrollToBottom();
    tool(form, "SAVE").setEnabled(true);
    const std::string before = big;
    tool(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(big, before + "\r\n"));
}

} // namespace
} // namespace quillfen
