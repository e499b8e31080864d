#include "support/portalfakes.h"

#include <gtest/gtest.h>
#include <ostream>
#include <utility>

namespace quillfen {

inline std::ostream& operator<<(std::ostream& out, Link link)
{
    return out << "link " << (link == Link::One ? 1 : 2);
}

namespace {

using Strings = std::vector<std::string>;
constexpr Link both[] = {Link::One, Link::Two};
constexpr const char* myInfo = "$MyINFO $ALL bot The bot$A$Bot\x08$bot@hub$0$|";

class Portal : public testing::Test, public test::PortalFixture
{
protected:
    /// What a link says to its hub when the hub says this.
    Strings answer(Link link, std::string_view bytes)
    {
        sockets(link).hub.sent.clear();
        hear(link, bytes);
        return std::exchange(sockets(link).hub.sent, {});
    }

    void logInBoth()
    {
        logIn(Link::One);
        logIn(Link::Two);
    }

    /// What hub 2 gets to hear when somebody speaks in hub 1.
    std::string relayed(std::string_view line)
    {
        two.hub.sent.clear();
        hear(Link::One, line);
        EXPECT_EQ(one.hub.sent, Strings());
        return two.hub.all();
    }
};

// The dialogue with one hub

TEST_F(Portal, ALockIsAnsweredWithKeyAndNickInTwoSends)
{
    for (const Link link : both) {
        connect(link);
        EXPECT_EQ(answer(link, "$Lock XYX Pk=Hub|"), (Strings{"$Key \xC5\x10\x10|", "$ValidateNick bot|"}));
        EXPECT_EQ(answer(link, "$Lock XYX Pk=Hub|"), (Strings{"$Key \xC5\x10\x10|", "$ValidateNick bot|"}))
            << "a second lock is answered again";
    }
}

TEST_F(Portal, CommandsAreComparedInUpperCase)
{
    connect(Link::One);
    EXPECT_EQ(answer(Link::One, "$lOcK XYX|").size(), 2U);
    EXPECT_EQ(answer(Link::One, "$LOCK XYX|").size(), 2U);
    EXPECT_EQ(answer(Link::One, "$LockS XYX|"), Strings());
}

TEST_F(Portal, TheLoginTailIsSentInItsOrder)
{
    for (const Link link : both) {
        connect(link);
        form.yields = 0;
        Strings sentAtYield;
        form.atYield = [&] { sentAtYield = sockets(link).hub.sent; };
        EXPECT_EQ(answer(link, "$Hello bot|"), (Strings{"$Version 1.0091|", myInfo, "$GetNickList|"}));
        EXPECT_EQ(sentAtYield, (Strings{"$Version 1.0091|", myInfo}));
        EXPECT_EQ(form.yields, 1);
        EXPECT_TRUE(links.isLoggedIn(link));
    }
}

TEST_F(Portal, AHelloOfAnotherUserTriggersTheLoginTailAllTheSame)
{
    connect(Link::One);
    EXPECT_EQ(answer(Link::One, "$Hello somebody|").size(), 3U);
    EXPECT_TRUE(links.isLoggedIn(Link::One));
}

TEST_F(Portal, LogedInTriggersTheLoginTailOnce)
{
    connect(Link::Two);
    EXPECT_EQ(answer(Link::Two, "$LogedIn bot|"), (Strings{"$Version 1.0091|", myInfo, "$GetNickList|"}));
    EXPECT_EQ(answer(Link::Two, "$LogedIn bot|"), Strings());
}

TEST_F(Portal, FurtherHellosAndNickListsProduceNoOutput)
{
    logIn(Link::One);
    EXPECT_EQ(answer(Link::One, "$Hello other|$NickList a$$b$$c$$|"), Strings());
    EXPECT_EQ(links.nickCount(), 0U);
}

TEST_F(Portal, TheIdentityIsReadAnewForEachMessage)
{
    connect(Link::One);
    form.fields[0] = "changed";
    form.fields[1] = "";
    form.fields[2] = "x@y";
    EXPECT_EQ(answer(Link::One, "$ValidateDenide|"), Strings{"$ValidateNick changed|"});
    EXPECT_EQ(answer(Link::One, "$GetINFO changed other|"),
              Strings{"$MyINFO $ALL changed $A$Bot\x08$x@y$0$|"});
}

TEST_F(Portal, ADeniedNickIsSentAgainForEver)
{
    connect(Link::One);
    for (int time = 0; time < 5; ++time)
        EXPECT_EQ(answer(Link::One, "$ValidateDenide bot|"), Strings{"$ValidateNick bot|"});
    EXPECT_FALSE(links.isLoggedIn(Link::One));
}

TEST_F(Portal, GetInfoIsAnsweredForTheExactNickOnly)
{
    logIn(Link::Two);
    EXPECT_EQ(answer(Link::Two, "$GetINFO bot asker|"), Strings{myInfo});
    EXPECT_EQ(answer(Link::Two, "$GetINFO bot|"), Strings{myInfo});
    EXPECT_EQ(answer(Link::Two, "$GetINFO Bot asker|"), Strings());
    EXPECT_EQ(answer(Link::Two, "$GetINFO bo asker|"), Strings());
}

TEST_F(Portal, CommandsThatChangeNothingSendNothing)
{
    logInBoth();
    for (const char* command :
         {"$HubName A hub|", "$To: bot From: user $<user> hi|", "$Search 1.2.3.4:412 F?T?0?9?x|",
          "$ForceMove other.hub:411|", "$MyINFO $ALL user desc$A$LAN(T1)\x01$e$5$|", "$MyINFO|", "$BadPass|",
          "$Unknown thing|", "$|", "$ |"}) {
        EXPECT_EQ(answer(Link::One, command), Strings()) << command;
        EXPECT_EQ(two.hub.sent, Strings()) << command;
        EXPECT_TRUE(links.isLoggedIn(Link::One)) << command;
    }
    EXPECT_EQ(calls, Strings());
    EXPECT_TRUE(links.colOpNicks().empty());
}

// Passwords

TEST_F(Portal, LinkTwoLogsInWithThePasswordOfRowOne)
{
    connect(Link::One);
    connect(Link::Two);
    EXPECT_EQ(answer(Link::One, "$GetPass|"), Strings{"$MyPass secret|"});
    EXPECT_EQ(answer(Link::Two, "$GetPass|"), Strings{"$MyPass secret|"});
}

TEST_F(Portal, ThePasswordItselfIsNotLookedAt)
{
    connect(Link::One);
    connect(Link::Two);
    form.rows[0].cells[1] = "";
    EXPECT_EQ(answer(Link::One, "$GetPass|"), Strings{"$MyPass |"});
    EXPECT_EQ(answer(Link::Two, "$GetPass|"), Strings{"$MyPass |"});
}

TEST_F(Portal, LinkOneSendsNoPasswordWithoutAClientPort)
{
    connect(Link::One);
    connect(Link::Two);
    form.rows[0].cells[2] = "";
    EXPECT_EQ(answer(Link::One, "$GetPass|"), Strings());
    EXPECT_EQ(answer(Link::Two, "$GetPass|"), Strings{"$MyPass secret|"});
}

TEST_F(Portal, LinkTwoSendsNoPasswordWithoutADescription)
{
    connect(Link::One);
    connect(Link::Two);
    form.fields[1] = "";
    EXPECT_EQ(answer(Link::One, "$GetPass|"), Strings{"$MyPass secret|"});
    EXPECT_EQ(answer(Link::Two, "$GetPass|"), Strings());
}

TEST_F(Portal, AHubListThatWasEmptiedSendsNoPasswordOnLinkOne)
{
    connect(Link::One);
    form.rows.clear();
    EXPECT_EQ(answer(Link::One, "$GetPass|"), Strings());
}

// Nicks

TEST_F(Portal, TheOperatorsAreKeptInOrderWithDuplicates)
{
    connect(Link::One);
    EXPECT_EQ(answer(Link::One, "$OpList a$$b$$$$a$$|"), Strings());
    EXPECT_EQ(links.colOpNicks().all(), (Strings{"a", "b", "a"}));
    EXPECT_EQ(form.yields, 4) << "one at each piece, the empty one too";
    hear(Link::One, "$OpList c|");
    EXPECT_EQ(links.colOpNicks().all(), (Strings{"a", "b", "a", "c"}));
}

TEST_F(Portal, AnEmptyOpListDoesNothing)
{
    connect(Link::One);
    hear(Link::One, "$OpList|$OpList |");
    EXPECT_TRUE(links.colOpNicks().empty());
    EXPECT_EQ(form.yields, 0);
}

TEST_F(Portal, TheNickListYieldsAtEachNickAndAddsNone)
{
    logIn(Link::One);
    EXPECT_EQ(answer(Link::One, "$NickList a$$b$$|"), Strings());
    EXPECT_EQ(form.yields, 2);
    EXPECT_TRUE(links.colOpNicks().empty());
}

TEST_F(Portal, AQuitRemovesTheFirstOperatorOfThatNick)
{
    connect(Link::One);
    hear(Link::One, "$OpList a$$b$$a$$|$Quit a|");
    EXPECT_EQ(links.colOpNicks().all(), (Strings{"b", "a"}));
}

TEST_F(Portal, AQuitOfAPlainUserLeavesTheOperators)
{
    connect(Link::One);
    hear(Link::One, "$OpList a$$b$$|$Quit nobody|$Quit A|");
    EXPECT_EQ(links.colOpNicks().all(), (Strings{"a", "b"}));
}

TEST_F(Portal, TheWalkOverTheOperatorsYieldsAndOneOverNoneDoesNot)
{
    connect(Link::One);
    hear(Link::One, "$Quit a|");
    EXPECT_EQ(form.yields, 0);
    hear(Link::One, "$OpList a|");
    form.yields = 0;
    hear(Link::One, "$Quit b|");
    EXPECT_GT(form.yields, 0);
}

TEST_F(Portal, TheOperatorsSurviveDisconnection)
{
    connect(Link::One);
    hear(Link::One, "$OpList a$$b$$|");
    links.hubClosed(Link::One);
    EXPECT_EQ(links.colOpNicks().all(), (Strings{"a", "b"}));
}

TEST_F(Portal, EveryNickIsKnown)
{
    EXPECT_TRUE(PortalLinks::NickKnown("anybody"));
    EXPECT_TRUE(PortalLinks::NickKnown(""));
    logInBoth();
    links.AddPlainNick("new");
    links.AddOpNick("op");
    EXPECT_EQ(links.nickCount(), 0U);
    EXPECT_EQ(one.hub.sent, Strings());
    EXPECT_EQ(two.hub.sent, Strings());
}

TEST_F(Portal, NickInfoIsRequestedOnTheLinksThatAreLoggedIn)
{
    logIn(Link::Two);
    connect(Link::One);
    links.RequestNickInfo("nick");
    EXPECT_EQ(one.hub.sent, Strings());
    EXPECT_EQ(two.hub.sent, Strings{"$GetINFO nick bot|"});
}

// The buffer

TEST_F(Portal, TwoMessagesAndAFragmentAreTwoMessages)
{
    connect(Link::One);
    EXPECT_EQ(answer(Link::One, "$GetPass|$ValidateDenide|$GetPa"),
              (Strings{"$MyPass secret|", "$ValidateNick bot|"}));
    EXPECT_EQ(links.waiting(Link::One), "$GetPa");
    EXPECT_EQ(answer(Link::One, "ss|"), Strings{"$MyPass secret|"});
    EXPECT_EQ(links.waiting(Link::One), "");
}

TEST_F(Portal, DataStaysUnreadUnlessConnected)
{
    for (const auto state : {SocketState::Closed, SocketState::Open}) {
        one.hub.state = state;
        hear(Link::One, "$GetPass|");
        EXPECT_EQ(one.hub.sent, Strings());
        EXPECT_EQ(links.waiting(Link::One), "");
    }
    EXPECT_EQ(one.hub.arrived, "$GetPass|$GetPass|");
}

TEST_F(Portal, DataOfTheSameLinkThatArrivesInAYieldIsHandledByTheRunningLoop)
{
    connect(Link::One);
    form.atYield = [&] {
        form.atYield = nullptr;
        hear(Link::One, "$GetPass|");
        EXPECT_EQ(one.hub.sent.size(), 2U) << "only the first half of the login tail";
    };
    EXPECT_EQ(answer(Link::One, "$Hello bot|"),
              (Strings{"$Version 1.0091|", myInfo, "$GetNickList|", "$MyPass secret|"}));
}

TEST_F(Portal, DataOfTheOtherLinkThatArrivesInAYieldWaitsForThatLinksNextData)
{
    connect(Link::One);
    connect(Link::Two);
    form.atYield = [&] {
        form.atYield = nullptr;
        hear(Link::Two, "$GetPass|");
    };
    hear(Link::One, "$OpList a$$|");
    EXPECT_EQ(two.hub.sent, Strings()) << "the one busy flag of both links";
    EXPECT_EQ(links.waiting(Link::Two), "$GetPass|");
    hear(Link::Two, "$Ping|");
    EXPECT_EQ(two.hub.sent, Strings{"$MyPass secret|"});
}

TEST_F(Portal, TheBufferOutlivesTheConnection)
{
    connect(Link::One);
    hear(Link::One, "<user> cut o");
    links.hubClosed(Link::One);
    EXPECT_EQ(links.waiting(Link::One), "<user> cut o");
    connect(Link::One);
    EXPECT_EQ(answer(Link::One, "$Lock XYX|"), Strings()) << "the old fragment swallows the lock";
}

TEST_F(Portal, AHubThatClosesInTheLoginTailEndsIt)
{
    connect(Link::One);
    connect(Link::Two);
    form.atYield = [&] {
        form.atYield = nullptr;
        links.hubClosed(Link::One);
    };
    hear(Link::One, "$Hello bot|$GetPass|");
    EXPECT_FALSE(links.isLoggedIn(Link::One));
    EXPECT_EQ(one.hub.sent, (Strings{"$Version 1.0091|", myInfo}));
    EXPECT_EQ(answer(Link::Two, "$GetPass|"), Strings{"$MyPass secret|"}) << "the busy flag is free again";
}

// Relay

TEST_F(Portal, ChatIsRelayedWithItsSpeakerByTheBot)
{
    logInBoth();
    EXPECT_EQ(relayed("<user> hello there|"), "<bot> <user> hello there|");
    one.hub.sent.clear();
    two.hub.sent.clear();
    hear(Link::Two, "<other> hi|");
    EXPECT_EQ(one.hub.sent, Strings{"<bot> <other> hi|"});
    EXPECT_EQ(two.hub.sent, Strings());
}

TEST_F(Portal, ALineWithoutABlankGetsOneBeforeItsBar)
{
    logInBoth();
    EXPECT_EQ(relayed("hello|"), "<bot> hello |");
    EXPECT_EQ(relayed("|"), "<bot>  |") << "an empty message is a line too";
}

TEST_F(Portal, CommandsAreNeverRelayed)
{
    logInBoth();
    EXPECT_EQ(relayed("$To: x From: y $<y> hi|$Anything <user> x|$|"), "");
}

TEST_F(Portal, TheBotsOwnLinesAreNotRelayed)
{
    logInBoth();
    EXPECT_EQ(relayed("<bot> hi|"), "");
    EXPECT_EQ(relayed("<bot>hi|"), "");
    EXPECT_EQ(relayed("<Bot> hi|"), "<bot> <Bot> hi|");
    EXPECT_EQ(relayed("<bot2> hi|"), "<bot> <bot2> hi|");
}

TEST_F(Portal, TheFirstBracketDecidesTheNick)
{
    logInBoth();
    form.ignored = {"bad"};
    EXPECT_EQ(relayed("<bad>nick> hi|"), "");
    form.ignored = {"bad>nick"};
    EXPECT_EQ(relayed("<bad>nick> hi|"), "<bot> <bad>nick> hi|");
}

TEST_F(Portal, IgnoredNicksAreComparedWithCase)
{
    logInBoth();
    form.ignored = {"spam"};
    EXPECT_EQ(relayed("<spam> buy|"), "");
    EXPECT_EQ(relayed("<Spam> buy|"), "<bot> <Spam> buy|");
}

TEST_F(Portal, ALineWithoutABracketHasAnEmptyNick)
{
    logInBoth();
    form.ignored = {""};
    EXPECT_EQ(relayed("no nick at all|"), "");
    EXPECT_EQ(relayed("> odd|"), "");
    EXPECT_EQ(relayed("<> odd|"), "");
    EXPECT_EQ(relayed("<user> hi|"), "<bot> <user> hi|");
}

TEST_F(Portal, ASpeakerNamedAsTheOtherHubIsNotRelayed)
{
    logInBoth();
    EXPECT_EQ(relayed("<two.hub:412> hi|"), "");
    form.rows[1].cells[3] = ""; // a row that was added
    EXPECT_EQ(relayed("<two.hub:412> hi|"), "<bot> <two.hub:412> hi|");
    EXPECT_EQ(relayed("no nick at all|"), "") << "the empty name of an added row meets an empty nick";
}

TEST_F(Portal, NothingIsRelayedToALinkThatIsNotLoggedIn)
{
    logIn(Link::One);
    connect(Link::Two);
    EXPECT_EQ(relayed("<user> hi|"), "");
}

TEST_F(Portal, ALinkRelaysBeforeItIsLoggedInItself)
{
    connect(Link::One);
    logIn(Link::Two);
    EXPECT_EQ(relayed("<user> hi|"), "<bot> <user> hi|");
}

TEST_F(Portal, AllByteValuesPass)
{
    logInBoth();
    std::string words;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '|')
            words += static_cast<char>(byte);
    }
    EXPECT_EQ(relayed("<user> " + words + '|'), "<bot> <user> " + words + '|');
}

