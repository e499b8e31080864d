#include "app/start.h"
#include "news/newsclient.h"
#include "support/binaryprofiles.h"
#include "support/boxes.h"
#include "support/hub.h"
#include "support/webserver.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QStatusBar>
#include <QTest>
#include <QThread>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

class NewsClientTest : public testing::Test
{
protected:
    NewsClientTest()
    {
        for (const char* folder :
             {"/hub/scripts/Morvaleth's Scripts", "/hub/scripts/Morvaleth's Scripts/News"})
            hub.store.folders.insert(folder);
        hub.file("General/Globals/Version.tbl") = "tVersion = {\r\n\tsVersion = \"5.2.0\",\r\n}\r\n";
        window.resize(1000, 200);
    }

    NewsClient& client(milliseconds limit = seconds(5))
    {
        auto* made = new NewsClient(
            *window.statusBar(), hub.files, "5.2.0",
            {server.base("news/").toStdString(), server.base("updates/").toStdString()}, limit);
        window.show();
        return *made;
    }

    StatusPanel& panel(const char* key) { return *window.findChild<StatusPanel*>(key); }
    QTimer& timer() { return *window.findChild<QTimer*>("tmrUpdate"); }

    QList<test::SeenBox> clicked(const char* key)
    {
        return test::answering(QMessageBox::Ok, [&] { QTest::mouseClick(&panel(key), Qt::LeftButton); });
    }

    test::Hub hub{"General", "General/Globals"};
    std::string& news = hub.store.files["/hub/scripts/Morvaleth's Scripts/News/News.tbl"];
    std::string& settings = hub.store.files["/hub/scripts/Morvaleth's Scripts/News/NewsSettings.tbl"];
    test::WebServer server;
    QMainWindow window;
};

TEST_F(NewsClientTest, TheStatusBarHasItsFourPanelsInOrder)
{
    client();
    QStringList keys;
    for (auto* each : window.statusBar()->findChildren<StatusPanel*>())
        keys.append(each->objectName());
    EXPECT_EQ(keys, (QStringList{"INSTALLED", "CURRENT", "NEWS:SHORT", "NEWS:LONG"}));
    EXPECT_EQ(panel("INSTALLED").text(), "Installed Version = 5.2.0");
    EXPECT_EQ(panel("CURRENT").text(), "Current Version = Unknown");
    EXPECT_EQ(panel("CURRENT").toolTip(), "");
    EXPECT_EQ(panel("NEWS:SHORT").text(), "");
    EXPECT_EQ(panel("NEWS:LONG").text(), "");
    EXPECT_LT(panel("NEWS:SHORT").x(), panel("NEWS:LONG").x());
    EXPECT_GT(panel("NEWS:LONG").width(), 400) << "the rest of the width";
}

TEST_F(NewsClientTest, TheNewestArticleShowsInItsTwoPanels)
{
    server.serve("news/counter.txt", "1|2");
    server.serve("news/1.txt", "d1|s1|First|One");
    server.serve("news/2.txt", "d2|s2|Second|Two");
    client().runStart();
    EXPECT_EQ(panel("NEWS:SHORT").text(), "Second");
    EXPECT_EQ(panel("NEWS:SHORT").toolTip(), "Click to read news");
    EXPECT_EQ(panel("NEWS:LONG").text(), "Two");
    EXPECT_EQ(settings, "tNewsSettings = { \r\n\tiLastID = 2,\r\n}\r\n");
    EXPECT_EQ(news, "tNews = {\r\n\t[1] = \"d1|s1|First|One\",\r\n\t[2] = \"d2|s2|Second|Two\",\r\n}\r\n");
    EXPECT_EQ(panel("CURRENT").text(), "Current Version = Unknown") << "the version comes a minute later";
}

TEST_F(NewsClientTest, WithNothingNewTheLastStoredArticleShows)
{
    settings = "tNewsSettings = { \r\n\tiLastID = 3,\r\n}\r\n";
    news = "tNews = {\r\n\t[3] = \"d|s|Old|Story\",\r\n}\r\n";
    server.serve("news/counter.txt", "1|3");
    client().runStart();
    EXPECT_EQ(panel("NEWS:SHORT").text(), "Old");
    EXPECT_EQ(panel("NEWS:SHORT").toolTip(), "Click to read news");
    EXPECT_EQ(panel("NEWS:LONG").text(), "Story");
}

