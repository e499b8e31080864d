#include "support/declarationfaults.h"
#include "support/formtest.h"

namespace quillfen {
namespace {

/// A catalogue with a fault put into one of its forms.
class Declarations : public test::FormTest
{
protected:
    using Found = std::vector<std::string>;

    Found faults() const { return test::faults(forms, hub.profiles, deliberate); }

    FormDeclaration& form(const char* name)
    {
        return *std::find_if(forms.begin(), forms.end(),
                             [name](const FormDeclaration& each) { return each.form.name == name; });
    }

    /// Changes the settings of a form's first part.
    void breakFile(const char* name, const std::function<void(TableFile&)>& change)
    {
        auto& part = std::get<DeclaredSettings>(form(name).parts.front());
        part.file = [declared = part.file, change] {
            TableFile file = declared();
            change(file);
            return file;
        };
    }

    void breakSetting(const char* name, const std::string& key, const std::function<void(Setting&)>& change)
    {
        breakFile(name, [key, change](TableFile& file) {
            change(*std::find_if(file.settings.begin(), file.settings.end(),
                                 [&key](const Setting& setting) { return setting.key == key; }));
        });
    }

    /// Changes the list of a form's first part.
    void breakList(const char* name, const std::function<void(RowListDeclaration&)>& change)
    {
        auto& part = std::get<DeclaredList>(form(name).parts.front());
        part.list = [declared = part.list, change](const HubProfiles& profiles) {
            RowListDeclaration list = declared(profiles);
            change(list);
            return list;
        };
    }

