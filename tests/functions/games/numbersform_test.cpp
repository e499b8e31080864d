#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QHeaderView>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::Entry;
using test::golden;
using test::sameBytes;
using test::SeenDialog;

class NumbersForm : public test::FormTest
{
protected:
    EditorForm& openForm() { return open("Games~Numbers"); }
    static RowList& calculations(EditorForm& form) { return find<RowList>(form, "lvwNumbers"); }
    static RowList& questions(EditorForm& form) { return find<RowList>(form, "lvwWords"); }
    static QAction& tool(EditorForm& form, const char* key) { return button(form, key, "tlbListview"); }
    static QString number(EditorForm& form, int place)
    {
        return find<QLineEdit>(form, QString("txtTextBoxUpDown(%1)").arg(place)).text();
    }
    static QStringList headings(const RowList& list)
    {
        QStringList all;
        for (int column = 0; column < list.model()->columnCount(); ++column)
            all.append(list.model()->headerData(column, Qt::Horizontal).toString());
        return all;
    }

    /// Uses edit dialogs with these entries, and closes message boxes, whose texts are returned.
    static QStringList editCalculation(EditorForm& form, int row, QList<QStringList> entries)
    {
        QStringList seen;
        test::withModal([&] { doubleClickRow(calculations(form), row); },
                        [&](QWidget& modal) {
                            if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                                EXPECT_EQ(box->icon(), QMessageBox::Warning);
                                seen.append(box->windowTitle() + '|' + box->text());
                                box->button(QMessageBox::Ok)->click();
                                return;
                            }
                            seen.append(modal.windowTitle());
                            if (entries.isEmpty()) {
                                modal.close();
                                return;
                            }
                            const QStringList fields = entries.takeFirst();
                            for (int field = 0; field < fields.size(); ++field)
                                test::fillField(test::fieldOf(modal, field), fields[field]);
                            modal.findChild<QPushButton*>("cmdOK")->click();
                        });
        return seen;
    }

    const QStringList fresh = {"+|0|10000|0|10000", "-|0|10000|0|10000", "*|0|20|0|100", "/|1|10|1|50"};
    std::string& settings = hub.file("Games/Numbers/NumbersSettings.tbl");
    std::string& list = hub.file("Games/Numbers/NumbersQuestions.lst");
};

TEST_F(NumbersForm, ShowsItsControlsWithTheirWords)
{
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmGamesNumbers");
    EXPECT_EQ(form.windowTitle(), "Games ~ Numbers");
    const QStringList boxes = {"Manual Start Only",          "Operator Start",     "Operator Stop",
                               "Play Game In Main",          "Auto Clear Scores",  "Auto Archive Scores",
                               "Calculate Questions On Fly", "Prevent Calculator", "Report Calculator"};
    for (int at = 0; at < boxes.size(); ++at)
        EXPECT_EQ(find<QCheckBox>(form, QString("chkCheckBox(%1)").arg(at)).text(), boxes[at]);
    const QList<QPair<const char*, const char*>> numbers = {{"Question Time", "20"},
                                                            {"Questions", "20"},
                                                            {"Pause Between Questions", "10"},
                                                            {"Timeout", "3"},
                                                            {"Bonus Time", "10"},
                                                            {"Points", "1"},
                                                            {"End Of Game Scores", "25"},
                                                            {"Top Scores", "10"},
                                                            {"Auto Start Delay", "73"},
                                                            {"ScoresTo Archive", "5"}};
    for (int place = 0; place < numbers.size(); ++place) {
        EXPECT_EQ(number(form, place), numbers[place].second) << place;
        EXPECT_EQ(find<QAbstractSpinBox>(form, QString("updTextBoxUpDown(%1)").arg(place)).accessibleName(),
                  numbers[place].first);
    }
    EXPECT_EQ(headings(calculations(form)), (QStringList{"Type", "X Min", "X Max", "Y Min", "Y Max"}));
    EXPECT_EQ(shown(calculations(form)), fresh);
    EXPECT_EQ(headings(questions(form)), (QStringList{"Questions", "Answers"}));
    EXPECT_TRUE(questions(form).isEmpty());
    EXPECT_EQ(button(form, "EDIT", "tlbNumbers").toolTip(), "Edit question");
    EXPECT_EQ(find<QToolBar>(form, "tlbNumbers").actions().size(), 1);
}

