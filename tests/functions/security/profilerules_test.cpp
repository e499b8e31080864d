#include "functions/security/profilerules.h"
#include "functions/security/securitytest.h"

#include <cstdint>

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class ProfileRules : public test::SecurityFiles
{
protected:
    std::string& named(const std::string& name) { return file("ProfileRules/ProfileRule" + name + ".tbl"); }
    void build() { buildFunction(profileRulesFunction(), hub.files, hub.profiles); }
};

TEST_F(ProfileRules, AFreshBuildLeavesTheDelayWithoutValueAndTheTextsEmpty)
{
    build();
    EXPECT_TRUE(sameBytes(named("Settings"), golden("ProfileRuleSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(named("s"), golden("ProfileRules.build.tbl")));
    EXPECT_EQ(named("sExemptUsers"), "tProfileRulesExemptUsers = {\r\n}\r\n");
    EXPECT_TRUE(sameBytes(named("sRedirectCounter"), golden("RedirectCounter.build.tbl")));
}

TEST_F(ProfileRules, ARebuildKeepsAllButTheCounters)
{
    named("Settings") = golden("ProfileRuleSettings.save.tbl");
    named("s") = golden("ProfileRules.save.tbl");
    named("sExemptUsers") = "tProfileRulesExemptUsers = {\r\n\t[\"Ann\"] = 1,\r\n}\r\n";
    named("sRedirectCounter") = "tProfileRulesRedirectCounter = {\r\n\tiMinShare = 7,\r\n}\r\n";
    build();
    EXPECT_TRUE(sameBytes(named("Settings"), golden("ProfileRuleSettings.rebuild.tbl")));
    EXPECT_TRUE(sameBytes(named("s"), golden("ProfileRules.save.tbl")));
    EXPECT_EQ(named("sExemptUsers"), "tProfileRulesExemptUsers = {\r\n\t[\"Ann\"] = 1,\r\n}\r\n");
    EXPECT_TRUE(sameBytes(named("sRedirectCounter"), golden("RedirectCounter.build.tbl")));
}

TEST_F(ProfileRules, ANewProfileGetsABlockOfDefaults)
{
    named("s") = golden("ProfileRules.save.tbl");
    hub.profiles.add("Reg");
    build();
    std::string expected = golden("ProfileRules.save.tbl");
    expected.erase(expected.size() - 3);
    expected += "\t[3] = {\r\n\t\tiMinShare = 0,\r\n\t\tiMaxShare = 0,\r\n\t\tiMinSlots = "
                "0,\r\n\t\tiMaxSlots = 0,\r\n"
                "\t\tiMaxHubs = 0,\r\n\t\tsHubSlotRatio = \"0/0\",\r\n\t},\r\n}\r\n";
    EXPECT_TRUE(sameBytes(named("s"), expected));
}

TEST_F(ProfileRules, ARebuildTakesAnEmptyValueForAMissingOne)
{
    const auto emptied = [](std::string text, std::string_view row, std::string_view emptyRow) {
        EXPECT_NE(text.find(row), std::string::npos) << row;
        for (auto at = text.find(row); at != std::string::npos; at = text.find(row))
            text.replace(at, row.size(), emptyRow);
        return text;
    };
    // The delay has no value in a fresh file, and stays without one.
    named("Settings") =
        emptied(golden("ProfileRuleSettings.build.tbl"), "bEnableRedirectLog = 1,", "bEnableRedirectLog = ,");
    named("s") = emptied(golden("ProfileRules.build.tbl"), "iMinSlots = 0,", "iMinSlots = ,");
    named("s") = emptied(named("s"), "sHubSlotRatio = \"0/0\",", "sHubSlotRatio = \"\",");
    build();
    EXPECT_TRUE(sameBytes(named("Settings"), golden("ProfileRuleSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(named("s"), golden("ProfileRules.build.tbl")));
}

TEST_F(ProfileRules, AMessageIsShownUpToAnEqualsSignAndKeptWholeByARebuild)
{
    named("s") = "tProfileRules = {\r\n\ttMessages = {\r\n\t\tsMinShare = \"a=b\",\r\n\t},\r\n}\r\n";
    EXPECT_EQ(profileRules().lists.at(1).load(hub.files, hub.profiles),
              (std::vector<CellRow>{{{"MinShare", "a"}}}));
    build();
    EXPECT_NE(named("s").find("\t\tsMinShare = \"a=b\",\r\n"), std::string::npos);
}

TEST_F(ProfileRules, WhatWasNeverSetIsSavedAsARuleOfZero)
{
    const RowListGroup group = profileRules();
    std::vector<std::vector<CellRow>> rows;
    for (const RowListDeclaration& list : group.lists)
        rows.push_back(list.load(hub.files, hub.profiles));
    group.save(hub.files, rows);
    const auto values = luaValues(named("s"));
    for (const char* rule : {"iMinShare", "iMaxShare", "iMinSlots", "iMaxSlots", "iMaxHubs"})
        EXPECT_EQ(values.at(std::string("tProfileRules.-1.") + rule), "0") << rule;
}

TEST_F(ProfileRules, TheUnitOfAShareGoesByItsDigits)
{
    const std::vector<std::pair<const char*, const char*>> shares = {
        {"", ""},
        {"0", "0 KB"},
        {"1", "0.0009765625 KB"},
        {"500000", "488.28125 KB"},
        {"999999", "976.5615234375 KB"},
        {"1048576", "1 MB"},
        {"999999999", "953.674315452576 MB"},
        {"1000000000", "0.931322574615479 GB"},
        {"999999999999", "931.322574614547 GB"},
        {"1000000000000", "0.909494701772928 TB"},
        {"1125899906842624", "1024 TB"},
        {"none", "0 KB"},
    };
    for (const auto& [stored, text] : shares)
        EXPECT_EQ(shownShare(stored), text) << stored;
}

TEST_F(ProfileRules, AShareIsStoredAsBytes)
{
    const std::vector<std::pair<const char*, const char*>> shares = {
        {"0 KB", "0"},
        {"976.5615234375 KB", "999999"},
        {"1 MB", "1048576"},
        {"2.5 GB", "2684354560"},
        {"3 TB", "3298534883328"},
        {"3 XB", "3298534883328"},
        {"0.3 KB", "307.2"},
        {"1024 TB", "1.12589990684262E+15"},
        {"", "0"},
    };
    for (const auto& [text, stored] : shares)
        EXPECT_EQ(storedShare(text), stored) << text;
}

TEST_F(ProfileRules, ACountOfBytesOfAnyLengthComesBackAsItStood)
{
    for (std::uint64_t digits = 1, least = 1; digits <= 14; ++digits, least *= 10) {
        for (std::uint64_t step = 0; step < 3000; ++step) {
            const std::string stored = std::to_string(least + step * (least * 9 / 3000));
            EXPECT_EQ(storedShare(shownShare(stored)), stored);
        }
    }
    // Of 15 digits the last may move by one, once: the shown number has no more digits than the count.
    EXPECT_EQ(storedShare(shownShare("113200000000000")), "113199999999999");
    EXPECT_EQ(storedShare(shownShare("113199999999999")), "113199999999999");
    // 16 digits are one more than a number's text has: they are rounded once, and stay from then on.
    const std::string rounded = storedShare(shownShare("1234567890123456"));
    EXPECT_EQ(rounded, "1.23456789012346E+15");
    EXPECT_EQ(storedShare(shownShare(rounded)), rounded);
}

TEST_F(ProfileRules, AShareThatIsNoPlainCountIsSavedAsTheNumberThatItShows)
{
    const std::pair<const char*, const char*> shares[] = {
        {"0", "0"},      {"1234567890123456789", "1234567890123456789"}, {"007", "7"}, {"2.50", "2.5"},
        {"1e3", "1000"},
    };
    for (const auto& [stored, saved] : shares) {
        hub.file("Security/ProfileRules/ProfileRules.tbl") =
            "tProfileRules = {\r\n\t[-1] = {\r\n\t\tiMinShare = " + std::string(stored) +
            ",\r\n\t},\r\n}\r\n";
        const auto rows = profileRules().lists.at(0).load(hub.files, hub.profiles);
        EXPECT_EQ(rows.at(0).cells.back(), saved) << stored;
    }
}

TEST_F(ProfileRules, TheHubScriptCannotLoadAFreshDelayWithoutValueAndLoadsASavedOne)
{
    EXPECT_THROW(luaValues(golden("ProfileRuleSettings.build.tbl")), std::runtime_error);
    const auto settings = luaValues(golden("ProfileRuleSettings.save.tbl"));
    EXPECT_EQ(settings.at("tProfileRuleSettings.iCheckDelay"), "366");
    EXPECT_EQ(settings.at("tProfileRuleSettings.tEnabledSetProfiles.0"), "1");
    EXPECT_EQ(settings, luaValues(golden("ProfileRuleSettings.rebuild.tbl")));
    const auto rules = luaValues(golden("ProfileRules.save.tbl"));
    EXPECT_EQ(rules.size(), 36U);
    EXPECT_EQ(rules.at("tProfileRules.tMessages.sMinShare"), "Share more");
    EXPECT_EQ(rules.at("tProfileRules.tRedirects.sHubSlotRatio"), "other.example.com");
    EXPECT_EQ(rules.at("tProfileRules.-1.iMinShare"), "2097152");
    EXPECT_EQ(rules.at("tProfileRules.-1.sHubSlotRatio"), "3/1");
    EXPECT_EQ(rules.at("tProfileRules.1.iMaxHubs"), "12");
    EXPECT_EQ(luaValues(golden("RedirectCounter.build.tbl")).at("tProfileRulesRedirectCounter.iHubSlotRatio"),
              "0");
}

TEST_F(ProfileRules, EachRowHasTheDialogOfItsRule)
{
    build();
    const RowListDeclaration& list = profileRules().lists.at(0);
    const auto rows = list.load(hub.files, hub.profiles);
    ASSERT_EQ(rows.size(), 24U);
    using Texts = std::vector<std::string>;
    Texts titles;
    std::vector<Texts> labels;
    for (std::size_t rule = 0; rule < 6; ++rule) {
        titles.push_back(list.dialogOf(rows[rule]).editTitle);
        labels.push_back(list.dialogOf(rows[rule]).labels);
    }
    EXPECT_EQ(labels, (std::vector<Texts>{{"Min Share", "Units"},
                                          {"Max Share", "Units"},
                                          {"Min Slots"},
                                          {"Max Slots"},
                                          {"Max Hubs"},
                                          {"Hubs", "Slots"}}));
    EXPECT_EQ(titles, (Texts{"Edit File", "Edit File", "Edit Min Slots", "Edit Max Slots", "Edit Max Hubs",
                             "Edit Hub Slot Ratio"}));
    const RowDialog share = list.dialogOf(rows[1]);
    EXPECT_EQ(share.form, EditForm::UpDownCombo);
    EXPECT_EQ(share.entries, (std::vector<std::vector<std::string>>{{"KB", "MB", "GB", "TB"}}));
    EXPECT_EQ(share.editMode, 1);
    const RowDialog slots = list.dialogOf(rows[2]);
    EXPECT_EQ(slots.form, EditForm::OneUpDown);
    EXPECT_TRUE(slots.entries.empty());
    EXPECT_FALSE(slots.editMode);
}

TEST_F(ProfileRules, ARowGoesIntoTheFieldsOfItsDialogAndBack)
{
    build();
    const RowListGroup& group = profileRules();
    const RowListDeclaration& list = group.lists.at(0);
    std::vector<std::vector<CellRow>> rows;
    for (const RowListDeclaration& each : group.lists)
        rows.push_back(each.load(hub.files, hub.profiles));
    const auto edit = [&](std::size_t row, const std::vector<std::string>& shown,
                          const std::vector<std::string>& entered) {
        EXPECT_EQ(list.fieldsOf(rows[0][row]), shown);
        list.take(entered, rows[0][row]);
    };
    edit(0, {"0", "KB"}, {"2048", "KB"});
    edit(5, {"0", "0"}, {"3", "1"});
    edit(7, {"0", "KB"}, {"1024", "TB"});
    edit(14, {"0"}, {"2"});
    edit(15, {"0"}, {"30"});
    edit(16, {"0"}, {"12"});
    EXPECT_EQ(rows[0][0].cells[2], "2048 KB");
    EXPECT_EQ(rows[0][5].cells[2], "3/1");
    const RowListDeclaration& messages = group.lists.at(1);
    EXPECT_EQ(messages.editTitleOf(rows[1][0]), "Edit MinShare Message");
    EXPECT_EQ(messages.labelsOf(rows[1][0]), std::vector<std::string>{"MinShare"});
    messages.take({"Share more"}, rows[1][0]);
    EXPECT_EQ(messages.fieldsOf(rows[1][0]), std::vector<std::string>{"Share more"});
    const RowListDeclaration& redirects = group.lists.at(2);
    EXPECT_EQ(redirects.editTitleOf(rows[2][5]), "Edit HubSlotRatio Redirect Address");
    redirects.take({"other.example.com"}, rows[2][5]);
    group.save(hub.files, rows);
    EXPECT_TRUE(sameBytes(named("s"), golden("ProfileRules.save.tbl")));
}

} // namespace
} // namespace quillfen
