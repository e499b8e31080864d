#include "shell/kit/codepagetext.h"
#include "shell/kit/numberbox.h"
#include "shell/window/guide.h"
#include "shell/window/popupmenus.h"
#include "store/history.h"
#include "support/formtest.h"
#include "support/memorystore.h"

#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeWidget>

namespace quillfen {
namespace {

/// Notes which pages of a scheme the program asks the platform to open.
class WebPages : public QObject
{
    Q_OBJECT

public:
    explicit WebPages(const QString& scheme = "quillfentest") : m_scheme(scheme)
    {
        QDesktopServices::setUrlHandler(m_scheme, this, "note");
    }
    ~WebPages() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    QStringList opened;

    Q_INVOKABLE void note(const QUrl& url) { opened.append(url.toString()); }

private:
    QString m_scheme;
};

class MainWindowTest : public test::FormTest
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

    QMdiArea& area() { return find<QMdiArea>(window(), QString()); }
    static QMdiSubWindow& subWindow(const EditorForm& form)
    {
        return *qobject_cast<QMdiSubWindow*>(form.parentWidget());
    }
    static void closeForm(EditorForm& form) { qobject_cast<QMdiSubWindow*>(form.parentWidget())->close(); }

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

TEST_F(MainWindowTest, IsNamedAndSizedAsTold)
{
    EXPECT_EQ(window().objectName(), "frmContainer");
    EXPECT_EQ(window().windowTitle(), "Morvaleth's Quillfen 5.2.0");
    EXPECT_EQ(window().minimumSize(), QSize(11790 / 15, 9060 / 15));
    EXPECT_FALSE(window().windowIcon().isNull());
    EXPECT_EQ(window().statusBar()->objectName(), "stsContainer");
    window().resize(10, 10);
    EXPECT_EQ(window().size(), QSize(786, 604));
}

TEST_F(MainWindowTest, HasItsMenus)
{
    QStringList titles;
    for (auto* action : window().menuBar()->actions())
        titles.append(action->menu()->objectName() + '=' + action->text());
    EXPECT_EQ(titles,
              (QStringList{"mnuFile=&File", "mnuTools=&Tools", "mnuWindows=&Window", "mnuHelp=&Help"}));
    const auto itemsOf = [this](const char* menu) {
        QStringList items;
        for (auto* item : find<QMenu>(window(), menu).actions())
            items.append(item->objectName() + '=' + (item->isSeparator() ? "|" : item->text()));
        return items;
    };
    EXPECT_EQ(itemsOf("mnuFile"), QStringList{"mnuFileClose=&Close"});
    EXPECT_EQ(itemsOf("mnuTools"), QStringList{"mnuToolsSideBar=Show/Hide Functions &Sidebar"});
    EXPECT_EQ(itemsOf("mnuWindows"),
              (QStringList{
                  "mnuWindows1=Windows Menu &1", "mnuWindows2=Windows Menu &2", "mnuWindows3=Windows Menu &3",
                  "mnuWindows4=Windows Menu &4", "mnuWindows5=Windows Menu &5", "mnuWindows6=Windows Menu &6",
                  "mnuWindows7=Windows Menu &7", "mnuWindows8=Windows Menu &8", "mnuWindows9=Windows Menu &9",
                  "mnuWindows10=Windows Menu 1&0", "mnuWindowsSplitter=|",
                  "mnuWindowsShowAll=&Show All Windows", "mnuWindowsClose=&Close All Windows"}));
    EXPECT_EQ(itemsOf("mnuHelp"), (QStringList{"mnuHelpVisit=&Visit Morvaleth's Scripts",
                                               "mnuHelpDonate=Make A &Donation", "mnuHelpAbout=&About"}));
}

TEST_F(MainWindowTest, EveryMenuAndItemHasAMnemonicOfItsOwn)
{
    const auto mnemonics = [](const QList<QAction*>& actions) {
        QStringList letters;
        for (const QAction* action : actions) {
            if (!action->isSeparator())
                letters.append(QKeySequence::mnemonic(action->text()).toString());
        }
        return letters;
    };
    QList<QStringList> menus = {mnemonics(window().menuBar()->actions())};
    for (const QAction* action : window().menuBar()->actions())
        menus.append(mnemonics(action->menu()->actions()));
    for (QStringList& letters : menus) {
        EXPECT_FALSE(letters.contains(QString())) << letters.join(' ').toStdString();
        EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(' ').toStdString();
    }
    EXPECT_EQ(find<QAction>(window(), "mnuFileClose").shortcut(), QKeySequence(QKeySequence::Quit));
}

TEST_F(MainWindowTest, OpensTheMakersPages)
{
    WebPages pages;
    find<QAction>(window(), "mnuHelpVisit").trigger();
    find<QAction>(window(), "SCRIPTS").trigger();
    find<QAction>(window(), "mnuHelpDonate").trigger();
    find<QAction>(window(), "DONATE").trigger();
    EXPECT_EQ(pages.opened, (QStringList{"quillfentest:///scripts/", "quillfentest:///scripts/",
                                         "quillfentest:///scripts/donate/Quillfen/",
                                         "quillfentest:///scripts/donate/Quillfen/"}));
}

TEST_F(MainWindowTest, SaysSoWhenThereIsNoWebAddress)
{
    program.webBase.clear();
    const auto boxes =
        test::answering(QMessageBox::Ok, [this] { find<QAction>(window(), "SCRIPTS").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].text, "The web page scripts/ can't be opened.");
}

TEST_F(MainWindowTest, TheWindowMenuIsEmptyAtFirst)
{
    EXPECT_TRUE(menuCaptions().isEmpty());
    EXPECT_FALSE(find<QAction>(window(), "mnuWindowsSplitter").isVisible());
}

TEST_F(MainWindowTest, AnOpenFormStandsInTheWindowMenuOnce)
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

TEST_F(MainWindowTest, ChoosingAnOpenFormBringsItForward)
{
    auto& settings = open("General~Settings");
    open("General~Switches");
    find<QAction>(window(), "mnuWindows1").trigger();
    EXPECT_EQ(area().currentSubWindow()->widget(), &settings);
    qobject_cast<QMdiSubWindow*>(settings.parentWidget())->showMinimized();
    EXPECT_EQ(&open("General~Settings"), &settings);
    EXPECT_FALSE(settings.parentWidget()->isMinimized());
    EXPECT_FALSE(settings.parentWidget()->isMaximized());
}

TEST_F(MainWindowTest, ChoosingTheActiveFormLeavesItMaximised)
{
    auto& settings = open("General~Settings");
    qobject_cast<QMdiSubWindow*>(settings.parentWidget())->showMaximized();
    EXPECT_EQ(&open("General~Settings"), &settings);
    EXPECT_TRUE(settings.parentWidget()->isMaximized());
}

TEST_F(MainWindowTest, StartsNoLargerThanTheScreensFreeArea)
{
    const QSize free = window().screen()->availableSize();
    ASSERT_LT(free.width(), 1180) << "a screen on which it has to matter";
    EXPECT_LE(window().width(), free.width());
    EXPECT_LE(window().height() + window().style()->pixelMetric(QStyle::PM_TitleBarHeight), free.height());
}

TEST_F(MainWindowTest, AFormThatOpensWhileAnotherIsMaximisedIsMaximisedToo)
{
    window().resize(1180, 780);
    subWindow(open("General~Settings")).showMaximized();
    for (const char* key : {"General~Switches", "General~Bots"}) {
        auto& opened = subWindow(open(key));
        EXPECT_TRUE(opened.isMaximized());
        EXPECT_EQ(opened.geometry(), area().viewport()->rect());
        EXPECT_EQ(area().currentSubWindow(), &opened);
    }
    auto& last = subWindow(open("General~Bots"));
    last.showNormal();
    EXPECT_EQ(last.size(), last.size().expandedTo(last.widget()->minimumSizeHint()));
    EXPECT_GT(last.height(), last.widget()->height()) << "it has its title bar";
    EXPECT_FALSE(subWindow(open("General~News")).isMaximized());
}

TEST_F(MainWindowTest, AMinimisedFormThatIsChosenWhileAnotherIsMaximisedIsShown)
{
    auto& settings = subWindow(open("General~Settings"));
    settings.showMinimized();
    subWindow(open("General~Switches")).showMaximized();
    open("General~Settings");
    EXPECT_EQ(area().currentSubWindow(), &settings);
    EXPECT_FALSE(settings.isMinimized());
    EXPECT_GE(settings.height(), settings.widget()->minimumHeight());
}

TEST_F(MainWindowTest, AFormOutOfSightComesIntoSightWhenItIsChosen)
{
    window().resize(1180, 780);
    auto& settings = subWindow(open("General~Settings"));
    auto& switches = subWindow(open("General~Switches"));
    const QRect& room = area().viewport()->rect();
    switches.move(room.right() - 100, room.bottom() - 100);
    settings.move(0, 0);
    open("General~Settings");
    window().resize(window().minimumSize());
    EXPECT_FALSE(area().viewport()->rect().contains(switches.geometry()));
    EXPECT_TRUE(area().horizontalScrollBar()->isVisible());
    EXPECT_TRUE(area().verticalScrollBar()->isVisible());
    for (auto* chosen : {&switches, &settings}) {
        open(chosen == &switches ? "General~Switches" : "General~Settings");
        EXPECT_TRUE(area().viewport()->rect().contains(chosen->geometry()));
    }
    auto& opened = subWindow(open("General~Bots"));
    EXPECT_TRUE(area().viewport()->rect().contains(opened.geometry()));
}

TEST_F(MainWindowTest, OfAFormLargerThanTheAreaItsBeginningComesIntoSight)
{
    auto& settings = subWindow(open("General~Settings"));
    settings.resize(3000, 2000);
    settings.move(-700, -500);
    open("General~Settings");
    EXPECT_EQ(settings.pos(), QPoint());
    settings.move(400, 300);
    open("General~Settings");
    EXPECT_EQ(settings.pos(), QPoint());
}

TEST_F(MainWindowTest, AClickOnAFormHalfInSightDoesNotMoveItAway)
{
    auto& settings = subWindow(open("General~Settings"));
    auto& switches = subWindow(open("General~Switches"));
    switches.move(0, 0);
    settings.move(area().viewport()->width() - 150, 0);
    const QPoint before = settings.pos();
    auto& toolbar = find<QWidget>(settings, "tlbFormToolbar");
    QTest::mousePress(&toolbar, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(settings.pos(), before);
    QTest::mouseRelease(&toolbar, Qt::LeftButton, {}, {5, 5});
}

/// Two changed forms and a clean one in front of them.
class SavingAll : public MainWindowTest
{
protected:
    SavingAll()
    {
        find<NumberBox>(slotMachine, "updUpDown(0)").setText("7");
        QTest::keyClicks(&find<QWidget>(settings, "txtTextBox(0)"), "x");
        hub.store.log.clear();
        window().activateWindow();
        inFront = &open("General~Switches");
    }

    void press()
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    }

    bool isWritten(const std::string& file) const
    {
        return std::ranges::count(hub.store.log, "write " + hub.root + '/' + file) == 1;
    }

    EditorForm& slotMachine = open("Games~SlotMachine");
    EditorForm& settings = open("General~Settings");
    EditorForm* inFront = nullptr;
};

TEST_F(SavingAll, ControlShiftSSavesEachChangedFormAndNoOther)
{
    press();
    EXPECT_FALSE(slotMachine.isDirty());
    EXPECT_FALSE(settings.isDirty());
    EXPECT_TRUE(isWritten("Games/SlotMachine/SlotMachineSettings.tbl"));
    EXPECT_TRUE(isWritten("General/Globals/GeneralSettings.tbl"));
    EXPECT_EQ(hub.store.log.size(), 2U);
    EXPECT_EQ(area().currentSubWindow(), &subWindow(*inFront)) << "what one works in stays in front";
}

TEST_F(SavingAll, AFormThatCannotBeSavedSaysSoComesForwardAndKeepsNoOtherFromIt)
{
    hub.store.folders.insert(hub.root +
                             "/Games/SlotMachine/SlotMachineSettings.tbl"); // nothing is written there
    const auto boxes = test::answering(QMessageBox::Ok, [this] { press(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].text.contains("Games ~ SlotMachine couldn't be saved."))
        << boxes[0].text.toStdString();
    EXPECT_TRUE(slotMachine.isDirty());
    EXPECT_FALSE(settings.isDirty());
    EXPECT_TRUE(isWritten("General/Globals/GeneralSettings.tbl"));
    EXPECT_EQ(area().currentSubWindow(), &subWindow(slotMachine));
}

TEST_F(SavingAll, EachFormTellsOfItsOwnThatNoVersionWasKept)
{
    test::MemoryStore versionDisk;
    versionDisk.failingCall = 0;
    VersionStore versions(versionDisk, "/versions");
    History history(hub.store, hub.root, versions);
    hub.files.store().keepVersionsIn(&history);
    press();
    const auto told = [](EditorForm& form) {
        return find<QStatusBar>(form, "stsStatusBar")
            .findChildren<QLabel*>(Qt::FindDirectChildrenOnly)
            .at(1)
            ->text()
            .startsWith("No version was kept");
    };
    EXPECT_TRUE(told(slotMachine));
    EXPECT_TRUE(told(settings));
    EXPECT_FALSE(told(*inFront));
}

TEST_F(MainWindowTest, TheEmptyAreaSaysHowToBeginUntilTheFirstFormOpens)
{
    QPointer<QLabel> told = &find<QLabel>(window(), "lblHowToBegin");
    EXPECT_TRUE(told->isVisible());
    EXPECT_TRUE(area().rect().contains(QRect(told->mapTo(&area(), QPoint()), told->size())));
    EXPECT_TRUE(told->text().contains("tree"));
    EXPECT_TRUE(told->text().contains("Ctrl+F"));
    auto& form = open("General~Settings");
    EXPECT_FALSE(told);
    closeForm(form);
    EXPECT_EQ(window().findChild<QLabel*>("lblHowToBegin"), nullptr);
}

TEST_F(MainWindowTest, TheGuideOpensAtTheChapterOfTheFormThatAsksForIt)
{
    const QTemporaryDir folder;
    program.guideFolder = folder.path();
    const QString page = folder.filePath("sections/customise-user.html");
    WebPages pages("file");
    const auto ask = [this] {
        auto& form = open("CustomiseUser~IntroOutro~Standard");
        emit form.guideAsked(form.objectName());
    };
    const auto boxes = test::answering(QMessageBox::Ok, ask);
    ASSERT_EQ(boxes.size(), 1) << "nothing is there";
    EXPECT_EQ(boxes[0].title, "Morvaleth's Quillfen");
    EXPECT_TRUE(boxes[0].text.contains(page)) << boxes[0].text.toStdString();
    EXPECT_EQ(pages.opened, QStringList());
    ASSERT_TRUE(QDir(folder.path()).mkdir("sections"));
    ASSERT_TRUE(QFile(page).open(QIODevice::WriteOnly));
    EXPECT_EQ(test::answering(QMessageBox::Ok, ask).size(), 0);
    EXPECT_EQ(pages.opened, QStringList{QUrl::fromLocalFile(page).toString()});
}

TEST_F(MainWindowTest, EachFormHasAPageThatLeadsToItsGroupInTheGuide)
{
    const auto read = [](const QString& page) {
        QFile file(QStringLiteral(QUILLFEN_GUIDE) + '/' + page);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        return QString::fromUtf8(file.readAll());
    };
    const NavigatorTable table(functionNodes());
    const QString guide = read("guide.html");
    QStringList anchors;
    for (const QString& key : table.formKeys()) {
        static const QRegularExpression target("url=\\.\\./guide\\.html#([a-z-]+)\"");
        const auto found = target.match(read(guidePage(table, key)));
        ASSERT_TRUE(found.hasMatch()) << key.toStdString();
        EXPECT_TRUE(guide.contains("<a name=\"" + found.captured(1) + "\"")) << key.toStdString();
        anchors.append(found.captured(1));
    }
    anchors.removeDuplicates();
    EXPECT_EQ(anchors, (QStringList{"general", "communication", "customise-user", "games", "security",
                                    "user-actions", "the-archive"}));
}

TEST_F(MainWindowTest, ControlTabGoesToTheNextFormAtOnce)
{
    auto& settings = subWindow(open("General~Settings"));
    auto& switches = subWindow(open("General~Switches"));
    auto& bots = subWindow(open("General~Bots"));
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyPress(QApplication::focusWidget(), key, modifiers); // and no release
        return area().currentSubWindow();
    };
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), &settings);
    EXPECT_TRUE(settings.isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), &switches);
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), &settings);
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), &bots);
    EXPECT_EQ(press(Qt::Key_PageDown, Qt::ControlModifier), &settings);
    EXPECT_EQ(press(Qt::Key_PageDown, Qt::ControlModifier), &switches);
    EXPECT_EQ(press(Qt::Key_PageUp, Qt::ControlModifier), &settings);
    EXPECT_EQ(press(Qt::Key_PageUp, Qt::ControlModifier), &bots);
    bots.showMaximized();
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), &settings);
    EXPECT_TRUE(settings.isMaximized()) << "as are all, then";
}

