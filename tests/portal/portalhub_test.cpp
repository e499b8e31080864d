// The Portal's form and its links against hubs over real sockets.
#include "portal/portalpart.h"
#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/hubserver.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTimer>

#include <cmath>

namespace quillfen {
namespace {

using test::answering;
using test::HubServer;

constexpr const char* myInfo = "$MyINFO $ALL bot The bot$A$Bot\x08$bot@hub$0$|";

bool isFree(quint16 port)
{
    QTcpServer server;
    QUdpSocket datagrams;
    return server.listen(QHostAddress::Any, port) &&
           datagrams.bind(QHostAddress::Any, port, QUdpSocket::DontShareAddress);
}

/// A free port below those that the system gives out by itself, and another one for each test that runs at
/// the same time.
quint16 portOfThisProcess(int which)
{
    auto port = static_cast<quint16>(10'000 + (QCoreApplication::applicationPid() * 2 + which) % 20'000);
    while (!isFree(port))
        port = static_cast<quint16>(port + 2);
    return port;
}

class PortalHubs : public test::FormTest
{
protected:
    PortalHubs() { layOut(one.address(), two.address()); }

    void layOut(const QByteArray& first, const QByteArray& second)
    {
        hub.file("Communication/Portal/PortalSettings.tbl") =
            ("tPortalSettings = {\r\n\ttUser = {\r\n\t\tsUsername = \"bot\",\r\n\t\tsDescription = \"The "
             "bot\",\r\n"
             "\t\tsEmail = \"bot@hub\",\r\n\t\tsClientIP = \"127.0.0.1\",\r\n\t},\r\n\ttHubs = {\r\n"
             "\t\t[1] = {\r\n\t\t\tsHubAddress = \"" +
             first + "\",\r\n\t\t\tsClientPassword = \"secret\",\r\n\t\t\tsClientPort = \"" +
             QByteArray::number(ports[0]) + "\",\r\n\t\t},\r\n\t\t[2] = {\r\n\t\t\tsHubAddress = \"" +
             second + "\",\r\n\t\t\tsClientPassword = \"other\",\r\n\t\t\tsClientPort = \"" +
             QByteArray::number(ports[1]) +
             "\",\r\n\t\t},\r\n\t},\r\n\ttIgnoreNicks = {\r\n\t\t[1] = \"spam\",\r\n\t},\r\n")
                .toStdString();
    }

    EditorForm& form() { return open("Communication~Portal"); }
    RowList& hubs() { return find<RowList>(form(), "lvwHubs"); }
    const LiveLinks& links() { return form().findChild<PortalPart*>()->links(); }
    void tick(int row) { clickTick(hubs(), row); }
    bool isTicked(int row) { return hubs().rows()[static_cast<std::size_t>(row)].checked; }

    void logInBoth()
    {
        tick(0);
        tick(1);
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return links().isLoggedIn(Link::One) && links().isLoggedIn(Link::Two); }));
        ASSERT_TRUE(one.waitForLogin() && two.waitForLogin());
        one.heard.clear();
        two.heard.clear();
    }

    /// Ticks both hubs. Hub 2 says its first words in the middle of hub 1's lists. Tells whether both links
    /// log in.
    bool logInWhileHubOneLists(int nicks)
    {
        QByteArray list;
        for (int nick = 0; nick < nicks; ++nick)
            list += "nick" + QByteArray::number(nick) + "$$";
        tick(0);
        tick(1);
        EXPECT_TRUE(QTest::qWaitFor([this] { return one.isConnected() && two.isConnected(); }));
        int turns = 0; // of the event loop, most of them in yields
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            if (++turns == 5)
                two.greet();
        });
        timer.start(0);
        one.say("$Hello bot|$NickList " + list + "|$OpList " + list + '|');
        const bool loggedIn = QTest::qWaitFor(
            [this] { return links().isLoggedIn(Link::One) && links().isLoggedIn(Link::Two); },
            120'000); // a turn of the event loop for each nick, which takes its time under Wine
        form().parentWidget()->close();
        EXPECT_TRUE(QTest::qWaitFor([this] { return !one.isConnected() && !two.isConnected(); }));
        return loggedIn;
    }

    /// Whether the Portal has heard all that the hub said: it answers what the hub asks then.
    static bool isHeard(HubServer& hub)
    {
        const auto answers = hub.heard.count(myInfo);
        hub.say("$GetINFO bot x|");
        return QTest::qWaitFor([&] { return hub.heard.count(myInfo) > answers; });
    }

    HubServer one;
    HubServer two;
    quint16 ports[2] = {portOfThisProcess(0), portOfThisProcess(1)};
};

