#include "functions/archive/archive.h"
#include "support/freshtree.h"
#include "support/golden.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::LuaValues;
using test::luaValues;
using test::sameBytes;

const std::vector<std::string> ring = {"EnableClear",    "EnableDelete",    "EnableModify",
                                       "EnableNewItems", "EnableSubmit",    "RCEnableCategory",
                                       "RCEnableItem",   "RCEnablePending", "RCEnableVoting"};

class Archive : public testing::Test
{
protected:
    Archive()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    std::string& hyperlink(const std::string& name)
    {
        return hub.file("TheArchive/Hyperlink/Hyperlink" + name + ".tbl");
    }

    void build() { buildFunction(archiveFolders(), hub.files, hub.profiles); }

    static const ArchiveMember& arcade() { return archiveMembers()[4]; }

    test::Hub hub{"TheArchive",          "TheArchive/Bookshelf", "TheArchive/DVDRack",  "TheArchive/Jukebox",
                  "TheArchive/Songbook", "TheArchive/Arcade",    "TheArchive/Hyperlink"};
    std::string& week = hub.file("TheArchive/Arcade/ArcadeItemOfTheWeek.tbl");
};

TEST_F(Archive, HasSixMembers)
{
    std::string words;
    for (const ArchiveMember& member : archiveMembers())
        words += member.word + " ";
    EXPECT_EQ(words, "Bookshelf DVDRack Jukebox Songbook Arcade Hyperlink ");
    EXPECT_EQ(arcade().word, "Arcade");
}

TEST_F(Archive, NewItemsAreLinksInHyperlinkAlone)
{
    for (const ArchiveMember& member : archiveMembers()) {
        const std::string items = member.word == "Hyperlink" ? "Links" : "Items";
        const TableFile file = newItems(member);
        EXPECT_EQ(std::get<setting::Field>(file.settings[0]).label, "Enable New " + items);
        EXPECT_EQ(std::get<setting::Field>(file.settings[1]).label, "Max Number Of New " + items);
    }
}

TEST_F(Archive, AnAnnouncementsTimeIsTwoDigitsTheSignBetweenAndTwoMore)
{
    const auto fields = [](const char* time) { return announcements().fieldsOf({{"Sunday", time, "PM"}}); };
    using Fields = std::vector<std::string>;
    EXPECT_EQ(fields("18:07"), (Fields{"Sunday", "18", "07", "Private Message"}));
    EXPECT_EQ(fields("18:0"), (Fields{"Sunday", "18", "0", "Private Message"}));
    EXPECT_EQ(fields("18:075"), (Fields{"Sunday", "18", "07", "Private Message"}));
}

TEST_F(Archive, AFreshBuildOfHyperlinkWritesItsSettingsAndTheShiftedRing)
{
    build();
    for (const auto& name : ring)
        EXPECT_TRUE(sameBytes(hyperlink(name), golden("archive/Hyperlink" + name + ".build.tbl"))) << name;
    for (const char* name : {"ItemOfTheWeek", "NewItems"})
        EXPECT_TRUE(
            sameBytes(hyperlink(name), golden(std::string("archive/Hyperlink") + name + ".build.tbl")));
}

TEST_F(Archive, ALinkOfTheWeekIsSavedWithItsAnnouncements)
{
    LinkOfTheWeek link = {"1", "Monday 09:05", {{{"Friday", "18:30", "Main"}}, {{"Sunday", "00:00", "PM"}}}};
    saveLinkOfTheWeek(arcade(), link, hub.files);
    EXPECT_TRUE(sameBytes(week, golden("archive/ArcadeItemOfTheWeek.save.tbl")));
}

TEST_F(Archive, ABuildWritesInTheOrderOfItsSteps)
{
    build();
    const std::string path = "write " + hub.root + "/TheArchive/Hyperlink/Hyperlink";
    std::vector<std::string> expected;
    for (const char* name :
         {"ItemOfTheWeek", "NewItems", "EnableDelete", "EnableModify", "EnableNewItems", "EnableSubmit",
          "RCEnableCategory", "RCEnableItem", "RCEnablePending", "RCEnableVoting", "EnableClear",
          "CategoryIndex", "Index", "Items", "PendingIndex", "PendingItems", "VoteIP", "VoteNick"})
        expected.push_back(path + name + ".tbl");
    EXPECT_EQ(hub.store.log, expected);
}