TEST_F(MainWindowTest, F6GoesFromTheFormToTheToolbarAndTheTreeAndBack)
{
    auto& form = open("General~Settings");
    auto* field = &find<QWidget>(form, "txtTextBox(1)");
    field->setFocus();
    const auto press = [](Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
        return QApplication::focusWidget();
    };
    auto* toolbar = &find<QToolBar>(window(), "tlbMDITop");
    EXPECT_EQ(press({}), toolbar->widgetForAction(&find<QAction>(*toolbar, "TREEVIEW")));
    EXPECT_EQ(press({}), &find<QWidget>(window(), "txtFind"));
    EXPECT_EQ(press({}), field);
    find<QWidget>(window(), "tvwFunctions").setFocus();
    EXPECT_EQ(press({}), field);
    EXPECT_EQ(press(Qt::ShiftModifier), &find<QWidget>(window(), "tvwFunctions")) << "where it was last";
    EXPECT_TRUE(toolbar->isAncestorOf(press(Qt::ShiftModifier)));
    EXPECT_EQ(press(Qt::ShiftModifier), field);
    find<QAction>(window(), "mnuToolsSideBar").trigger();
    field->setFocus();
    EXPECT_TRUE(toolbar->isAncestorOf(press({})));
    EXPECT_EQ(press({}), field) << "the tree is hidden";
    subWindow(form).showMinimized();
    toolbar->widgetForAction(&find<QAction>(*toolbar, "TREEVIEW"))->setFocus();
    EXPECT_TRUE(toolbar->isAncestorOf(press({}))) << "and so is the form";
}

