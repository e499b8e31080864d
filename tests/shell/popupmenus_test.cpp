#include "shell/window/popupmenus.h"
#include "support/formtest.h"

#include <QMenu>

namespace quillfen {
namespace {

/// A part that serves the borrowed menus' routines that a test names, and notes their calls.
class ServingPart : public FormPart
{
    Q_OBJECT

public:
    ServingPart(QStringList& called, const QAction& edit) : m_called(called), m_edit(edit) {}

    QWidget* widget() override { return new QWidget; }
    void load() override {}
    void restore() override {}
    void save() override {}
    RoutineTable routines() override
    {
        RoutineTable table;
        for (const QString name :
             {"gMenuEditClick", "gMenuEditTwoClick", "gMenuEditThreeClick", "gMenuFirstAddClick",
              "gMenuTrueFalseTrueClick", "gMenuTrueFalseFalseClick"})
            table.insert(name, {[this, name] { m_called.append(name); }});
        table.insert("gMenuFirstEditClick", {[] {}, &m_edit});
        return table;
    }

private:
    QStringList& m_called;
    const QAction& m_edit; ///< the button of "Edit"
};

class BorrowedMenus : public test::FormTest
{
protected:
    BorrowedMenus()
    {
        standIn(OwnPart{OwnPartKind::News});
        makers.own = [this](const OwnPart&, const FormContext&) {
            return std::make_unique<ServingPart>(called, edit);
        };
    }

    void choose(const char* item) { find<QAction>(window(), item).trigger(); }

    QStringList called;
    QAction edit;
};

TEST_F(BorrowedMenus, CallTheRoutineOfTheActiveForm)
{
    open("Games~Anagrams");
    choose("mnuOnlyEditEdit");
    choose("mnuOnlyEditTwoEdit");
    choose("mnuOnlyEditThreeEdit");
    choose("mnuFirstAdd");
    EXPECT_EQ(called, (QStringList{"gMenuEditClick", "gMenuEditTwoClick", "gMenuEditThreeClick",
                                   "gMenuFirstAddClick"}));
}

TEST_F(BorrowedMenus, AnItemIsDarkWhileItsButtonIsAndLitForTheNextForm)
{
    open("Games~Anagrams");
    auto* menu = window().popUpMenu("mnuFirst");
    const auto lit = [menu] {
        menu->popup({0, 0});
        QString keys;
        for (const auto* item : menu->actions())
            keys += item->isEnabled() ? '1' : '0';
        menu->hide();
        return keys;
    };
    EXPECT_EQ(lit(), "111");
    edit.setEnabled(false);
    EXPECT_EQ(lit(), "110");
    for (const auto* item : menu->actions())
        EXPECT_TRUE(item->isEnabled());
}

TEST_F(BorrowedMenus, BothEntriesOfTrueFalseCallTheSameRoutine)
{
    open("Games~Anagrams");
    choose("mnuTrueFalseTrue");
    choose("mnuTrueFalseFalse");
    EXPECT_EQ(called, (QStringList{"gMenuTrueFalseTrueClick", "gMenuTrueFalseTrueClick"}));
}

TEST_F(BorrowedMenus, AMissingRoutineIsAnErrorAndNoCrash)
{
    open("General~Settings");
    const auto boxes =
        test::answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstAdd").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(boxes[0].text, "The active form has no gMenuFirstAddClick.");
}

TEST_F(BorrowedMenus, APopUpItemWithNoFormActiveIsAnErrorToo)
{
    EXPECT_EQ(
        test::answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuBotsEdit").trigger(); }).size(),
        1);
}

TEST(PopUpMenus, EachMenuHasItsItemsAndRoutines)
{
    QWidget owner;
    PopUpMenus menus([] { return nullptr; }, &owner);
    QStringList missing;
    QObject::connect(&menus, &PopUpMenus::routineMissing,
                     [&missing](const QString& name) { missing.append(name); });
    const auto check = [&](const QString& name, const QStringList& captions, const QStringList& routines) {
        auto* menu = menus.menu(name);
        ASSERT_TRUE(menu) << name.toStdString();
        QStringList seen;
        missing.clear();
        for (auto* action : menu->actions()) {
            seen.append(action->text());
            action->trigger();
        }
        EXPECT_EQ(seen, captions) << name.toStdString();
        EXPECT_EQ(missing, routines) << name.toStdString();
    };
    const QStringList edit = {"&Edit"};
    const QStringList all = {"&Add", "&Delete", "&Edit"};
    check("mnuOnlyEdit", edit, {"gMenuEditClick"});
    check("mnuOnlyEditTwo", edit, {"gMenuEditTwoClick"});
    check("mnuOnlyEditThree", edit, {"gMenuEditThreeClick"});
    check("mnuFirst", all, {"gMenuFirstAddClick", "gMenuFirstDeleteClick", "gMenuFirstEditClick"});
    check("mnuSecond", all, {"gMenuSecondAddClick", "gMenuSecondDeleteClick", "gMenuSecondEditClick"});
    check("mnuThird", all, {"gMenuThirdAddClick", "gMenuThirdDeleteClick", "gMenuThirdEditClick"});
    check("mnuFourth", all, {"gMenuFourthAddClick", "gMenuFourthDeleteClick", "gMenuFourthEditClick"});
    check("mnuTrueFalse", {"&True", "&False"}, {"gMenuTrueFalseTrueClick", "gMenuTrueFalseTrueClick"});
    check("mnuBots", edit, {"gMenuBotsEditClick"});
    check("mnuIntro", all, {"gMenuIntroAddClick", "gMenuIntroDeleteClick", "gMenuIntroEditClick"});
    check("mnuOutro", all, {"gMenuOutroAddClick", "gMenuOutroDeleteClick", "gMenuOutroEditClick"});
    check("mnuAnagrams", all,
          {"gMenuAnagramsAddClick", "gMenuAnagramsDeleteClick", "gMenuAnagramsEditClick"});
    check("mnuHangman", all, {"gMenuHangmanAddClick", "gMenuHangmanDeleteClick", "gMenuHangmanEditClick"});
    check("mnuNumbers", all, {"gMenuNumbersAddClick", "gMenuNumbersDeleteClick", "gMenuNumbersEditClick"});
    check("mnuNumbersNumbers", edit, {"gMenuNumbersNumbersEditClick"});
    check("mnuUserActions", all, {"gMenuAddClick", "gMenuDeleteClick", "gMenuEditClick"});
    check("mnuTriviaQuestions", all, {});
    EXPECT_TRUE(menus.menu("mnuTriviaQuestions")->findChild<QAction*>("mnuTriviaQuestionsAdd"));
    EXPECT_TRUE(menus.menu("mnuTriviaQuestions")->findChild<QAction*>("mnuTriviaQuestionsDelete"));
    EXPECT_TRUE(menus.menu("mnuTriviaQuestions")->findChild<QAction*>("mnuTriviaQuestionsEdit"));
}

} // namespace
} // namespace quillfen

#include "popupmenus_test.moc"
