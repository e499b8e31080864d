// What a hub says, in pieces and in the middle of a yield, and what of it is relayed.
#include "portal/portaltest.h"

namespace quillfen {
namespace {

using test::both;
using test::myInfo;
using test::Portal;
using test::Strings;

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

} // namespace
} // namespace quillfen