TEST_F(NewsClientTest, AMissingArticleKeepsThoseBeforeIt)
{
    server.serve("news/counter.txt", "1|3");
    server.serve("news/1.txt", "d1|s1|First|One");
    client().runStart(); // 2.txt is a 404 without a page
    EXPECT_EQ(panel("NEWS:SHORT").text(), "First");
    EXPECT_EQ(settings, "tNewsSettings = { \r\n\tiLastID = 1,\r\n}\r\n");
}

TEST_F(NewsClientTest, ACutArticleLeavesAllToALaterStart)
{
    server.serve("news/counter.txt", "1|2");
    server.serve("news/1.txt", "d1|s1|First|One");
    server.answers["/news/2.txt"] =
        "HTTP/1.1 200 OK\r\nContent-Length: 999\r\nConnection: close\r\n\r\nd|s|h|t";
    client().runStart();
    EXPECT_EQ(settings, "");
    EXPECT_EQ(news, "");
}

TEST_F(NewsClientTest, ADeadServerLeavesThePanelsAsTheyAre)
{
    news = "tNews = {\r\n\t[3] = \"d|s|Old|Story\",\r\n}\r\n";
    server.close();
    client().runStart();
    EXPECT_EQ(panel("NEWS:SHORT").text(), "");
    EXPECT_EQ(panel("CURRENT").text(), "Current Version = Unknown");
    EXPECT_TRUE(hub.store.log.empty());
}

TEST_F(NewsClientTest, ASilentServerDelaysTheStartByOneTimeLimit)
{
    server.silent = {"/news/counter.txt"};
    QElapsedTimer elapsed;
    elapsed.start();
    client(milliseconds(1500)).runStart();
    EXPECT_LT(elapsed.elapsed(), 2900);
}

TEST_F(NewsClientTest, AServerThatFallsSilentDelaysTheStartByOneTimeLimit)
{
    server.serve("news/counter.txt", "1|900");
    server.serve("news/1.txt", "d1|s1|First|One");
    server.silent = {"/news/2.txt"};
    QElapsedTimer elapsed;
    elapsed.start();
    client(milliseconds(1500)).runStart();
    EXPECT_LT(elapsed.elapsed(), 4400);
    EXPECT_EQ(server.asked.size(), 3);
}

TEST_F(NewsClientTest, ManyArticlesDoNotHoldTheStartForEver)
{
    server.serve("news/counter.txt", "1|9000000000000000");
    for (int number = 1; number <= 3000; ++number)
        server.serve(QStringLiteral("news/%1.txt").arg(number), "d|s|h|t");
    QElapsedTimer elapsed;
    elapsed.start();
    client().runStart(milliseconds(300));
    EXPECT_LT(elapsed.elapsed(), 5000);
    EXPECT_TRUE(news.starts_with("tNews = {\r\n\t[1] = \"d|s|h|t\",\r\n"));
    EXPECT_EQ(panel("NEWS:SHORT").text(), "h");
}

TEST_F(NewsClientTest, TheTimerAsksForTheVersionOnceAMinute)
{
    client();
    EXPECT_EQ(timer().interval(), 60000);
    EXPECT_TRUE(timer().isActive());
    EXPECT_FALSE(timer().isSingleShot());
    EXPECT_EQ(server.asked, QStringList());
}

TEST_F(NewsClientTest, TheVersionShowsWithItsToolTip)
{
    server.serve("updates/quillfen.txt", "5.3.0*more");
    client();
    timer().setInterval(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel("CURRENT").text() != "Current Version = Unknown"; }));
    EXPECT_EQ(panel("CURRENT").text(), "Current Version = 5.3.0");
    EXPECT_EQ(panel("CURRENT").toolTip(), "Click to download new version");
    EXPECT_EQ(panel("CURRENT").minimumWidth(), 2200 / 15);
    EXPECT_TRUE(timer().isActive());
    EXPECT_EQ(server.asked.constFirst(), "/updates/quillfen.txt");
}

