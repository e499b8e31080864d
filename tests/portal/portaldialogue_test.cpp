// The dialogue with one hub: login, password, operators and nicks.
#include "portal/portaltest.h"

namespace quillfen {
namespace {

using test::both;
using test::myInfo;
using test::Portal;
using test::Strings;

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

} // namespace
} // namespace quillfen
