#include "declarations/declaration.h"
#include "settings/tablewriter.h"
#include "support/hub.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

TableFile sample()
{
    return {"A.tbl",
            "tSample",
            {setting::flag("bFlag", "chkCheckBox(0)", "Flag", true),
             setting::number("iNumber", "txtUpDown(0)", "Number", 5, 1, 50),
             setting::text("sText", "txtTextBox(0)", "Text", "x"),
             setting::entry("sEntry", "cboComboBox", "Entry", "+", {"+", "-"}),
             setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles")},
            {"sEntry", "bFlag", "tEnabledProfiles", "iNumber", "sText"}};
}

class Declaration : public testing::Test
{
protected:
    Declaration() { hub.profiles.add("Master"); }

    std::string saved(const std::string& bytes)
    {
        return composed(sample(), loaded(sample(), TableIndex(bytes), hub.profiles), RowOrder::Save,
                        hub.profiles);
    }

    std::string built(const std::string& bytes)
    {
        hub.file("A.tbl") = bytes;
        rebuildTableFile(sample(), hub.files, hub.profiles);
        return hub.file("A.tbl");
    }

    /// What a rebuild writes where there was no file.
    std::string built(const TableFile& file)
    {
        hub.store.files.erase(hub.root + "/A.tbl");
        rebuildTableFile(file, hub.files, hub.profiles);
        return hub.file("A.tbl");
    }

    test::Hub hub;
};

TEST_F(Declaration, SaveWritesTheDeclaredOrder)
{
    EXPECT_EQ(
        saved("tSample = {\r\n\tsText = \"t\",\r\n\tsEntry = \"-\",\r\n\tbFlag = 1,\r\n\tiNumber = 77,\r\n"
              "\ttEnabledProfiles = {\r\n\t\t[0] = 1,\r\n\t},\r\n}\r\n"),
        "tSample = {\r\n\tbFlag = 1,\r\n\tiNumber = 77,\r\n\tsText = \"t\",\r\n\tsEntry = \"-\",\r\n"
        "\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t},\r\n}");
}

TEST_F(Declaration, LoadFindsAKeyWhereverItStands)
{
    EXPECT_EQ(loaded(sample(), TableIndex("tOther = {\r\n\tsText = \"t\",\r\n}"), hub.profiles).at("sText"),
              "t");
}

TEST_F(Declaration, AProfileListIsReadFromItsOwnTable)
{
    const TableIndex index(
        "tSample = {\r\n\t[0] = 1,\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 1,\r\n\t},\r\n}");
    const auto values = loaded(sample(), index, hub.profiles);
    EXPECT_EQ(values.at("tEnabledProfiles/-1"), "1");
    EXPECT_EQ(values.at("tEnabledProfiles/0"), "0");
}

TEST_F(Declaration, RestoreGivesTheDefaultsAndTicksNoProfile)
{
    EXPECT_EQ(restored(sample(), hub.profiles), (SettingValues{{"bFlag", "1"},
                                                               {"iNumber", "5"},
                                                               {"sText", "x"},
                                                               {"sEntry", "+"},
                                                               {"tEnabledProfiles/-1", "0"},
                                                               {"tEnabledProfiles/0", "0"}}));
}

TEST_F(Declaration, ABuildOfNothingWritesTheDefaultsInTheRebuildsOrder)
{
    EXPECT_EQ(
        built(""),
        "tSample = {\r\n\tsEntry = \"+\",\r\n\tbFlag = 1,\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n"
        "\t\t[0] = 0,\r\n\t},\r\n\tiNumber = 5,\r\n\tsText = \"x\",\r\n}\r\n");
}

TEST_F(Declaration, ARebuildKeepsZeroAndRefillsAnEmptyText)
{
    const std::string bytes = built("tSample = {\r\n\tbFlag = 0,\r\n\tsText = \"\",\r\n}");
    EXPECT_NE(bytes.find("\tbFlag = 0,\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\tsText = \"x\",\r\n"), std::string::npos);
}

TEST_F(Declaration, ARebuildDropsUnknownKeysAndComments)
{
    const std::string bytes = built("-- mine\r\ntSample = {\r\n\tiOld = 3,\r\n}");
    EXPECT_EQ(bytes.find("iOld"), std::string::npos);
    EXPECT_EQ(bytes.find("mine"), std::string::npos);
}

TEST_F(Declaration, ARebuildLooksOnlyInTheFilesOwnTable)
{
    const std::string bytes = built("\tiNumber = 9,\r\ntSample = {\r\n}");
    EXPECT_NE(bytes.find("\tiNumber = 5,"), std::string::npos);
}

TEST_F(Declaration, ANewProfileJoinsARebuildWithZeroAndTheOthersKeepTheirFlags)
{
    hub.profiles.add("VIP");
    const std::string bytes =
        built("tSample = {\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 1,\r\n\t},\r\n}");
    EXPECT_NE(bytes.find("\t\t[-1] = 1,\r\n\t\t[0] = 1,\r\n\t\t[1] = 0,\r\n"), std::string::npos);
}

TEST_F(Declaration, OddAndOutOfRangeTextsSurviveARebuild)
{
    const std::string bytes = built("tSample = {\r\n\tiNumber = abc=9,\r\n\tsEntry = \"\xA3\x80\",\r\n}");
    EXPECT_NE(bytes.find("\tiNumber = abc=9,"), std::string::npos);
    EXPECT_NE(bytes.find("\tsEntry = \"\xA3\x80\","), std::string::npos);
}

TEST_F(Declaration, ReadsItsFileOnceForAllItsSettings)
{
    built("");
    EXPECT_EQ(hub.store.readings[hub.root + "/A.tbl"], 1);
}

TEST_F(Declaration, AKeyThatIsNotSavedIsKeptByARebuildAndDroppedByASave)
{
    const TableFile file = {
        "A.tbl",
        "tSample",
        {setting::rebuiltText("sHidden", "x"), setting::flag("bFlag", "chkCheckBox", "Flag", true)}};
    const TableIndex index("tSample = {\r\n\tsHidden = \"t\",\r\n}");
    const auto values = rebuilt(file, index, hub.profiles);
    EXPECT_EQ(composed(file, values, RowOrder::Rebuild, hub.profiles),
              "tSample = {\r\n\tsHidden = \"t\",\r\n\tbFlag = 1,\r\n}");
    EXPECT_EQ(composed(file, values, RowOrder::Save, hub.profiles), "tSample = {\r\n\tbFlag = 1,\r\n}");
}

TEST_F(Declaration, AProfileTableCanBeginWithTheHubsFirstProfile)
{
    hub.profiles.add("VIP");
    const TableFile file = {"A.tbl", "tSample", {setting::hubProfileFlags("tCreate", "lvwCreate", "Create")}};
    const TableIndex index("tSample = {\r\n\ttCreate = {\r\n\t\t[-1] = 1,\r\n\t\t[1] = 1,\r\n\t},\r\n}");
    const std::string expected = "tSample = {\r\n\ttCreate = {\r\n\t\t[0] = 0,\r\n\t\t[1] = 1,\r\n\t},\r\n}";
    EXPECT_EQ(composed(file, loaded(file, index, hub.profiles), RowOrder::Save, hub.profiles), expected);
    EXPECT_EQ(composed(file, rebuilt(file, index, hub.profiles), RowOrder::Rebuild, hub.profiles), expected);
}

TEST_F(Declaration, ASaveMakesItsFolderOnlyWhereThatIsDeclared)
{
    TableFile file = {"Own\\A.tbl", "tSample", {setting::flag("bFlag", "chkCheckBox", "Flag", true)}};
    EXPECT_THROW(saveTableFile(file, {{"bFlag", "0"}}, hub.files, hub.profiles), StoreError);
    file.makesFolder = true;
    for (const char* value : {"0", "1"}) // the second save finds the folder made
        saveTableFile(file, {{"bFlag", value}}, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Own/A.tbl"), "tSample = {\r\n\tbFlag = 1,\r\n}\r\n");
}

TEST_F(Declaration, TheRowsAloneStandAmongOthersInATable)
{
    const TableFile file = {"A.tbl", "tSample", {setting::flag("bFlag", "chkCheckBox", "Flag", true)}};
    TableWriter table("tOther");
    table.row("iFirst", "1");
    writeRows(table, file, {{"bFlag", "0"}}, RowOrder::Save, hub.profiles);
    table.row("iLast", "2");
    EXPECT_EQ(table.closed(), "tOther = {\r\n\tiFirst = 1,\r\n\tbFlag = 0,\r\n\tiLast = 2,\r\n}");
}

/// A file of one setting.
TableFile only(Setting setting)
{
    return {"A.tbl", "tSample", {std::move(setting)}};
}

TEST_F(Declaration, ALetterStandsQuotedForItsEntry)
{
    const TableFile file =
        only(setting::letter("sAction", "cboComboBox", "Action", "TempBan", {"Kick", "TempBan"}));
    rebuildTableFile(file, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("A.tbl"), "tSample = {\r\n\tsAction = \"T\",\r\n}\r\n");
    hub.file("A.tbl") = "tSample = {\r\n\tsAction = \"K\",\r\n}\r\n";
    rebuildTableFile(file, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("A.tbl"), "tSample = {\r\n\tsAction = \"K\",\r\n}\r\n");
}

TEST_F(Declaration, AFlagMayShowAsTickedByAnyNumberAboveZero)
{
    const TableFile file =
        only(setting::flag("bFlag", "chkCheckBox", "Flag", true, {.tickedAboveZero = true}));
    const TableIndex two("tSample = {\r\n\tbFlag = 2,\r\n}");
    EXPECT_EQ(loaded(file, two, hub.profiles).at("bFlag"), "1");
    EXPECT_EQ(rebuilt(file, two, hub.profiles).at("bFlag"), "2") << "a rebuild keeps what stands there";
    EXPECT_EQ(loaded(file, TableIndex("tSample = {\r\n\tbFlag = -2,\r\n}"), hub.profiles).at("bFlag"), "0");
    EXPECT_EQ(loaded(file, TableIndex(""), hub.profiles).at("bFlag"), "0");
    EXPECT_EQ(
        loaded(only(setting::flag("bFlag", "chkCheckBox", "Flag", true)), two, hub.profiles).at("bFlag"), "2")
        << "which ticks no other flag";
}

TEST_F(Declaration, ALetterThatIsMissingMayShowAsAWord)
{
    const auto shown = [this](const std::string& wordWhereNone, const std::string& rows) {
        const TableFile file =
            only(setting::letter("sAction", "cboComboBox", "Action", "Ban", {"Kick", "Ban"}, wordWhereNone));
        return loaded(file, TableIndex("tSample = {\r\n" + rows + "}"), hub.profiles).at("sAction");
    };
    EXPECT_EQ(shown("Kick", ""), "K");
    EXPECT_EQ(shown("Kick", "\tsAction = \"B\",\r\n"), "B");
    EXPECT_EQ(shown("", ""), "");
}

TEST_F(Declaration, ARebuildMayHaveADefaultOfItsOwn)
{
    auto number = setting::number("iNumber", "txtUpDown", "Number", 5, 1, 50);
    number.rebuild.defaultText = "";
    const TableFile file = only(number);
    EXPECT_EQ(restored(file, hub.profiles).at("iNumber"), "5");
    EXPECT_EQ(rebuilt(file, TableIndex(""), hub.profiles).at("iNumber"), "");
    EXPECT_EQ(rebuilt(file, TableIndex("tSample = {\r\n\tiNumber = 7,\r\n}"), hub.profiles).at("iNumber"),
              "7");
}

TEST_F(Declaration, ARebuildMayResetASetting)
{
    auto flags = setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles");
    const std::string bytes = "tSample = {\r\n\ttEnabledProfiles = {\r\n\t\t[0] = 1,\r\n\t},\r\n}";
    EXPECT_EQ(rebuilt(only(flags), TableIndex(bytes), hub.profiles).at("tEnabledProfiles/0"), "1");
    flags.rebuild.resets = true;
    EXPECT_EQ(rebuilt(only(flags), TableIndex(bytes), hub.profiles).at("tEnabledProfiles/0"), "0");
    EXPECT_EQ(loaded(only(flags), TableIndex(bytes), hub.profiles).at("tEnabledProfiles/0"), "1");
}

TEST_F(Declaration, WhatRestoreLeavesAloneIsNotAmongTheDefaults)
{
    const auto flags = setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles");
    EXPECT_EQ(restored(only(notRestored(flags)), hub.profiles), SettingValues());
}

TEST_F(Declaration, NeighboursOfOneNestedTableShareIt)
{
    const auto nested = [](const char* nest, setting::Field field) {
        field.nest = nest;
        return field;
    };
    const TableFile file = {"A.tbl",
                            "tSample",
                            {setting::text("sText", "txtTextBox", "Text", "x"),
                             nested("tInner", setting::number("iNumber", "txtUpDown", "Number", 5, 1, 50)),
                             nested("tInner", setting::flag("bFlag", "chk", "Flag", true)),
                             nested("tLists", setting::profileFlags("tMain", "lvwMain", "Main"))},
                            {"iNumber", "bFlag", "sText", "tMain"}};
    const std::string save = "tSample = {\r\n\tsText = \"x\",\r\n\ttInner = {\r\n\t\tiNumber = 5,\r\n"
                             "\t\tbFlag = 1,\r\n\t},\r\n\ttLists = {\r\n\t\ttMain = {\r\n\t\t\t[-1] = 0,\r\n"
                             "\t\t\t[0] = 1,\r\n\t\t},\r\n\t},\r\n}";
    auto values = restored(file, hub.profiles);
    values["tMain/0"] = "1";
    EXPECT_EQ(composed(file, values, RowOrder::Save, hub.profiles), save);
    EXPECT_EQ(composed(file, values, RowOrder::Rebuild, hub.profiles),
              "tSample = {\r\n\ttInner = {\r\n\t\tiNumber = 5,\r\n\t\tbFlag = 1,\r\n\t},\r\n"
              "\tsText = \"x\",\r\n\ttLists = {\r\n\t\ttMain = {\r\n\t\t\t[-1] = 0,\r\n\t\t\t[0] = 1,\r\n"
              "\t\t},\r\n\t},\r\n}");
    EXPECT_EQ(loaded(file, TableIndex(save), hub.profiles), values);
    EXPECT_EQ(rebuilt(file, TableIndex(save), hub.profiles), values);
    EXPECT_EQ(rebuilt(file, TableIndex("tSample = {\r\n\tiNumber = 9,\r\n}"), hub.profiles).at("iNumber"),
              "5")
        << "a number of a nested table is looked for there";
}

TEST_F(Declaration, NamedFlagsStandInATableOfTheirOwn)
{
    const TableFile file =
        only(setting::namedFlags("tBlock", "lvwBlocked", "Blocked", {"Active", "Passive"}));
    const std::string bytes =
        "tSample = {\r\n\ttBlock = {\r\n\t\tbActive = 0,\r\n\t\tbPassive = 1,\r\n\t},\r\n}";
    const auto values = loaded(file, TableIndex(bytes), hub.profiles);
    EXPECT_EQ(values, (SettingValues{{"tBlock/bActive", "0"}, {"tBlock/bPassive", "1"}}));
    EXPECT_EQ(composed(file, values, RowOrder::Save, hub.profiles), bytes);
    EXPECT_EQ(rebuilt(file, TableIndex(bytes), hub.profiles), values);
    EXPECT_EQ(rebuilt(file, TableIndex(""), hub.profiles),
              (SettingValues{{"tBlock/bActive", "0"}, {"tBlock/bPassive", "0"}}));
}

TEST_F(Declaration, AProfileKeyStandsBareAndIsTheHubsFirstByDefault)
{
    const TableFile file = only(setting::profileKey("iProfile", "cboComboBox", "Profile"));
    EXPECT_EQ(composed(file, {{"iProfile", "2"}}, RowOrder::Save, hub.profiles),
              "tSample = {\r\n\tiProfile = 2,\r\n}");
    EXPECT_EQ(restored(file, hub.profiles).at("iProfile"), "0");
}

TEST_F(Declaration, NamedTextsStandInATableOfTheirOwnAndARebuildFillsThemIn)
{
    const TableFile file =
        only(setting::NamedTexts{"tSum", "lvwSum", "Sums", {{"sOne", "1"}, {"sTwo", "2"}}});
    const std::string bytes =
        "tSample = {\r\n\ttSum = {\r\n\t\tsOne = \"a\",\r\n\t\tsTwo = \"\",\r\n\t},\r\n}";
    const auto values = loaded(file, TableIndex(bytes), hub.profiles);
    EXPECT_EQ(values, (SettingValues{{"tSum/sOne", "a"}, {"tSum/sTwo", ""}}));
    EXPECT_EQ(composed(file, values, RowOrder::Save, hub.profiles), bytes);
    EXPECT_EQ(rebuilt(file, TableIndex(bytes), hub.profiles),
              (SettingValues{{"tSum/sOne", "a"}, {"tSum/sTwo", "2"}}));
    EXPECT_EQ(restored(file, hub.profiles), (SettingValues{{"tSum/sOne", "1"}, {"tSum/sTwo", "2"}}));
}

TEST_F(Declaration, ConstantRowsMayDifferBetweenSaveAndRebuild)
{
    setting::ConstantRows rows = {"tBang", {"\"Die\"", "\"Live\""}};
    EXPECT_EQ(built(only(rows)),
              "tSample = {\r\n\ttBang = {\r\n\t\t\"Die\",\r\n\t\t\"Live\",\r\n\t},\r\n}\r\n");
    rows.rebuiltRows = {"Die", "Live"};
    EXPECT_EQ(built(only(rows)), "tSample = {\r\n\ttBang = {\r\n\t\tDie,\r\n\t\tLive,\r\n\t},\r\n}\r\n");
    EXPECT_EQ(composed(only(rows), {}, RowOrder::Save, hub.profiles),
              "tSample = {\r\n\ttBang = {\r\n\t\t\"Die\",\r\n\t\t\"Live\",\r\n\t},\r\n}");
}

TEST_F(Declaration, AConstantTextIsWrittenByASaveAndKeptByARebuild)
{
    const TableFile file = only(setting::ConstantText{"sLetters", "ABC"});
    EXPECT_EQ(composed(file, {}, RowOrder::Save, hub.profiles), "tSample = {\r\n\tsLetters = \"ABC\",\r\n}");
    EXPECT_EQ(built(file), "tSample = {\r\n\tsLetters = \"\",\r\n}\r\n");
    hub.file("A.tbl") = "tSample = {\r\n\tsLetters = \"X\",\r\n}";
    rebuildTableFile(file, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("A.tbl"), "tSample = {\r\n\tsLetters = \"X\",\r\n}\r\n");
}

TEST_F(Declaration, AnIdleNumberIsNeverWritten)
{
    const TableFile file = only(setting::Idle{setting::number("iIdle", "txtUpDown", "Idle", 5, 0, 9)});
    EXPECT_EQ(composed(file, {}, RowOrder::Save, hub.profiles), "tSample = {\r\n}");
    EXPECT_EQ(built(file), "tSample = {\r\n}\r\n");
}

TEST_F(Declaration, ASaveMayWriteAKeyInItsOwnWay)
{
    auto number = setting::number("iCount", "txtUpDown", "Count", 5, 0, 9);
    number.keyInSave = "iCount ";
    const std::string saved = composed(only(number), {{"iCount", "5"}}, RowOrder::Save, hub.profiles);
    EXPECT_EQ(saved, "tSample = {\r\n\tiCount  = 5,\r\n}");
    EXPECT_EQ(loaded(only(number), TableIndex(saved), hub.profiles).at("iCount"), "5");
    EXPECT_EQ(built(only(number)), "tSample = {\r\n\tiCount = 5,\r\n}\r\n");
}

} // namespace
} // namespace quillfen
