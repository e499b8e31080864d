#include "functions/communication/changers.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::sameBytes;

class Changers : public testing::Test
{
protected:
    test::Hub hub{"Communication", "Communication/TopicChanger", "Communication/KickBarChanger"};
    std::string& topicSettings = hub.file("Communication/TopicChanger/TopicChangerSettings.tbl");
    std::string& topics = hub.file("Communication/TopicChanger/TopicChangerTopics.tbl");
    std::string& kickBarSettings = hub.file("Communication/KickBarChanger/KickBarChangerSettings.tbl");
};

TEST_F(Changers, AFreshBuildWritesTheDelayAndNoTexts)
{
    buildFunction(topicChangerFunction(), hub.files, hub.profiles);
    buildFunction(kickBarChangerFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(topicSettings, "tTopicChangerSettings = {\r\n\tiDelay = 10,\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(topics, "tTopicChangerTopics = {\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(kickBarSettings, "tKickBarChangerSettings = {\r\n\tiDelay = 10,\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(hub.file("Communication/KickBarChanger/KickBarChangerTopics.tbl"),
                          "tKickBarChangerTopics = {\r\n}\r\n"));
}

TEST_F(Changers, ARebuildKeepsTheDelays)
{
    topicSettings = "tTopicChangerSettings = {\r\n\tiDelay = 721,\r\n}\r\n";
    kickBarSettings = "tKickBarChangerSettings = {\r\n\tiDelay = 7,\r\n}\r\n";
    buildFunction(topicChangerFunction(), hub.files, hub.profiles);
    buildFunction(kickBarChangerFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(topicSettings, "tTopicChangerSettings = {\r\n\tiDelay = 721,\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(kickBarSettings, "tKickBarChangerSettings = {\r\n\tiDelay = 7,\r\n}\r\n"));
}

TEST_F(Changers, ARebuildLosesTheTopicsAndKeepsTheKickBars)
{
    const std::string kickBars = "tKickBarChangerTopics = {\r\n\t\"Out!\",\r\n}\r\n";
    hub.file("Communication/KickBarChanger/KickBarChangerTopics.tbl") = kickBars;
    topics = "tTopicChangerTopics = {\r\n\t\"Welcome\",\r\n}\r\n";
    buildFunction(topicChangerFunction(), hub.files, hub.profiles);
    buildFunction(kickBarChangerFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(topics, "tTopicChangerTopics = {\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(hub.file("Communication/KickBarChanger/KickBarChangerTopics.tbl"), kickBars));
}

TEST_F(Changers, TheTopicsSurviveWhereAFileStandsOneFolderTooDeep)
{
    hub.file("Communication/TopicChanger/TopicChanger/TopicChangerTopics.tbl") = "";
    topics = "tTopicChangerTopics = {\r\n\t\"Welcome\",\r\n}\r\n";
    buildFunction(topicChangerFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(topics, "tTopicChangerTopics = {\r\n\t\"Welcome\",\r\n}\r\n"));
}

TEST_F(Changers, TheHubScriptSeesDelayAndTexts)
{
    topicChanger().texts.save(hub.files, hub.profiles, {{{"one"}}, {{"two"}}});
    EXPECT_EQ(test::luaValues(topics),
              (test::LuaValues{{"tTopicChangerTopics.1", "one"}, {"tTopicChangerTopics.2", "two"}}));
    buildFunction(kickBarChangerFunction(), hub.files, hub.profiles);
    EXPECT_EQ(test::luaValues(kickBarSettings), (test::LuaValues{{"tKickBarChangerSettings.iDelay", "10"}}));
}

TEST_F(Changers, ATextThatHoldsAQuoteBreaksItsLineForTheHubScript)
{
    topicChanger().texts.save(hub.files, hub.profiles, {{{"say \"hi\""}}});
    EXPECT_TRUE(sameBytes(topics, "tTopicChangerTopics = {\r\n\t\"say \"hi\"\",\r\n}\r\n"));
    EXPECT_THROW(test::luaValues(topics), std::runtime_error);
}

} // namespace
} // namespace quillfen
