#include "shell/kit/codepagetext.h"
#include "shell/mainwindowtest.h"

#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>

namespace quillfen {
namespace {

class WindowMenu : public test::MainWindowTest
{
protected:
    QStringList menuCaptions()
    {
        QStringList captions;
        for (auto* entry : find<QMenu>(window(), "mnuWindows").actions()) {
            if (entry->isVisible() && !entry->isSeparator())
                captions.append(entry->text());
        }
        return captions;
    }

    /// Forms of no content for keys whose own are not needed here.
    void fillWithForms()
    {
        for (const StandIn& each : standIns)
            forms.push_back({{toBytes(each.name), toBytes(each.caption)}, {}});
    }

    struct StandIn
    {
        QString key;
        QString name;
        QString caption;
    };
    const QList<StandIn> standIns = {
        {"Games~Anagrams", "frmGamesAnagrams", "Games ~ Anagrams"},
        {"Games~CodeBreaker", "frmGamesCodeBreaker", "Games ~ CodeBreaker"},
        {"Games~GuessTheNumber", "frmGamesGuessTheNumber", "Games ~ GuessTheNumber"},
        {"Games~Hangman", "frmGamesHangman", "Games ~ Hangman"},
        {"Games~Numbers", "frmGamesNumbers", "Games ~ Numbers"},
        {"Games~RussianRoulette", "frmGamesRussianRoulette", "Games ~ RussianRoulette"},
        {"Games~SlotMachine", "frmGamesSlotMachine", "Games ~ SlotMachine"},
        {"Games~ThreeCardMonty", "frmGamesThreeCardMonty", "Games~ ThreeCardMonty"},
    };
};

TEST_F(WindowMenu, TheWindowMenuIsEmptyAtFirst)
{
    EXPECT_TRUE(menuCaptions().isEmpty());
    EXPECT_FALSE(find<QAction>(window(), "mnuWindowsSplitter").isVisible());
}

TEST_F(WindowMenu, AnOpenFormStandsInTheWindowMenuOnce)
{
    open("General~Settings");
    open("General~Switches");
    open("General~Settings");
    EXPECT_EQ(menuCaptions(),
              (QStringList{"&1. General ~ Settings", "&2. General ~ Switches", "&Close All Windows"}));
    EXPECT_TRUE(find<QAction>(window(), "mnuWindowsSplitter").isVisible());
    EXPECT_EQ(window().openWindows().Count(), 2);
    EXPECT_EQ(window().openWindows().Item(1).Key(), "General~Settings");
    EXPECT_EQ(window().openWindows().Item(1).Caption(), "General ~ Settings");
}

TEST_F(WindowMenu, AClosedFormLeavesTheMenu)
{
    auto& settings = open("General~Settings");
    open("General~Switches");
    subWindow(settings).close();
    EXPECT_EQ(menuCaptions(), (QStringList{"&1. General ~ Switches", "&Close All Windows"}));
}

TEST_F(WindowMenu, AFormWhoseCaptionIsAnotherThanItsKeysLeavesTheMenuByItsTag)
{
    auto& form = open("General~EnabledRightClicks");
    EXPECT_EQ(form.windowTitle(), "General ~ Right Clicks");
    EXPECT_EQ(form.tag(), "General ~ EnabledRightClicks");
    EXPECT_EQ(menuCaptions().value(0), "&1. General ~ EnabledRightClicks");
    subWindow(form).close();
    EXPECT_EQ(window().openWindows().Count(), 0);
}

TEST_F(WindowMenu, TwoFormsOfNearlyOneCaptionCloseTheirOwnEntries)
{
    const char* const keys[] = {"General~RightClicks", "General~EnabledRightClicks"};
    const QString left[] = {"&1. General ~ EnabledRightClicks", "&1. General ~ RightClicks"};
    for (int closed = 0; closed < 2; ++closed) {
        EditorForm* both[] = {&open(keys[0]), &open(keys[1])};
        subWindow(*both[closed]).close();
        EXPECT_EQ(menuCaptions(), (QStringList{left[closed], "&Close All Windows"}));
        subWindow(*both[1 - closed]).close();
        EXPECT_EQ(window().openWindows().Count(), 0);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(WindowMenu, ACaptionWithOtherBlanksStillFindsItsEntry)
{
    fillWithForms();
    auto& form = open("Games~ThreeCardMonty");
    EXPECT_EQ(form.tag(), "");
    subWindow(form).close();
    EXPECT_EQ(window().openWindows().Count(), 0);
}

TEST_F(WindowMenu, ElevenOpenFormsShowTenEntriesAndTheWayToAll)
{
    fillWithForms();
    for (const auto& each : standIns)
        open(each.key.toLatin1().constData());
    open("General~Settings");
    open("General~Switches");
    EXPECT_FALSE(find<QAction>(window(), "mnuWindowsShowAll").isVisible());
    open("General~EnabledRightClicks");
    const QStringList captions = menuCaptions();
    ASSERT_EQ(captions.size(), 12);
    EXPECT_EQ(captions[8], "&9. General ~ Settings");
    EXPECT_EQ(captions[9], "1&0. General ~ Switches");
    EXPECT_EQ(captions[10], "&Show All Windows");
    EXPECT_EQ(captions[11], "&Close All Windows");

    find<QAction>(window(), "mnuWindows10").trigger();
    auto* tenth = area().currentSubWindow();
    EXPECT_EQ(tenth->widget()->objectName(), "frmGeneralSwitches");
    tenth->close();
    EXPECT_EQ(menuCaptions().size(), 11);
    EXPECT_FALSE(find<QAction>(window(), "mnuWindowsShowAll").isVisible());
    EXPECT_EQ(menuCaptions().value(9), "1&0. General ~ EnabledRightClicks");
    area().closeAllSubWindows();
    EXPECT_TRUE(menuCaptions().isEmpty());
    EXPECT_FALSE(find<QAction>(window(), "mnuWindowsSplitter").isVisible());
}

TEST_F(WindowMenu, CloseAllWindowsDoesNothing)
{
    open("General~Settings");
    find<QAction>(window(), "mnuWindowsClose").trigger();
    EXPECT_EQ(area().subWindowList().size(), 1);
}

TEST_F(WindowMenu, TheListOfAllWindowsOpensTheOneThatIsPicked)
{
    auto& settings = open("General~Settings");
    open("General~Switches");
    test::withModal([this] { find<QAction>(window(), "mnuWindowsShowAll").trigger(); },
                    [](QWidget& dialog) {
                        EXPECT_EQ(dialog.objectName(), "frmContainerWindows");
                        EXPECT_EQ(dialog.windowTitle(), "Windows");
                        auto& list = find<QTreeWidget>(dialog, "lvwWindows");
                        EXPECT_EQ(list.headerItem()->text(0), "window");
                        ASSERT_EQ(list.topLevelItemCount(), 2);
                        EXPECT_EQ(list.topLevelItem(0)->text(0), "General ~ Settings");
                        EXPECT_EQ(find<QPushButton>(dialog, "cmdCancel").text(), "Cancel");
                        list.setCurrentItem(list.topLevelItem(0));
                        find<QPushButton>(dialog, "cmdOK").click();
                    });
    EXPECT_EQ(area().currentSubWindow()->widget(), &settings);
}

TEST_F(WindowMenu, TheFirstRowOfTheListOfAllWindowsIsSelectedAtOnce)
{
    auto& settings = open("General~Settings");
    open("General~Switches");
    test::withModal([this] { find<QAction>(window(), "mnuWindowsShowAll").trigger(); },
                    [](QWidget& dialog) {
                        auto& list = find<QTreeWidget>(dialog, "lvwWindows");
                        EXPECT_EQ(list.selectedItems(), QList{list.topLevelItem(0)});
                        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                    });
    EXPECT_EQ(area().currentSubWindow()->widget(), &settings);
}

TEST_F(WindowMenu, TheListOfAllWindowsChangesNothingWhenItIsCancelled)
{
    open("General~Settings");
    auto& switches = open("General~Switches");
    test::withModal([this] { find<QAction>(window(), "mnuWindowsShowAll").trigger(); },
                    [](QWidget& dialog) {
                        auto& list = find<QTreeWidget>(dialog, "lvwWindows");
                        list.setCurrentItem(list.topLevelItem(0));
                        find<QPushButton>(dialog, "cmdCancel").click();
                    });
    EXPECT_EQ(area().currentSubWindow()->widget(), &switches);
}

} // namespace
} // namespace quillfen