TEST_F(PortalHubs, ATickLogsTheBotIn)
{
    one.lists = true;
    tick(0);
    ASSERT_TRUE(one.waitForLogin());
    EXPECT_TRUE(one.heard.startsWith("$Key \x14\xD1"));
    EXPECT_EQ(one.heard.mid(one.heard.indexOf('|') + 1),
              QByteArray("$ValidateNick bot|$Version 1.0091|") + myInfo + "$GetNickList|");
    EXPECT_TRUE(isTicked(0));
    EXPECT_EQ(two.connections, 0);
    EXPECT_FALSE(isDirty(form())) << "ticks are not stored";
}

TEST_F(PortalHubs, AHubThatSpeaksWhileTheOthersListIsReadIsHeardBehindIt)
{
    one.greets = two.greets = false;
    for (const auto& [nicks, rounds] : {std::pair{0, 15}, {100, 15}, {500, 15}, {10'000, 3}}) {
        int stalled = 0;
        for (int round = 0; round < rounds; ++round)
            stalled += logInWhileHubOneLists(nicks) ? 0 : 1;
        EXPECT_EQ(stalled, 0) << nicks << " nicks";
    }
}

TEST_F(PortalHubs, TwoHubsThatAreTickedAtOnceBothLogIn)
{
    one.lists = two.lists = true;
    for (int round = 0; round < 15; ++round) {
        logInBoth();
        form().parentWidget()->close();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !one.isConnected() && !two.isConnected(); }));
    }
}

TEST_F(PortalHubs, BothHubsHearEachOther)
{
    logInBoth();
    one.say("<user> hello|");
    two.say("<other> hi|");
    EXPECT_TRUE(two.waitFor("<bot> <user> hello|"));
    EXPECT_TRUE(one.waitFor("<bot> <other> hi|"));
    EXPECT_EQ(two.heard, "<bot> <user> hello|");
    EXPECT_EQ(one.heard, "<bot> <other> hi|");
}

TEST_F(PortalHubs, BothLogInWithThePasswordOfRowOne)
{
    one.password = two.password = "secret";
    logInBoth();
}

TEST_F(PortalHubs, AHubWithAnotherPasswordGetsNoSecondTry)
{
    two.password = "other";
    tick(1);
    ASSERT_TRUE(two.waitFor("$MyPass secret|"));
    EXPECT_TRUE(isHeard(two));
    EXPECT_EQ(two.heard.count("$MyPass"), 1);
    EXPECT_FALSE(two.heard.contains("$Version"));
    EXPECT_TRUE(two.isConnected());
}

TEST_F(PortalHubs, IgnoredNicksAndTheBotItselfAreNotRelayed)
{
    logInBoth();
    one.say("<spam> buy|<bot> <x> echo|<Spam> buy|");
    EXPECT_TRUE(two.waitFor("<bot> <Spam> buy|"));
    EXPECT_EQ(two.heard, "<bot> <Spam> buy|");
}

TEST_F(PortalHubs, AnEditOfTheListsTakesEffectOnARunningLink)
{
    logInBoth();
    auto& nicks = find<RowList>(form(), "lvwNicks");
    nicks.select(0);
    answering(QMessageBox::Ok, [this] { button(form(), "DELETE", "tlbNicks").trigger(); });
    one.say("<spam> now|");
    EXPECT_TRUE(two.waitFor("<bot> <spam> now|"));
    find<QLineEdit>(form(), "txtTextBox(0)").setText("changed");
    one.say("<spam> again|");
    EXPECT_TRUE(two.waitFor("<changed> <spam> again|"));
}