TEST_F(Archive, ARebuildPutsTheLastTableIntoTheFirstFile)
{
    build();
    build();
    EXPECT_TRUE(hyperlink("EnableClear").starts_with("tHyperlinkRCEnableVoting = {\r\n"));
    EXPECT_TRUE(hyperlink("EnableDelete").starts_with("tHyperlinkEnableClear = {\r\n"));
}

TEST_F(Archive, OfTheRingOnlyTheFirstTablesValuesSurviveAndMoveToTheSecondFile)
{
    for (const auto& name : ring)
        hyperlink(name) = "tHyperlink" + name + " = {\r\n\t\t[-1] = 1,\r\n\t\t[1] = 1,\r\n\t},\r\n}\r\n";
    build();
    EXPECT_TRUE(sameBytes(hyperlink("EnableDelete"),
                          "tHyperlinkEnableClear = {\r\n\t[-1] = \"1\",\r\n\t[0] = \"0\",\r\n"
                          "\t[1] = \"1\",\r\n\t[2] = \"0\",\r\n}\r\n"));
    // Each other table's file was overwritten by the step before, so the table reads as empty.
    for (const auto& name : ring) {
        if (name != "EnableDelete") {
            EXPECT_TRUE(sameBytes(hyperlink(name), golden("archive/Hyperlink" + name + ".build.tbl")))
                << name;
        }
    }
}

