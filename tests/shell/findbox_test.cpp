#include "find/findforms.h"
#include "portal/portalsettings.h"
#include "shell/kit/listview.h"
#include "support/formtest.h"

#include <QAccessible>
#include <QLineEdit>
#include <QListView>
#include <QProxyStyle>
#include <QTreeWidget>

namespace quillfen {
namespace {

/// The find box, used by keys.
class FindBox : public test::FormTest
{
protected:
    QLineEdit& box() { return find<QLineEdit>(window(), "txtFind"); }
    QTreeWidget& tree() { return find<QTreeWidget>(window(), "tvwFunctions"); }
    QListView& list() { return find<QListView>(window(), "lvwFound"); }
    QString heading() { return find<QLabel>(window(), "lblFound").text(); }

    void goToBox() { QTest::keyClick(&window(), Qt::Key_F, Qt::ControlModifier); }

    void type(const QString& text)
    {
        goToBox();
        QTest::keyClicks(QApplication::focusWidget(), text);
    }

    /// Types, and opens the first of what is found.
    void typeAndOpen(const QString& text)
    {
        type(text);
        QTest::keyClick(&box(), Qt::Key_Return);
    }

    QStringList shownRows()
    {
        QStringList rows;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            rows.append(list().model()->index(row, 0).data().toString().replace('\n', " / "));
        return rows;
    }

    QStringList openKeys()
    {
        QStringList keys;
        for (const COpenWindow& entry : window().openWindows())
            keys.append(entry.Key());
        return keys;
    }

    static QString focusName()
    {
        auto* focused = QApplication::focusWidget();
        return focused ? focused->objectName() : QStringLiteral("nothing");
    }