TEST_F(PortalHubs, MessagesComeInAnyPieces)
{
    logInBoth();
    one.say("<user> fra");
    QTest::qWait(0);
    one.say("gment|<user> glued|<user> and|<us");
    QTest::qWait(0);
    one.say("er> cut|");
    EXPECT_TRUE(two.waitFor("cut|"));
    EXPECT_EQ(two.heard, "<bot> <user> fragment|<bot> <user> glued|<bot> <user> and|<bot> <user> cut|");
}

TEST_F(PortalHubs, AllByteValuesAreRelayed)
{
    logInBoth();
    QByteArray line = "<user> ";
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '|')
            line += static_cast<char>(byte);
    }
    one.say(line + '|');
    EXPECT_TRUE(two.waitFor("\xFF|"));
    EXPECT_EQ(two.heard, "<bot> " + line + '|');
}

TEST_F(PortalHubs, ADeniedNickIsSentAgain)
{
    one.denials = 3;
    tick(0);
    ASSERT_TRUE(one.waitForLogin());
    EXPECT_EQ(one.heard.count("$ValidateNick bot|"), 4);
}

TEST_F(PortalHubs, TheLastWordsOfAHubThatHangsUpAreRelayed)
{
    logInBoth();
    one.say("<user> good bye|");
    one.hangUp();
    EXPECT_TRUE(two.waitFor("<bot> <user> good bye|"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !links().isLoggedIn(Link::One); }));
}

TEST_F(PortalHubs, AHubThatHangsUpClosesTheLinkAndTheTickStays)
{
    for (const auto end : {&HubServer::hangUp, &HubServer::slam}) {
        logInBoth();
        (one.*end)();
        EXPECT_TRUE(QTest::qWaitFor([this] { return !links().isLoggedIn(Link::One); }));
        EXPECT_TRUE(isTicked(0));
        EXPECT_TRUE(two.isConnected());
        two.say("<other> alone|");
        EXPECT_TRUE(isHeard(two));
        EXPECT_FALSE(one.isConnected());
        tick(0); // off: fails at the farewell, without a word
        EXPECT_FALSE(one.heard.contains("$Quit"));
        tick(1);
        EXPECT_TRUE(two.waitFor("$Quit"));
        EXPECT_TRUE(QTest::qWaitFor([this] { return !two.isConnected(); }));
        one.heard.clear();
        two.heard.clear();
    }
}

TEST_F(PortalHubs, UntickingAClosedLinkLeavesItsUdpPortBound)
{
    tick(0);
    ASSERT_TRUE(one.waitForLogin());
    EXPECT_FALSE(isFree(ports[0]));
    one.hangUp();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !links().isLoggedIn(Link::One); }));
    tick(0);
    QTcpServer server;
    EXPECT_TRUE(server.listen(QHostAddress::Any, ports[0])) << "the listener is closed";
    server.close();
    EXPECT_FALSE(isFree(ports[0])) << "the UDP socket is not";
    one.heard.clear();
    tick(0);
    EXPECT_TRUE(one.waitForLogin()) << "the next opening closes it first";
}

TEST_F(PortalHubs, UntickingSaysQuitWithTheHubsAddressAndFreesThePort)
{
    tick(0);
    ASSERT_TRUE(one.waitForLogin());
    tick(0);
    EXPECT_TRUE(one.waitFor("$Quit " + one.address() + '|'));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !one.isConnected(); }));
    EXPECT_TRUE(isFree(ports[0]));
    EXPECT_FALSE(isTicked(0));
}

TEST_F(PortalHubs, ARefusingHubSaysNothingAndTheTickStays)
{
    one.refuse();
    const auto boxes = answering(QMessageBox::Ok, [this] {
        tick(0);
        QTcpServer server;
        EXPECT_TRUE(QTest::qWaitFor([&] { return server.listen(QHostAddress::Any, ports[0]); }))
            << "the listener is closed";
    });
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_TRUE(isTicked(0));
}

TEST_F(PortalHubs, AHostThatDoesNotResolveSaysNothingEither)
{
    layOut("no-such-host.invalid:411", two.address());
    const auto boxes = answering(QMessageBox::Ok, [this] {
        tick(0);
        QTcpServer server;
        EXPECT_TRUE(QTest::qWaitFor([&] { return server.listen(QHostAddress::Any, ports[0]); }, 30000));
    });
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_TRUE(isTicked(0));
}

