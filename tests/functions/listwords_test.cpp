#include "declarations/listdeclaration.h"
#include "functions/archive/archive.h"
#include "functions/communication/autocorrect.h"
#include "functions/communication/rotatingmessages.h"
#include "functions/communication/welcomeinfo.h"
#include "functions/customise/asciiintros.h"
#include "functions/customise/customrightclick.h"
#include "functions/customise/descriptiontags.h"
#include "functions/customise/introsoutros.h"
#include "functions/games/anagrams.h"
#include "functions/games/numbers.h"
#include "functions/games/scoreclearers.h"
#include "functions/games/trivia.h"
#include "functions/general/bots.h"
#include "functions/general/languages.h"
#include "functions/security/antiadvertise.h"
#include "functions/security/clientchecker.h"
#include "functions/security/profilerules.h"
#include "functions/security/spies.h"
#include "functions/useractions/actiontexts.h"
#include "functions/useractions/ascii.h"
#include "functions/useractions/spells.h"
#include "settings/profiles.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using Texts = std::vector<std::string>;

void expectDeletion(const RowListDeclaration& list, const char* title, const char* text, const char* minimum)
{
    EXPECT_EQ(list.deletion.title, title);
    EXPECT_EQ(list.deletion.text, text) << title;
    EXPECT_EQ(list.deletion.minimum, minimum) << title;
}

/// What a row becomes when the dialog is left with these fields.
CellRow taken(const RowListDeclaration& list, const Texts& fields, CellRow row)
{
    list.take(fields, row);
    return row;
}

TEST(ListWords, OfADeletionAreTheFunctionsOwn)
{
    expectDeletion(anagramWords(), "Delete Word?", "Do you really want to delete this question?",
                   "There must be a minimum of one Word");
    expectDeletion(announcements(), "Delete Announcement Time?",
                   "Do you really want to delete this Announcement Time?", "");
    expectDeletion(asciiIntroUsers(), "Delete Intro?", "Do you really want to delete this intro?", "");
    expectDeletion(asciiPictures(), "Delete Ascii?", "Do you really want to delete this Ascii?", "");
    expectDeletion(attacks(), "Delete Intro?", "Do you really want to delete this intro?",
                   "There must be a minimum of one Intro");
    expectDeletion(autoCorrectWords(), "Delete Word?", "Do you really want to delete this Word?",
                   "There must be a minimum of one Word");
    expectDeletion(clientVersions(), "Delete Client?", "Do you really want to delete this Client?",
                   "There must be a minimum of one Client");
    expectDeletion(customRightClicks(HubProfiles()), "Delete right click?",
                   "Do you really want to delete this right click?", "");
    expectDeletion(forbiddenFiles(), "Delete Intro?", "Do you really want to delete this File?",
                   "There must be a minimum of one File");
    expectDeletion(numbersQuestions(), "Delete Word?", "Do you really want to delete this question?",
                   "There must be a minimum of one Question");
    expectDeletion(phraseList(), "Delete Spell Phrase?", "Do you really want to delete this Spell Phrase?",
                   "There must be a minimum of one Spell Phrase");
    expectDeletion(scoreClearers(), "Delete Exempt User?", "Do you really want to delete this User?", "");
    expectDeletion(rotatingFiles(rotatingMainMessages()), "Delete File?",
                   "Do you really want to delete this File?", "");
    expectDeletion(asciiIntroFiles(), "Delete Ascii Intro?", "Do you really want to delete this Ascii Intro?",
                   "");
    expectDeletion(insults(), "Delete Insult?", "Do you really want to delete this Insult?",
                   "There must be a minimum of one Insult");
    expectDeletion(spellList(spellBook()), "Delete Spell?", "Do you really want to delete this Spell?",
                   "There must be a minimum of one Spell");
    expectDeletion(spellWards(), "Delete Warded User?", "Do you really want to delete this Warded User?", "");
}

