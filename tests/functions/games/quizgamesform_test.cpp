#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSlider>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::Entry;
using test::golden;
using test::sameBytes;
using test::SeenDialog;

struct QuizForm
{
    const char* key;
    const char* form;
    const char* caption;
    const char* file; ///< below Games, without "Settings.tbl"
    const char* golden;
    QMap<int, QPair<const char*, const char*>> numbers; ///< by place: caption and default
};

void PrintTo(const QuizForm& quiz, std::ostream* stream)
{
    *stream << quiz.form;
}

const QuizForm hangman = {
    "Games~Hangman",
    "frmGamesHangman",
    "Games ~ Hangman",
    "Hangman/Hangman",
    "Hangman",
    {{0, {"Lost Life Time", "30"}},
     {1, {"Questions", "10"}},
     {2, {"Pause Between Questions", "10"}},
     {3, {"Timeout", "3"}},
     {4, {"Bonus Time", "10"}},
     {5, {"Points", "6"}},
     {6, {"End Of Game Scores", "25"}},
     {7, {"Top Scores", "10"}},
     {8, {"Auto Start Delay", "67"}},
     {9, {"ScoresTo Archive", "5"}}},
};
const QuizForm anagrams = {
    "Games~Anagrams",
    "frmGamesAnagrams",
    "Games ~ Anagrams",
    "Anagrams/Anagram",
    "Anagram",
    {{0, {"Hint Time", "20"}},
     {1, {"Questions", "20"}},
     {2, {"Pause Between Questions", "10"}},
     {3, {"Timeout", "3"}},
     {4, {"Bonus Time", "10"}},
     {5, {"Points", "1"}},
     {6, {"End Of Game Scores", "25"}},
     {7, {"Top Scores", "10"}},
     {8, {"Auto Start Delay", "73"}},
     {9, {"ScoresTo Archive", "5"}}},
};
const QuizForm codeBreaker = {
    "Games~CodeBreaker",
    "frmGamesCodeBreaker",
    "Games ~ CodeBreaker",
    "CodeBreaker/CodeBreaker",
    "CodeBreaker",
    {{0, {"Question Length", "3"}},
     {1, {"Questions", "20"}},
     {2, {"Pause Between Questions", "10"}},
     {3, {"Timeout", "3"}},
     {4, {"Question Time", "90"}},
     {5, {"Points", "1"}},
     {6, {"End Of Game Scores", "25"}},
     {7, {"Top Scores", "10"}},
     {8, {"Auto Start Delay", "73"}},
     {9, {"ScoresTo Archive", "5"}}},
};
const QuizForm guessTheNumber = {
    "Games~GuessTheNumber",
    "frmGamesGuessTheNumber",
    "Games ~ GuessTheNumber",
    "GuessTheNumber/GuessTheNumber",
    "GuessTheNumber",
    {{0, {"Questions", "12"}},
     {1, {"Pause Between Questions", "10"}},
     {2, {"Timeout", "3"}},
     {3, {"Hint Delay", "5"}},
     {4, {"Hints", "20"}},
     {5, {"Max User Hints", "20"}},
     {6, {"Min Question Value", "1"}},
     {7, {"Max Question Value", "500"}},
     {8, {"Scores", "25"}},
     {9, {"ScoresTo Archive", "5"}},
     {10, {"End Of Game Scores", "10"}},
     {11, {"Auto Start Delay", "111"}}},
};

class QuizForms : public test::FormTest, public testing::WithParamInterface<QuizForm>
{
protected:
    static QLineEdit& number(EditorForm& form, int place)
    {
        return find<QLineEdit>(form, QString("txtTextBoxUpDown(%1)").arg(place));
    }

    void changeEverything(EditorForm& form)
    {
        for (auto* box : form.findChildren<QCheckBox*>())
            box->click();
        for (const int place : quiz.numbers.keys()) {
            auto& arrows = find<QAbstractSpinBox>(form, QString("updTextBoxUpDown(%1)").arg(place));
            QTest::keyClick(&arrows, Qt::Key_Up);
        }
    }