TEST_F(NewsClientTest, TheVersionIsNotCompared)
{
    server.serve("updates/quillfen.txt", "1.0.0");
    client();
    timer().setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel("CURRENT").text() == "Current Version = 1.0.0"; }));
}

TEST_F(NewsClientTest, AVersionThatIsNotToBeHadChangesNothing)
{
    client(milliseconds(200));
    timer().setInterval(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.asked.size() > 2; }));
    EXPECT_EQ(panel("CURRENT").text(), "Current Version = Unknown");
    EXPECT_EQ(panel("CURRENT").toolTip(), "");
}

TEST_F(NewsClientTest, TextsOfTheServerAreShownAsPlainTextInOneLine)
{
    server.serve("news/counter.txt", "1|1");
    server.serve("news/1.txt", "d|s|<b>Bold</b>|<img src='x'>\r\nsecond\r\n");
    server.serve("updates/quillfen.txt", "<h1>5.3.0</h1>\n");
    client().runStart();
    timer().setInterval(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel("CURRENT").text() != "Current Version = Unknown"; }));
    for (const char* key : {"INSTALLED", "CURRENT", "NEWS:SHORT", "NEWS:LONG"})
        EXPECT_EQ(panel(key).textFormat(), Qt::PlainText);
    EXPECT_EQ(panel("NEWS:SHORT").text(), "<b>Bold</b>");
    EXPECT_EQ(panel("NEWS:LONG").text(), "<img src='x'> second ");
    EXPECT_EQ(panel("CURRENT").text(), "Current Version = <h1>5.3.0</h1> ");
}

TEST_F(NewsClientTest, AHugeTextDoesNotWidenTheWindow)
{
    server.serve("news/counter.txt", "1|1");
    server.serve("news/1.txt", "d|s|" + QByteArray(100000, 'h') + "|" + QByteArray(100000, 's'));
    server.serve("updates/quillfen.txt", QByteArray(100000, 'v'));
    client().runStart();
    timer().setInterval(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel("CURRENT").text() != "Current Version = Unknown"; }));
    QCoreApplication::processEvents(); // lays the window out anew
    EXPECT_LT(window.minimumSizeHint().width(), 800);
    EXPECT_EQ(window.width(), 1000);
    EXPECT_GT(panel("NEWS:LONG").width(), 50);
    for (const char* key : {"CURRENT", "NEWS:SHORT", "NEWS:LONG"})
        EXPECT_EQ(panel(key).text().size(), 1001) << "nobody reads more of it in one line";
}

TEST_F(NewsClientTest, TheVersionIsFetchedBesideTheWindow)
{
    server.silent = {"/updates/quillfen.txt"};
    client();
    int deepest = 0;
    QTimer pulse;
    QObject::connect(&pulse, &QTimer::timeout, &pulse,
                     [&deepest] { deepest = std::max(deepest, QThread::currentThread()->loopLevel()); });
    pulse.start(0);
    timer().setInterval(1);
    int minutes = 0;
    QObject::connect(&timer(), &QTimer::timeout, &timer(), [&minutes] { ++minutes; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return !server.asked.isEmpty() && minutes > 20; }));
    EXPECT_EQ(deepest, 0) << "no event loop of its own that takes no input";
    EXPECT_EQ(server.asked.size(), 1) << "one at a time";
}

TEST_F(NewsClientTest, AfterASilentMinuteTheNextOneAsksAgain)
{
    server.silent = {"/updates/quillfen.txt"};
    client(milliseconds(100));
    timer().setInterval(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.asked.size() > 1; }));
    server.silent.clear();
    server.serve("updates/quillfen.txt", "5.3.0*more");
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel("CURRENT").text() == "Current Version = 5.3.0"; }));
}

TEST_F(NewsClientTest, TheWindowMayGoWhileTheVersionIsFetched)
{
    server.silent = {"/updates/quillfen.txt"};
    auto closing = std::make_unique<QMainWindow>();
    new NewsClient(*closing->statusBar(), hub.files, "5.2.0", {{}, server.base("updates/").toStdString()});
    closing->findChild<QTimer*>("tmrUpdate")->setInterval(1);
    closing->show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !server.asked.isEmpty(); }));
    closing.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return server.isAlone(); })) << "the fetch ends with its window";
}