TEST(ListWords, OfADeletionWereCopiedFromFormToForm)
{
    expectDeletion(networkHubs(), "Delete Intro?", "Do you really want to delete this File?", "");
    expectDeletion(blockedAddresses(), "Delete Intro?", "Do you really want to delete this File?",
                   "There must be a minimum of one Blocked Address");
    expectDeletion(allowedAddresses(), "Delete Intro?", "Do you really want to delete this File?",
                   "There must be a minimum of one Allowed Address");
    expectDeletion(doActions(), "Delete DoAction?", "Do you really want to delete this intro?",
                   "There must be a minimum of one Intro");
    for (const RowListDeclaration& list : medievalInsults().lists)
        expectDeletion(list, "Delete Medieval Insult?", "Do you really want to delete this Medieval Insult?",
                       "There must be a minimum of one Medieval Insult");
    const auto& modern = modernInsults().lists;
    const char* const ofModern = "Do you really want to delete this Modern Insult?";
    const char* const oneModern = "There must be a minimum of one Modern Insult";
    expectDeletion(modern.at(0), "Delete Modern Insult?",
                   "Do you really want to delete this Medieval Insult?", oneModern);
    expectDeletion(modern.at(1), "Delete Modern Insult?", ofModern, oneModern);
    expectDeletion(modern.at(2), "Delete Modern Insult?", ofModern,
                   "There must be a minimum of one Medieval Insult");
    expectDeletion(modern.at(3), "Delete Modern Insult?", ofModern, oneModern);
    const auto standard = standardIntrosOutros().lines.lists;
    expectDeletion(standard.at(0), "Delete Intro?", "Do you really want to delete this intro?",
                   "There must be a minimum of one Intro");
    expectDeletion(standard.at(1), "Delete Outro?", "Do you really want to delete this outro?",
                   "There must be a minimum of one Outro");
    const auto custom = customIntrosOutros().lines.lists;
    expectDeletion(custom.at(0), "Delete Intro?", "Do you really want to delete this intro?",
                   "There must be a minimum of one Intro");
    expectDeletion(custom.at(1), "Delete Outro?", "Do you really want to delete this Outro?",
                   "There must be a minimum of one Outro");
}

TEST(ListWords, FollowTheNounOfTheRows)
{
    const RowListDeclaration frogs = listOf("Frog", Fewest::One);
    EXPECT_EQ(frogs.dialog.addTitle, "Add Frog");
    EXPECT_EQ(frogs.dialog.editTitle, "Edit Frog");
    EXPECT_EQ(frogs.dialog.labels, Texts{"Frog"});
    expectDeletion(frogs, "Delete Frog?", "Do you really want to delete this Frog?",
                   "There must be a minimum of one Frog");
    expectDeletion(listOf("Frog", Fewest::None), "Delete Frog?", "Do you really want to delete this Frog?",
                   "");
}

TEST(ListWords, OfADeletionMayCallARowBySeveralNouns)
{
    RowListDeclaration list;
    list.deletion = deletionOf("Frog", "toad", "Newt");
    expectDeletion(list, "Delete Frog?", "Do you really want to delete this toad?",
                   "There must be a minimum of one Newt");
    list.deletion = deletionOf("Frog", "toad");
    EXPECT_EQ(list.deletion.minimum, "");
}

TEST(ListWords, OfListedFilesAreThoseOfTheirBoxes)
{
    const ListedFiles questions = triviaQuestionLists();
    expectDeletion(questions.names, "Delete Question File?", "Do you really want to delete ",
                   "There must be a minimum of one Question File");
    EXPECT_TRUE(questions.rows.selectsFirst);
    expectDeletion(questions.rows, "Delete Question?", "Do you really want to delete this question?",
                   "There must be a minimum of one Question");
    EXPECT_EQ(forbiddenFiles().dialog.entries,
              (std::vector<Texts>{{"Disconnect", "Warn", "Notify Ops", "Kick", "Ban"}}));
    EXPECT_EQ(forbiddenFiles().dialog.addValues, (Texts{"", "Kick"}));
    EXPECT_EQ(customIntrosOutros().lines.lists.at(0).dialog.labels, (Texts{"Intro for", "Intro"}));
    EXPECT_EQ(customIntrosOutros().lines.lists.at(1).dialog.labels, (Texts{"Outro for", "Outro"}));
    EXPECT_EQ(numbersCalculationList().dialog.editTitle, "Edit Question");
    EXPECT_EQ(questions.rows.dialog.addTitle, "Add Trivia Question");
    EXPECT_EQ(questions.rows.dialog.editTitle, "Edit Trivia Question");
    const ListedFiles languages = languageLists(languageSets()[2]);
    EXPECT_TRUE(languages.names.ticks);
    EXPECT_EQ(languages.names.dialog.addTitle, "Add New Command");
    EXPECT_EQ(languages.names.dialog.labels, Texts{"Enter name of new Message File:"});
    EXPECT_EQ(languages.names.deletion.title, "Delete Language File?");
    EXPECT_EQ(languages.rows.dialog.editTitle, "Edit Message");
    EXPECT_EQ(languages.rows.fieldsOf({{"sHelp", "help"}}), Texts{"help"});
    EXPECT_EQ(taken(languages.rows, {"aid"}, {{"sHelp", "help"}}), (CellRow{{"sHelp", "aid"}}));
}

