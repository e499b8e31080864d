#include "find/findforms.h"
#include "functions/catalogue.h"
#include "support/declarationfaults.h"
#include "support/freshtree.h"
#include "support/golden.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillfen {
namespace {

/// A freshly built tree of a hub with three profiles, and the index over all forms.
class FindForms : public testing::Test
{
protected:
    FindForms()
    {
        hub.store.files["/hub/cfg/Profiles.xml"] =
            "<Name>Master</Name>\r\n<Name>Operator</Name>\r\n<Name>VIP</Name>\r\n";
        test::buildTree(hub);
    }

    std::vector<FindHit> hits(const std::string& typed) const
    {
        const auto forms = formCatalogue();
        std::vector<FindableForm> findable;
        std::size_t form = 0;
        for (const Node& node : functionNodes()) {
            if (node.form)
                findable.push_back({node.key, node.form->form.caption, &forms[form++]});
        }
        return indexOfForms(findable, hub.files, hub.profiles).find(FindQuery(typed), 1000).hits;
    }

    /// Whether one of the hits reads and stands so.
    testing::AssertionResult finds(const std::string& typed, const FindPlace& place,
                                   const std::string& setting, const std::string& value) const
    {
        auto answer = testing::AssertionFailure() << "for \"" << typed << "\" only:";
        for (const FindHit& hit : hits(typed)) {
            if (hit.place == place && hit.setting.text == setting && hit.value.text == value)
                return testing::AssertionSuccess();
            answer << "\n  " << hit.place.key << ' ' << hit.place.control << ' ' << hit.place.row << ": "
                   << hit.setting.text << " / " << hit.value.text;
        }
        return answer;
    }

    /// The detail that is told with the first hit at a control.
    std::string detail(const std::string& typed, const std::string& control) const
    {
        for (const FindHit& hit : hits(typed)) {
            if (hit.place.control == control)
                return hit.detail.text;
        }
        return "nothing was found";
    }

    void write(const char* file, const char* bytes) { hub.files.WriteSettingsFile(file, bytes); }

