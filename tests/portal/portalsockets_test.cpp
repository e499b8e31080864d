// Opening, leaving and closing a link.
#include "portal/portaltest.h"

namespace quillfen {
namespace {

using test::myInfo;
using test::Portal;
using test::Strings;

TEST_F(Portal, OpeningClosesListensBindsAndConnectsInThatOrder)
{
    links.OpenLink(0);
    EXPECT_EQ(calls,
              (Strings{"1 hub closes", "1 listener closes", "1 udp closes", "1 listener listens on '5001'",
                       "1 udp binds '5001'", "1 hub connects to 'one.hub' '411'"}));
    calls.clear();
    links.OpenLink(1);
    EXPECT_EQ(calls.back(), "2 hub connects to 'two.hub' '412'");
}

TEST_F(Portal, AnyRowBehindTheFirstDrivesLinkTwo)
{
    form.rows.push_back({{"three.hub:413", "", "5003", ""}});
    links.OpenLink(2);
    EXPECT_EQ(calls.back(), "2 hub connects to 'three.hub' '413'");
}

TEST_F(Portal, OpeningWaitsUntilAllThreeSocketsAreClosed)
{
    for (auto* state : {&one.hub.state, &one.listener.state, &one.datagrams.state})
        *state = SocketState::Open;
    one.hub.closesLate = one.listener.closesLate = one.datagrams.closesLate = true;
    form.atYield = [&] {
        EXPECT_EQ(calls.size(), 3U);
        if (form.yields == 2)
            one.hub.state = SocketState::Closed;
        if (form.yields == 4)
            one.listener.state = SocketState::Closed;
        if (form.yields == 6)
            one.datagrams.state = SocketState::Closed;
    };
    links.OpenLink(0);
    EXPECT_EQ(form.yields, 6);
    EXPECT_EQ(calls.size(), 6U);
}

TEST_F(Portal, OpeningALinkThatIsLoggedInLeavesItsFlag)
{
    logInBoth();
    links.OpenLink(0);
    EXPECT_TRUE(links.isLoggedIn(Link::One));
    EXPECT_TRUE(links.isLoggedIn(Link::Two));
}

TEST_F(Portal, AnAddressWithoutAPortConnectsToTheEmptyPort)
{
    form.rows[0].cells[0] = "one.hub";
    links.OpenLink(0);
    EXPECT_EQ(calls.back(), "1 hub connects to 'one.hub' ''");
    form.rows[0].cells[0] = "one.hub:411:9";
    links.OpenLink(0);
    EXPECT_EQ(calls.back(), "1 hub connects to 'one.hub' '411:9'");
}

TEST_F(Portal, OpeningWantsAllFourFields)
{
    for (auto& field : form.fields) {
        const std::string kept = std::exchange(field, "");
        form.rows[0].checked = true;
        form.told.clear();
        links.OpenLink(0);
        EXPECT_EQ(form.told, Strings{"missing fields"});
        EXPECT_FALSE(form.rows[0].checked);
        EXPECT_EQ(calls, Strings());
        field = kept;
    }
}

TEST_F(Portal, AThirdTickIsTakenAwayWithoutAWord)
{
    form.rows.push_back({{"three.hub:413", "", "5003", ""}});
    for (auto& row : form.rows)
        row.checked = true;
    links.OpenLink(2);
    EXPECT_FALSE(form.rows[2].checked);
    EXPECT_TRUE(form.rows[0].checked);
    EXPECT_EQ(calls, Strings());
    EXPECT_EQ(form.told, Strings());
}

TEST_F(Portal, OnlyExactlyTwoOtherTicksRefuse)
{
    for (int more = 0; more < 2; ++more)
        form.rows.push_back({{"more.hub:413", "", "5003", ""}});
    for (auto& row : form.rows)
        row.checked = true;
    links.OpenLink(3);
    EXPECT_TRUE(form.rows[3].checked) << "three others";
    EXPECT_FALSE(calls.empty());
}

TEST_F(Portal, ALinkThatCannotBeOpenedLeavesNoSocketOpen)
{
    for (bool* refuses : {&one.listener.refuses, &one.datagrams.refuses, &one.hub.refuses}) {
        *refuses = true;
        form.told.clear();
        form.rows[0].checked = true;
        links.OpenLink(0);
        EXPECT_EQ(form.told, Strings{"not opened: Address in use"});
        EXPECT_FALSE(form.rows[0].checked);
        EXPECT_EQ(one.hub.state, SocketState::Closed);
        EXPECT_EQ(one.listener.state, SocketState::Closed);
        EXPECT_EQ(one.datagrams.state, SocketState::Closed);
        *refuses = false;
    }
}

TEST_F(Portal, AnOpeningThatFailsLogsItsLinkOut)
{
    logInBoth();
    one.listener.refuses = true;
    links.OpenLink(0);
    EXPECT_FALSE(links.isLoggedIn(Link::One));
    EXPECT_TRUE(links.isLoggedIn(Link::Two));
    two.hub.sent.clear();
    hear(Link::Two, "<user> nobody hears|$GetINFO bot x|");
    EXPECT_EQ(two.hub.sent, Strings{myInfo}) << "nothing is relayed to a closed socket";
}

TEST_F(Portal, TheEndWhileAFailedOpeningClosesTellsNothing)
{
    one.hub.refuses = true;
    one.listener.closesLate = true;
    form.rows[0].checked = true;
    form.atYield = [&] { links.end(); };
    links.OpenLink(0);
    EXPECT_EQ(form.yields, 1);
    EXPECT_EQ(form.told, Strings());
    EXPECT_TRUE(form.rows[0].checked);
}

TEST_F(Portal, LeavingSaysQuitWithTheHubsAddressAndClosesAll)
{
    links.OpenLink(1);
    logIn(Link::Two);
    calls.clear();
    links.leaveHub(1);
    EXPECT_EQ(two.hub.sent, Strings{"$Quit two.hub:412|"});
    EXPECT_EQ(calls, (Strings{"2 hub closes", "2 listener closes", "2 udp closes"}));
    EXPECT_FALSE(links.isLoggedIn(Link::Two));
}

TEST_F(Portal, LeavingAClosedLinkLeavesItsUdpSocketBound)
{
    links.OpenLink(0);
    connect(Link::One);
    links.hubClosed(Link::One);
    EXPECT_EQ(one.datagrams.state, SocketState::Open);
    calls.clear();
    links.leaveHub(0);
    EXPECT_EQ(calls, Strings());
    EXPECT_EQ(one.datagrams.state, SocketState::Open);
    EXPECT_EQ(form.told, Strings());
    links.OpenLink(0);
    EXPECT_EQ(calls[2], "1 udp closes");
}

TEST_F(Portal, CloseAndErrorOfAHubCloseConnectionAndListener)
{
    for (const auto event : {&PortalLinks::hubClosed, &PortalLinks::hubFailed}) {
        form.rows[0].checked = true;
        links.OpenLink(0);
        logIn(Link::One);
        calls.clear();
        (links.*event)(Link::One);
        EXPECT_EQ(calls, (Strings{"1 hub closes", "1 listener closes"}));
        EXPECT_FALSE(links.isLoggedIn(Link::One));
        EXPECT_TRUE(form.rows[0].checked) << "there is no message, and the tick stays";
        EXPECT_EQ(form.told, Strings());
    }
}

TEST_F(Portal, ClosingWaitsForConnectionAndListener)
{
    one.hub.state = one.listener.state = SocketState::Open;
    one.hub.closesLate = one.listener.closesLate = true;
    form.atYield = [&] {
        if (form.yields == 3)
            one.hub.state = one.listener.state = SocketState::Closed;
    };
    links.CloseLink(Link::One);
    EXPECT_EQ(form.yields, 3);
}

TEST_F(Portal, TheEndClosesEverySocketAndSaysNothing)
{
    logInBoth();
    links.end();
    EXPECT_EQ(calls, (Strings{"1 hub closes", "1 listener closes", "1 udp closes", "2 hub closes",
                              "2 listener closes", "2 udp closes"}));
    EXPECT_EQ(one.hub.sent, Strings());
    EXPECT_EQ(two.hub.sent, Strings());
}

TEST_F(Portal, TheEndInAYieldEndsWhatIsRunning)
{
    const Strings half = {"$Version 1.0091|", myInfo};
    connect(Link::One);
    form.atYield = [&] { links.end(); };
    hear(Link::One, "$Hello bot|$GetPass|");
    EXPECT_EQ(one.hub.sent, half);
}

TEST_F(Portal, TheEndInAListEndsTheList)
{
    connect(Link::One);
    form.atYield = [&] {
        if (form.yields == 2)
            links.end();
    };
    hear(Link::One, "$OpList a$$b$$c$$|");
    EXPECT_EQ(links.colOpNicks().all(), Strings{"a"});
    EXPECT_EQ(form.yields, 2);
}

TEST_F(Portal, TheEndWhileOpeningConnectsNothing)
{
    one.hub.state = SocketState::Open;
    one.hub.closesLate = true;
    form.atYield = [&] { links.end(); };
    links.OpenLink(0);
    EXPECT_EQ(std::count_if(calls.begin(), calls.end(),
                            [](const std::string& call) { return call.find("closes") == std::string::npos; }),
              0);
}

// Datagrams

TEST_F(Portal, ADatagramIsOnlyNoted)
{
    links.datagramArrived(Link::One);
    EXPECT_FALSE(links.udpSeen()) << "it was empty";
    two.datagrams.arrived = "$SR x";
    links.datagramArrived(Link::Two);
    EXPECT_TRUE(links.udpSeen());
    EXPECT_EQ(form.told, Strings());
}

TEST_F(Portal, ADatagramThatCannotBeReadIsTold)
{
    one.datagrams.refuses = true;
    links.datagramArrived(Link::One);
    EXPECT_EQ(form.told, Strings{"98: Address in use"});
    EXPECT_FALSE(links.udpSeen());
}

} // namespace
} // namespace quillfen