TEST(ListWords, OfTheDialogThatChoosesAListedFile)
{
    const ListedFiles questions = triviaQuestionLists();
    EXPECT_EQ(questions.chooseTitle, "Select Trivia File to open");
    EXPECT_EQ(questions.folder, "Games\\Trivia\\");
    EXPECT_EQ(questions.filter, "(*.lst)");
    EXPECT_EQ(questions.patterns, "*.lst");
    EXPECT_EQ(questions.refusesAdding, "Cannot add file");
    const char* const folders[] = {"Language\\Commands\\Files\\", "Language\\RightClick\\Files\\",
                                   "Language\\Messages\\Files\\"};
    for (std::size_t set = 0; set < 3; ++set) {
        const ListedFiles languages = languageLists(languageSets()[set]);
        EXPECT_EQ(languages.chooseTitle, "Select Language File to open");
        EXPECT_EQ(languages.folder, folders[set]);
        EXPECT_EQ(languages.filter, "(*.TBL)");
        EXPECT_EQ(languages.patterns, "*.tbl *.TBL"); // as Linux tells them apart
        EXPECT_EQ(languages.refusesAdding, "Cannot Add Language File");
    }
}

TEST(ListFields, OfAnAnnouncementAreItsDayHourMinuteAndTheWholeNameOfItsPlace)
{
    const RowListDeclaration list = announcements();
    EXPECT_EQ(list.fieldsOf({{"Sunday", "18:05", "PM"}}), (Texts{"Sunday", "18", "05", "Private Message"}));
    EXPECT_EQ(list.fieldsOf({{"Monday", "07:30", "else"}}), (Texts{"Monday", "07", "30", "Main Chat"}));
    EXPECT_EQ(taken(list, {"Friday", "23", "59", "Main Chat"}, {}), (CellRow{{"Friday", "23:59", "Main"}}));
    EXPECT_EQ(taken(list, {"Friday", "00", "00", "Private Message"}, {}),
              (CellRow{{"Friday", "00:00", "PM"}}));
}

TEST(ListFields, OfAnAnnouncementAreChosenFromAllDaysHoursAndMinutes)
{
    const auto entries = announcements().dialog.entries;
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries[0],
              (Texts{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}));
    ASSERT_EQ(entries[1].size(), 24U);
    EXPECT_EQ(entries[1][0], "00");
    EXPECT_EQ(entries[1][9], "09");
    EXPECT_EQ(entries[1][10], "10");
    EXPECT_EQ(entries[1][23], "23");
    ASSERT_EQ(entries[2].size(), 60U);
    EXPECT_EQ(entries[2][59], "59");
    EXPECT_EQ(entries[3], (Texts{"Main Chat", "Private Message"}));
}

TEST(ListFields, OfABotAreAllButItsFunction)
{
    const RowListDeclaration& list = bots();
    const CellRow row{{"Chat", "nick", "about", "a@b", "group"}};
    EXPECT_EQ(list.fieldsOf(row), (Texts{"nick", "about", "a@b"}));
    EXPECT_EQ(list.labelsOf(row), (Texts{"Chat Bot", "Description", "Email"}));
    EXPECT_EQ(taken(list, {"n", "d", "e"}, row), (CellRow{{"Chat", "n", "d", "e", "group"}}));
}