    const QuizForm& quiz = GetParam();
    std::string& settings = hub.file(std::string("Games/") + quiz.file + "Settings.tbl");
    const std::string built = golden(std::string("games/") + quiz.golden + "Settings.build.tbl");
    const std::string saved = golden(std::string("games/") + quiz.golden + "Settings.save.tbl");
};

INSTANTIATE_TEST_SUITE_P(All, QuizForms, testing::Values(hangman, anagrams, codeBreaker, guessTheNumber),
                         [](const auto& each) { return std::string(each.param.golden); });

TEST_P(QuizForms, ShowTheirControlsWithTheirWords)
{
    auto& form = open(quiz.key);
    EXPECT_EQ(form.objectName(), quiz.form);
    EXPECT_EQ(form.windowTitle(), quiz.caption);
    const QStringList boxes = {"Manual Start Only", "Operator Start",    "Operator Stop",
                               "Play Game In Main", "Auto Clear Scores", "Auto Archive Scores"};
    for (int at = 0; at < boxes.size(); ++at) {
        const auto& box = find<QCheckBox>(form, QString("chkCheckBox(%1)").arg(at));
        EXPECT_EQ(box.text(), boxes[at]);
        EXPECT_EQ(box.isChecked(), at > 2) << at;
    }
    for (const int place : quiz.numbers.keys()) {
        EXPECT_EQ(number(form, place).text(), quiz.numbers[place].second) << place;
        EXPECT_EQ(number(form, place).parentWidget()->accessibleName(), quiz.numbers[place].first) << place;
        EXPECT_TRUE(number(form, place).isReadOnly()) << place;
    }
    EXPECT_FALSE(isDirty(form));
}

TEST_P(QuizForms, SaveEveryChangeInTheirOrder)
{
    auto& form = open(quiz.key);
    changeEverything(form);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(settings, saved));
    EXPECT_FALSE(isDirty(form));
}

TEST_P(QuizForms, ADiscardShowsTheFileAgain)
{
    settings = saved;
    auto& form = open(quiz.key);
    changeEverything(form);
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_FALSE(isDirty(form));
    for (auto* box : form.findChildren<QCheckBox*>())
        EXPECT_EQ(box->isChecked(), box->text().endsWith("Only") || box->text().startsWith("Operator"));
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(settings, saved));
}

TEST_P(QuizForms, ARestoreShowsTheDefaultsAndWritesNothing)
{
    settings = saved;
    auto& form = open(quiz.key);
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    const bool isAnagrams = quiz.golden == std::string("Anagram");
    EXPECT_EQ(boxes[0].title, isAnagrams ? "Restore Defaults?" : "Restore defaults?");
    EXPECT_EQ(boxes[0].text, isAnagrams ? "Restore Quillfen defaults?" : "Restore to defaults?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    for (const int place : quiz.numbers.keys())
        EXPECT_EQ(number(form, place).text(), quiz.numbers[place].second) << place;
    EXPECT_TRUE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, saved));
    answering(QMessageBox::Cancel, [&form] { button(form, "RESTORE").trigger(); });
}