// Opening and closing

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

// Bursts

class Burst : public Portal
{
protected:
    /// Relays this many lines that come in pieces of this size.
    void relay(int lines, std::size_t piece)
    {
        std::string burst;
        for (int line = 0; line < lines; ++line)
            burst += "<user> line " + std::to_string(line) + '|';
        two.hub.sent.clear();
        for (std::size_t at = 0; at < burst.size(); at += piece)
            hear(Link::One, std::string_view(burst).substr(at, piece));
        EXPECT_EQ(two.hub.sent.size(), static_cast<std::size_t>(lines));
        EXPECT_EQ(two.hub.sent.front(), "<bot> <user> line 0|");
        EXPECT_EQ(two.hub.sent.back(), "<bot> <user> line " + std::to_string(lines - 1) + '|');
    }
};

TEST_F(Burst, ManyLinesInOneGoAreAllRelayed)
{
    logInBoth();
    relay(100'000, std::string::npos);
}

TEST_F(Burst, ManyLinesByteByByteAreAllRelayed)
{
    logInBoth();
    relay(100'000, 1);
}

TEST_F(Burst, OneLongMessageByteByByteIsSearchedOnce)
{
    connect(Link::One);
    // A search of the whole buffer for each byte would take hours.
    for (int byte = 0; byte < 1'000'000; ++byte)
        hear(Link::One, "x");
    EXPECT_EQ(links.waiting(Link::One).size(), 1'000'000U);
}

TEST_F(Burst, ManyOperatorsAndDeparturesTakeNoSquare)
{
    connect(Link::One);
    std::string list = "$OpList ";
    std::string departures;
    for (int nick = 0; nick < 100'000; ++nick) {
        list += "op" + std::to_string(nick) + "$$";
        departures += "$Quit op" + std::to_string(99'999 - nick) + "|$Quit nobody|";
    }
    hear(Link::One, list + '|');
    EXPECT_EQ(form.yields, 100'000);
    hear(Link::One, departures);
    EXPECT_TRUE(links.colOpNicks().empty());
}

} // namespace
} // namespace quillfen
