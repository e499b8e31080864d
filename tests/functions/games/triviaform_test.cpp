#include "support/formtest.h"
#include "support/golden.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

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

TEST_F(TriviaForm, TabLandsOnTheChosenOptionOfAGroup)
{
    settings = golden("games/TriviaSettings.save.tbl");
    auto& form = open("Games~Trivia~Settings");
    QSet<QWidget*> met;
    for (int press = 0; press < 60; ++press) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        met.insert(QApplication::focusWidget());
    }
    for (int place = 0; place < 5; ++place)
        EXPECT_EQ(met.contains(&option(form, place)), option(form, place).isChecked()) << place;
    EXPECT_TRUE(option(form, 2).isChecked());
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

TEST_F(TriviaForm, TheArrowsKeepTheRange)
{
    auto& form = open("Games~Trivia~Settings");
    const char* const last[] = {"60", "10"}; // of hint time and hints
    for (int place = 0; place < 2; ++place) {
        auto& arrows = find<QAbstractSpinBox>(form, QString("updTextBoxUpDown(%1)").arg(place));
        const auto& box = find<QLineEdit>(form, QString("txtTextBoxUpDown(%1)").arg(place));
        arrows.stepBy(99999);
        EXPECT_EQ(box.text(), last[place]);
        arrows.stepBy(-99999);
        EXPECT_EQ(box.text(), "0");
    }
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
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Restore defaults?");
    EXPECT_EQ(boxes[0].text, "Restore to defaults?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_TRUE(option(form, 0).isChecked());
    EXPECT_TRUE(option(form, 4).isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBoxUpDown(9)").text(), "93");
    EXPECT_TRUE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("games/TriviaSettings.save.tbl")));
}

TEST_F(TriviaForm, ADiscardShowsTheFileAgainAndLeavesTheFormClean)
{
    auto& form = open("Games~Trivia~Settings");
    option(form, 2).click();
    option(form, 3).click();
    find<QLineEdit>(form, "txtTextBox(0)").clear();
    EXPECT_TRUE(isDirty(form));
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Discard all unsaved changes?");
    EXPECT_TRUE(option(form, 0).isChecked());
    EXPECT_TRUE(option(form, 4).isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox(0)").text(), QStringLiteral(u"\u2022"));
    EXPECT_FALSE(isDirty(form));
}

} // namespace
} // namespace quillfen