    test::Hub hub;
};

TEST_F(FindForms, EachFormByItsCaption)
{
    for (const FormDeclaration& form : formCatalogue()) {
        const auto found = hits(form.form.caption);
        ASSERT_FALSE(found.empty()) << form.form.caption;
        EXPECT_TRUE(std::ranges::any_of(found, [&](const FindHit& hit) {
            return hit.kind == FindKind::Function && hit.function.text == form.form.caption;
        })) << form.form.caption;
    }
}

TEST_F(FindForms, ALabelAndItsValue)
{
    const FindPlace place = {"Security~Kicks~Settings", "txtUpDown(0)"};
    EXPECT_TRUE(finds("kicks warns make", place, "Warns Make Kick", "5"));
}

TEST_F(FindForms, AKeyOfAFile)
{
    EXPECT_TRUE(finds("iWarnsMakeKick", {"Security~Kicks~Settings", "txtUpDown(0)"}, "Warns Make Kick", "5"));
    EXPECT_EQ(detail("iWarnsMakeKick", "txtUpDown(0)"), "iWarnsMakeKick");
}

TEST_F(FindForms, AFileOfSettingsOfAListOfAGridAndOfAText)
{
    EXPECT_TRUE(
        finds("kicksettings.tbl", {"Security~Kicks~Settings"}, R"(Security\Kick\KickSettings.tbl)", ""));
    EXPECT_TRUE(
        finds("spellwards.tbl", {"UserActions~Spells~Settings"}, R"(UserActions\Spells\SpellWards.tbl)", ""));
    EXPECT_TRUE(finds("hyperlinkenablesubmit.tbl", {"Hyperlink~Permissions"},
                      R"(TheArchive\Hyperlink\HyperlinkEnableSubmit.tbl)", ""));
    EXPECT_TRUE(
        finds("passive.asc", {"Communication~MassMessage"}, R"(Communication\MassMessage\Passive.asc)", ""));
}

TEST_F(FindForms, AColumnOfAList)
{
    EXPECT_TRUE(finds("spell description", {"UserActions~Spells~SpellBook", "lvwSpells"}, "Spell Name", ""));
}

TEST_F(FindForms, ALabelOfARowsDialog)
{
    EXPECT_EQ(detail("link of the week minute", "lvwWeek"), "Minute");
}

TEST_F(FindForms, AnotherEntryOfADropDown)
{
    EXPECT_EQ(detail("antivirus tempban", "cboComboBox"), "TempBan");
}

TEST_F(FindForms, AnOptionThatThereIsNotAsItStandsInTheFile)
{
    for (const std::string value : {"-1", "77", "x"}) {
        write(R"(Games\Trivia\TriviaSettings.tbl)",
              ("tTriviaSettings = {\r\n\tiScoring = " + value + ",\r\n}").c_str());
        const auto found = hits("trivia scoring type");
        ASSERT_FALSE(found.empty()) << value;
        EXPECT_EQ(found.front().value.text, value);
    }
}

TEST_F(FindForms, TheLinkOfTheWeek)
{
    const FindPlace box = {"Hyperlink~LinkOfTheWeek", "chkCheckBox(0)"};
    EXPECT_TRUE(finds("hyperlink enable link on", box, "Enable Link of Week", "on"));
    EXPECT_TRUE(finds("hyperlink change time 17:59", {"Hyperlink~LinkOfTheWeek", "txtChangeTime"},
                      "Change Time", "Sunday 17:59"));
    EXPECT_TRUE(finds("hyperlink date 18:00", {"Hyperlink~LinkOfTheWeek", "lvwWeek", 0}, "Date",
                      "Sunday | 18:00 | PM"));
    write(R"(TheArchive\Hyperlink\HyperlinkItemOfTheWeek.tbl)", "t = {\r\n}");
    EXPECT_TRUE(finds("hyperlink enable link off", box, "Enable Link of Week", "off"));
}

TEST_F(FindForms, AnActingProfileOfTheMassMessageInItsFirstRow)
{
    EXPECT_TRUE(finds("massmessage operator", {"Communication~MassMessage", "lvwPermissions", 14},
                      "By Profile", "Operator"));
}

TEST_F(FindForms, WhatStandsInTheFirstRow)
{
    EXPECT_TRUE(finds("massmessage unregistered", {"Communication~MassMessage", "lvwPermissions", 0},
                      "By Profile", "Unregistered"));
    EXPECT_TRUE(finds("motd unregistered", {"Communication~MOTD", "lvwMOTD", 0}, "Profile Active",
                      "Unregistered | PM"));
    EXPECT_TRUE(finds("rules unregistered", {"Security~Rules", "lvwRules", 0}, "Profiles", "Unregistered"));
    for (const std::string stage : {"0", "13"})
        EXPECT_TRUE(finds("ascii " + stage + ".asc", {"Games~Hangman"},
                          R"(Games\Hangman\Ascii\)" + stage + ".asc", ""));
    hub.store.folders.insert(hub.root + "/Communication/Portal");
    write(R"(Communication\Portal\PortalSettings.tbl)",
          test::golden("portal/PortalSettings.save.tbl").c_str());
    EXPECT_TRUE(finds("portal bridge", {"Communication~Portal", "txtTextBox(0)", 0}, "Username", "bridge"));
    EXPECT_TRUE(finds("portal one.hub", {"Communication~Portal", "lvwHubs", 0}, "Hub Settings",
                      "one.hub:411 | 5001"));
    EXPECT_TRUE(finds("portal spam", {"Communication~Portal", "lvwNicks", 0}, "Nicks To Ignore", "spam"));
}

TEST_F(FindForms, AnOptionAndTheControlThatIsChosen)
{
    EXPECT_TRUE(finds("trivia hint reduction", {"Games~Trivia~Settings", "optOption(4)"},
                      "Scoring Type:", "Hint Reduction"));
}

TEST_F(FindForms, TextsOfOwnPartsEachWithWordsAndAControl)
{
    std::size_t texts = 0;
    for (const FormDeclaration& form : formCatalogue()) {
        for (const PartDeclaration& part : form.parts) {
            const auto* own = std::get_if<OwnPart>(&part);
            if (!own || !own->texts)
                continue;
            for (const PlacedText& text : own->texts(hub.files, hub.profiles)) {
                EXPECT_TRUE(!text.label.empty() && test::isWorded(text.label)) << text.label;
                EXPECT_TRUE(test::isControlName(text.control)) << text.control;
                EXPECT_GE(text.row, -1) << text.label;
                ++texts;
            }
        }
    }
    EXPECT_GT(texts, 50U);
}

TEST_F(FindForms, ALineOfHelpBelowAList)
{
    EXPECT_EQ(detail("allows ips beginning spell", "lvwWards"),
              "Allows IPs beginning with 0 (such as 0.3.6.0)");
}

TEST_F(FindForms, ALineOfHelpOfATick)
{
    EXPECT_EQ(detail("switches gallows stand", "lvwSwitches"),
              "Word game: users guess a word letter by letter before the gallows stand");
}

TEST_F(FindForms, AToolTip)
{
    EXPECT_EQ(detail("antiadvertise allows ips beginning", "chkCheckBox(0)"),
              "Allows IPs beginning with 0 (such as 0.3.6.0)");
}

TEST_F(FindForms, AValueInAFile)
{
    write(R"(Communication\Clock\ClockSettings.tbl)", "tClockSettings = {\r\n\tiDelay = 911,\r\n}");
    const auto found = hits("911");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().place.key, "Communication~Clock");
    EXPECT_EQ(found.front().value.text, "911");
}