TEST_P(QuizForms, TheArrowsKeepTheRange)
{
    const QMap<QString, QPair<int, int>> own = {{"Lost Life Time", {0, 60}},
                                                {"Hint Time", {0, 60}},
                                                {"Question Length", {0, 60}},
                                                {"Question Time", {0, 1000}},
                                                {"Hint Delay", {0, 60}},
                                                {"Hints", {0, 10}},
                                                {"Max User Hints", {0, 10}},
                                                {"Min Question Value", {0, 100}},
                                                {"Max Question Value", {100, 5000}},
                                                {"ScoresTo Archive", {0, 1000}},
                                                {"Questions", {0, 999}},
                                                {"Bonus Time", {0, 1000}},
                                                {"Points", {0, 100}},
                                                {"Auto Start Delay", {1, 1440}},
                                                {"Scores", {0, 100}}};
    const bool guess = quiz.golden == std::string("GuessTheNumber");
    auto& form = open(quiz.key);
    for (const int place : quiz.numbers.keys()) {
        const QString caption = quiz.numbers[place].first;
        auto range = own.value(caption);
        if (caption == "Pause Between Questions")
            range = {0, guess ? 60 : 1000};
        else if (caption == "Timeout")
            range = {0, guess ? 1000 : 60};
        else if (caption == "End Of Game Scores")
            range = {0, 100};
        else if (caption == "Top Scores")
            range = {0, 200};
        auto& arrows = find<QAbstractSpinBox>(form, QString("updTextBoxUpDown(%1)").arg(place));
        arrows.stepBy(99999);
        EXPECT_EQ(number(form, place).text(), QString::number(range.second)) << caption.toStdString();
        arrows.stepBy(-99999);
        EXPECT_EQ(number(form, place).text(), QString::number(range.first)) << caption.toStdString();
    }
}

class QuizFormOddities : public test::FormTest
{
protected:
    static QLineEdit& character(EditorForm& form) { return find<QLineEdit>(form, "txtTextBox(0)"); }
};

TEST_F(QuizFormOddities, TheHintCharacterIsOneCharacter)
{
    for (const char* key : {"Games~Hangman", "Games~Anagrams", "Games~CodeBreaker"}) {
        auto& box = character(open(key));
        EXPECT_EQ(box.accessibleName(),
                  key == std::string("Games~CodeBreaker") ? "Hidden Character" : "Hint Character");
        box.clear();
        box.insert("xy");
        EXPECT_EQ(box.text(), "x");
    }
}

TEST_F(QuizFormOddities, HangmanIsNotSavedWithoutAHintCharacter)
{
    auto& form = open("Games~Hangman");
    const std::string before = hub.file("Games/Hangman/HangmanSettings.tbl");
    character(form).clear();
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Hidden Character required");
    EXPECT_EQ(boxes[0].text, "A Hint Character is required");
    EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(hub.file("Games/Hangman/HangmanSettings.tbl"), before);
}

TEST_F(QuizFormOddities, CodeBreakerIsSavedWithoutAHiddenCharacter)
{
    auto& form = open("Games~CodeBreaker");
    EXPECT_EQ(character(form).text(), "");
    find<QLineEdit>(form, "txtAllowedCharacters").setText("ABC");
    EXPECT_TRUE(answering(QMessageBox::Ok, [&form] { button(form, "SAVE").trigger(); }).isEmpty());
    const std::string& saved = hub.file("Games/CodeBreaker/CodeBreakerSettings.tbl");
    EXPECT_NE(saved.find("\tsAllowedCharacters = \"ABC\",\r\n\tsHiddenChar = \"\",\r\n"), std::string::npos);
}

TEST_F(QuizFormOddities, ARestoreOfCodeBreakerGivesNoHiddenCharacter)
{
    auto& form = open("Games~CodeBreaker");
    character(form).setText("?");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(character(form).text(), "");
    EXPECT_EQ(find<QLineEdit>(form, "txtAllowedCharacters").text(), "0123456789");
}

TEST_F(QuizFormOddities, HangmansBonusTimeIsNeitherReadNorWrittenNorRestored)
{
    hub.file("Games/Hangman/HangmanSettings.tbl") = "tHangmanSettings = {\r\n\tiBonusTime = 77,\r\n}\r\n";
    auto& form = open("Games~Hangman");
    auto& box = find<QLineEdit>(form, "txtTextBoxUpDown(4)");
    EXPECT_EQ(box.text(), "10");
    find<QAbstractSpinBox>(form, "updTextBoxUpDown(4)").stepBy(1);
    EXPECT_TRUE(isDirty(form));
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(box.text(), "11");
    button(form, "SAVE").trigger();
    EXPECT_EQ(hub.file("Games/Hangman/HangmanSettings.tbl").find("iBonusTime"), std::string::npos);
}

