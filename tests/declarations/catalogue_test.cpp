#include "functions/catalogue.h"
#include "support/declarationfaults.h"
#include "support/hub.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace quillfen {
namespace {

/// A catalogue with a fault put into one of its forms.
class Declarations : public testing::Test
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
                                 [&key](const Setting& each) { return keyOf(each) == key; }));
        });
    }

    void breakField(const char* name, const std::string& key,
                    const std::function<void(setting::Field&)>& change)
    {
        breakSetting(name, key, [change](Setting& each) { change(std::get<setting::Field>(each)); });
    }

    /// Changes what only fields of this kind have.
    template <typename Kind>
    void breakKind(const char* name, const std::string& key, const std::function<void(Kind&)>& change)
    {
        breakField(name, key, [change](setting::Field& field) { change(std::get<Kind>(field.kind)); });
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

    test::Hub hub;
    FormCatalogue forms = formCatalogue();
    /// The hints of Guess The Number are 20 by default, and their arrows end at 10. The archive's dialogs and
    /// a caption have a blank too much.
    const Found deliberate = {
        "frmGamesGuessTheNumber: default: iHintTime",
        "frmGamesGuessTheNumber: default: iMaxHints",
        "frmBookshelfWeek: no words:  Announcement",
        "frmDVDRackWeek: no words:  Announcement",
        "frmJukeboxWeek: no words:  Announcement",
        "frmSongbookWeek: no words:  Announcement",
        "frmArcadeWeek: no words:  Announcement",
        "frmHyperlinkWeek: no words:  Announcement",
        "frmSecurityAntiAdvertiseSettings: no words: Security ~ AntiAdvertise ~  Settings"};
};

TEST_F(Declarations, OfAllFormsAreRight)
{
    EXPECT_EQ(forms.size(), 97U);
    EXPECT_EQ(faults(), Found());
}

/// The names of the forms that something is true of.
std::vector<std::string> namesOf(const FormCatalogue& forms,
                                 const std::function<bool(const FormDescription&)>& isTrue)
{
    std::vector<std::string> names;
    for (const FormDeclaration& each : forms) {
        if (isTrue(each.form))
            names.push_back(each.form.name);
    }
    return names;
}

/// The parts of a kind, each with its form's name.
template <typename Part>
std::vector<std::pair<std::string, Part>> partsOf(const FormCatalogue& forms)
{
    std::vector<std::pair<std::string, Part>> parts;
    for (const FormDeclaration& each : forms) {
        for (const PartDeclaration& part : each.parts) {
            if (const auto* found = std::get_if<Part>(&part))
                parts.emplace_back(each.form.name, *found);
        }
    }
    return parts;
}

/// The settings files of all forms, each with its form's name.
std::vector<std::pair<std::string, TableFile>> filesOf(const FormCatalogue& forms)
{
    std::vector<std::pair<std::string, TableFile>> files;
    for (const FormDeclaration& each : forms) {
        for (const PartDeclaration& part : each.parts) {
            for (TableFile& file : settingsFilesOf(part))
                files.emplace_back(each.form.name, std::move(file));
        }
    }
    return files;
}

TEST_F(Declarations, OfTenFormsHaveNoDefaultsToRestore)
{
    EXPECT_EQ(namesOf(forms, [](const FormDescription& form) { return !form.hasRestore; }),
              (Found{"frmCommunicationMassMessage", "frmCommunicationMOTD", "frmCommunicationMute",
                     "frmCommunicationPortal", "frmCommunicationTalk", "frmCustomiseUserCustomRightClick",
                     "frmGamesTriviaQuestions", "frmSecurityFlood", "frmSecurityKickPermissions",
                     "frmSecurityProfileRuleRules"}));
}

TEST_F(Declarations, OfFormsWhoseFilesMayHoldOtherThanTheyShowedAreLoadedAgainBehindASave)
{
    EXPECT_EQ(namesOf(forms, [](const FormDescription& form) { return form.reloadsAfterSave; }),
              (Found{"frmCommunicationMassMessage", "frmCommunicationMute", "frmCommunicationTalk",
                     "frmSecurityFlood", "frmSecurityKickPermissions", "frmSecurityProfileRuleRules",
                     "frmSecurityRegistration", "frmBookshelfPermissions", "frmDVDRackPermissions",
                     "frmJukeboxPermissions", "frmSongbookPermissions", "frmArcadePermissions",
                     "frmHyperlinkPermissions", "frmHyperlinkRightClicks"}));
}