TEST(ListFields, OfACalculationAreItsNumbersBehindItsSign)
{
    const RowListDeclaration& list = numbersCalculationList();
    EXPECT_EQ(list.columns, (Texts{"Type", "X Min", "X Max", "Y Min", "Y Max"}));
    EXPECT_EQ(list.dialog.form, EditForm::FourFields);
    EXPECT_EQ(list.dialog.editMode, 5) << "all four have to be filled";
    EXPECT_EQ(list.dialog.labels, (Texts{"X Minimum", "X Maximum", "Y Minimum", "Y Maximum"}));
    EXPECT_TRUE(list.asksAgain);
    const CellRow row{{"+", "1", "2", "3", "4"}};
    EXPECT_EQ(list.fieldsOf(row), (Texts{"1", "2", "3", "4"}));
    EXPECT_EQ(taken(list, {"5", "6", "7", "8"}, row), (CellRow{{"+", "5", "6", "7", "8"}}));
}

TEST(ListFields, OfAQuestionAreItsCategoryQuestionAndAnswer)
{
    const RowListDeclaration& list = numbersQuestions();
    EXPECT_EQ(list.fieldsOf({{"Sums:one and one", "2"}}), (Texts{"Sums", "one and one", "2"}));
    EXPECT_EQ(list.fieldsOf({{"Sums:one:two", "2"}}), (Texts{"Sums", "one", "2"}));
    EXPECT_EQ(taken(list, {"Sums", "one and two", "3"}, {}), (CellRow{{"Sums:one and two", "3"}}));
}

TEST(ListFields, OfAClientAreTrimmedWhereItIsEditedAlone)
{
    const RowListDeclaration& list = clientVersions();
    EXPECT_EQ(list.fieldsOf({{" a ", " 1 ", "True"}}), (Texts{"a", "1", "True"}));
    EXPECT_EQ(list.labelsOf({{"a", "1", "True"}}), (Texts{"a Client", "Min Version", "Allow"}));
    EXPECT_EQ(taken(list, {" b ", " 2 ", "False"}, {{"a", "1", "True"}}), (CellRow{{"b", "2", "False"}}));
    EXPECT_EQ(taken(list, {" b ", " 2 ", "False"}, {{"", "", ""}}), (CellRow{{" b ", " 2 ", "False"}}));
}

TEST(ListFields, OfARightClickThatAreEmptyLeaveItsCells)
{
    const RowListDeclaration list = customRightClicks(HubProfiles());
    EXPECT_EQ(taken(list, {"new", "", "Hub"}, {{"old", "Gone", "Users"}}), (CellRow{{"new", "Gone", "Hub"}}));
    EXPECT_EQ(list.dialog.entries.at(0).back(), "All Profiles");
    EXPECT_EQ(list.dialog.entries.at(1), (Texts{"Hub", "Users", "Hub & Users", "Search"}));
}

TEST(ListFields, OfACustomIntroAreCalledAfterItsUser)
{
    const auto lists = customIntrosOutros().lines.lists;
    EXPECT_EQ(lists.at(0).labelsOf({{"Rincewind", "runs in"}}), (Texts{"Intro for Rincewind", "Intro"}));
    EXPECT_EQ(lists.at(1).labelsOf({{"Rincewind", "runs out"}}), (Texts{"Outro for Rincewind", "Outro"}));
}

TEST(ListFields, OfAForbiddenFileAreCalledAfterItsTerm)
{
    EXPECT_EQ(forbiddenFiles().labelsOf({{"dragons", "Kick"}}), (Texts{"dragons File", "Action"}));
}

TEST(ListFields, OfATagAndOfARulesTextAreTheSecondCell)
{
    EXPECT_EQ(descriptionTags().fieldsOf({{"Master", "tag"}}), Texts{"tag"});
    EXPECT_EQ(descriptionTags().labelsOf({{"Master", "tag"}}), Texts{"Master Tag"});
    EXPECT_EQ(taken(descriptionTags(), {"new"}, {{"Master", "tag"}}), (CellRow{{"Master", "new"}}));
    for (const std::size_t place : {1U, 2U}) {
        const RowListDeclaration& list = profileRules().lists.at(place);
        EXPECT_EQ(list.fieldsOf({{"Share", "text"}}), Texts{"text"});
        EXPECT_EQ(taken(list, {"new"}, {{"Share", "text"}}), (CellRow{{"Share", "new"}}));
    }
}

} // namespace
} // namespace quillfen