TEST_F(MainWindowTest, TabReachesTheButtonsOfTheToolbarsInTheirOrder)
{
    QWidgetList met;
    auto* first = &find<QWidget>(window(), "tvwFunctions");
    first->setFocus();
    do {
        met.append(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && met.size() < 50);
    for (const char* name : {"tlbMDITop", "tlbSidebar"}) {
        auto& toolbar = find<QToolBar>(window(), name);
        QWidgetList buttons;
        for (auto* action : toolbar.actions()) {
            if (!action->isSeparator())
                buttons.append(toolbar.widgetForAction(action));
        }
        EXPECT_EQ(met.mid(met.indexOf(buttons.constFirst()), buttons.size()), buttons) << name;
    }
}

TEST_F(MainWindowTest, StartsInTheFindBox)
{
    EXPECT_EQ(QApplication::focusWidget(), &find<QWidget>(window(), "txtFind"));
}

TEST_F(MainWindowTest, NoRightClickOffersToHideAToolbar)
{
    auto& form = open("General~Bots");
    QWidgetList pressed = {window().menuBar(), window().statusBar()};
    for (auto* toolbar : window().findChildren<QToolBar*>())
        pressed += {toolbar, toolbar->findChild<QToolButton*>()};
    EXPECT_TRUE(pressed.contains(&find<QToolBar>(form, "tlbFormToolbar")));
    for (auto* widget : pressed) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, widget->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(widget, &event);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << widget->objectName().toStdString();
    }
}

