#include "functions/useractions/collections.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::LuaValues;
using test::luaValues;
using test::sameBytes;

struct Member
{
    const Collection& collection;
    FunctionDeclaration (*function)();
    std::string word;
    std::string delay;
    std::string firstText;
};

const std::vector<Member>& members()
{
    static const std::vector<Member> all = {
        {jokes(), jokesFunction, "Joke", "103", "Cannot find REALITY.SYS. Universe halted"},
        {limericks(), limericksFunction, "Limerick", "93",
         "There once was an old man of Esser,|Whose knowledge grew lesser and lesser,|It at last grew so "
         "small|He knew nothing at all,|And now he's a college professor."},
        {proverbs(), proverbsFunction, "Proverb", "73",
         "A lie can be halfway around the world before the truth gets its boots on"},
        {quotations(), quotationsFunction, "Quotation", "89",
         "Experience has taught me that you feel better on a flight if you avoid chicken fat in plastic "
         "sauce.|Tavis Orlemon on the joys of travelling the world by plane"},
    };
    return all;
}

class Collections : public testing::Test
{
protected:
    std::string& file(const Member& member, const std::string& name)
    {
        return hub.file("UserActions/" + member.word + "s/" + member.word + name);
    }

    static std::string goldenOf(const Member& member, const std::string& name)
    {
        return golden("useractions/" + member.word + name);
    }

    test::Hub hub{"UserActions/Jokes", "UserActions/Limericks", "UserActions/Proverbs",
                  "UserActions/Quotations"};
};

TEST_F(Collections, AFreshBuildWritesTheDefaultsAndOneText)
{
    for (const Member& member : members()) {
        buildFunction(member.function(), hub.files, hub.profiles);
        EXPECT_TRUE(sameBytes(file(member, "Settings.tbl"), goldenOf(member, "Settings.build.tbl")));
        EXPECT_TRUE(sameBytes(file(member, "s.tbl"), goldenOf(member, "s.build.tbl")));
    }
}

TEST_F(Collections, ARebuildKeepsValuesAndTextsAndFillsWhatIsMissing)
{
    for (const Member& member : members()) {
        const std::string table = "t" + member.word;
        file(member, "Settings.tbl") =
            table + "Settings = {\r\n\tbSendToAll = 0,\r\n\tiDelay = 5,\r\n\tiGone = 1,\r\n}\r\n";
        file(member, "s.tbl") = "the owner's";
        buildFunction(member.function(), hub.files, hub.profiles);
        EXPECT_TRUE(sameBytes(file(member, "Settings.tbl"),
                              table + "Settings = {\r\n\tbManualControl = 0,\r\n\tiDelay = 5,\r\n"
                                      "\tbSendToAll = 0,\r\n}\r\n"));
        EXPECT_EQ(file(member, "s.tbl"), "the owner's");
    }
}

TEST(HubScriptCollections, SeesWhatIsBuiltAndSaved)
{
    for (const Member& member : members()) {
        const std::string settings = "t" + member.word + "Settings.";
        const std::string texts = "t" + member.word + "s.";
        const auto values = [&member](const std::string& name) {
            return luaValues(golden("useractions/" + member.word + name));
        };
        EXPECT_EQ(values("Settings.build.tbl"), (LuaValues{{settings + "bManualControl", "0"},
                                                           {settings + "bSendToAll", "1"},
                                                           {settings + "iDelay", member.delay}}));
        EXPECT_EQ(values("Settings.save.tbl"),
                  (LuaValues{{settings + "bManualControl", "1"},
                             {settings + "bSendToAll", "0"},
                             {settings + "iDelay", std::to_string(std::stoi(member.delay) + 1)}}));
        EXPECT_EQ(values("s.build.tbl"), (LuaValues{{texts + "1", member.firstText}}));
        EXPECT_EQ(values("s.save.tbl"),
                  (LuaValues{{texts + "1", member.firstText}, {texts + "2", "first line|second line"}}));
    }
}

} // namespace
} // namespace quillfen
