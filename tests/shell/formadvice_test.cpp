// What forms say of the settings that they would save.
#include "shell/kit/controlsign.h"
#include "shell/kit/formadvice.h"
#include "shell/kit/listview.h"
#include "shell/kit/longtext.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <QToolTip>

namespace quillfen {
namespace {

class FormAdviceTest : public test::FormTest
{
protected:
    /// What is said of the form as it stands.
    static QString said(EditorForm& form)
    {
        form.advice()->look();
        const QString words = form.advice()->words();
        EXPECT_TRUE(words.isEmpty() || secondPanel(form).text() == words);
        return words;
    }

    static ControlSign* signOf(const QWidget& control)
    {
        for (auto* sign : control.parentWidget()->findChildren<ControlSign*>(Qt::FindDirectChildrenOnly)) {
            if (sign->geometry() == control.geometry())
                return sign;
        }
        return nullptr;
    }

    static void clickPanel(EditorForm& form) { QTest::mouseClick(&secondPanel(form), Qt::LeftButton); }

    /// The welcome info's form, with a profile ticked, and a text box in it.
    EditorForm& welcome()
    {
        auto& form = open("Communication~WelcomeInfo~Settings");
        clickTick(find<RowList>(form, "lvwEnabledProfiles"), 0);
        return form;
    }

    /// What is said of a text.
    QString saidOf(const QString& text)
    {
        auto& form = welcome();
        find<QLineEdit>(form, "txtTextBox(1)").setText(text);
        return said(form);
    }