TEST_F(NumbersForm, SavesInItsOrderWithCrossedFlagsAndTwoBlanksBehindQuestions)
{
    auto& form = openForm();
    EXPECT_EQ(editCalculation(form, 1, {{"1.5", "abc", "2", "3"}}), QStringList{"Edit Question"});
    EXPECT_FALSE(isDirty(form)); // an edited calculation alone can't be saved
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    find<QCheckBox>(form, "chkCheckBox(7)").click();
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(7)").text(), "Prevent Calculator");
    QTest::keyClick(&find<QAbstractSpinBox>(form, "updTextBoxUpDown(0)"), Qt::Key_Up);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("games/NumbersSettings.save.tbl")));
}

TEST_F(NumbersForm, TheArrowsKeepTheRangeOfTheQuestionTime)
{
    auto& form = openForm();
    auto& arrows = find<QAbstractSpinBox>(form, "updTextBoxUpDown(0)");
    arrows.stepBy(99999);
    EXPECT_EQ(number(form, 0), "60");
    arrows.stepBy(-99999);
    EXPECT_EQ(number(form, 0), "0");
}

TEST_F(NumbersForm, PreventCalculatorShowsTheReportFlag)
{
    settings = "tNumbersSettings = {\r\n\tbReportCalc = 1,\r\n\tbPreventCalc = 0,\r\n\ttCalculation = {\r\n"
               "\t\tsAddition = \"1,2,3,4\",\r\n\t\tsSubtraction = \"1,2,3,4\",\r\n"
               "\t\tsMultiplication = \"1,2,3,4\",\r\n\t\tsDivision = \"1,2,3,4\",\r\n\t},\r\n}\r\n";
    auto& form = openForm();
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(7)").isChecked());
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(8)").isChecked());
}

TEST_F(NumbersForm, TheCalculationDialogHasFourFieldsAndReopensForLettersInTheFirst)
{
    auto& form = openForm();
    EXPECT_EQ(entering({{{}, "cmdCancel"}}, [&] { doubleClickRow(calculations(form), 2); }),
              (QList<SeenDialog>{{"frmGlobalEditFourFields",
                                  "Edit Question",
                                  {"X Minimum", "X Maximum", "Y Minimum", "Y Maximum"},
                                  {"0", "20", "0", "100"}}}));
    const QString invalid = "Invalid Entry|Invalid Entry: Integers required in all fields";
    EXPECT_EQ(
        editCalculation(form, 2, {{"abc", "1", "1", "1"}, {"7x", "1", "1", "1"}, {"7", "8", "9", "ten"}}),
        (QStringList{"Edit Question", invalid, "Edit Question", invalid, "Edit Question"}));
    EXPECT_EQ(shown(calculations(form))[2], "*|7|8|9|ten");
    const auto dialogs = entering({{{"abc", "1", "1", "1"}}}, [&] { doubleClickRow(calculations(form), 2); });
    ASSERT_EQ(dialogs.size(), 3);                                      // with the refusal between the two
    EXPECT_EQ(dialogs[2].values, (QStringList{"7", "8", "9", "ten"})); // the row's own, not the refused ones
    EXPECT_TRUE(button(form, "EDIT", "tlbNumbers").isEnabled());
    // Cancel after a refusal leaves the row as it stood.
    editCalculation(form, 2, {{"abc", "1", "1", "1"}});
    EXPECT_EQ(shown(calculations(form))[2], "*|7|8|9|ten");
}

