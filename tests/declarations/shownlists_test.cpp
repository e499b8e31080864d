// The lists as owners see them: what stands above each, its columns, and the dialog that edits a row.
#include "functions/catalogue.h"
#include "support/hub.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace quillfen {
namespace {

/// What is told of a list; several texts stand in one, parted by bars.
struct ShownList
{
    std::string form;
    std::string list;
    std::string label;
    std::string columns;
    EditForm dialog;
    std::string addTitle;
    std::string editTitle;
    std::string dialogLabels;

    bool operator==(const ShownList&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const ShownList& shown)
{
    return stream << shown.form << ' ' << shown.list << " (" << shown.label << "): " << shown.columns << "; "
                  << static_cast<int>(shown.dialog) << ": " << shown.addTitle << ", " << shown.editTitle
                  << ", " << shown.dialogLabels;
}

std::string joined(const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : " | ") + text;
    return all;
}

void forEachList(const std::function<void(const std::string& form, const RowListDeclaration&)>& take)
{
    test::Hub hub;
    hub.profiles.add("Master");
    for (const FormDeclaration& form : formCatalogue()) {
        for (const PartDeclaration& part : form.parts) {
            for (const RowListDeclaration& list : listsOf(part, hub.profiles))
                take(form.form.name, list);
        }
    }
}

std::vector<ShownList> declaredLists()
{
    std::vector<ShownList> lists;
    forEachList([&lists](const std::string& form, const RowListDeclaration& list) {
        const RowDialog& dialog = list.dialog;
        lists.push_back({form, list.list, list.label, joined(list.columns), dialog.form, dialog.addTitle,
                         dialog.editTitle, joined(dialog.labels)});
    });
    return lists;
}

/// What something of each list is, where it isn't empty, by the list's form and name.
std::map<std::string, std::string>
thoseWith(const std::function<std::string(const RowListDeclaration&)>& something)
{
    std::map<std::string, std::string> all;
    forEachList([&](const std::string& form, const RowListDeclaration& list) {
        const std::string found = something(list);
        if (!found.empty())
            all[form + ' ' + list.list] = found;
    });
    return all;
}

/// The numbers from 00 to that one.
std::string twoDigitsTo(int last)
{
    std::string all;
    for (int number = 0; number <= last; ++number)
        all += (number > 0 ? " | " : "") + std::string(number < 10 ? "0" : "") + std::to_string(number);
    return all;
}

std::vector<ShownList> toldLists()
{
    // The dialogs of the bots, the tags and the profile rules have a row's own labels or titles.
    std::vector<ShownList> lists = {
        {"frmGeneralBots", "lvwBots", "", "Function | Nick | Description | Email", EditForm::ThreeFields, "",
         "Edit Bot", ""},
        {"frmLanguageCommands", "lvwFiles", "", "Languages", EditForm::OneFields, "Add New Command", "",
         "Enter name of new Command File:"},
        {"frmLanguageMessages", "lvwFiles", "", "Languages", EditForm::OneFields, "Add New Command", "",
         "Enter name of new Message File:"},
        {"frmLanguageRightClick", "lvwFiles", "", "Languages", EditForm::OneFields, "Add New RightClick", "",
         "Enter name of new RightClick:"},
        {"frmCommunicationAutoCorrect", "lvwAutoCorrectWords", "AutoCorrect Words", "Word | Replacement",
         EditForm::TwoFields, "Add AutoCorrect Word", "Edit AutoCorrect Word",
         "Original Word | Replacement Word"},
        {"frmCommunicationKickBarChanger", "lvwKickBars", "KickBar Topics", "KickBars", EditForm::OneFields,
         "Add KickBar", "Edit KickBar", "KickBar"},
        {"frmCommunicationRotatingMainMessage", "lvwFiles", "", "Filename", EditForm::OneFields,
         "Enter filename", "", "Enter filename for new Rotating Main Message"},
        {"frmCommunicationRotatingPrivateMessage", "lvwFiles", "", "Filename", EditForm::OneFields,
         "Enter filename", "", "Enter filename for new Rotating Main Message"},
        {"frmCommunicationTopicChanger", "lvwTopics", "Topics", "Topics", EditForm::OneFields, "Add Topic",
         "Edit Topic", "Topic"},
        {"frmCommunicationWelcomeInfoNetworkHubs", "lvwHubs", "Network Hubs", "HubName", EditForm::OneFields,
         "Add Hub", "Edit Hub", "Hub"},
        {"frmCustomiseUserCustomRightClick", "lvwCustomRightClicks", "Hub Settings",
         "Right Click | Profile | Location", EditForm::OneTextTwoCombo, "Add Right Click", "Edit Right Click",
         "Right Click | Profile | Location"},
        {"frmCustomiseUserDescriptionTags", "lvwDescriptionTags", "", "Profile | Tag", EditForm::OneFields,
         "", "Edit File", ""},
        {"frmCustomiseUserIntroOutro", "lvwIntro", "Standard Intros", "Intro", EditForm::OneFields,
         "Add Intro", "Edit Intro", "Intro"},
        {"frmCustomiseUserIntroOutro", "lvwOutro", "Standard Outros", "Outro", EditForm::OneFields,
         "Add Outro", "Edit Outro", "Outro"},
        {"frmCustomiseUserCustomIntroOutro", "lvwIntro", "Custom Intros", "Username | Intro",
         EditForm::TwoFields, "Add Intro", "Edit Intro", "Intro for | Intro"},
        {"frmCustomiseUserCustomIntroOutro", "lvwOutro", "Custom Outros", "Username | Outro",
         EditForm::TwoFields, "Add Outro", "Edit Outro", "Outro for | Outro"},
        {"frmCustomiseUserAsciiIntro", "lvwAscii", "Ascii Profiles", "Username | Filename",
         EditForm::TextCombo, "Add Ascii Profile for User", "", "Username | Filename"},
        {"frmCustomiseUserAsciiIntro", "lvwFiles", "Ascii Files", "Filename", EditForm::OneFields,
         "Enter filename", "", "Enter filename for new Ascii Intro"},
        {"frmGamesAnagrams", "lvwWords", "", "Word", EditForm::OneFields, "Add Word", "Edit Word", "Word"},
        {"frmGamesHangman", "lvwWords", "", "Word", EditForm::OneFields, "Add Word", "Edit Word", "Word"},
        {"frmGamesNumbers", "lvwWords", "", "Questions | Answers", EditForm::ThreeFields, "Add Question",
         "Edit Question", "Category | Question | Answer"},
        {"frmGamesRussianRoulette", "lvwLive", "Live", "Live", EditForm::OneFields, "Add Win Comment",
         "Edit Win Comment", "Win Comment"},
        {"frmGamesRussianRoulette", "lvwDie", "Die", "Die", EditForm::OneFields, "Add Lose Comment",
         "Edit Lose Comment", "Lose Comment"},
        {"frmGamesGlobalsScoreClearers", "lvwUsers", "", "Users", EditForm::OneFields, "Add User",
         "Edit User", "User"},
        {"frmGamesThreeCardMonty", "lvwWin", "Win", "Win", EditForm::OneFields, "Add Win Comment",
         "Edit Win Comment", "Win Comment"},
        {"frmGamesThreeCardMonty", "lvwLose", "Lose", "Lose", EditForm::OneFields, "Add Lose Comment",
         "Edit Lose Comment", "Lose Comment"},
        {"frmGamesTriviaQuestions", "lvwQuestionFiles", "", "Available Question Files", EditForm::OneFields,
         "Enter filename", "", "Enter filename"},
        {"frmGamesTriviaQuestions", "lvwQuestions", "", "Questions | Answers", EditForm::ThreeFields,
         "Add Trivia Question", "Edit Trivia Question", "Category | Question | Answer"},
        {"frmSecurityAntiAdvertiseAddresses", "lvwBlockedAddresses", "Blocked Addresses", "Address",
         EditForm::OneFields, "Add Blocked Address", "Edit Blocked Address", "Blocked Address"},
        {"frmSecurityAntiAdvertiseAddresses", "lvwAllowedAddresses", "Allowed Addresses", "Address",
         EditForm::OneFields, "Add Allowed Address", "Edit Allowed Address", "Allowed Address"},
        {"frmSecurityBadNickBlocker", "lvwBadNickList", "Bad Nicks", "Nick", EditForm::OneFields,
         "Add Bad Nick", "Edit Bad Nick", "Bad Nick"},
        {"frmSecurityClientCheckerSettings", "lvwClients", "", "Client | Min Version | Allow",
         EditForm::TwoTextCombo, "Add Client", "Edit File", "Client | Min Version | Allow"},
        {"frmSecurityCloneBlocker", "lvwExemptUsers", "Exempt Users", "User", EditForm::OneFields,
         "Add Exempt User", "Edit Exempt User", "Exempt User"},
        {"frmSecurityProfileRuleRules", "lvwPermissions", "Permissions",
         "Profile | Setting | Data | iProfile", EditForm::OneFields, "", "", ""},
        {"frmSecurityProfileRuleRules", "lvwMessages", "Messages", "Setting | Data", EditForm::OneFields, "",
         "", ""},
        {"frmSecurityProfileRuleRules", "lvwRedirects", "Redirects", "Setting | Data", EditForm::OneFields,
         "", "", ""},
        {"frmSecuritySearchSpy", "lvwFiles", "Forbidden Files", "File | Action", EditForm::TextCombo,
         "Add File", "Edit File", "File | Action"},
        {"frmUserActionsAscii", "lvwAscii", "", "Filename | Display Name | Right Click Menu",
         EditForm::ThreeFields, "Add Ascii", "Edit Ascii", "Filename | Display Name | Right Click Menu"},
        {"frmUserActionsAttacks", "lvwAttacks", "", "Attacks", EditForm::OneFields, "Add Attack",
         "Edit Attack", "Attack"},
        {"frmUserActionsDoAction", "lvwDoActions", "", "Command | Action", EditForm::TwoFields,
         "Add DoAction", "Edit DoAction", "Command | Action"},
        {"frmUserActionsInsultsStandard", "lvwInsults", "", "Insults", EditForm::OneFields, "Add Insult",
         "Edit Insult", "Insult"},
        {"frmUserActionsInsultsMedieval", "lvwInsultsOne", "", "First Word", EditForm::OneFields,
         "Add Medieval Insult", "Edit Medieval Insult", "Medieval Insult"},
        {"frmUserActionsInsultsMedieval", "lvwInsultsTwo", "", "Second Word", EditForm::OneFields,
         "Add Medieval Insult", "Edit Medieval Insult", "Medieval Insult"},
        {"frmUserActionsInsultsMedieval", "lvwInsultsThree", "", "Third Word", EditForm::OneFields,
         "Add Medieval Insult", "Edit Medieval Insult", "Medieval Insult"},
        {"frmUserActionsInsultsModern", "lvwInsultsOne", "", "First Word", EditForm::OneFields,
         "Add Modern Insult", "Edit Modern Insult", "Modern Insult"},
        {"frmUserActionsInsultsModern", "lvwInsultsTwo", "", "Second Word", EditForm::OneFields,
         "Add Modern Insult", "Edit Modern Insult", "Modern Insult"},
        {"frmUserActionsInsultsModern", "lvwInsultsThree", "", "Third Word", EditForm::OneFields,
         "Add Modern Insult", "Edit Modern Insult", "Modern Insult"},
        {"frmUserActionsInsultsModern", "lvwInsultsFour", "", "Fourth Word", EditForm::OneFields,
         "Add Modern Insult", "Edit Modern Insult", "Modern Insult"},
        {"frmUserActionsJokes", "lvwJokes", "", "Jokes", EditForm::OneFields, "Add Joke", "Edit Joke",
         "Joke"},
        {"frmUserActionsLimericks", "lvwLimericks", "", "Limericks", EditForm::OneFields, "Add Limerick",
         "Edit Limerick", "Limerick"},
        {"frmUserActionsProverbs", "lvwProverbs", "", "Proverbs", EditForm::OneFields, "Add Proverb",
         "Edit Proverb", "Proverb"},
        {"frmUserActionsQuotations", "lvwQuotations", "", "Quotations", EditForm::OneFields, "Add Quotation",
         "Edit Quotation", "Quotation"},
        {"frmUserActionsSpellSettings", "lvwWards", "Warded Users", "Warded User", EditForm::OneFields,
         "Add Warded User", "Edit Warded User", "Warded User"},
        {"frmUserActionsSpellsSpellBook", "lvwSpells", "",
         "Spell Name | Spell Description | Spell Phrases | Spell LInes", EditForm::TwoFields, "Add New Spell",
         "Edit Warded User", "Spell Name | Spell Description"},
        {"frmUserActionsSpellsSpellBook", "lvwSpellPhrases", "", "Spell Phrase", EditForm::OneFields,
         "Add New Spell Phrase", "Edit Spell Phrase", "Spell Phrase"},
        {"frmUserActionsNickSpellsSpellBook", "lvwSpells", "",
         "Spell Name | Spell Description | Spell Phrases | Spell LInes", EditForm::TwoFields, "Add New Spell",
         "Edit Warded User", "Spell Name | Spell Description"},
        {"frmUserActionsNickSpellsSpellBook", "lvwSpellPhrases", "", "Spell Phrase", EditForm::OneFields,
         "Add New Spell Phrase", "Edit Spell Phrase", "Spell Phrase"},
    };
    for (const char* collection : {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"})
        lists.push_back({"frm" + std::string(collection) + "Week", "lvwWeek", "", "Date | Time | Location",
                         EditForm::FourCombos, "Add Announcement", " Announcement",
                         "Day | Hour | Minute | Location"});
    return lists;
}

TEST(ShownLists, AreThoseThatAreTold)
{
    const auto declared = declaredLists();
    const auto told = toldLists();
    ASSERT_EQ(declared.size(), told.size());
    for (std::size_t at = 0; at < told.size(); ++at)
        EXPECT_EQ(declared[at], told[at]);
}

using Told = std::map<std::string, std::string>;

TEST(ShownLists, OfferTheirEntriesInTheirOrder)
{
    Told told = {
        {"frmCustomiseUserCustomRightClick lvwCustomRightClicks",
         "Unregistered | Master | Operators Only | All Profiles; Hub | Users | Hub & Users | Search; "},
        {"frmSecurityClientCheckerSettings lvwClients", "True | False; "},
        {"frmSecuritySearchSpy lvwFiles", "Disconnect | Warn | Notify Ops | Kick | Ban; "}};
    for (const char* collection : {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"})
        told["frm" + std::string(collection) + "Week lvwWeek"] =
            "Sunday | Monday | Tuesday | Wednesday | Thursday | Friday | Saturday; " + twoDigitsTo(23) +
            "; " + twoDigitsTo(59) + "; Main Chat | Private Message; ";
    EXPECT_EQ(thoseWith([](const RowListDeclaration& list) {
                  std::string all;
                  for (const auto& entries : list.dialog.entries)
                      all += joined(entries) + "; ";
                  return all;
              }),
              told);
}

TEST(ShownLists, OfWhichFewHaveTicksHiddenColumnsOrValuesForANewRow)
{
    EXPECT_EQ(
        thoseWith([](const RowListDeclaration& list) { return std::string(list.ticks ? "ticks" : ""); }),
        (Told{{"frmCommunicationRotatingMainMessage lvwFiles", "ticks"},
              {"frmCommunicationRotatingPrivateMessage lvwFiles", "ticks"},
              {"frmCustomiseUserCustomRightClick lvwCustomRightClicks", "ticks"},
              {"frmLanguageCommands lvwFiles", "ticks"},
              {"frmLanguageMessages lvwFiles", "ticks"},
              {"frmLanguageRightClick lvwFiles", "ticks"}}));
    EXPECT_EQ(thoseWith([](const RowListDeclaration& list) {
                  return list.hiddenColumns > 0 ? std::to_string(list.hiddenColumns) : std::string();
              }),
              (Told{{"frmSecurityProfileRuleRules lvwPermissions", "1"},
                    {"frmUserActionsNickSpellsSpellBook lvwSpells", "2"},
                    {"frmUserActionsSpellsSpellBook lvwSpells", "2"}}));
    EXPECT_EQ(thoseWith([](const RowListDeclaration& list) { return joined(list.dialog.addValues); }),
              (Told{{"frmSecuritySearchSpy lvwFiles", "Kick"}}));
    EXPECT_EQ(
        thoseWith([](const RowListDeclaration& list) { return std::string(list.selectsFirst ? "1" : ""); }),
        (Told{{"frmGamesTriviaQuestions lvwQuestions", "1"}}));
}

TEST(ShownLists, OfWhichFewTellMoreThanTheirColumns)
{
    const std::string words = "Add new Word | Delete Word | Edit Word";
    EXPECT_EQ(thoseWith([](const RowListDeclaration& list) { return joined(list.toolTips); }),
              (Told{{"frmCustomiseUserAsciiIntro lvwAscii", "Add new user | Delete user | Edit user"},
                    {"frmCustomiseUserAsciiIntro lvwFiles", "Add new file | Delete file | Edit file"},
                    {"frmGamesAnagrams lvwWords", words},
                    {"frmGamesHangman lvwWords", words},
                    {"frmGamesNumbers lvwWords", words}}));
    EXPECT_EQ(
        thoseWith([](const RowListDeclaration& list) { return list.remark; }),
        (Told{{"frmUserActionsSpellSettings lvwWards", "Allows IPs beginning with 0 (such as 0.3.6.0)"}}));
    EXPECT_EQ(thoseWith([](const RowListDeclaration& list) { return list.movement; }),
              (Told{{"frmCustomiseUserCustomRightClick lvwCustomRightClicks", "tlbListviewMovement"}}));
}

} // namespace
} // namespace quillfen