    /// The hints of Guess The Number are 20 by default, and their arrows end at 10.
    const Found deliberate = {"frmGamesGuessTheNumber: default: iHintTime",
                              "frmGamesGuessTheNumber: default: iMaxHints"};
};

TEST_F(Declarations, OfAllFormsAreRight)
{
    EXPECT_EQ(forms.size(), 97U);
    EXPECT_EQ(faults(), Found());
}

TEST_F(Declarations, AFormDeclaredTwiceIsFound)
{
    forms.push_back(forms.front());
    EXPECT_EQ(faults(), Found{"frmGeneralGeneral: declared twice"});
}

TEST_F(Declarations, AFormWithoutCaptionOrPartsIsFound)
{
    form("frmGamesTrivia").form.caption.clear();
    form("frmGamesTrivia").parts.clear();
    EXPECT_EQ(faults(), (Found{"frmGamesTrivia: no caption", "frmGamesTrivia: no parts"}));
}

TEST_F(Declarations, AControlNamedTwiceIsFoundAlsoAcrossParts)
{
    breakSetting("frmGeneralGeneral", "bFlatRC", [](Setting& each) { each.control = "chkCheckBox(0)"; });
    breakSetting("frmGamesTrivia", "iScoring", [](Setting& each) { each.firstOption = 2; });
    form("frmSecurityKickSettings").parts.push_back(DeclaredText{"tlbCheckBox", "Twice", "a.asc"});
    const Found found = faults();
    EXPECT_TRUE(std::ranges::count(found, "frmGamesTrivia: control twice: optOption(2)"));
    EXPECT_TRUE(std::ranges::count(found, "frmSecurityKickSettings: control twice: tlbCheckBox"));
    EXPECT_TRUE(std::ranges::any_of(found, [](const std::string& each) {
        return each.starts_with("frmGeneralGeneral: control twice: ");
    }));
    EXPECT_EQ(found.size(), 3U);
}

TEST_F(Declarations, AControlOrALabelThatIsMissingIsFound)
{
    breakSetting("frmGamesTrivia", "iPoints", [](Setting& each) {
        each.control.clear();
        each.label.clear();
    });
    EXPECT_EQ(faults(), (Found{"frmGamesTrivia: no label: iPoints", "frmGamesTrivia: no control: iPoints"}));
}

TEST_F(Declarations, ADefaultOutsideItsRangeOrItsEntriesIsFound)
{
    const auto setDefault = [](const char* text) { return [text](Setting& each) { each.standard = text; }; };
    breakSetting("frmGamesTrivia", "iPoints", setDefault("101"));
    breakSetting("frmGamesTrivia", "iScores", setDefault("many"));
    breakSetting("frmGamesTrivia", "iScoring", setDefault("2"));
    breakSetting("frmGamesTrivia", "bManualStart", setDefault("yes"));
    breakSetting("frmGamesTrivia", "sHintChar", setDefault("**"));
    breakSetting("frmSecurityClientCheckerSettings", "sAction", setDefault("X"));
    breakSetting("frmGeneralGeneral", "sPrefix", setDefault("%"));
    Found found = faults();
    std::ranges::sort(found);
    EXPECT_EQ(found, (Found{"frmGamesTrivia: default: bManualStart", "frmGamesTrivia: default: iPoints",
                            "frmGamesTrivia: default: iScores", "frmGamesTrivia: default: iScoring",
                            "frmGamesTrivia: default: sHintChar", "frmGeneralGeneral: default: sPrefix",
                            "frmSecurityClientCheckerSettings: default: sAction"}));
}

TEST_F(Declarations, ARangeWithoutRoomIsFound)
{
    breakSetting("frmGamesTrivia", "iPoints", [](Setting& each) { each.maximum = each.minimum = 1; });
    EXPECT_EQ(faults(), Found{"frmGamesTrivia: no range: iPoints"});
}

TEST_F(Declarations, TextsWithoutTheirDefaultsAndRowsWithoutRowsAreFound)
{
    breakSetting("frmGamesNumbers", "tCalculation", [](Setting& each) { each.standards.pop_back(); });
    breakSetting("frmGamesSlotMachine", "tAux", [](Setting& each) { each.entries.clear(); });
    EXPECT_EQ(faults(), (Found{"frmGamesNumbers: texts without their defaults: tCalculation",
                               "frmGamesSlotMachine: no rows: tAux"}));
}

TEST_F(Declarations, AKeyNamedTwiceAndAnOrderThatMissesOneAreFound)
{
    breakFile("frmSecurityKickSettings", [](TableFile& file) { file.rebuildOrder.pop_back(); });
    breakFile("frmGamesSlotMachine", [](TableFile& file) {
        file.settings.push_back(constantText(file.settings.front().key, "x"));
        file.rebuildOrder.clear();
    });
    Found found = faults();
    std::ranges::sort(found);
    EXPECT_EQ(found, (Found{"frmGamesSlotMachine: key twice: bInMain",
                            "frmSecurityKickSettings: the rebuild's order doesn't name each key once"}));
}

TEST_F(Declarations, AFileWithoutPathOrTableIsFound)
{
    breakFile("frmGamesTrivia", [](TableFile& file) { file.table.clear(); });
    EXPECT_EQ(faults(), Found{"frmGamesTrivia: settings without a file"});
}

TEST_F(Declarations, AListThatMissesAPartOfItselfIsFound)
{
    breakList("frmUserActionsAttacks", [](RowListDeclaration& list) {
        list.load = nullptr;
        list.save = nullptr;
        list.columns.clear();
        list.menu.clear();
        list.dialog.labels.emplace_back("One more");
        list.dialog.entries = {{"a"}};
        list.deletion.text.clear();
    });
    Found found = faults();
    std::ranges::sort(found);
    const std::string form = "frmUserActionsAttacks: ";
    EXPECT_EQ(found, (Found{form + "entries: lvwAttacks", form + "labels: lvwAttacks",
                            form + "no columns: lvwAttacks", form + "no load: lvwAttacks",
                            form + "no menu: lvwAttacks", form + "no save: lvwAttacks",
                            form + "words of the deletion: lvwAttacks"}));
}

TEST_F(Declarations, AGroupAGridTicksAndATextThatMissAPartOfThemselvesAreFound)
{
    form("frmUserActionsInsultsModern").parts = {DeclaredLists{[] { return RowListGroup{}; }}};
    form("frmSecurityFlood").parts = {DeclaredGrid{[] { return GridSource{}; }, {.columns = {"Command"}}}};
    form("frmGeneralSwitches").parts = {DeclaredTicks{[] { return TickList{}; }}};
    form("frmSecurityMainLock").parts = {DeclaredText{}};
    Found found = faults();
    std::ranges::sort(found);
    EXPECT_EQ(
        found,
        (Found{"frmGeneralSwitches: no control: ticks", "frmGeneralSwitches: ticks of a file without flags",
               "frmGeneralSwitches: ticks without a file", "frmGeneralSwitches: ticks without a name",
               "frmSecurityFlood: a grid of no commands", "frmSecurityFlood: a grid of too few columns",
               "frmSecurityFlood: a grid without load or save", "frmSecurityMainLock: a text without a file",
               "frmSecurityMainLock: no control: a text", "frmUserActionsInsultsModern: a group of no lists",
               "frmUserActionsInsultsModern: lists without a save"}));
}

TEST_F(Declarations, WhatIsMeantMustBeThere)
{
    breakSetting("frmGamesGuessTheNumber", "iMaxHints", [](Setting& each) { each.standard = "10"; });
    EXPECT_EQ(faults(), Found{"frmGamesGuessTheNumber: default: iMaxHints (meant, and not found)"});
}

} // namespace
} // namespace quillfen