TEST_F(FindForms, ATagInBrackets)
{
    EXPECT_TRUE(finds("[operator]", {"CustomiseUser~DescriptionTags", "lvwDescriptionTags", 2}, "Profile",
                      "Operator | [Operator]"));
}

TEST_F(FindForms, ATickOfAProfile)
{
    EXPECT_TRUE(finds("nickspells vip", {"UserActions~NickSpells~Settings", "lvwEnabledProfiles", 3},
                      "Enabled Profiles", "VIP: off"));
}

TEST_F(FindForms, ARowOfAListAndItsPlace)
{
    write(R"(UserActions\Spells\SpellWards.tbl)",
          "tSpellWards = {\r\n[\"one\"] = 1,\r\n[\"zwölf\"] = 1,\r\n}");
    EXPECT_TRUE(finds("spells one", {"UserActions~Spells~Settings", "lvwWards", 0}, "Warded Users", "one"));
}

TEST_F(FindForms, ACellOfAGridByItsCommandAndProfiles)
{
    const auto found = hits("kicks ban operator vip no");
    ASSERT_FALSE(found.empty());
    const FindHit& hit = found.front();
    EXPECT_EQ(hit.place.key, "Security~Kicks~Permissions");
    EXPECT_EQ(hit.kind, FindKind::Cell);
}

TEST_F(FindForms, ALineOfATextBehindAList)
{
    write(R"(Security\Rules\Ascii\1.asc)", "Be kind\r\nDon't shout at gnus");
    EXPECT_TRUE(finds("shout gnus", {"Security~Rules", "lvwRules", 2}, "Profiles", "Don't shout at gnus"));
    write(R"(Communication\MOTD\MOTDs\all.asc)", "Welcome to Ankh");
    EXPECT_TRUE(finds("ankh", {"Communication~MOTD", "lvwMOTD", 4}, "Profile Active", "Welcome to Ankh"));
}

TEST_F(FindForms, ALineOfTheTextBehindTheFirstRow)
{
    write(R"(Communication\RotatingMainMessage\Files\first.asc)", "Mind the orangutan");
    const auto found = hits("orangutan");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().place.row, 0);
}

TEST_F(FindForms, NoTextOfAColumnThatIsHidden)
{
    EXPECT_TRUE(finds("minshare operator", {"Security~ProfileRules~Rules", "lvwPermissions", 12},
                      "Permissions", "Operator | MinShare | 0 KB"));
}

TEST_F(FindForms, AFrameAroundSeveralTicks)
{
    EXPECT_EQ(detail("ops chatrooms suspension", "chkSuspended"), "Announce To Ops");
}

TEST_F(FindForms, APhraseOfASpell)
{
    write(R"(UserActions\Spells\SpellBook.tbl)",
          "tSpellBook = {\r\n[\"Frog\"] = \"to frogs\",\r\n[\"Newt\"] = \"to newts\",\r\n}");
    write(R"(UserActions\Spells\Spells\Newt.tbl)", "tSpell = {\r\n\"It got better\",\r\n}");
    EXPECT_TRUE(finds("got better", {"UserActions~Spells~SpellBook", "lvwSpells", 1}, "Spell Phrase",
                      "Newt: It got better"));
}

TEST_F(FindForms, AQuestionOfAQuizByTheFileThatHoldsIt)
{
    write(R"(Games\Trivia\QuestionFiles\TriviaQuestions.lst)", "Discs:What carries the world?*a turtle");
    EXPECT_TRUE(finds("turtle", {"Games~Trivia~Questions", "lvwQuestionFiles", 0}, "Available Question Files",
                      "Discs:What carries the world? | a turtle"));
    write(R"(Games\Trivia\TriviaQuestionFiles.tbl)",
          "tTriviaQuestionFiles = {\r\n[\"sDefaultQuestionFile\"] = \"TriviaQuestions\",\r\n\t\"Zoo\",\r\n}");
    write(R"(Games\Trivia\QuestionFiles\Zoo.lst)", "Towers:Who sends?*the Smoking GNU");
    EXPECT_TRUE(finds("smoking", {"Games~Trivia~Questions", "lvwQuestionFiles", 1},
                      "Available Question Files", "Towers:Who sends? | the Smoking GNU"));
    EXPECT_TRUE(finds("default triviaquestions", {"Games~Trivia~Questions", "cboQuestionFileDefault"},
                      "Default Question File", "TriviaQuestions"));
}