TEST_F(PortalHubs, AnAddressWithoutAPortIsToldAndLeavesNoSocketOpen)
{
    for (const char* address : {"127.0.0.1", "127.0.0.1:", "127.0.0.1:x", "127.0.0.1:70000", "127.0.0.1:-1",
                                "127.0.0.1:411:9", ":"}) {
        layOut(address, two.address());
        const auto boxes = answering(QMessageBox::Ok, [this] { tick(0); });
        ASSERT_EQ(boxes.size(), 1) << address;
        EXPECT_TRUE(boxes[0].text.startsWith("The link can't be opened: ")) << boxes[0].text.toStdString();
        EXPECT_EQ(boxes[0].format, Qt::PlainText);
        EXPECT_FALSE(isTicked(0));
        EXPECT_TRUE(isFree(ports[0])) << address;
        close(form());
    }
}

TEST_F(PortalHubs, AClientPortThatIsNoneIsTold)
{
    for (const char* port : {"x", "-1", "65536", "4 1"}) {
        auto& text = hub.file("Communication/Portal/PortalSettings.tbl");
        layOut(one.address(), two.address());
        const auto number = std::to_string(ports[0]);
        text.replace(text.find(number + "\""), number.size(), port);
        const auto boxes = answering(QMessageBox::Ok, [this] { tick(0); });
        ASSERT_EQ(boxes.size(), 1) << port;
        EXPECT_EQ(boxes[0].text, QStringLiteral("The link can't be opened: \"%1\" is no port").arg(port));
        EXPECT_FALSE(isTicked(0));
        close(form());
    }
}

TEST_F(PortalHubs, APortInUseIsToldAndLeavesNoSocketOpen)
{
    QTcpServer tcp;
    ASSERT_TRUE(tcp.listen(QHostAddress::Any, ports[0]));
    auto boxes = answering(QMessageBox::Ok, [this] { tick(0); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].text.contains(QStringLiteral("port %1: ").arg(ports[0])));
    EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
    EXPECT_FALSE(isTicked(0));
    tcp.close();
    EXPECT_TRUE(isFree(ports[0]));

    QUdpSocket udp;
    ASSERT_TRUE(udp.bind(QHostAddress::Any, ports[0], QUdpSocket::DontShareAddress));
    boxes = answering(QMessageBox::Ok, [this] { tick(0); });
    ASSERT_EQ(boxes.size(), 1);
    udp.close();
    EXPECT_TRUE(isFree(ports[0]));
    EXPECT_EQ(one.connections, 0);
}

TEST_F(PortalHubs, TwoRowsWithOneClientPortShareNoPort)
{
    ports[1] = ports[0];
    layOut(one.address(), two.address());
    tick(0);
    ASSERT_TRUE(one.waitForLogin());
    const auto boxes = answering(QMessageBox::Ok, [this] { tick(1); });
    EXPECT_EQ(boxes.size(), 1);
    EXPECT_TRUE(one.isConnected());
    EXPECT_TRUE(links().isLoggedIn(Link::One));
}

TEST_F(PortalHubs, AMissingFieldIsAskedForAndTheTickTakenAway)
{
    for (int at = 0; at < 4; ++at) {
        auto& field = find<QLineEdit>(form(), QStringLiteral("txtTextBox(%1)").arg(at));
        const QString kept = field.text();
        field.clear();
        const auto boxes = answering(QMessageBox::Ok, [this] { tick(0); });
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_EQ(boxes[0].title, "Mandatory Information Required");
        EXPECT_EQ(boxes[0].text, "Please fill in all text boxes");
        EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
        EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
        EXPECT_FALSE(isTicked(0));
        field.setText(kept);
    }
    tick(1);
    EXPECT_TRUE(two.waitForLogin());
    EXPECT_EQ(one.connections, 0);
}