    QString saidOfKicks(const char* box, const QString& number)
    {
        auto& form = open("Security~Kicks~Settings");
        find<NumberBox>(form, box).setText(number);
        return said(form);
    }
};

TEST_F(FormAdviceTest, NamesAQuoteInAText)
{
    EXPECT_EQ(
        saidOf("The \"Best\" Network"),
        "Network Name: the file won't load: a quote inside the text ends it there. Take the quote out, or "
        "write ' instead.");
}

TEST_F(FormAdviceTest, NamesABackslashAtTheEnd)
{
    EXPECT_TRUE(saidOf("C:\\").startsWith("Network Name: the file won't load: a backslash"));
}

TEST_F(FormAdviceTest, NamesABackslashInTheMiddle)
{
    EXPECT_EQ(saidOf("a\\n b"), "Network Name: the hub script sees this text without its backslash, or with "
                                "another character in its place. Take the backslash out.");
}

TEST_F(FormAdviceTest, NamesABackslashThatLua53AloneRefuses)
{
    EXPECT_TRUE(saidOf("a\\qb").startsWith("Network Name: with Lua 5.3 the file won't load: "));
}

TEST_F(FormAdviceTest, NamesAnEmptiedNumber)
{
    EXPECT_TRUE(saidOfKicks("updUpDown(0)", "")
                    .startsWith("Warns Make Kick: the file won't load: there is no value"));
}

TEST_F(FormAdviceTest, NamesALetteredNumber)
{
    EXPECT_TRUE(saidOfKicks("updUpDown(0)", "5x").startsWith("Warns Make Kick: the file won't load: "));
}

TEST_F(FormAdviceTest, NamesAWordInPlaceOfANumber)
{
    EXPECT_TRUE(saidOfKicks("updUpDown(0)", "five").startsWith("Warns Make Kick: a word without quotes"));
}

TEST_F(FormAdviceTest, NamesABracketThatClosesNothing)
{
    EXPECT_TRUE(saidOfKicks("updUpDown(6)", "5}").startsWith("Top Kickers: the file won't load: "));
}

TEST_F(FormAdviceTest, NamesANumberOutsideItsRange)
{
    EXPECT_EQ(saidOfKicks("updUpDown(1)", "51"),
              "Kicks Make Ban: 51 is outside its range. Enter a number from 1 to 50.");
}

TEST_F(FormAdviceTest, NamesAClockTimeThatIsNone)
{
    EXPECT_TRUE(saidOfKicks("updUpDown(5)", "1260").startsWith("Cleaner Time: 1260 is no time of day."));
}

TEST_F(FormAdviceTest, NamesWhatTheNextLoadTakesOffATextsEnds)
{
    const QString words =
        "Network Name: the text begins or ends with a blank, a tab, a comma or a quote, which "
        "the next load takes away. Take it out.";
    auto& form = welcome();
    for (const char* text : {" a", "a ", ",a", "a,", "\ta", "a\t"}) {
        find<QLineEdit>(form, "txtTextBox(1)").setText(text);
        EXPECT_EQ(said(form), words) << text;
    }
}

TEST_F(FormAdviceTest, NamesACaretInAClientsVersion)
{
    auto& form = open("Security~ClientChecker");
    auto& list = find<RowList>(form, "lvwClients");
    list.setRows({{{"Client", "1^2", "Yes"}}});
    emit list.tickChanged(0);
    EXPECT_TRUE(said(form).contains("the version holds a ^"));
    EXPECT_FALSE(list.signOf(0).isEmpty());
}

/// An open file of trivia questions with one row of this answer.
class AdviceOnQuestions : public FormAdviceTest
{
protected:
    QString saidOfAnswer(const char* answer)
    {
        auto& form = open("Games~Trivia~Questions");
        find<RowList>(form, "lvwQuestionFiles").select(0);
        find<RowList>(form, "lvwQuestions").setRows({{{"Which town?", answer}}});
        button(form, "SAVE", "tlbQuestions").setEnabled(true); // as after a change
        return said(form);
    }
};

TEST_F(AdviceOnQuestions, NamesASecondStarAtWhichTheRowIsCut)
{
    EXPECT_TRUE(saidOfAnswer("a*b").contains("Which town?: a second * ends the answer for the editor."));
}

TEST_F(AdviceOnQuestions, NamesAnAnswerThatEndsInT)
{
    EXPECT_TRUE(
        saidOfAnswer("Hart").contains("Which town?: the editor doesn't show a line that ends in \"t\""));
    EXPECT_FALSE(saidOfAnswer("Harz").contains("ends in"));
}

TEST_F(FormAdviceTest, NamesAMissingFile)
{
    hub.store.files.erase(hub.root + "/Security/Kick/KickSettings.tbl");
    auto& form = open("Security~Kicks~Settings");
    EXPECT_EQ(said(form), "KickSettings.tbl: the file is missing, and the editor shows "
                          "zeros and empty texts for it. Restore it "
                          "and save its form.");
    test::answering(QMessageBox::Ok, [&] { button(form, "RESTORE").trigger(); });
    button(form, "SAVE").trigger();
    EXPECT_EQ(said(form), "");
}

TEST_F(FormAdviceTest, NamesAFileThatCantBeRead)
{
    const std::string path = hub.root + "/Security/Kick/KickSettings.tbl";
    hub.store.files.erase(path);
    hub.store.folders.insert(path);
    EXPECT_TRUE(said(open("Security~Kicks~Settings")).contains("KickSettings.tbl: the file can't be read"));
}

TEST_F(FormAdviceTest, NamesAFunctionThatIsSwitchedOffAndLeadsToItsSwitch)
{
    auto& form = open("Communication~TopicChanger");
    EXPECT_EQ(said(form),
              "TopicChanger is switched off, so that the hub script does nothing of this. Tick it in "
              "General ~ Switches.");
    clickPanel(form);
    auto& switches = open("General~Switches");
    EXPECT_EQ(shown(find<ListView>(switches, "lvwSwitches"))
                  .at(find<ListView>(switches, "lvwSwitches").currentRow()),
              "TopicChanger");
}

TEST_F(FormAdviceTest, NamesAProfileListWithNobodyTickedWhereOnlyTickedOnesMayUseTheFunction)
{
    auto& form = open("UserActions~Calculator");
    EXPECT_EQ(said(form),
              "Enabled Profiles: no profile is ticked, so that nobody has any use of this function. Tick "
              "those that may use it.");
    clickTick(find<RowList>(form, "lvwEnabledProfiles"), 1);
    EXPECT_EQ(said(form), "");
}

TEST_F(FormAdviceTest, DoesNotAskForTicksThatExemptProfiles)
{
    EXPECT_EQ(said(open("Security~ClientChecker")), "");
}

TEST_F(FormAdviceTest, NamesATextThatIsTooLongToBeShown)
{
    std::string& text = hub.file("Security/Kick/KickAscii.asc");
    text.clear();
    for (int line = 0; line < 5001; ++line)
        text += "x\r\n";
    auto& form = open("Security~Kicks~Settings");
    EXPECT_TRUE(said(form).contains("the text has more than 5,000 lines"));
    text.resize(5000 * 3);
    EXPECT_EQ(said(form), "");
}

TEST_F(FormAdviceTest, SaysThatAnOpenWordListIsNotSaved)
{
    auto& form = open("Games~Anagrams");
    button(form, "OPEN", "tlbListview").trigger();
    EXPECT_EQ(said(form), "");
    auto& list = find<RowList>(form, "lvwWords");
    list.select(0);
    test::entering({{{"another"}}}, [&] { button(form, "EDIT", "tlbListview").trigger(); });
    EXPECT_TRUE(said(form).contains("what is open here isn't saved by the form's SAVE"));
}

TEST_F(FormAdviceTest, MarksTheControlAndNotByItsColourAlone)
{
    auto& form = welcome();
    auto& box = find<QLineEdit>(form, "txtTextBox(1)");
    EXPECT_EQ(said(form), "");
    EXPECT_EQ(signOf(box), nullptr);
    box.setText("a\"b");
    const QString words = said(form);
    auto* sign = signOf(box);
    ASSERT_NE(sign, nullptr);
    EXPECT_TRUE(sign->isVisible());
    EXPECT_EQ(sign->toolTip(), toolTipOf(words));
    EXPECT_EQ(box.accessibleDescription(), words);
    EXPECT_EQ(box.textMargins().right(), signSize + 2);
    EXPECT_FALSE(sign->mask().contains(sign->rect().center())) << "the middle is the control's";

    box.setText("ab");
    EXPECT_EQ(said(form), "");
    EXPECT_EQ(signOf(box), nullptr);
    EXPECT_EQ(box.accessibleDescription(), "");
    EXPECT_EQ(box.textMargins().right(), 0);
}

TEST_F(FormAdviceTest, ASignGivesBackWhatWasSaidOfItsControl)
{
    auto& form = welcome();
    auto& box = find<QLineEdit>(form, "txtTextBox(1)");
    box.setAccessibleDescription("the name");
    box.setText("a\"b");
    EXPECT_EQ(box.accessibleDescription(), said(form));
    box.setText("ab");
    said(form);
    EXPECT_EQ(box.accessibleDescription(), "the name");
}

TEST_F(FormAdviceTest, ASignFollowsItsControl)
{
    auto& form = welcome();
    auto& box = find<QLineEdit>(form, "txtTextBox(1)");
    box.setText("a\"b");
    said(form);
    auto* sign = signOf(box);
    ASSERT_NE(sign, nullptr);
    box.resize(box.width() - 20, box.height());
    EXPECT_EQ(sign->geometry(), box.geometry());
    box.hide();
    EXPECT_FALSE(sign->isVisible());
}

TEST_F(FormAdviceTest, EachClickOnThePanelGoesToTheNextControl)
{
    auto& form = open("Security~Kicks~Settings");
    find<NumberBox>(form, "updUpDown(1)").setText("51");
    find<NumberBox>(form, "updUpDown(6)").setText("101");
    EXPECT_TRUE(said(form).startsWith("1 of 2. Kicks Make Ban: ")) << said(form).toStdString();
    clickPanel(form);
    EXPECT_TRUE(secondPanel(form).text().startsWith("1 of 2. "));
    EXPECT_TRUE(find<NumberBox>(form, "updUpDown(1)").hasFocus());
    clickPanel(form);
    EXPECT_TRUE(secondPanel(form).text().startsWith("2 of 2. Top Kickers: "));
    EXPECT_TRUE(find<NumberBox>(form, "updUpDown(6)").hasFocus());
    QTest::keyClick(&form, Qt::Key_F8);
    EXPECT_TRUE(secondPanel(form).text().startsWith("1 of 2. "));
    EXPECT_TRUE(find<NumberBox>(form, "updUpDown(1)").hasFocus());
}

TEST_F(FormAdviceTest, IsGivenWhenTheKeysRest)
{
    auto& form = open("Security~Kicks~Settings");
    find<NumberBox>(form, "updUpDown(1)").setText("51");
    EXPECT_EQ(secondPanel(form).text(), "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return secondPanel(form).text().startsWith("Kicks Make Ban: "); }));
}

TEST_F(FormAdviceTest, WritesNothingAndLeavesTheFormAsItIs)
{
    auto& form = open("Security~Kicks~Settings");
    const auto before = hub.store.files;
    hub.store.log.clear();
    said(form);
    EXPECT_FALSE(isDirty(form));
    find<NumberBox>(form, "updUpDown(1)").setText("51");
    said(form);
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(hub.store.files, before);
    EXPECT_EQ(hub.store.log, std::vector<std::string>());
}

TEST_F(FormAdviceTest, KeepsNobodyFromSaving)
{
    auto& form = open("Security~Kicks~Settings");
    find<NumberBox>(form, "updUpDown(0)").setText("");
    said(form);
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_NE(hub.file("Security/Kick/KickSettings.tbl").find("iWarnsMakeKick = ,"), std::string::npos);
    EXPECT_TRUE(said(form).startsWith("Warns Make Kick: ")) << "also of what is saved";
}

class AdviceOnRows : public FormAdviceTest
{
protected:
    void append(const std::string& text)
    {
        CellRow row = list.rows().empty() ? CellRow{{text}} : list.rows().front();
        row.cells.at(0) = text;
        list.append(std::move(row));
        emit list.tickChanged(0); // a change by hand
    }

    EditorForm& form = open("Communication~WelcomeInfo~NetworkHubs");
    RowList& list = *form.findChild<RowList*>();
};

TEST_F(AdviceOnRows, MarksTheRow)
{
    append("one");
    append("two \"2\"");
    EXPECT_TRUE(said(form).startsWith("two \"2\": the file won't load: "));
    EXPECT_EQ(list.signOf(0), "");
    EXPECT_EQ(list.signOf(1), said(form));
    EXPECT_EQ(list.model()->index(1, 0).data(Qt::AccessibleDescriptionRole).toString(), said(form));
    ASSERT_NE(signOf(list), nullptr);
    clickPanel(form);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_EQ(list.currentRow(), 1);

    list.remove(1);
    EXPECT_EQ(said(form), "");
    EXPECT_EQ(list.signOf(1), "");
}

TEST_F(AdviceOnRows, OfManyTheFirstHundredAreTold)
{
    for (int row = 0; row < 300; ++row)
        append(" a");
    EXPECT_TRUE(said(form).startsWith("1 of 100. "));
}

TEST_F(AdviceOnRows, EqualRowsHaveASignEach)
{
    append(" a");
    append("b");
    append(" a");
    said(form);
    EXPECT_FALSE(list.signOf(0).isEmpty());
    EXPECT_TRUE(list.signOf(1).isEmpty());
    EXPECT_FALSE(list.signOf(2).isEmpty());
}

TEST_F(AdviceOnRows, TheSignOfARowIsExplainedByItsToolTip)
{
    append("two \"2\"");
    const QString words = said(form);
    QHelpEvent help(QEvent::ToolTip, placeOf(list, 0).center(), list.mapToGlobal(placeOf(list, 0).center()));
    QApplication::sendEvent(list.viewport(), &help);
    EXPECT_EQ(QToolTip::text(), toolTipOf(words));
    QToolTip::hideText();
}

} // namespace
} // namespace quillfen