TEST_F(NumbersForm, CalculationsAreNotAddedOrRemoved)
{
    auto& form = openForm();
    clickRow(calculations(form), 0);
    EXPECT_TRUE(answering(QMessageBox::Ok, [&form] {
                    QTest::keyClick(&calculations(form), Qt::Key_Delete);
                }).isEmpty());
    EXPECT_EQ(shown(calculations(form)), fresh);
}

TEST_F(NumbersForm, ACalculationOfThreeNumbersStopsTheLoadAndNothingIsSavedThen)
{
    settings = golden("games/NumbersSettings.build.tbl");
    settings.replace(settings.find("0,20,0,100"), 10, "0,20,0");
    settings.replace(settings.find("iQuestionTime = 20"), 18, "iQuestionTime = 44");
    settings.replace(settings.find("iArchiveScores = 5"), 18, "iArchiveScores = 6");
    EditorForm* form = nullptr;
    const auto boxes = answering(QMessageBox::Ok, [&] { form = &openForm(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Games ~ Numbers");
    EXPECT_EQ(boxes[0].text,
              R"(sMultiplication in Games\Numbers\NumbersSettings.tbl has fewer than four numbers)");
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(number(*form, 9), "6"); // stands before it in the file
    EXPECT_EQ(number(*form, 0), "0"); // and this one behind
    EXPECT_EQ(shown(calculations(*form)), (QStringList{fresh[0], fresh[1], "*|0|20|0|"}));
    const std::string cut = settings;
    find<QCheckBox>(*form, "chkCheckBox(0)").click();
    const auto refused = answering(QMessageBox::Ok, [form] { button(*form, "SAVE").trigger(); });
    ASSERT_EQ(refused.size(), 1);
    EXPECT_EQ(refused[0].title, "Games ~ Numbers");
    EXPECT_EQ(refused[0].text,
              "Nothing is saved, as the form shows only a part of its settings: sMultiplication in "
              R"(Games\Numbers\NumbersSettings.tbl has fewer than four numbers.)"
              "\n\nMend the file and discard the changes, or restore the defaults.");
    EXPECT_EQ(refused[0].buttons, QMessageBox::Ok);
    EXPECT_EQ(refused[0].icon, QMessageBox::Warning);
    EXPECT_EQ(settings, cut);
    EXPECT_TRUE(isDirty(*form));
}

TEST_F(NumbersForm, AfterAStoppedLoadALoadThatGoesThroughOrARestoreLetsTheFormSaveAgain)
{
    const std::string whole = golden("games/NumbersSettings.build.tbl");
    settings = whole;
    settings.replace(settings.find("0,20,0,100"), 10, "0,20,0");
    EditorForm* form = nullptr;
    answering(QMessageBox::Ok, [&] { form = &openForm(); });
    const auto saves = [&] {
        button(*form, "SAVE").setEnabled(true);
        const auto boxes = answering(QMessageBox::Ok, [form] { button(*form, "SAVE").trigger(); });
        return boxes.isEmpty();
    };
    EXPECT_FALSE(saves());
    answering(QMessageBox::Ok, [form] { button(*form, "DISCARD").trigger(); }); // reads the same again
    EXPECT_FALSE(saves());
    answering(QMessageBox::Ok, [form] { button(*form, "RESTORE").trigger(); });
    EXPECT_TRUE(saves());
    settings.replace(settings.find("0,20,0,100"), 10, "0,20,0");
    answering(QMessageBox::Ok, [form] { button(*form, "DISCARD").trigger(); });
    EXPECT_FALSE(saves());
    settings = whole;
    answering(QMessageBox::Ok, [form] { button(*form, "DISCARD").trigger(); });
    EXPECT_TRUE(saves());
}

TEST_F(NumbersForm, EveryFieldOfACalculationIsRequired)
{
    auto& form = openForm();
    test::withModal([&form] { doubleClickRow(calculations(form), 2); },
                    [](QWidget& dialog) {
                        test::fillField(test::fieldOf(dialog, 3), "");
                        find<QPushButton>(dialog, "cmdOK").click();
                        EXPECT_TRUE(dialog.isVisible());
                        EXPECT_FALSE(find<QPushButton>(dialog, "cmdAdd").isEnabled());
                        dialog.close();
                    });
    EXPECT_EQ(shown(calculations(form)), fresh);
}

TEST_F(NumbersForm, ARestoreReachesTheCalculations)
{
    settings = golden("games/NumbersSettings.save.tbl");
    auto& form = openForm();
    EXPECT_EQ(shown(calculations(form))[1], "-|1.5|abc|2|3");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(shown(calculations(form)), fresh);
    EXPECT_TRUE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("games/NumbersSettings.save.tbl")));
}

TEST_F(NumbersForm, QuestionsAreOpenedAddedEditedAndSavedWithoutTheLastAnswer)
{
    list = "A:one:more*1\r\nA:two*2\r\n";
    auto& form = openForm();
    tool(form, "OPEN").trigger();
    EXPECT_EQ(shown(questions(form)), (QStringList{"A:one:more|1", "A:two|2"}));
    EXPECT_EQ(
        entering({{{"B", "three", "3"}}}, [&form] { tool(form, "NEW").trigger(); }),
        (QList<SeenDialog>{
            {"frmGlobalEditThreeFields", "Add Question", {"Category", "Question", "Answer"}, {"", "", ""}}}));
    EXPECT_EQ(entering({{{}}}, [&form] { doubleClickRow(questions(form), 0); }),
              (QList<SeenDialog>{{"frmGlobalEditThreeFields",
                                  "Edit Question",
                                  {"Category", "Question", "Answer"},
                                  {"A", "one", "1"}}}));
    EXPECT_EQ(shown(questions(form)), (QStringList{"A:one|1", "A:two|2", "B:three|3"}));
    EXPECT_FALSE(isDirty(form));
    tool(form, "SAVE").trigger();
    EXPECT_EQ(list, "A:one*1\r\nA:two*2\r\nB:three\r\n");
    tool(form, "OPEN").trigger();
    EXPECT_EQ(shown(questions(form)), (QStringList{"A:one|1", "A:two|2", "B:three|"}));
}

TEST_F(NumbersForm, TheLastQuestionStays)
{
    auto& form = openForm();
    tool(form, "OPEN").trigger();
    EXPECT_EQ(shown(questions(form)), (QStringList{"Mathematics: What is 2 Plus 2 = ??|4"}));
    clickRow(questions(form), 0);
    const auto refused = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(refused.size(), 1);
    EXPECT_EQ(refused[0].title, "Cannot delete");
    EXPECT_EQ(refused[0].text, "There must be a minimum of one Question");
    EXPECT_EQ(refused[0].icon, QMessageBox::Critical);
    entering({{{"B", "b", "b"}}}, [&form] { tool(form, "NEW").trigger(); });
    const auto boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Word?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this question?");
    EXPECT_EQ(questions(form).rows().size(), 1U);
}

TEST_F(NumbersForm, TheTwoMenusServeTheTwoLists)
{
    auto& form = openForm();
    tool(form, "OPEN").trigger();
    entering({{{"B", "b", "b"}}}, [this] { find<QAction>(window(), "mnuNumbersAdd").trigger(); });
    entering({{{"C", "c", "c"}}}, [this] { find<QAction>(window(), "mnuNumbersEdit").trigger(); });
    EXPECT_EQ(shown(questions(form))[1], "C:c|c");
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuNumbersDelete").trigger(); });
    EXPECT_EQ(questions(form).rows().size(), 1U);
    clickRow(calculations(form), 3);
    entering({{{"2", "4", "2", "4"}}},
             [this] { find<QAction>(window(), "mnuNumbersNumbersEdit").trigger(); });
    EXPECT_EQ(shown(calculations(form))[3], "/|2|4|2|4");
}

} // namespace
} // namespace quillfen