TEST_F(MainWindowTest, AClosedFormLeavesTheMenu)
{
    auto& settings = open("General~Settings");
    open("General~Switches");
    closeForm(settings);
    EXPECT_EQ(menuCaptions(), (QStringList{"&1. General ~ Switches", "&Close All Windows"}));
}

TEST_F(MainWindowTest, AFormWhoseCaptionIsAnotherThanItsKeysLeavesTheMenuByItsTag)
{
    auto& form = open("General~EnabledRightClicks");
    EXPECT_EQ(form.windowTitle(), "General ~ Right Clicks");
    EXPECT_EQ(form.tag(), "General ~ EnabledRightClicks");
    EXPECT_EQ(menuCaptions().value(0), "&1. General ~ EnabledRightClicks");
    closeForm(form);
    EXPECT_EQ(window().openWindows().Count(), 0);
}

TEST_F(MainWindowTest, TwoFormsOfNearlyOneCaptionCloseTheirOwnEntries)
{
    const char* const keys[] = {"General~RightClicks", "General~EnabledRightClicks"};
    const QString left[] = {"&1. General ~ EnabledRightClicks", "&1. General ~ RightClicks"};
    for (int closed = 0; closed < 2; ++closed) {
        EditorForm* both[] = {&open(keys[0]), &open(keys[1])};
        closeForm(*both[closed]);
        EXPECT_EQ(menuCaptions(), (QStringList{left[closed], "&Close All Windows"}));
        closeForm(*both[1 - closed]);
        EXPECT_EQ(window().openWindows().Count(), 0);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(MainWindowTest, ACaptionWithOtherBlanksStillFindsItsEntry)
{
    fillWithForms();
    auto& form = open("Games~ThreeCardMonty");
    EXPECT_EQ(form.tag(), "");
    closeForm(form);
    EXPECT_EQ(window().openWindows().Count(), 0);
}

TEST_F(MainWindowTest, ElevenOpenFormsShowTenEntriesAndTheWayToAll)
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

TEST_F(MainWindowTest, CloseAllWindowsDoesNothing)
{
    open("General~Settings");
    find<QAction>(window(), "mnuWindowsClose").trigger();
    EXPECT_EQ(area().subWindowList().size(), 1);
}

TEST_F(MainWindowTest, TheListOfAllWindowsOpensTheOneThatIsPicked)
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

TEST_F(MainWindowTest, TheFirstRowOfTheListOfAllWindowsIsSelectedAtOnce)
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

TEST_F(MainWindowTest, TheListOfAllWindowsChangesNothingWhenItIsCancelled)
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

TEST_F(MainWindowTest, TheHourglassShowsWhileAFormLoadsAndGoesThen)
{
    Qt::CursorShape during = Qt::ArrowCursor;
    standIn(DeclaredSettings{[&during] {
        if (const auto* cursor = QApplication::overrideCursor())
            during = cursor->shape();
        return TableFile{"A.tbl", "tSample", {}};
    }});
    open("Games~Anagrams");
    EXPECT_EQ(during, Qt::WaitCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(MainWindowTest, ClosesItsFormsFirstAndACancelKeepsItOpen)
{
    auto& settings = open("General~Settings");
    QTest::keyClicks(&find<QWidget>(settings, "txtTextBox(0)"), "x");
    auto boxes =
        test::answering(QMessageBox::Cancel, [this] { find<QAction>(window(), "mnuFileClose").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Discard all unsaved changes?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_TRUE(window().isVisible());
    boxes = test::answering(QMessageBox::Ok, [this] { window().close(); });
    EXPECT_EQ(boxes.size(), 1);
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(window().openWindows().Count(), 0);
}

TEST_F(MainWindowTest, AFormThatAsksAsTheProgramClosesComesToTheFront)
{
    auto& settings = open("General~Settings");
    open("General~Bots");
    QTest::keyClicks(&find<QWidget>(settings, "txtTextBox(0)"), "x");
    subWindow(settings).showMinimized();
    open("General~Switches");
    const auto boxes = test::answering(QMessageBox::Cancel, [this] { window().close(); });
    EXPECT_EQ(boxes.size(), 1);
    EXPECT_EQ(area().currentSubWindow(), &subWindow(settings));
    EXPECT_FALSE(settings.parentWidget()->isMinimized());
}

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

class BorrowedMenus : public MainWindowTest
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

TEST_F(MainWindowTest, AMissingRoutineIsAnErrorAndNoCrash)
{
    open("General~Settings");
    const auto boxes =
        test::answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstAdd").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(boxes[0].text, "The active form has no gMenuFirstAddClick.");
}

TEST_F(MainWindowTest, APopUpItemWithNoFormActiveIsAnErrorToo)
{
    EXPECT_EQ(
        test::answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuBotsEdit").trigger(); }).size(),
        1);
}

TEST(PopUpMenusTest, EachMenuHasItsItemsAndRoutines)
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

TEST_F(MainWindowTest, TheAboutBoxTellsProductAndVersion)
{
    test::withModal([this] { find<QAction>(window(), "mnuHelpAbout").trigger(); },
                    [](QWidget& box) {
                        EXPECT_EQ(box.objectName(), "frmHelpAbout");
                        EXPECT_EQ(box.windowTitle(), "About Morvaleth's Quillfen");
                        EXPECT_EQ(find<QLabel>(box, "lblTitle").text(), "Morvaleth's Quillfen");
                        EXPECT_EQ(find<QLabel>(box, "lblVersion").text(), "Version 5.2.0");
                        EXPECT_EQ(
                            find<QLabel>(box, "lblDescription").text(),
                            "Morvaleth's Quillfen is an All-in-One bot for use with the PtokaX hubsoft. "
                            "Supplying both Security functions and Games");
                        find<QPushButton>(box, "cmdOK").click();
                    });
}

#ifdef Q_OS_LINUX
class SystemInformation : public MainWindowTest
{
protected:
    SystemInformation() { qputenv("PATH", folder.path().toLocal8Bit()); }
    ~SystemInformation() override { qputenv("PATH", path); }

    /// Presses the about box's button, notes what a box on top of it says, and closes both.
    QString pressed()
    {
        QString text;
        test::withModal([this] { find<QAction>(window(), "mnuHelpAbout").trigger(); },
                        [&text](QWidget& about) {
                            const auto boxes = test::answering(QMessageBox::Ok, [&about] {
                                find<QPushButton>(about, "cmdSysInfo").click();
                            });
                            text = boxes.isEmpty() ? QString() : boxes[0].text;
                            about.close();
                        });
        return text;
    }

    const QByteArray path = qgetenv("PATH");
    QTemporaryDir folder;
};

TEST_F(SystemInformation, IsUnavailableWhereThePlatformHasNoTool)
{
    EXPECT_EQ(pressed(), "System Information Is Unavailable At This Time");
}

TEST_F(SystemInformation, StartsThePlatformsTool)
{
    const QString tool = folder.filePath("hardinfo");
    QFile script(tool);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n: > \"" + folder.filePath("started").toLocal8Bit() + "\"\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(pressed(), "");
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(folder.filePath("started")); }));
}
#endif

} // namespace
} // namespace quillfen

#include "mainwindow_test.moc"