TEST_F(Declarations, OfFormsWhoseTextsSaveThemselvesAreLoadedOnce)
{
    EXPECT_EQ(namesOf(forms, [](const FormDescription& form) { return form.isLoadedOnce; }),
              (Found{"frmLanguageCommands", "frmLanguageMessages", "frmLanguageRightClick",
                     "frmCommunicationPortal", "frmGamesTriviaQuestions"}));
}

TEST_F(Declarations, OfTheGeneralSettingsAloneStayDirtyBehindADiscard)
{
    EXPECT_EQ(namesOf(forms,
                      [](const FormDescription& form) {
                          return form.afterDiscard == FormDescription::AfterDiscard::AsItStood;
                      }),
              Found{"frmGeneralGeneral"});
}

TEST_F(Declarations, OfListsWhoseDialogsHaveAModeOfTheirOwn)
{
    std::map<std::string, std::set<std::pair<int, int>>> modes;
    for (const FormDeclaration& each : forms) {
        for (const PartDeclaration& part : each.parts) {
            for (const RowListDeclaration& list : listsOf(part, hub.profiles)) {
                const RowDialog& dialog = list.dialog;
                if (dialog.addMode || dialog.editMode)
                    modes[list.list].emplace(dialog.addMode.value_or(-1), dialog.editMode.value_or(-1));
            }
        }
    }
    EXPECT_EQ(modes, (std::map<std::string, std::set<std::pair<int, int>>>{
                         {"lvwBots", {{-1, 0}}}, {"lvwClients", {{4, -1}}}, {"lvwWeek", {{6, 7}}}}));
}

TEST_F(Declarations, OfGridsHaveTheColumnsOfTheirCells)
{
    std::map<std::vector<std::string>, std::size_t> columns;
    for (const auto& [form, grid] : partsOf<DeclaredGrid>(forms))
        ++columns[grid.words.columns];
    EXPECT_EQ(columns,
              (std::map<std::vector<std::string>, std::size_t>{
                  {{"Command", "By Profile", "On Profile", "Allow To"}, 1},
                  {{"Command", "By Profile", "On Profile", "Allow", "iProfileBy", "iProfileOn"}, 1},
                  {{"Command", "By Profile", "On Profile", "Allow To", "iProfileBy", "iProfileOn"}, 3},
                  {{"Command", "Profile", "Setting"}, 7}}));
}

/// The controls of the fields that something is true of, each with its form's name.
std::vector<std::string> fieldsThat(const FormCatalogue& forms,
                                    const std::function<bool(const setting::Field&)>& isTrue)
{
    std::vector<std::string> controls;
    for (const auto& [form, file] : filesOf(forms)) {
        for (const Setting& setting : file.settings) {
            const auto* const field = std::get_if<setting::Field>(&setting);
            if (field && isTrue(*field))
                controls.push_back(form + ' ' + field->control);
        }
    }
    return controls;
}

TEST_F(Declarations, OfFewNumbersDifferFromTheOthers)
{
    const auto numbersThat = [this](const std::function<bool(const setting::NumberDetails&)>& isTrue) {
        return fieldsThat(forms, [&isTrue](const setting::Field& field) {
            const auto* const number = std::get_if<setting::Number>(&field.kind);
            return number && isTrue(number->details);
        });
    };
    EXPECT_EQ(numbersThat([](const auto& details) { return details.step != 1; }),
              (Found{"frmGamesSlotMachine txtUpDown(0)", "frmGamesSlotMachine txtUpDown(2)"}));
    EXPECT_EQ(numbersThat([](const auto& details) { return std::string_view(details.unit) == "Days"; }),
              (Found{"frmSecurityProfileRuleSettings txtUpDown", "frmSecurityUserLogSettings txtUpDown(0)"}));
    EXPECT_EQ(numbersThat([](const auto& details) { return details.clockTime; }),
              (Found{"frmSecurityKickSettings txtUpDown(5)", "frmSecurityUserLogSettings txtUpDown(1)"}));
    EXPECT_EQ(numbersThat([](const auto& details) { return details.savedAsTyped; }),
              (Found{"frmSecurityKickSettings txtUpDown(0)", "frmSecurityKickSettings txtUpDown(1)",
                     "frmSecurityKickSettings txtUpDown(2)", "frmSecurityKickSettings txtUpDown(3)",
                     "frmSecurityKickSettings txtUpDown(4)", "frmSecurityKickSettings txtUpDown(5)",
                     "frmSecurityKickSettings txtUpDown(6)", "frmSecurityMainBlock txtUpDown",
                     "frmSecurityProfileRuleSettings txtUpDown"}));
    const Found byArrows = numbersThat([](const auto& details) { return details.onlyArrows; });
    EXPECT_EQ(byArrows.size(), 62U);
    for (const std::string& control : byArrows)
        EXPECT_TRUE(control.starts_with("frmGames")) << control;
}