TEST_F(QuizFormOddities, HangmansEnableAsciiIsItsSeventhBox)
{
    EXPECT_EQ(find<QCheckBox>(open("Games~Hangman"), "chkCheckBox(6)").text(), "Enable Ascii");
}

TEST_F(QuizFormOddities, TheFirstClickBringsANumberAboveItsRangeBack)
{
    auto& form = open("Games~GuessTheNumber");
    const auto& hints = find<QLineEdit>(form, "txtTextBoxUpDown(4)");
    EXPECT_EQ(hints.text(), "20");
    QTest::keyClick(&find<QAbstractSpinBox>(form, "updTextBoxUpDown(4)"), Qt::Key_Up);
    EXPECT_EQ(hints.text(), "10");
    QTest::keyClick(&find<QAbstractSpinBox>(form, "updTextBoxUpDown(5)"), Qt::Key_Down);
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBoxUpDown(5)").text(), "10");
}

TEST_F(QuizFormOddities, GuessTheNumbersScoresBearTheOtherWayRoundCaptions)
{
    auto& form = open("Games~GuessTheNumber");
    find<QAbstractSpinBox>(form, "updTextBoxUpDown(8)").stepBy(1);
    button(form, "SAVE").trigger();
    const std::string& saved = hub.file("Games/GuessTheNumber/GuessTheNumberSettings.tbl");
    EXPECT_NE(saved.find("\tiScores = 26,\r\n\tiTopScores = 10,\r\n"), std::string::npos);
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBoxUpDown(8)").parentWidget()->accessibleName(), "Scores");
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBoxUpDown(10)").parentWidget()->accessibleName(),
              "End Of Game Scores");
}

class Gallows : public test::FormTest
{
protected:
    Gallows()
    {
        hub.file("Games/Hangman/Ascii/13.asc") = "  +--+\r\n  o\r\n";
        hub.file("Games/Hangman/Ascii/0.asc") = "empty\r\n";
    }

    static QSlider& slider(EditorForm& form) { return find<QSlider>(form, "sldAscii"); }
    static QString picture(EditorForm& form)
    {
        return find<QPlainTextEdit>(form, "txtPreview").toPlainText();
    }
};