TEST_F(PortalHubs, ATickWorksOnTheSelectedRow)
{
    hubs().select(1);
    hubs().model()->setData(hubs().model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    ASSERT_TRUE(two.waitForLogin());
    EXPECT_EQ(one.connections, 0);
}

TEST_F(PortalHubs, UntickingLeavesTheHubOfTheSelectedRow)
{
    logInBoth();
    hubs().select(1);
    hubs().model()->setData(hubs().model()->index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_TRUE(two.waitFor("$Quit " + two.address() + '|'));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !two.isConnected(); }));
    EXPECT_TRUE(one.isConnected());
    EXPECT_EQ(one.heard, "");
    EXPECT_TRUE(isTicked(1));
    EXPECT_FALSE(isTicked(0));
}

TEST_F(PortalHubs, AMissingFieldTakesTheSelectedRowsTick)
{
    tick(1);
    ASSERT_TRUE(two.waitForLogin());
    find<QLineEdit>(form(), "txtTextBox(3)").clear();
    answering(QMessageBox::Ok, [this] {
        hubs().model()->setData(hubs().model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    });
    EXPECT_FALSE(isTicked(1));
    EXPECT_TRUE(isTicked(0));
}

TEST_F(PortalHubs, ATickWithoutASelectedRowDoesNothing)
{
    hubs().clearSelection();
    hubs().model()->setData(hubs().model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    tick(1);
    EXPECT_TRUE(two.waitForLogin());
    EXPECT_EQ(one.connections, 0);
}

TEST_F(PortalHubs, SpaceSelectsTheRowThatItTicks)
{
    hubs().setFocus();
    hubs().clearSelection();
    hubs().selectionModel()->setCurrentIndex(hubs().model()->index(0, 0), QItemSelectionModel::NoUpdate);
    QTest::keyClick(&hubs(), Qt::Key_Space);
    EXPECT_TRUE(isTicked(0));
    EXPECT_EQ(hubs().currentRow(), 0);
    EXPECT_TRUE(one.waitForLogin());
    hubs().selectionModel()->setCurrentIndex(hubs().model()->index(1, 0), QItemSelectionModel::NoUpdate);
    ASSERT_EQ(hubs().currentRow(), 0);
    QTest::keyClick(&hubs(), Qt::Key_Space);
    EXPECT_EQ(hubs().currentRow(), 1);
    EXPECT_TRUE(two.waitForLogin());
    EXPECT_TRUE(links().isLoggedIn(Link::One));
}

TEST_F(PortalHubs, AnOpeningThatFailsLogsTheLinkOut)
{
    logInBoth();
    auto& model = *hubs().model();
    hubs().select(0);
    const auto boxes = answering(QMessageBox::Ok, [&] {
        hubs().replace(0, {{"no port", "secret", "5001", ""}, true}); // the row was edited meanwhile
        model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole);
    });
    EXPECT_EQ(boxes.size(), 1);
    EXPECT_FALSE(links().isLoggedIn(Link::One));
    EXPECT_FALSE(isTicked(0));
    two.heard.clear();
    two.say("<other> alone|$GetINFO bot x|");
    EXPECT_TRUE(two.waitFor(myInfo)) << "what stands behind a line that nobody relays is answered";
}

TEST_F(PortalHubs, NobodyIsAcceptedOnTheClientPortAndDatagramsAreOnlyNoted)
{
    tick(0);
    ASSERT_TRUE(one.waitForLogin());
    QTcpSocket visitor;
    visitor.connectToHost(QHostAddress::LocalHost, ports[0]);
    visitor.write("$MyNick visitor|");
    EXPECT_TRUE(isHeard(one));
    EXPECT_EQ(visitor.bytesAvailable(), 0);
    QUdpSocket sender;
    sender.writeDatagram(QByteArray(), QHostAddress::LocalHost, ports[0]);
    EXPECT_TRUE(isHeard(one)); // and so is what came before
    EXPECT_FALSE(links().udpSeen());
    for (int time = 0; time < 5; ++time)
        sender.writeDatagram("$SR x|", QHostAddress::LocalHost, ports[0]);
    EXPECT_TRUE(QTest::qWaitFor([this] { return links().udpSeen(); }));
    EXPECT_TRUE(links().isLoggedIn(Link::One));
}

TEST_F(PortalHubs, ClosingTheFormEndsItsSocketsWithoutAQuit)
{
    logInBoth();
    form().parentWidget()->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !one.isConnected() && !two.isConnected(); }));
    EXPECT_EQ(one.heard, "");
    EXPECT_EQ(two.heard, "");
    EXPECT_TRUE(isFree(ports[0]));
    EXPECT_TRUE(isFree(ports[1]));
}