    void write(const char* file, const char* bytes) { hub.files.WriteSettingsFile(file, bytes); }
};

TEST_F(FindBox, TellsWhatItIsFor)
{
    EXPECT_EQ(box().accessibleName(), "Find");
    EXPECT_EQ(box().placeholderText(), "Find any setting (Ctrl+F)");
}

TEST_F(FindBox, ShowsTheTreeUntilSomethingIsTyped)
{
    goToBox();
    EXPECT_TRUE(tree().isVisible());
    QTest::keyClicks(&box(), "k");
    EXPECT_FALSE(tree().isVisible());
    EXPECT_TRUE(list().isVisible());
}

TEST_F(FindBox, FindsFunctionsByWordsOfTheirNamesAndOfTheHeadingsAboveThem)
{
    type("SPELL b");
    EXPECT_EQ(shownRows().mid(0, 2), (QStringList{"User Actions ~ Spells ~ Spell Book",
                                                  "User Actions ~ NickSpells ~ Nick Spell Book"}));
}

TEST_F(FindBox, EnterOpensTheFirstHit)
{
    type("anti add");
    EXPECT_TRUE(openKeys().isEmpty()) << "typing opens nothing";
    QTest::keyClick(&box(), Qt::Key_Return);
    EXPECT_EQ(openKeys(), QStringList{"Security~AntiAdvertise~Addresses"});
}

TEST_F(FindBox, EnterOpensTheFormWithTheControlInFocus)
{
    write(R"(Communication\Clock\ClockSettings.tbl)", "tClockSettings = {\r\n\tiDelay = 911,\r\n}");
    type("911");
    ASSERT_EQ(shownRows().size(), 1);
    EXPECT_TRUE(shownRows().constFirst().endsWith(": 911 / Communication ~ Clock"))
        << shownRows().constFirst().toStdString();
    QTest::keyClick(&box(), Qt::Key_Return);
    EXPECT_EQ(openKeys(), QStringList{"Communication~Clock"});
    auto* focused = QApplication::focusWidget();
    auto* edit = focused->findChild<QLineEdit*>(); // of the number box
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->text(), "911");
}

TEST_F(FindBox, ARowOfAListIsSelected)
{
    write(R"(UserActions\Spells\SpellWards.tbl)",
          "tSpellWards = {\r\n[\"0.1\"] = 1,\r\n[\"0.2\"] = 1,\r\n[\"0.3\"] = 1,\r\n}");
    typeAndOpen("ward 0.2");
    EXPECT_EQ(openKeys(), QStringList{"UserActions~Spells~Settings"});
    EXPECT_EQ(focusName(), "lvwWards");
    EXPECT_EQ(find<ListView>(window(), "lvwWards").currentRow(), 1);
}

TEST_F(FindBox, ACellOfAGridIsSelected)
{
    typeAndOpen("kicks ban operator vip no");
    EXPECT_EQ(openKeys(), QStringList{"Security~Kicks~Permissions"});
    EXPECT_EQ(focusName(), "lvwPermissions");
    auto& grid = find<ListView>(window(), "lvwPermissions");
    const int row = grid.currentRow();
    ASSERT_GE(row, 0);
    EXPECT_EQ(grid.model()->index(row, 2).data().toString(), "VIP");
}

TEST_F(FindBox, AnOptionIsGoneToByItsButton)
{
    typeAndOpen("trivia hint reduction");
    EXPECT_EQ(openKeys(), QStringList{"Games~Trivia~Settings"});
    EXPECT_EQ(focusName(), "optOption(4)");
}

TEST_F(FindBox, ATextIsGoneToByTheButtonThatOpensIt)
{
    write(R"(Security\Kick\KickAscii.asc)", "Turn your router off and on");
    typeAndOpen("router off");
    EXPECT_EQ(openKeys(), QStringList{"Security~Kicks~Settings"});
    EXPECT_EQ(QApplication::focusWidget()->parentWidget()->objectName(), "tlbCheckBox");
}

TEST_F(FindBox, AFormThatIsOpenIsBroughtForwardToTheControl)
{
    open("Security~Kicks~Settings");
    open("Games~Anagrams");
    typeAndOpen("iWarnsMakeKick");
    EXPECT_EQ(openKeys(), (QStringList{"Security~Kicks~Settings", "Games~Anagrams"}));
    auto* focused = QApplication::focusWidget();
    EXPECT_TRUE(focused->findChild<QLineEdit*>("txtUpDown(0)")) << focusName().toStdString();
}

/// The rows of a list's control; none of any other one.
int rowsOf(const QWidget& control)
{
    const auto* list = qobject_cast<const QTreeView*>(&control);
    return list ? list->model()->rowCount() : 0;
}

TEST_F(FindBox, EveryPlaceInTheIndexIsThereInItsForm)
{
    hub.store.folders.insert(hub.root + "/Communication/Portal");
    savePortalSettings(hub.files, {{"nick", "about", "mail", "ip"}, {{"hub:1", "secret", "2"}}, {"gnu"}});
    std::map<std::string, std::set<std::pair<std::string, int>>> places;
    std::vector<FindableForm> findable;
    for (const FormDeclaration& form : forms)
        findable.push_back({form.form.name, form.form.caption, &form});
    const FindIndex index = indexOfForms(findable, hub.files, hub.profiles);
    for (const char* letter : {"a", "e", "i", "o", "u", "0", "1", "t"}) {
        for (const FindHit& hit : index.find(FindQuery(letter), index.size()).hits) {
            if (!hit.place.control.empty())
                places[hit.place.key].emplace(hit.place.control, hit.place.row);
        }
    }
    EXPECT_GT(places.size(), 90U);
    for (const Node& node : functionNodes()) {
        if (!node.form)
            continue;
        auto& form = open(node.key.c_str());
        for (const auto& [control, row] : places[node.form->form.name]) {
            const auto* widget = form.findChild<QWidget*>(QString::fromStdString(control));
            ASSERT_TRUE(widget) << node.key << ' ' << control;
            EXPECT_LT(row, std::max(1, rowsOf(*widget))) << node.key << ' ' << control;
        }
        close(form);
    }
}

TEST_F(FindBox, AClickOpensARow)
{
    type("anti");
    const QModelIndex second = list().model()->index(1, 0);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(second).center());
    EXPECT_EQ(openKeys(), QStringList{"Security~AntiAdvertise~Addresses"});
}