TEST_F(Archive, ARebuildKeepsTheWeeksValuesAndCopiesItsTables)
{
    hyperlink("ItemOfTheWeek") =
        "tHyperlinkItemOfTheWeek = {\r\n\tbEnabled = 0,\r\n\tsChangeTime = Sunday 17:59,\r\n\t[1] = {\r\n"
        "\t\tsTime = \"MON 10:00\",\r\n\t\tbInMain = 1,\r\n\t},\r\n\t[2] = {\r\n\t\tsTime = \"TUE "
        "11:00\",\r\n"
        "\t\tbInMain = 0,\r\n\t},\r\n\t[4] = {\r\n\t\tsTime = \"FRI 11:00\",\r\n\t},\r\n}\r\n";
    hyperlink("NewItems") = "tHyperlinkNewItems = {\r\n\tiNumberOfNewItems = 9,\r\n}\r\n";
    build();
    EXPECT_TRUE(sameBytes(hyperlink("ItemOfTheWeek"),
                          "tHyperlinkItemOfTheWeek = {\r\n\tbEnabled = 0,\r\n"
                          "\tsChangeTime = \"Sunday 17:59\",\r\n\t[1] = {\r\n\t\tsTime = \"MON 10:00\",\r\n"
                          "\t\tbInMain = 1,\r\n\t},\r\n\t[2] = {\r\n\t\tsTime = \"TUE 11:00\",\r\n"
                          "\t\tbInMain = 0,\r\n\t},\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(hyperlink("NewItems"), "tHyperlinkNewItems = {\r\n\tbEnableNewItems = 1,\r\n"
                                                 "\tiNumberOfNewItems = 9,\r\n}\r\n"));
}

TEST_F(Archive, ARebuildCopiesFiftyOfTheWeeksTables)
{
    std::string& file = hyperlink("ItemOfTheWeek");
    file = "tHyperlinkItemOfTheWeek = {\r\n";
    for (int number = 1; number <= 51; ++number)
        file += "\t[" + std::to_string(number) +
                "] = {\r\n\t\tsTime = \"SUN 18:00\",\r\n\t\tbInMain = 0,\r\n\t},\r\n";
    file += "}\r\n";
    build();
    EXPECT_NE(file.find("\t[50] = {"), std::string::npos);
    EXPECT_EQ(file.find("\t[51] = {"), std::string::npos);
}

TEST_F(Archive, ARebuildWithoutAFirstTableWritesTheDefaultAlone)
{
    hyperlink("ItemOfTheWeek") =
        "tHyperlinkItemOfTheWeek = {\r\n\t[2] = {\r\n\t\tsTime = \"TUE 11:00\",\r\n\t\tbInMain = 1,\r\n"
        "\t},\r\n}\r\n";
    build();
    EXPECT_TRUE(sameBytes(hyperlink("ItemOfTheWeek"), golden("archive/HyperlinkItemOfTheWeek.build.tbl")));
}

TEST_F(Archive, EmptyTablesAreMadeIfMissingAndTheVotersAreAlwaysForgotten)
{
    hyperlink("Items") = "the script's";
    hyperlink("VoteNick") = "tHyperlinkVoteNick = {\r\n\t[\"nick\"] = 1,\r\n}\r\n";
    build();
    for (const char* name : {"CategoryIndex", "Index", "PendingIndex", "PendingItems", "VoteIP", "VoteNick"})
        EXPECT_EQ(hyperlink(name), "tHyperlink" + std::string(name) + " = {\r\n}\r\n");
    EXPECT_EQ(hyperlink("Items"), "the script's");
}

TEST_F(Archive, TheOtherMembersHaveNoDefaultFiles)
{
    test::Hub fresh;
    fresh.store.files["/hub/cfg/Profiles.xml"] = "<Name>Master</Name>\r\n";
    test::buildTree(fresh);
    int files = 0;
    for (const auto& [path, bytes] : fresh.store.files) {
        if (path.find("/TheArchive/") != std::string::npos) {
            EXPECT_NE(path.find("/TheArchive/Hyperlink/"), std::string::npos) << path;
            ++files;
        }
    }
    EXPECT_EQ(files, 18);
}

TEST_F(Archive, TheShortFormOfAChangeTimeShowsInFull)
{
    week = "tArcadeItemOfTheWeek = {\r\n\tbEnabled = 1,\r\n\tsChangeTime = \"SAT 17:59\",\r\n}\r\n";
    const auto link = loadLinkOfTheWeek(arcade(), hub.files);
    EXPECT_EQ(link.enabled, "1");
    EXPECT_EQ(link.changeTime, "Saturday 17:59");
    EXPECT_TRUE(link.announcements.empty());
}

TEST_F(Archive, AChangeTimeThatTheFormSavedLoadsWithoutItsDay)
{
    saveLinkOfTheWeek(arcade(), {"1", "Sunday 17:59"}, hub.files);
    EXPECT_TRUE(sameBytes(
        week, "tArcadeItemOfTheWeek = {\r\n\tbEnabled = 1,\r\n\tsChangeTime = Sunday 17:59,\r\n}\r\n"));
    EXPECT_EQ(loadLinkOfTheWeek(arcade(), hub.files).changeTime, " 17:59");
}

TEST_F(Archive, EachDayHasItsShortWord)
{
    LinkOfTheWeek link{"0", "Sunday 17:59"};
    for (const auto& name : dayNames())
        link.announcements.push_back({{name, "10:00", "PM"}});
    saveLinkOfTheWeek(arcade(), link, hub.files);
    std::size_t at = 0;
    for (const char* word : {"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"}) {
        at = week.find("\t\tsTime = \"" + std::string(word) + " 10:00\",\r\n", at);
        ASSERT_NE(at, std::string::npos) << word;
    }
    EXPECT_EQ(loadLinkOfTheWeek(arcade(), hub.files).announcements, link.announcements);
}

TEST_F(Archive, ATextThatIsNoDayKeepsTheWordOfTheRowBefore)
{
    saveLinkOfTheWeek(arcade(), {"1", "Sunday 17:59", {{{"Friday", "10:00", "Main"}}, {{"", "11:00", "PM"}}}},
                      hub.files);
    EXPECT_NE(week.find("\t[2] = {\r\n\t\tsTime = \"FRI 11:00\",\r\n\t\tbInMain = 0,\r\n\t},\r\n}\r\n"),
              std::string::npos);
}

TEST_F(Archive, FiveHundredAndOneTablesLoadAsFiveHundredRows)
{
    week = "tArcadeItemOfTheWeek = {\r\n";
    for (int number = 1; number <= 501; ++number)
        week += "\t[" + std::to_string(number) +
                "] = {\r\n\t\tsTime = \"SUN 18:00\",\r\n\t\tbInMain = 1,\r\n\t},\r\n";
    week += "}\r\n";
    const auto link = loadLinkOfTheWeek(arcade(), hub.files);
    EXPECT_EQ(link.announcements.size(), 500U);
    EXPECT_EQ(link.announcements.back(), (CellRow{{"Sunday", "18:00", "Main"}}));
}

TEST_F(Archive, AGapEndsTheAnnouncements)
{
    week = "tArcadeItemOfTheWeek = {\r\n\t[1] = {\r\n\t\tsTime = \"SUN 18:00\",\r\n\t},\r\n"
           "\t[3] = {\r\n\t\tsTime = \"MON 18:00\",\r\n\t},\r\n}\r\n";
    EXPECT_EQ(loadLinkOfTheWeek(arcade(), hub.files).announcements,
              (std::vector<CellRow>{{{"Sunday", "18:00", "PM"}}}));
}

TEST_F(Archive, AWordThatIsNoDayShowsAnEmptyDayAndEndsNothing)
{
    week = "tArcadeItemOfTheWeek = {\r\n\t[1] = {\r\n\t\tsTime = \"DAY 10:00\",\r\n\t},\r\n"
           "\t[2] = {\r\n\t\tsTime = \"MON 18:00\",\r\n\t},\r\n}\r\n";
    EXPECT_EQ(loadLinkOfTheWeek(arcade(), hub.files).announcements,
              (std::vector<CellRow>{{{"", "10:00", "PM"}}, {{"Monday", "18:00", "PM"}}}));
}

TEST_F(Archive, ALinkOfTheWeekIsOnForAOneAndElseOff)
{
    for (const std::string stored : {"1", "0", "", "yes"}) {
        week = "tArcadeItemOfTheWeek = {\r\n\tbEnabled = " + stored + ",\r\n}\r\n";
        EXPECT_EQ(loadLinkOfTheWeek(arcade(), hub.files).enabled, stored == "1" ? "1" : "0") << stored;
    }
}

TEST_F(Archive, ARebuildFillsInWhereAnAnnouncementGoes)
{
    hyperlink("ItemOfTheWeek") =
        "tHyperlinkItemOfTheWeek = {\r\n\t[1] = {\r\n\t\tsTime = \"MON 10:00\",\r\n\t},\r\n}\r\n";
    build();
    EXPECT_EQ(luaValues(hyperlink("ItemOfTheWeek")).at("tHyperlinkItemOfTheWeek.1.bInMain"), "0");
}

TEST_F(Archive, HoursAndMinutesHaveTwoDigits)
{
    EXPECT_EQ(hours().size(), 24U);
    EXPECT_EQ(hours().front(), "00");
    EXPECT_EQ(hours().back(), "23");
    EXPECT_EQ(minutes().size(), 60U);
    EXPECT_EQ(minutes()[9], "09");
    EXPECT_EQ(minutes().back(), "59");
}

TEST_F(Archive, ARestoredWeekHasTheDefaults)
{
    const LinkOfTheWeek link = restoredLinkOfTheWeek();
    EXPECT_EQ(link.enabled, "1");
    EXPECT_EQ(link.changeTime, "Sunday 17:59");
    ASSERT_EQ(link.announcements.size(), 1U);
    EXPECT_EQ(link.announcements[0].cells, (std::vector<std::string>{"Sunday", "18:00", "PM"}));
}

TEST(HubScriptArchive, SeesTheBuiltFiles)
{
    for (std::size_t place = 0; place < ring.size(); ++place) {
        const std::string table = "tHyperlink" + ring[(place + ring.size() - 1) % ring.size()];
        EXPECT_EQ(
            luaValues(golden("archive/Hyperlink" + ring[place] + ".build.tbl")),
            (LuaValues{{table + ".-1", "0"}, {table + ".0", "0"}, {table + ".1", "0"}, {table + ".2", "0"}}));
    }
    EXPECT_EQ(luaValues(golden("archive/HyperlinkItemOfTheWeek.build.tbl")),
              (LuaValues{{"tHyperlinkItemOfTheWeek.bEnabled", "1"},
                         {"tHyperlinkItemOfTheWeek.sChangeTime", "SUN 17:59"},
                         {"tHyperlinkItemOfTheWeek.1.sTime", "SUN 18:00"},
                         {"tHyperlinkItemOfTheWeek.1.bInMain", "0"}}));
    EXPECT_EQ(luaValues(golden("archive/HyperlinkNewItems.build.tbl")),
              (LuaValues{{"tHyperlinkNewItems.bEnableNewItems", "1"},
                         {"tHyperlinkNewItems.iNumberOfNewItems", "5"}}));
    EXPECT_EQ(
        luaValues(golden("archive/ArcadeNewItems.save.tbl")),
        (LuaValues{{"tArcadeNewItems.bEnableNewItems", "1"}, {"tArcadeNewItems.iNumberOfNewItems", "1"}}));
}

TEST(HubScriptArchive, CannotLoadWhatTheWeekAndThePermissionFormsSave)
{
    // The change time has no quotes.
    EXPECT_THROW(luaValues(golden("archive/ArcadeItemOfTheWeek.save.tbl")), std::runtime_error);
    // A nested table is closed that was never opened.
    EXPECT_THROW(luaValues(golden("archive/ArcadeEnableDelete.save.tbl")), std::runtime_error);
    EXPECT_THROW(luaValues(golden("archive/HyperlinkRCEnableItem.save.tbl")), std::runtime_error);
}

} // namespace
} // namespace quillfen