TEST_F(PortalHubs, ClosingTheFormInTheMiddleOfAYieldHarmsNothing)
{
    logInBoth();
    QByteArray list = "$OpList ";
    for (int nick = 0; nick < 5000; ++nick)
        list += "op" + QByteArray::number(nick) + "$$";
    // A timer in every yield: one of them closes the form, and the next ones delete it under the running
    // list.
    int fired = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (++fired == 20)
            window().findChild<QMdiArea*>()->closeAllSubWindows();
    });
    timer.start(0);
    one.say(list + "|<user> late|");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !one.isConnected() && !two.isConnected(); }));
    auto& area = *window().findChild<QMdiArea*>();
    EXPECT_TRUE(QTest::qWaitFor([&area] { return area.subWindowList().isEmpty(); }));
    EXPECT_EQ(two.heard, "");
    EXPECT_TRUE(isFree(ports[0]));
}

TEST(TcpHubSocketTest, OneWhoseHubHungUpIsNeitherReadNorWritten)
{
    HubServer server;
    server.greets = false;
    TcpHubSocket socket("wskHubConnection_1");
    std::string heard;
    bool closed = false;
    QObject::connect(&socket, &TcpHubSocket::DataArrival, &socket, [&] {
        EXPECT_EQ(socket.State(), SocketState::Connected);
        heard += socket.GetData();
    });
    QObject::connect(&socket, &TcpHubSocket::Closed, &socket, [&] {
        closed = true;
        EXPECT_EQ(heard, "last words|");
        EXPECT_EQ(socket.State(), SocketState::Closed);
        EXPECT_THROW(socket.SendData("$MyINFO|"), SocketError);
    });
    socket.Connect("127.0.0.1", server.address().mid(10).toStdString());
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.isConnected(); }));
    server.say("last words|");
    server.hangUp();
    EXPECT_TRUE(QTest::qWaitFor([&] { return closed; }));
}

class PortalBurst : public PortalHubs
{
protected:
    static QByteArray lines(int count)
    {
        QByteArray all;
        for (int line = 0; line < count; ++line)
            all += "<u> " + QByteArray::number(line) + '|';
        return all;
    }

    /// Waits until hub 2 has heard all lines, and tells in milliseconds how long the event loop stood still
    /// at most.
    qint64 longestStandstill(int count)
    {
        qint64 longest = 0;
        QElapsedTimer tick;
        tick.start();
        QTimer pulse;
        QObject::connect(&pulse, &QTimer::timeout, &pulse,
                         [&] { longest = std::max(longest, tick.restart()); });
        pulse.start(1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return two.heard.count('|') >= count; }, 60000));
        EXPECT_EQ(two.heard.count('|'), count);
        EXPECT_TRUE(two.heard.startsWith("<bot> <u> 0|<bot> <u> 1|"));
        EXPECT_TRUE(two.heard.endsWith("<bot> <u> " + QByteArray::number(count - 1) + '|'));
        return longest;
    }
};

TEST_F(PortalBurst, ManyLinesInOneGoAreRelayedAndTheWindowStaysAlive)
{
    logInBoth();
    QElapsedTimer elapsed;
    elapsed.start();
    one.say(lines(100'000));
    const auto standstill = longestStandstill(100'000);
    RecordProperty("milliseconds", std::to_string(elapsed.elapsed()));
    RecordProperty("longest_standstill", std::to_string(standstill));
    EXPECT_LT(standstill, 2000);
}

TEST_F(PortalBurst, ManyLinesByteByByteAreRelayed)
{
    logInBoth();
    QElapsedTimer elapsed;
    elapsed.start();
    one.sayByteByByte(lines(100'000));
    longestStandstill(100'000);
    RecordProperty("milliseconds", std::to_string(elapsed.elapsed()));
}

} // namespace
} // namespace quillfen
