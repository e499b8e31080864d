#include "shell/kit/numberbox.h"
#include "shell/mainwindowtest.h"
#include "shell/window/guide.h"
#include "store/history.h"
#include "support/memorystore.h"

#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTemporaryDir>
#include <QToolButton>

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

using test::MainWindowTest;

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

TEST_F(MainWindowTest, StartsNoLargerThanTheScreensFreeArea)
{
    const QSize free = window().screen()->availableSize();
    ASSERT_LT(free.width(), 1180) << "a screen on which it has to matter";
    EXPECT_LE(window().width(), free.width());
    EXPECT_LE(window().height() + window().style()->pixelMetric(QStyle::PM_TitleBarHeight), free.height());
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