TEST_F(Declarations, OfFewFlagsAreOffByDefault)
{
    Found off = fieldsThat(forms, [](const setting::Field& field) {
        const auto* const flag = std::get_if<setting::Flag>(&field.kind);
        return flag && !flag->defaultValue;
    });
    EXPECT_EQ(std::erase_if(off, [](const std::string& name) { return name.starts_with("frmGames"); }), 18U)
        << "the first three of each quiz";
    EXPECT_EQ(off,
              (Found{"frmGeneralGeneral chkCheckBox(1)", "frmGeneralBots chkNotifyOps",
                     "frmCommunicationClock chkCheckBox(0)", "frmSecurityKickSettings chkCheckBox(2)",
                     "frmSecurityProfileRuleSettings chkCheckBox", "frmUserActionsJokes chkManualControl",
                     "frmUserActionsLimericks chkManualControl", "frmUserActionsProverbs chkManualControl",
                     "frmUserActionsQuotations chkManualControl"}));
    EXPECT_EQ(fieldsThat(forms,
                         [](const setting::Field& field) {
                             const auto* const flag = std::get_if<setting::Flag>(&field.kind);
                             return flag && flag->details.tickedAboveZero;
                         }),
              Found{"frmSecurityPrivateHub chkCheckBox"});
}

TEST_F(Declarations, OfTwoListsOfTicksStayAsTheyAreInARestore)
{
    std::map<bool, Found> restored;
    for (const auto& [form, part] : partsOf<DeclaredTicks>(forms))
        restored[part.ticks().restoreTicks].push_back(form);
    EXPECT_EQ(restored[true], (Found{"frmGeneralSwitches", "frmGeneralRightClicks"}));
    EXPECT_EQ(restored[false], (Found{"frmCommunicationAutoCorrect", "frmSecurityAntiAdvertiseSettings"}));
}

TEST_F(Declarations, OfOneFileAloneASaveMakesTheFolder)
{
    Found tables;
    for (const auto& [form, file] : filesOf(forms)) {
        if (file.makesFolder)
            tables.push_back(file.table);
    }
    EXPECT_EQ(tables, Found{"tHubEmailSettings"});
}

TEST_F(Declarations, OfTwoNodesStandNowhereInTheTree)
{
    Found keys;
    for (const Node& node : functionNodes()) {
        if (!node.inTree)
            keys.push_back(node.key);
    }
    EXPECT_EQ(keys, (Found{"Communication~HubEmail", "Communication~Whisper"}));
}