TEST_F(Gallows, ThePreviewFollowsTheSlider)
{
    auto& form = open("Games~Hangman");
    EXPECT_EQ(slider(form).accessibleName(), "Ascii");
    EXPECT_EQ(slider(form).minimum(), 0);
    EXPECT_EQ(slider(form).maximum(), 13);
    EXPECT_EQ(picture(form), "  +--+\n  o\n");
    slider(form).setValue(13);
    EXPECT_EQ(picture(form), "empty\n");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(Gallows, EditOpensTheFileOfTheStageAndShowsWhatWasSaved)
{
    auto& form = open("Games~Hangman");
    EXPECT_EQ(button(form, "EDIT", "tlbAscii").toolTip(), "Edit ascii");
    const auto edit = [&form](const QString& path, const char* text) {
        test::withModal([&form] { button(form, "EDIT", "tlbAscii").trigger(); },
                        [&](QWidget& dialog) {
                            EXPECT_EQ(find<QLineEdit>(dialog, "txtPath").text(), path);
                            find<QPlainTextEdit>(dialog, "txtTextBox").setPlainText(text);
                            find<QAction>(dialog, "SAVE").trigger();
                            dialog.close();
                        });
    };
    edit(R"(Games\Hangman\Ascii\13.asc)", "hanged");
    EXPECT_EQ(hub.file("Games/Hangman/Ascii/13.asc"), "hanged\r\n");
    EXPECT_EQ(picture(form), "hanged\n");
    slider(form).setValue(13);
    edit(R"(Games\Hangman\Ascii\0.asc)", "safe");
    EXPECT_EQ(hub.file("Games/Hangman/Ascii/0.asc"), "safe\r\n");
    EXPECT_FALSE(isDirty(form));
}

struct WordGame
{
    const char* key;
    const char* file;
    const char* menu;
};

/// The games with a list file of their own.
class WordFiles : public test::FormTest, public testing::WithParamInterface<WordGame>
{
protected:
    WordFiles() { file = "alpha\r\nbeta\r\n\r\n"; }

    EditorForm& openForm() { return open(game.key); }
    static RowList& list(EditorForm& form) { return find<RowList>(form, "lvwWords"); }
    static QAction& tool(EditorForm& form, const char* key) { return button(form, key, "tlbListview"); }
    static QString lit(EditorForm& form)
    {
        QString keys;
        for (const auto* action : find<QToolBar>(form, "tlbListview").actions())
            keys += action->isEnabled() ? '1' : '0';
        return keys;
    }

    /// The first column, which the games of words and of questions have in common.
    static QStringList words(EditorForm& form)
    {
        QStringList all;
        for (const CellRow& row : list(form).rows())
            all.append(QString::fromStdString(row.cells.front()));
        return all;
    }

    EditorForm& opened()
    {
        auto& form = openForm();
        tool(form, "OPEN").trigger();
        return form;
    }

    const WordGame& game = GetParam();
    std::string& file = hub.file(game.file);
};

/// Those whose words are guessed.
class WordLists : public WordFiles
{
};

const WordGame hangmanWords = {"Games~Hangman", "Games/Hangman/HangmanWords.lst", "mnuHangman"};
const WordGame anagramWords = {"Games~Anagrams", "Games/Anagrams/AnagramWords.lst", "mnuAnagrams"};
const WordGame numberQuestions = {"Games~Numbers", "Games/Numbers/NumbersQuestions.lst", "mnuNumbers"};

std::string nameOfGame(const testing::TestParamInfo<WordGame>& each)
{
    return each.param.key + 6;
}

INSTANTIATE_TEST_SUITE_P(All, WordFiles, testing::Values(hangmanWords, anagramWords, numberQuestions),
                         nameOfGame);
INSTANTIATE_TEST_SUITE_P(Both, WordLists, testing::Values(hangmanWords, anagramWords), nameOfGame);

TEST_P(WordFiles, AreEmptyUntilTheyAreOpened)
{
    auto& form = openForm();
    QStringList buttons;
    for (const auto* action : find<QToolBar>(form, "tlbListview").actions())
        buttons.append(action->objectName() + '|' + action->toolTip());
    EXPECT_EQ(buttons, (QStringList{"OPEN|Open Words file", "SAVE|Save Words file", "CLOSE|Close Words file",
                                    "NEW|Add new Word", "DELETE|Delete Word", "EDIT|Edit Word"}));
    EXPECT_TRUE(list(form).isEmpty());
    EXPECT_EQ(lit(form), "100000");
    tool(form, "OPEN").trigger();
    EXPECT_EQ(words(form), (QStringList{"alpha", "beta"}));
    EXPECT_EQ(lit(form), "011111");
    EXPECT_FALSE(isDirty(form));
}

TEST_P(WordLists, WordsAreAddedEditedAndSavedApartFromTheForm)
{
    auto& form = opened();
    EXPECT_EQ(entering({{{"gamma"}, "cmdAdd"}, {{"delta"}}}, [&form] { tool(form, "NEW").trigger(); }),
              (QList<SeenDialog>{{"frmGlobalEditOneFields", "Add Word", {"Word"}, {""}},
                                 {"frmGlobalEditOneFields", "Add Word", {"Word"}, {""}}}));
    EXPECT_EQ(entering({{{"BETA"}}}, [&form] { doubleClickRow(list(form), 1); }),
              (QList<SeenDialog>{{"frmGlobalEditOneFields", "Edit Word", {"Word"}, {"beta"}}}));
    EXPECT_FALSE(isDirty(form));
    tool(form, "SAVE").trigger();
    EXPECT_EQ(file, "alpha\r\nBETA\r\ngamma\r\ndelta\r\n");
    EXPECT_TRUE(list(form).isEmpty());
    EXPECT_EQ(lit(form), "100001"); // EDIT stays lit, with nothing to edit
    EXPECT_TRUE(entering({}, [&form] { tool(form, "EDIT").trigger(); }).isEmpty());
}

TEST_P(WordLists, ADeletionAsksInTheWordsOfQuestions)
{
    auto& form = opened();
    clickRow(list(form), 0);
    const auto boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Word?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this question?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(shown(list(form)), QStringList{"beta"});
    const auto refused = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(refused.size(), 1);
    EXPECT_EQ(refused[0].title, "Cannot delete");
    EXPECT_EQ(refused[0].text, "There must be a minimum of one Word");
    EXPECT_EQ(refused[0].icon, QMessageBox::Critical);
    EXPECT_EQ(shown(list(form)), QStringList{"beta"});
}

TEST_P(WordFiles, AnEmptyListIsNotSaved)
{
    file = "";
    auto& form = opened();
    const auto boxes = answering(QMessageBox::Ok, [&form] { tool(form, "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Questions needed");
    EXPECT_EQ(boxes[0].text, "You must specify some questions");
    EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
    EXPECT_EQ(file, "");
}

TEST_P(WordFiles, ACloseAsksAndLeavesOnlyOpenLit)
{
    auto& form = opened();
    auto boxes = answering(QMessageBox::Cancel, [&form] { tool(form, "CLOSE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Are you sure you want to discard unsaved changes?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(words(form), (QStringList{"alpha", "beta"}));
    EXPECT_EQ(lit(form), "100000"); // also after Cancel
    tool(form, "OPEN").trigger();
    answering(QMessageBox::Ok, [&form] { tool(form, "CLOSE").trigger(); });
    EXPECT_TRUE(list(form).isEmpty());
    EXPECT_EQ(lit(form), "100000");
}

TEST_P(WordFiles, AMissingFileOpensAsAnEmptyList)
{
    hub.store.files.erase(hub.root + "/" + game.file);
    auto& form = opened();
    EXPECT_TRUE(list(form).isEmpty());
    EXPECT_EQ(lit(form), "011111");
}

TEST_P(WordFiles, AFailedSaveKeepsTheListOpen)
{
    auto& form = opened();
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const auto boxes = answering(QMessageBox::Ok, [&form] { tool(form, "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_TRUE(boxes[0].text.startsWith("The words' file couldn't be saved. "));
    EXPECT_EQ(words(form), (QStringList{"alpha", "beta"}));
    EXPECT_EQ(lit(form), "011111");
}

TEST_P(WordLists, TheGamesOwnMenuServesTheWords)
{
    auto& form = opened();
    clickRow(list(form), 0);
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), QString(game.menu) + "Delete").trigger(); });
    EXPECT_EQ(shown(list(form)), QStringList{"beta"});
    entering({{{"gamma"}}}, [this] { find<QAction>(window(), QString(game.menu) + "Add").trigger(); });
    entering({{{"GAMMA"}}}, [this] { find<QAction>(window(), QString(game.menu) + "Edit").trigger(); });
    EXPECT_EQ(shown(list(form)), (QStringList{"beta", "GAMMA"}));
}

TEST_P(WordFiles, TheMenuIsLitAsTheButtonsAre)
{
    auto& form = openForm();
    const auto litOfMenu = [&] {
        auto* menu = window().popUpMenu(game.menu);
        emit list(form).menuAsked({0, 0}, true);
        QString keys;
        for (const auto* item : menu->actions())
            keys += item->isEnabled() ? '1' : '0';
        menu->hide();
        return keys;
    };
    EXPECT_EQ(litOfMenu(), "000") << "a closed list";
    tool(form, "OPEN").trigger();
    EXPECT_EQ(litOfMenu(), "111");
    answering(QMessageBox::Ok, [&form] { tool(form, "CLOSE").trigger(); });
    EXPECT_EQ(litOfMenu(), "000");
}

TEST_P(WordLists, ADiscardOfTheFormLeavesTheWordsAlone)
{
    auto& form = opened();
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(shown(list(form)), (QStringList{"alpha", "beta"}));
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(shown(list(form)), (QStringList{"alpha", "beta"}));
}

} // namespace
} // namespace quillfen