TEST_F(FindForms, ATextOfALanguageByItsNameAndKey)
{
    write(R"(Language\Commands\CommandLanguages.tbl)",
          "tCommandLanguages = {\r\n\t[1] = \"DEFAULT\",\r\n\t[2] = \"Klatchian\",\r\n}");
    write(R"(Language\Commands\Files\DEFAULT.tbl)", "tScriptCommands = {\r\n\t[\"kick\"] = \"Kick\",\r\n}");
    write(R"(Language\Commands\Files\Klatchian.tbl)",
          "tScriptCommands = {\r\n\t[\"kick\"] = \"Botte\",\r\n}");
    const auto found = hits("klatchian botte");
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found.front().place.control, "lvwFiles");
    EXPECT_EQ(found.front().place.row, 1);
    EXPECT_EQ(found.front().value.text, "Klatchian: kick | Botte");
}

TEST_F(FindForms, AnArticleOfTheNews)
{
    hub.store.folders.insert("/hub/scripts/Morvaleth's Scripts/News");
    hub.store.files["/hub/scripts/Morvaleth's Scripts/News/News.tbl"] = test::golden("news/News.fetched.tbl");
    EXPECT_TRUE(finds("fetch it again", {"General~News", "lvwNews", 2}, "News Headline",
                      "07/08/09 | Newer version | Fetch it again"));
}

TEST_F(FindForms, ANickThatThePortalIgnores)
{
    hub.store.folders.insert(hub.root + "/Communication/Portal");
    write(R"(Communication\Portal\PortalSettings.tbl)",
          test::golden("portal/PortalSettings.save.tbl").c_str());
    const auto found = hits("nicks to ignore loud");
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found.front().value.text, "Loud");
    EXPECT_EQ(found.front().place.control, "lvwNicks");
    EXPECT_EQ(found.front().place.row, 1);
    EXPECT_TRUE(
        finds("portal bridge hub", {"Communication~Portal", "txtTextBox(2)", 0}, "Email", "bridge@hub"));
}

TEST_F(FindForms, NoPasswordOfThePortal)
{
    hub.store.folders.insert(hub.root + "/Communication/Portal");
    write(R"(Communication\Portal\PortalSettings.tbl)",
          "tPortalSettings = {\r\ntHubs = {\r\n[1] = {\r\nsHubAddress = \"hub.example:411\",\r\n"
          "sClientPassword = \"swordfish\",\r\nsClientPort = \"9\",\r\n},\r\n},\r\n}");
    const auto found = hits("hub.example");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().place, (FindPlace{"Communication~Portal", "lvwHubs", 0}));
    EXPECT_TRUE(hits("swordfish").empty());
}

TEST_F(FindForms, NoTextOfAFileThatANameLeadsOutOfItsFolderTo)
{
    hub.store.files["/hub/scripts/secret.tbl"] = "tSpell = {\r\n\"behind the wall\",\r\n}";
    write(R"(UserActions\Spells\SpellBook.tbl)",
          "tSpellBook = {\r\n[\"..\\..\\..\\..\\..\\secret\"] = \"x\",\r\n}");
    EXPECT_TRUE(hits("behind the wall").empty());
    write(R"(Games\Trivia\TriviaQuestionFiles.tbl)",
          "tTriviaQuestionFiles = {\r\n\tsDefaultQuestionFile = \"..\\..\\..\\wall\",\r\n}");
    hub.store.files[hub.root + "/wall.lst"] = "Walls:Who stands behind the wall?*a troll";
    EXPECT_TRUE(hits("a troll").empty());
}

TEST_F(FindForms, EachHitLeadsToAFormWithItsKey)
{
    for (const char* typed : {"time", "profile", "permission", "tbl", "on"}) {
        for (const FindHit& hit : hits(typed))
            EXPECT_TRUE(std::ranges::any_of(functionNodes(), [&](const Node& node) {
                return node.form && node.key == hit.place.key;
            })) << hit.place.key;
    }
}

} // namespace
} // namespace quillfen