TEST_F(Declarations, OfFormsAreCalledByTheirKeysButForThese)
{
    std::map<std::string, std::string> others = {
        {"General~Commands", "Language ~ Commands"},
        {"General~Messages", "Language ~ Messages"},
        {"General~RightClicks", "Language ~ RightClick"},
        {"General~EnabledRightClicks", "General ~ Right Clicks"},
        {"CustomiseUser~CustomRightClick", "CustomiseUser ~ Custom Right Click"},
        {"CustomiseUser~IntroOutro~Standard", "Customise User ~ Intros & Outros ~ Standard"},
        {"CustomiseUser~IntroOutro~Custom", "Customise User ~ Intros & Outros ~ Custom"},
        {"CustomiseUser~IntroOutro~Ascii", "Customise User ~ Intros & Outros ~ Ascii"},
        {"Games~ScoreClearers", "Games ~ Score Clearers"},
        {"Games~ThreeCardMonty", "Games ~ Three Card Monty"},
        {"Security~AntiAdvertise~Settings", "Security ~ AntiAdvertise ~  Settings"},
        {"Security~AntiAdvertise~Addresses", "Security ~ AntiAdvertise"},
        {"Security~Flooder", "Security ~ Flood"},
        {"Security~PtokaXSettings", "Security~ PtokaXSettings"},
        {"Security~PrivateHub", "Security~ PrivateHub"},
        {"UserActions~Ascii", "User Actions ~ Ascii"},
        {"UserActions~Jokes", "User Actions ~ Jokes"},
        {"UserActions~Limericks", "User Actions ~ Limericks"},
        {"UserActions~Proverbs", "User Actions ~ Proverbs"},
        {"UserActions~Quotations", "User Actions ~ Quotations"},
        {"UserActions~NickSpells~SpellBook", "UserActions ~ Nick Spells ~ SpellBook"},
        {"Hyperlink~RightClicks", "Hyperlink ~ Right Clicks"}};
    for (const std::string member : {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"}) {
        others[member + "~LinkOfTheWeek"] = member + " ~ Link Of The Week";
        others[member + "~NewLinks"] = member + (member == "Hyperlink" ? " ~ New Links" : " ~ New Items");
    }
    for (const Node& node : functionNodes()) {
        if (!node.form)
            continue;
        std::string spaced;
        for (const char each : node.key)
            spaced += each == '~' ? std::string(" ~ ") : std::string(1, each);
        const auto other = others.extract(node.key);
        EXPECT_EQ(node.form->form.caption, other ? other.mapped() : spaced) << node.key;
    }
    EXPECT_TRUE(others.empty()) << others.begin()->first;
}

TEST_F(Declarations, OfAnagramsAloneAskOtherwiseBeforeARestore)
{
    for (const FormDeclaration& each : forms) {
        const bool isAnagrams = each.form.name == "frmGamesAnagrams";
        EXPECT_EQ(each.form.restoreTitle, isAnagrams ? "Restore Defaults?" : "Restore defaults?");
        EXPECT_EQ(each.form.restoreText, isAnagrams ? "Restore Quillfen defaults?" : "Restore to defaults?");
    }
}

TEST_F(Declarations, OfGridsHaveTheirCommandsInTheirOrder)
{
    std::map<Found, Found> grids;
    for (const auto& [form, part] : partsOf<DeclaredGrid>(forms)) {
        const auto commands = part.grid().commands;
        grids[Found(commands.begin(), commands.end())].push_back(form);
    }
    EXPECT_EQ(grids,
              (std::map<Found, Found>{
                  {{"Mute"}, {"frmCommunicationMute"}},
                  {{"Talk"}, {"frmCommunicationTalk"}},
                  {{"Flood"}, {"frmSecurityFlood"}},
                  {{"Drop", "Warn", "Kick", "TimeBan", "Ban", "Unban"}, {"frmSecurityKickPermissions"}},
                  {{"Add Registration", "Delete Registration", "Get Password", "Change Password"},
                   {"frmSecurityRegistration"}},
                  {{"Clear", "Delete", "Modify", "NewItems", "Submit"},
                   {"frmBookshelfPermissions", "frmDVDRackPermissions", "frmJukeboxPermissions",
                    "frmSongbookPermissions", "frmArcadePermissions", "frmHyperlinkPermissions"}},
                  {{"Category", "Item", "Pending", "Voting"}, {"frmHyperlinkRightClicks"}}}));
}

TEST_F(Declarations, OfListsOfTicksAndTextsHaveTheirLabels)
{
    Found labels;
    for (const auto& [form, part] : partsOf<DeclaredTicks>(forms)) {
        const TickList ticks = part.ticks();
        labels.push_back(ticks.control + ": " + ticks.caption + '/' + ticks.label);
    }
    for (const auto& [form, text] : partsOf<DeclaredText>(forms))
        labels.push_back(text.toolbar + ": " + text.caption);
    EXPECT_EQ(labels,
              (Found{"lvwSwitches: Functions/", "lvwSwitches: Functions/",
                     "lvwFilters: Filtered Actions/Filtered Actions", "lvwBlockedActions: /Blocked Actions",
                     "tlbCheckBox: Ascii Kick", "tlbListview: Cleaner Text"}));
}

TEST_F(Declarations, OfProfileListsWithMoreThanOneAWordEach)
{
    std::map<std::string, std::string> labels;
    for (const char* name : {"frmCustomiseUserIntroOutro", "frmCustomiseUserCustomIntroOutro",
                             "frmSecurityProfileRuleSettings"}) {
        for (const TableFile& file : settingsFilesOf(form(name).parts.front())) {
            for (const Setting& setting : file.settings) {
                const auto* const field = std::get_if<setting::Field>(&setting);
                if (field && std::holds_alternative<setting::ProfileFlags>(field->kind))
                    labels[field->label] = field->control;
            }
        }
    }
    EXPECT_EQ(labels,
              (std::map<std::string, std::string>{{"Custom Enabled Profiles", "lvwEnabledProfiles"},
                                                  {"Enabled Get Profiles", "lvwEnabledGetProfiles"},
                                                  {"Enabled Set Profiles", "lvwEnabledSetProfiles"},
                                                  {"Standard Enabled Profiles", "lvwEnabledProfiles"}}));
}

TEST_F(Declarations, OfGridsHaveTheNamesOfTheirControls)
{
    Found lists;
    Found filters;
    for (const auto& [form, grid] : partsOf<DeclaredGrid>(forms)) {
        const GridWords& words = grid.words;
        EXPECT_EQ(words.toolbar, "tlbListview") << form;
        if (words.list != "lvwPermissions")
            lists.push_back(form + ' ' + words.list);
        if (words.commandFilter != "COMMAND" || words.commandFilterTip != "View By Command")
            filters.push_back(form + ' ' + words.commandFilter + ' ' + words.commandFilterTip);
    }
    EXPECT_EQ(lists, Found{"frmSecurityRegistration lvwRegistrations"});
    EXPECT_EQ(filters, Found{"frmHyperlinkRightClicks RIGHTCLICK View By Right Click"});
}

TEST_F(Declarations, OfGridsShowTheirRowsInFourWays)
{
    std::map<std::string, Found> ways;
    for (const auto& [form, grid] : partsOf<DeclaredGrid>(forms)) {
        const GridWords& words = grid.words;
        const bool flags[] = {words.filters, words.namesTarget, words.namesCommandByProfile, words.targets,
                              words.clickToggles};
        std::string way;
        for (const bool flag : flags)
            way += flag ? '1' : '0';
        ways[way].push_back(form);
    }
    EXPECT_EQ(ways, (std::map<std::string, Found>{
                        {"10010", {"frmSecurityKickPermissions"}},
                        {"01010", {"frmSecurityFlood", "frmSecurityRegistration"}},
                        {"01110", {"frmCommunicationMute", "frmCommunicationTalk"}},
                        {"10001",
                         {"frmBookshelfPermissions", "frmDVDRackPermissions", "frmJukeboxPermissions",
                          "frmSongbookPermissions", "frmArcadePermissions", "frmHyperlinkPermissions",
                          "frmHyperlinkRightClicks"}}}));
}

TEST_F(Declarations, OfGridsHaveTheWordsOfTheirSentences)
{
    std::map<std::string, std::vector<std::string>> words;
    for (const auto& [form, grid] : partsOf<DeclaredGrid>(forms))
        words[grid.words.yes + ' ' + grid.words.no + ' ' + grid.words.targetLink].push_back(form);
    ASSERT_EQ(words.size(), 2U);
    EXPECT_EQ(words["Yes No "].size(), 11U);
    EXPECT_EQ(words["True False of"], Found{"frmSecurityRegistration"});
}

TEST_F(Declarations, AnExplanationThatBelongsToNoKeyIsFound)
{
    auto& own = std::get<OwnPart>(form("frmCommunicationPortal").parts.front());
    own.explanations[0].key = "~sUsername";
    own.explanations[1].file.clear();
    const std::string portal = "frmCommunicationPortal: ";
    EXPECT_EQ(faults(),
              (Found{portal + "no key: ~sUsername", portal + "a key without its file: txtTextBox(1)"}));
}

TEST_F(Declarations, AFormOfNoNameOrOfHalfAPixelIsFound)
{
    form("frmGamesTrivia").form.minimumSize = {150, 151};
    form("frmGamesHangman").form.name = "Hangman";
    EXPECT_EQ(faults(), (Found{"Hangman: no name of a form", "frmGamesTrivia: no size in pixels"}));
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
    breakField("frmGeneralGeneral", "bFlatRC", [](setting::Field& each) { each.control = "chkCheckBox(0)"; });
    breakKind<setting::Options>("frmGamesTrivia", "iScoring",
                                [](setting::Options& each) { each.firstButton = 2; });
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
    breakField("frmGamesTrivia", "iPoints", [](setting::Field& each) {
        each.control.clear();
        each.label.clear();
    });
    EXPECT_EQ(faults(), (Found{"frmGamesTrivia: no label: iPoints", "frmGamesTrivia: no control: iPoints"}));
}

TEST_F(Declarations, ADefaultOutsideItsRangeOrItsEntriesIsFound)
{
    using namespace setting;
    breakKind<Number>("frmGamesTrivia", "iPoints", [](Number& each) { each.defaultValue = 101; });
    breakKind<Number>("frmGamesTrivia", "iAutoStartDelay", [](Number& each) { each.defaultValue = 0; });
    breakKind<Options>("frmGamesTrivia", "iScoring", [](Options& each) { each.defaultValue = 2; });
    breakKind<Text>("frmGamesTrivia", "sHintChar", [](Text& each) { each.defaultValue = "**"; });
    breakKind<Letter>("frmSecurityClientCheckerSettings", "sAction", [](Letter& each) {
        each.defaultWord = "Tease";
        each.wordWhereNone = "Kiss";
    });
    breakKind<Entry>("frmGeneralGeneral", "sPrefix", [](Entry& each) { each.defaultValue = "%"; });
    Found found = faults();
    std::ranges::sort(found);
    EXPECT_EQ(found, (Found{"frmGamesTrivia: default: iAutoStartDelay", "frmGamesTrivia: default: iPoints",
                            "frmGamesTrivia: default: iScoring", "frmGamesTrivia: default: sHintChar",
                            "frmGeneralGeneral: default: sPrefix",
                            "frmSecurityClientCheckerSettings: default: sAction",
                            "frmSecurityClientCheckerSettings: where none: sAction"}));
}

TEST_F(Declarations, ARangeWithoutRoomIsFound)
{
    breakKind<setting::Number>("frmGamesTrivia", "iPoints",
                               [](setting::Number& each) { each.maximum = each.minimum = 1; });
    EXPECT_EQ(faults(), Found{"frmGamesTrivia: no range: iPoints"});
}

TEST_F(Declarations, ATableThatMissesWhatItIsMadeOfIsFound)
{
    breakSetting("frmGamesNumbers", "tCalculation",
                 [](Setting& each) { std::get<setting::NamedTexts>(each).texts.clear(); });
    breakSetting("frmGamesSlotMachine", "tAux",
                 [](Setting& each) { std::get<setting::ConstantRows>(each).rows.clear(); });
    breakKind<setting::NamedFlags>("frmSecurityClientCheckerSettings", "tBlock",
                                   [](setting::NamedFlags& each) { each.names.clear(); });
    Found found = faults();
    std::ranges::sort(found);
    EXPECT_EQ(found, (Found{"frmGamesNumbers: no texts: tCalculation", "frmGamesSlotMachine: no rows: tAux",
                            "frmSecurityClientCheckerSettings: no names: tBlock"}));
}

TEST_F(Declarations, NamedTextsForWhichNobodyMakesAControlAreFound)
{
    std::get<DeclaredSettings>(form("frmGamesNumbers").parts.front()).kind = SettingsPartKind::Plain;
    EXPECT_EQ(faults(), Found{"frmGamesNumbers: nobody makes the control: tCalculation"});
}

TEST_F(Declarations, AKeyNamedTwiceAndAnOrderThatMissesOneAreFound)
{
    breakFile("frmSecurityKickSettings", [](TableFile& file) { file.rebuildOrder.pop_back(); });
    breakFile("frmGamesSlotMachine", [](TableFile& file) {
        file.settings.push_back(setting::ConstantText{keyOf(file.settings.front()), "x"});
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

TEST_F(Declarations, ANameThatIsNoneAndWordsThatBeginOrEndOddlyAreFound)
{
    breakField("frmGamesTrivia", "iPoints", [](setting::Field& field) {
        field.control = "points";
        field.label = "points ";
    });
    form("frmGamesHangman").form.caption = " Games";
    EXPECT_EQ(faults(), (Found{"frmGamesHangman: no words:  Games", "frmGamesTrivia: no words: points ",
                               "frmGamesTrivia: no name of a control: points"}));
}

TEST_F(Declarations, WhatIsMeantMustBeThere)
{
    breakKind<setting::Number>("frmGamesGuessTheNumber", "iMaxHints",
                               [](setting::Number& each) { each.defaultValue = 10; });
    EXPECT_EQ(faults(), Found{"frmGamesGuessTheNumber: default: iMaxHints (meant, and not found)"});
}

} // namespace
} // namespace quillfen