TEST_F(NewsClientTest, AClickOnTheCurrentVersionOffersTheDownloadWhenTheTreesVersionDiffers)
{
    client();
    EXPECT_TRUE(clicked("CURRENT").isEmpty()) << "the versions are the same";
    hub.file("General/Globals/Version.tbl") = "tVersion = {\r\n\tsVersion = \"5.1.9\",\r\n}\r\n";
    const auto boxes = clicked("CURRENT");
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Click to download new version");
    EXPECT_EQ(boxes[0].text, "Click to download new version");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
    EXPECT_EQ(boxes[0].format, Qt::PlainText);
}

TEST_F(NewsClientTest, TheKeyboardReachesTheCurrentVersionToo)
{
    client();
    hub.file("General/Globals/Version.tbl").clear();
    const auto boxes =
        test::answering(QMessageBox::Ok, [&] { QTest::keyClick(&panel("CURRENT"), Qt::Key_Return); });
    EXPECT_EQ(boxes.size(), 1);
}

TEST_F(NewsClientTest, AClickOnAnyOtherPanelDoesNothing)
{
    client();
    hub.file("General/Globals/Version.tbl").clear();
    for (const char* key : {"INSTALLED", "NEWS:SHORT", "NEWS:LONG"})
        EXPECT_TRUE(clicked(key).isEmpty()) << key;
}

class ProgramStart : public NewsClientTest
{
protected:
    ProgramStart() { info.newsBase = server.base("news/"); }

    /// Starts the program, which ends as its question is cancelled. Returns the question.
    static QList<test::SeenBox> refused(Program& program)
    {
        std::optional<int> exitCode;
        auto boxes = test::answering(QMessageBox::Cancel, [&] { exitCode = program.start(); });
        EXPECT_EQ(exitCode, 0);
        return boxes;
    }

    ProgramInfo info{"5.2.0"};
};

TEST_F(ProgramStart, FetchesTheNewsBeforeTheWindowShows)
{
    server.serve("news/counter.txt", "1|1");
    server.serve("news/1.txt", "d|s|Headline|Story");
    Program program(hub.store, "/hub/scripts", info);
    ASSERT_EQ(program.start(), std::nullopt);
    EXPECT_FALSE(program.window().isVisible());
    auto* bar = program.window().statusBar();
    EXPECT_EQ(bar->objectName(), "stsContainer");
    EXPECT_EQ(bar->findChild<StatusPanel*>("NEWS:SHORT")->text(), "Headline");
    EXPECT_EQ(bar->findChild<StatusPanel*>("INSTALLED")->text(), "Installed Version = 5.2.0");
}

TEST_F(ProgramStart, WithoutBaseAddressesAsksNobody)
{
    info.newsBase.clear();
    Program program(hub.store, "/hub/scripts", info);
    ASSERT_EQ(program.start(), std::nullopt);
    auto* bar = program.window().statusBar();
    EXPECT_EQ(bar->findChild<StatusPanel*>("CURRENT")->text(), "Current Version = Unknown");
    EXPECT_EQ(bar->findChild<StatusPanel*>("NEWS:SHORT")->text(), "");
    EXPECT_EQ(server.asked, QStringList());
}

