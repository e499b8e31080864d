#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::sameBytes;

class TriviaForm : public test::FormTest
{
protected:
    static QRadioButton& option(EditorForm& form, int place)
    {
        return find<QRadioButton>(form, QString("optOption(%1)").arg(place));
    }

    std::string& settings = hub.file("Games/Trivia/TriviaSettings.tbl");
};

TEST_F(TriviaForm, ShowsItsControlsWithTheirWords)
{
    auto& form = open("Games~Trivia~Settings");
    EXPECT_EQ(form.objectName(), "frmGamesTrivia");
    EXPECT_EQ(form.windowTitle(), "Games ~ Trivia ~ Settings");
    const QStringList boxes = {"Manual Start Only", "Operator Start",    "Operator Stop",
                               "Play Game In Main", "Auto Clear Scores", "Auto Archive Scores",
                               "Only Show One Hint"};
    for (int at = 0; at < boxes.size(); ++at)
        EXPECT_EQ(find<QCheckBox>(form, QString("chkTrivia(%1)").arg(at)).text(), boxes[at]);
    const QStringList options = {"Standard", "Expanded", "Trivia Ex", "Standard", "Hint Reduction"};
    for (int at = 0; at < options.size(); ++at)
        EXPECT_EQ(option(form, at).text(), options[at]);
    QStringList groups;
    for (auto* group : form.findChildren<QGroupBox*>())
        groups.append(group->title());
    EXPECT_EQ(groups, (QStringList{"Question Format:", "Scoring Type:"}));
    const QList<QPair<int, QPair<const char*, const char*>>> numbers = {
        {0, {"Hint Time", "30"}},
        {1, {"Max Hints", "5"}},
        {2, {"Questions", "15"}},
        {3, {"Pause Between Questions", "10"}},
        {4, {"Timeout", "5"}},
        {5, {"Bonus Time", "45"}},
        {6, {"Points", "1"}},
        {7, {"End Of Game Scores", "25"}},
        {8, {"Top X Scores", "10"}},
        {9, {"Auto Start Delay", "93"}},
        {10, {"Scores to archive", "5"}}};
    for (const auto& [place, words] : numbers) {
        auto& box = find<QLineEdit>(form, QString("txtTextBoxUpDown(%1)").arg(place));
        EXPECT_EQ(box.text(), words.second) << place;
        EXPECT_EQ(box.parentWidget()->accessibleName(), words.first) << place;
    }
    EXPECT_TRUE(option(form, 0).isChecked());
    EXPECT_TRUE(option(form, 4).isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox(0)").text(), QStringLiteral(u"\u2022"));
}

TEST_F(TriviaForm, SavesEditsInTheFormsOrder)
{
    auto& form = open("Games~Trivia~Settings");
    find<QCheckBox>(form, "chkTrivia(0)").click();
    find<QCheckBox>(form, "chkTrivia(6)").click();
    option(form, 2).click();
    option(form, 3).click();
    find<QLineEdit>(form, "txtTextBox(0)").selectAll();
    QTest::keyClicks(&find<QLineEdit>(form, "txtTextBox(0)"), "*");
    QTest::keyClick(&find<QAbstractSpinBox>(form, "updTextBoxUpDown(10)"), Qt::Key_Up);
    QTest::keyClick(&find<QAbstractSpinBox>(form, "updTextBoxUpDown(9)"), Qt::Key_Down);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(settings, golden("games/TriviaSettings.save.tbl")));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(TriviaForm, ANumberIsChangedByItsArrowsOnly)
{
    auto& form = open("Games~Trivia~Settings");
    auto& box = find<QLineEdit>(form, "txtTextBoxUpDown(0)");
    QTest::keyClicks(&box, "7");
    EXPECT_EQ(box.text(), "30");
    QTest::keyClick(&find<QAbstractSpinBox>(form, "updTextBoxUpDown(0)"), Qt::Key_Up);
    EXPECT_EQ(box.text(), "31");
}

TEST_F(TriviaForm, AStoredValueOutsideItsRangeIsShownAndSavedAsItIs)
{
    settings = "tTriviaSettings = {\r\n\tiHintTime = 999,\r\n}\r\n";
    auto& form = open("Games~Trivia~Settings");
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBoxUpDown(0)").text(), "999");
    find<QCheckBox>(form, "chkTrivia(0)").click();
    button(form, "SAVE").trigger();
    EXPECT_NE(settings.find("\tiHintTime = 999,\r\n"), std::string::npos);
}

TEST_F(TriviaForm, TheHintCharacterIsOneCharacterOrNone)
{
    settings = "tTriviaSettings = {\r\n\tsHintChar = \"abc\",\r\n}\r\n";
    auto& form = open("Games~Trivia~Settings");
    auto& box = find<QLineEdit>(form, "txtTextBox(0)");
    EXPECT_EQ(box.text(), "a");
    box.clear();
    box.insert("xy");
    EXPECT_EQ(box.text(), "x");
    box.clear();
    button(form, "SAVE").trigger();
    EXPECT_NE(settings.find("\tsHintChar = \"\",\r\n"), std::string::npos);
}

TEST_F(TriviaForm, ARestoreShowsTheDefaultsAndWritesNothing)
{
    settings = golden("games/TriviaSettings.save.tbl");
    auto& form = open("Games~Trivia~Settings");
    EXPECT_TRUE(option(form, 2).isChecked());
    EXPECT_TRUE(option(form, 3).isChecked());
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(option(form, 0).isChecked());
    EXPECT_TRUE(option(form, 4).isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBoxUpDown(9)").text(), "93");
    EXPECT_TRUE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("games/TriviaSettings.save.tbl")));
}

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

    static void typeQuestion(QWidget& dialog, const QStringList& fields, const char* command = "cmdOK")
    {
        for (int field = 0; field < fields.size(); ++field)
            find<QLineEdit>(dialog, QString("txtTextBox(%1)").arg(field)).setText(fields[field]);
        find<QPushButton>(dialog, command).click();
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
    EXPECT_EQ(questions(form).property("tag").toString(), "zoo");
    EXPECT_EQ(lit(form), "01111");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(TriviaQuestions, CancellingTheLoadLeavesTheListCleared)
{
    auto& form = openForm();
    load(form, "zoo");
    load(form, "music", QMessageBox::Cancel);
    EXPECT_TRUE(questions(form).isEmpty());
    EXPECT_EQ(questions(form).property("tag").toString(), "");
    EXPECT_EQ(lit(form), "10000");
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
}

TEST_F(TriviaQuestions, ASaveGoesToTheSelectedFileAndMakesTheFormDirty)
{
    auto& form = openForm();
    load(form, "zoo");
    test::withModal([&form] { tool(form, "NEW").trigger(); },
                    [](QWidget& dialog) {
                        typeQuestion(dialog, {"Zoo", "Q?", "a"});
                    });
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
    auto boxes = answering(QMessageBox::Cancel, [&form] { tool(form, "CLOSE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Are you sure you want to discard unsaved changes?");
    EXPECT_EQ(questions(form).rows().size(), 2U);
    answering(QMessageBox::Ok, [&form] { tool(form, "CLOSE").trigger(); });
    EXPECT_TRUE(questions(form).isEmpty());
    EXPECT_EQ(questions(form).property("tag").toString(), "");
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
    EXPECT_EQ(questions(form).property("tag").toString(), "foo");
    EXPECT_EQ(lit(form), "00110");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(TriviaQuestions, ANameThatIsListedIsRefusedWithTheLanguageFormsTitle)
{
    auto& form = openForm();
    const auto boxes = answering(
        QMessageBox::Ok, [&form] { fileTool(form, "NEW").trigger(); },
        [](QWidget& modal) { test::typeInto(modal, "ZOO"); });
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
        const auto boxes = answering(
            QMessageBox::Ok, [&form] { fileTool(form, "NEW").trigger(); },
            [name](QWidget& modal) { test::typeInto(modal, name); });
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
    const auto boxes = answering(
        QMessageBox::Ok, [&form] { fileTool(form, "NEW").trigger(); },
        [](QWidget& modal) { test::typeInto(modal, "foo"); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].text.contains("foo.lst"));
    EXPECT_EQ(files(form).rows().size(), 3U);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(TriviaQuestions, AnExistingFileIsListedButNotWhenItsNameBeginsAListedOne)
{
    QTemporaryDir folder;
    for (const char* name : {"/birds.lst", "/triv.lst"}) {
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
    EXPECT_EQ(files(form).rows().size(), 3U);
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(choose("birds.lst").isEmpty());
    EXPECT_TRUE(shown(files(form)).contains("birds"));
    EXPECT_TRUE(isDirty(form));
    EXPECT_FALSE(hasLst("birds"));
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