TEST_F(FindBox, DownGoesOnToTheNextHitAndUpFromTheFirstOneBack)
{
    type("anti");
    EXPECT_EQ(list().currentIndex().row(), 0);
    QTest::keyClick(&box(), Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &list());
    EXPECT_EQ(list().currentIndex().row(), 1);
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(list().currentIndex().row(), 0);
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(QApplication::focusWidget(), &box());
    QTest::keyClick(&box(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(openKeys(), QStringList{"Security~AntiAdvertise~Addresses"});
}

TEST_F(FindBox, DownGoesToTheTreeWhereThatIsShown)
{
    goToBox();
    QTest::keyClick(&box(), Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &tree());
}

TEST_F(FindBox, EscapeBringsTheTreeBackAsItWas)
{
    tree().topLevelItem(0)->child(2)->setExpanded(true);
    type("anagrams");
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_EQ(box().text(), "");
    EXPECT_TRUE(tree().isVisible());
    EXPECT_TRUE(tree().topLevelItem(0)->child(2)->isExpanded());
    EXPECT_FALSE(tree().topLevelItem(0)->child(3)->isExpanded());
    type("anti");
    QTest::keyClick(&box(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_TRUE(tree().isVisible());
    EXPECT_TRUE(box().hasFocus());
}

TEST_F(FindBox, SaysThatNothingMatches)
{
    type("no such setting");
    EXPECT_EQ(heading(), "Nothing matches");
    EXPECT_TRUE(shownRows().isEmpty());
    QTest::keyClick(&box(), Qt::Key_Return);
    EXPECT_TRUE(openKeys().isEmpty());
}

TEST_F(FindBox, SaysHowMuchIsFoundAndShowsTheFirstOfVeryMuch)
{
    type("anagrams hint character");
    EXPECT_EQ(heading(), QString::number(shownRows().size()) + " found");
    type("o");
    EXPECT_TRUE(heading().startsWith("The first 200 of ")) << heading().toStdString();
    EXPECT_EQ(shownRows().size(), 200);
}

TEST_F(FindBox, EmptyItOffersWhatWasOpenedLast)
{
    open("Security~Kicks~Settings");
    open("Games~Anagrams");
    open("Security~Kicks~Settings");
    EXPECT_TRUE(tree().isVisible()) << "the box hasn't the focus";
    goToBox();
    EXPECT_EQ(heading(), "Opened last");
    EXPECT_EQ(shownRows(), (QStringList{"Security ~ Kicks ~ Settings", "Games ~ Anagrams"}));
    QTest::keyClick(&box(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(find<QMdiArea>(window(), {}).currentSubWindow()->widget()->objectName(), "frmGamesAnagrams");
    EXPECT_TRUE(tree().isVisible());
    goToBox();
    EXPECT_EQ(shownRows().constFirst(), "Games ~ Anagrams");
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_TRUE(tree().isVisible());
}

TEST_F(FindBox, WhatIsFoundStaysForTheNextLook)
{
    typeAndOpen("anti add");
    EXPECT_TRUE(list().isVisible());
    goToBox();
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(box().selectedText(), "anti add");
}

TEST_F(FindBox, FindsWhatWasSavedSinceTheLastLook)
{
    type("gnu");
    EXPECT_EQ(heading(), "Nothing matches");
    auto& form = open("Communication~AutoCorrect");
    form.setFocus();
    write(R"(UserActions\Spells\SpellWards.tbl)", "tSpellWards = {\r\n[\"gnu\"] = 1,\r\n}");
    goToBox();
    EXPECT_EQ(heading(), "1 found");
}

TEST_F(FindBox, TheTreeFollowsAFormBehindWhatIsFound)
{
    typeAndOpen("anagrams");
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_EQ(tree().currentItem()->data(0, Qt::UserRole).toString(), "Games~Anagrams");
}

TEST_F(FindBox, ThePortalIsFoundWhereTheTreeHasIt)
{
    type("portal");
    EXPECT_FALSE(shownRows().contains("Communication ~ Portal"));
}

TEST_F(FindBox, ThePortalIsFoundOnceItIsSwitchedOn)
{
    hub.file("General/Globals/Switches.tbl").append("bPortal = 1\r\n");
    type("portal");
    EXPECT_EQ(shownRows().constFirst(), "Communication ~ Portal");
}

TEST_F(FindBox, FormsThatNoNodeReachesAreNotFound)
{
    type("whisper");
    for (const QString& row : shownRows())
        EXPECT_FALSE(row.contains("Communication ~ Whisper")) << row.toStdString();
}

TEST_F(FindBox, AScreenReaderHearsWhatARowSays)
{
    type("iWarnsMakeKick");
    QAccessibleInterface* rows = QAccessible::queryAccessibleInterface(&list());
    EXPECT_EQ(rows->text(QAccessible::Name), "1 found");
    ASSERT_EQ(rows->childCount(), 1);
    EXPECT_EQ(rows->child(0)->text(QAccessible::Name),
              "Warns Make Kick: 5\nSecurity ~ Kicks ~ Settings, iWarnsMakeKick");
}

/// How many dots of the first row have a colour between that of its ground and that of a selection.
int markedDots(QListView& list)
{
    list.selectionModel()->clear();
    const QImage picture = list.viewport()->grab().toImage();
    const QColor base = list.palette().color(QPalette::Base);
    const QColor highlight = list.palette().color(QPalette::Highlight);
    const auto mixed = [](int from, int to) { return from + (to - from) * 2 / 5; };
    const QColor ground(mixed(base.red(), highlight.red()), mixed(base.green(), highlight.green()),
                        mixed(base.blue(), highlight.blue()));
    const auto isNear = [&ground](const QColor& dot) {
        return std::abs(dot.red() - ground.red()) < 4 && std::abs(dot.green() - ground.green()) < 4 &&
               std::abs(dot.blue() - ground.blue()) < 4;
    };
    int dots = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            dots += isNear(picture.pixelColor(x, y)) ? 1 : 0;
    }
    return dots;
}

TEST_F(FindBox, WhatWasSoughtStandsOutInLightAndDarkPalettes)
{
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    for (const QPalette& palette : {QPalette(), dark}) {
        list().setPalette(palette);
        type("iWarnsMake");
        const int more = markedDots(list());
        type("iWarnsM");
        const int fewer = markedDots(list());
        EXPECT_GT(fewer, 0);
        EXPECT_GT(more, fewer);
    }
}

/// Draws selected rows on white, as the style of Windows nearly does.
class PaleStyle : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element == CE_ItemViewItem)
            painter->fillRect(option->rect, Qt::white);
        else
            QProxyStyle::drawControl(element, option, painter, widget);
    }
};

TEST_F(FindBox, ASelectedRowHasTheGroundOfItsLettersInEveryStyle)
{
    PaleStyle pale;
    list().setStyle(&pale);
    type("iWarnsMakeKick");
    QTest::keyClick(&box(), Qt::Key_Down);
    ASSERT_TRUE(list().selectionModel()->isSelected(list().model()->index(0, 0)));
    const QRect row = list().visualRect(list().model()->index(0, 0));
    EXPECT_EQ(list().viewport()->grab().toImage().pixelColor(row.bottomRight()),
              list().palette().color(QPalette::Highlight));
    list().setStyle(nullptr);
}

TEST_F(FindBox, TextsOfFilesAreShownToTheLetter)
{
    write(R"(UserActions\Spells\SpellWards.tbl)", "tSpellWards = {\r\n[\"<b>gnu</b>\"] = 1,\r\n}");
    type("gnu");
    EXPECT_EQ(shownRows(), QStringList{"Warded Users: <b>gnu</b> / User Actions ~ Spells ~ Settings"});
    EXPECT_FALSE(list().model()->index(0, 0).data(Qt::ToolTipRole).toString().contains("<b>"));
}

TEST_F(FindBox, IsReachedFromAFormAndWithTheSideBarHidden)
{
    open("Security~AntiVirus");
    EXPECT_FALSE(box().hasFocus());
    find<QAction>(window(), "mnuToolsSideBar").trigger();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(box().isVisible());
    EXPECT_TRUE(box().hasFocus());
    QTest::keyClick(&box(), Qt::Key_Escape);
    QTest::keyClick(&box(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &tree());
}

} // namespace
} // namespace quillfen