TEST_F(ProgramStart, AsksForARebuildOfAnotherVersionAndFetchesNothingWhenItIsRefused)
{
    hub.file("General/Globals/Version.tbl").clear();
    Program program(hub.store, "/hub/scripts", info);
    const auto boxes = refused(program);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Morvaleth's Quillfen: Version Change Detected");
    EXPECT_EQ(boxes[0].text, "New version detected. Settings must be rebuilt; continue?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(server.asked, QStringList());
}

TEST_F(ProgramStart, TellsWhatFailedAndWhatToDoAndEnds)
{
    const auto told = [this] {
        Program program(hub.store, "/hub/scripts", info);
        std::optional<int> exitCode;
        auto boxes = test::answering(QMessageBox::Ok, [&] { exitCode = program.start(); });
        EXPECT_EQ(exitCode, 1);
        EXPECT_EQ(boxes.value(boxes.size() - 1).icon, QMessageBox::Critical);
        return boxes.value(boxes.size() - 1).text.toStdString();
    };
    const std::string full = ": No space left on device. ";
    hub.file("General/Globals/Version.tbl").clear();
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const std::string rebuild = told();
    EXPECT_TRUE(rebuild.starts_with(test::native("The settings couldn't be rebuilt. " + hub.root + "/")))
        << rebuild;
    EXPECT_TRUE(rebuild.ends_with(full +
                                  "What was written by then stays, and the next start asks again: mend it "
                                  "and start the program again."))
        << rebuild;
    hub.store.folders.erase("/hub/scripts/Morvaleth's Scripts/News");
    EXPECT_EQ(told(),
              test::native("The folder of the news couldn't be made. /hub/scripts/Morvaleth's Scripts/News") +
                  full + "Your settings are untouched: mend it and start the program again.");
    hub.store.folders.erase(hub.script);
    EXPECT_EQ(told(), "Quillfen doesn't lie beside the hub script. " + test::native(hub.script) +
                          ": The hub script's folder is missing. Nothing was made: move the program into the "
                          "hub's scripts folder and start it again.");
}

TEST_F(ProgramStart, AsksForARebuildWhenTheHubHasANewProfile)
{
    hub.store.files["/hub/cfg/Profiles.xml"] = "<Name>Master</Name>\r\n";
    Program program(hub.store, "/hub/scripts", info);
    const auto boxes = refused(program);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Morvaleth's Quillfen: PtokaX Profile Change Detected");
    EXPECT_EQ(boxes[0].text, "PtokaX Profile change detected. Settings must be rebuilt; continue?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
}

TEST_F(ProgramStart, SaysInTheStatusBarWhichProfilesMovedAndThatTheirFileIsDamaged)
{
    info.newsBase.clear();
    const auto panel = [this]() -> QStringList {
        Program program(hub.store, "/hub/scripts", info);
        EXPECT_EQ(program.start(), std::nullopt);
        const auto* found = program.window().statusBar()->findChild<StatusPanel*>("PROFILES");
        if (!found)
            return {};
        EXPECT_EQ(found->textFormat(), Qt::PlainText);
        return {found->text(), found->toolTip()};
    };
    EXPECT_EQ(panel(), QStringList()) << "nothing to tell";
    hub.store.files["/hub/cfg/Profiles.pxb"] = test::binaryProfiles({"A&", "B", "C"});
    const QString moved = "Hub profiles changed: &B is now B; check the permissions";
    hub.file("General/PtokaX/Profiles.xml") = "<Name>A&</Name>\r\n<Name>&B</Name>\r\n<Name>C</Name>\r\n";
    EXPECT_EQ(panel(), (QStringList{moved, Qt::convertFromPlainText(moved + "\n&B is now B")}));
    hub.store.files["/hub/cfg/Profiles.pxb"] = "cut";
    EXPECT_EQ(panel().value(0), "The hub's Profiles.pxb is damaged: let the hub write it anew");
}

TEST_F(ProgramStart, TheNavigatorShowsThePortalByTheSwitchesFromBeforeTheRebuild)
{
    info.newsBase.clear();
    auto& switches = hub.file("General/Globals/Switches.tbl");
    switches = "tSwitches = {\r\n\tbPortal = 1,\r\n}\r\n";
    hub.file("General/Globals/Version.tbl").clear();
    const auto portals = [this] {
        Program program(hub.store, "/hub/scripts", info);
        test::answering(QMessageBox::Ok, [&program] { EXPECT_EQ(program.start(), std::nullopt); });
        const auto* tree = program.window().findChild<QTreeWidget*>("tvwFunctions");
        return tree->findItems("Portal", Qt::MatchExactly | Qt::MatchRecursive).size();
    };
    EXPECT_EQ(portals(), 1);
    EXPECT_EQ(switches.find("bPortal"), std::string::npos);
    EXPECT_EQ(portals(), 0);
}

} // namespace
} // namespace quillfen
