#include "functions/useractions/spells.h"
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

class Spells : public testing::Test
{
protected:
    Spells()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    void build()
    {
        buildFunction(spellsFunction(), hub.files, hub.profiles);
        buildFunction(nickSpellsFunction(), hub.files, hub.profiles);
    }

    test::Hub hub{"UserActions/Spells", "UserActions/Spells/Spells", "UserActions/NickSpells",
                  "UserActions/NickSpells/NickSpells"};
    std::string& settings = hub.file("UserActions/Spells/SpellSettings.tbl");
    std::string& nickSettings = hub.file("UserActions/NickSpells/NickSpellSettings.tbl");
    const std::vector<std::pair<std::string, std::string>> lists = {
        {"UserActions/Spells/SpellBook.tbl", "SpellBook"},
        {"UserActions/Spells/SpellWards.tbl", "SpellWards"},
        {"UserActions/NickSpells/NickSpellBook.tbl", "NickSpellBook"}};
};

TEST_F(Spells, AFreshBuildWritesTheDelayFirstAndSeedsNoSpell)
{
    build();
    EXPECT_TRUE(sameBytes(settings, golden("useractions/SpellSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(nickSettings, golden("useractions/NickSpellSettings.build.tbl")));
    for (const auto& [path, name] : lists)
        EXPECT_TRUE(sameBytes(hub.file(path), golden("useractions/" + name + ".build.tbl"))) << path;
    EXPECT_FALSE(hub.has("UserActions/NickSpells/SpellWards.tbl"));
}

TEST_F(Spells, ARebuildKeepsValuesAndLists)
{
    settings = golden("useractions/SpellSettings.save.tbl");
    nickSettings = golden("useractions/NickSpellSettings.save.tbl");
    for (const auto& [path, name] : lists)
        hub.file(path) = "the owner's";
    build();
    EXPECT_TRUE(sameBytes(settings,
                          "tSpellSettings = {\r\n\tiDelay = 4,\r\n\tbEnableWards = 0,\r\n"
                          "\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t\t[1] = 0,\r\n"
                          "\t\t[2] = 0,\r\n\t},\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(nickSettings, golden("useractions/NickSpellSettings.save.tbl")));
    for (const auto& [path, name] : lists)
        EXPECT_EQ(hub.file(path), "the owner's");
}

TEST_F(Spells, PhrasesAreGatheredBehindThoseOfTheGatheringBefore)
{
    std::vector<CellRow> spells = {{{"frog", "", "", ""}}};
    gatherPhrases(spells, "frog", {{{"a"}}, {{"b"}}});
    EXPECT_EQ(spells[0].cells, (std::vector<std::string>{"frog", "", "a|b|", "2"}));
    gatherPhrases(spells, "frog", {{{"a"}}, {{"b"}}, {{"c"}}});
    EXPECT_EQ(spells[0].cells, (std::vector<std::string>{"frog", "", "a|b|a|b|c|", "3"}));
}

TEST_F(Spells, HaveGatheredNothingAsTheyAreLoaded)
{
    hub.file("UserActions/Spells/SpellBook.tbl") = "tSpellBook = {\r\n\t[\"Frog\"] = \"croaks\",\r\n}\r\n";
    EXPECT_EQ(spellList(spellBook()).load(hub.files, hub.profiles),
              (std::vector<CellRow>{{{"Frog", "croaks", "", ""}}}));
}

TEST_F(Spells, NamesThatDifferOnlyInCaseShareTheFirstOfThem)
{
    std::vector<CellRow> spells = {{{"Frog", "", "", ""}}, {{"FROG", "", "", ""}}};
    gatherPhrases(spells, "FROG", {{{"a"}}});
    EXPECT_EQ(spells[0].cells[SpellPhrases], "a|");
    EXPECT_EQ(spells[1].cells[SpellPhrases], "");
    gatherPhrases(spells, "toad", {{{"a"}}});
    EXPECT_EQ(spells[0].cells[SpellPhrases], "a|");
}

TEST_F(Spells, TheFirstPhraseGatheredIsNotWritten)
{
    saveSpellBook(spellBook(), {{{"frog", "makes a frog", "a|b|c|", "3"}}}, hub.files);
    EXPECT_TRUE(
        sameBytes(hub.file("UserActions/Spells/Spells/frog.tbl"), golden("useractions/Spell.once.tbl")));
    saveSpellBook(nickSpellBook(), {{{"frog", "makes a frog", "a|b|c|", "3"}}}, hub.files);
    EXPECT_TRUE(sameBytes(hub.file("UserActions/NickSpells/NickSpells/frog.tbl"),
                          golden("useractions/NickSpell.once.tbl")));
}

TEST_F(Spells, ASecondGatheringBringsTheFirstPhraseBackBehindTheOthers)
{
    saveSpellBook(spellBook(), {{{"frog", "", "a|b|c|a|b|c|d|", "4"}}}, hub.files);
    EXPECT_TRUE(
        sameBytes(hub.file("UserActions/Spells/Spells/frog.tbl"), golden("useractions/Spell.twice.tbl")));
}

TEST_F(Spells, ASpellOfOnePhraseIsWrittenEmptyAfterOneGathering)
{
    saveSpellBook(spellBook(), {{{"frog", "", "a|", "1"}}}, hub.files);
    EXPECT_EQ(hub.file("UserActions/Spells/Spells/frog.tbl"), "tSpell = {\r\n}\r\n");
}

TEST_F(Spells, PhrasesAreReadFromAFileThatDiffersInCaseAlone)
{
    hub.file("UserActions/Spells/Spells/FROG.TBL") = "tSpell = {\r\n\t\"a\",\r\n}\r\n";
    const auto phrases = loadPhrases(spellBook(), "frog", hub.files);
    ASSERT_EQ(phrases.size(), 1U);
    EXPECT_EQ(phrases[0].cells.front(), "a");
}

TEST_F(Spells, ASpellThatWasNotAmendedKeepsItsFile)
{
    hub.file("UserActions/Spells/Spells/frog.tbl") = "the owner's";
    hub.store.log.clear();
    saveSpellBook(spellBook(), {{{"frog", "makes a frog", "", ""}}, {{"owl", "makes an owl", "", ""}}},
                  hub.files);
    EXPECT_EQ(hub.store.log,
              std::vector<std::string>{"write " + hub.root + "/UserActions/Spells/SpellBook.tbl"});
    EXPECT_TRUE(
        sameBytes(hub.file("UserActions/Spells/SpellBook.tbl"), golden("useractions/SpellBook.save.tbl")));
}

TEST(HubScriptSpells, SeesWhatIsBuiltAndSaved)
{
    for (const std::string nick : {"", "Nick"}) {
        const std::string table = "t" + nick + "Spell";
        const auto values = [&nick](const char* name) {
            return luaValues(golden("useractions/" + nick + name));
        };
        EXPECT_EQ(values("SpellSettings.build.tbl").at(table + "Settings.iDelay"), "3");
        EXPECT_EQ(values("SpellSettings.save.tbl").at(table + "Settings.iDelay"), "4");
        EXPECT_EQ(values("SpellSettings.save.tbl").at(table + "Settings.tEnabledProfiles.0"), "1");
        EXPECT_EQ(values("SpellBook.build.tbl"), (LuaValues{{table + "Book", "{}"}}));
        EXPECT_EQ(values("SpellBook.save.tbl"),
                  (LuaValues{{table + "Book.frog", "makes a frog"}, {table + "Book.owl", "makes an owl"}}));
        EXPECT_EQ(values("Spell.once.tbl"), (LuaValues{{table + ".1", "b"}, {table + ".2", "c"}}));
        EXPECT_EQ(values("Spell.twice.tbl").at(table + ".3"), "a");
    }
    EXPECT_EQ(luaValues(golden("useractions/SpellSettings.save.tbl")).at("tSpellSettings.bEnableWards"), "0");
    EXPECT_EQ(luaValues(golden("useractions/SpellWards.build.tbl")), (LuaValues{{"tSpellWards", "{}"}}));
    EXPECT_EQ(luaValues(golden("useractions/SpellWards.save.tbl")),
              (LuaValues{{"tSpellWards.Merle", "1"}, {"tSpellWards.0.3.6.0", "1"}}));
}

} // namespace
} // namespace quillfen
