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

/// A form with a single part, for a hub with one profile, "Gnus".
class FindParts : public testing::Test
{
protected:
    FindParts() { hub.profiles.add("Gnus"); }

    /// What is found of the part, as "<kind> <control> <row>: <setting> / <value> / <what else holds a
    /// word>".
    std::vector<std::string> found(const PartDeclaration& part, const char* typed = "gnu") const
    {
        const FormDeclaration form = {{"frmOne", "One"}, {part}};
        std::vector<std::string> lines;
        for (const FindHit& hit : indexOfForms({{"A~One", "One", &form}}, hub.files, hub.profiles)
                                      .find(FindQuery(typed), 100)
                                      .hits) {
            static const std::map<FindKind, std::string> kinds = {{FindKind::File, "file"},
                                                                  {FindKind::Control, "control"},
                                                                  {FindKind::Row, "row"},
                                                                  {FindKind::Cell, "cell"}};
            lines.push_back(kinds.at(hit.kind) + ' ' + hit.place.control + ' ' +
                            std::to_string(hit.place.row) + ": " + hit.setting.text + " / " + hit.value.text +
                            " / " + hit.detail.text);
        }
        std::ranges::sort(lines);
        return lines;
    }

    test::Hub hub;
};

using Lines = std::vector<std::string>;

TEST_F(FindParts, OfSettingsAreTheirControlsAndRowsAndWhatIsIdle)
{
    hub.file("Herd.tbl") = "tHerd = {\r\n\tiGnus = 7,\r\n\ttGnuTexts = {\r\n\t\tsGnu = \"x\",\r\n\t},\r\n"
                           "\ttTicks = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t},\r\n}";
    const auto file = [] {
        using namespace setting;
        return TableFile{
            "Herd.tbl",
            "tHerd",
            {number("iGnus", "txtOne", "Number of gnus", 5, 1, 9),
             Idle{number("iNone", "txtTwo", "Idle gnus", 3, 1, 9)},
             NamedTexts{"tGnuTexts", "lvwTexts", "Texts", {{"sGnu", "a gnu"}}, "Tells of herds."},
             profileFlags("tTicks", "lvwTicks", "Ticks")}};
    };
    EXPECT_EQ(found(DeclaredSettings{file}),
              (Lines{"control lvwTexts -1: Texts /  / tGnuTexts", "control txtOne -1: Number of gnus / 7 / ",
                     "control txtTwo -1: Idle gnus / 3 / ", "row lvwTexts 0: Texts / sGnu: x / ",
                     "row lvwTicks 1: Ticks / Gnus: on / "}));
    EXPECT_EQ(found(DeclaredSettings{file}, "tells herds"),
              Lines{"control lvwTexts -1: Texts /  / Tells of herds."});
}

TEST_F(FindParts, OfSettingsAreWhatIsToldBesideThem)
{
    setting::Field days = setting::number("iDays", "txtDays", "Days", 5, 1, 9);
    std::get<setting::Number>(days.kind).details.unit = "gnu days";
    setting::Field ticks = setting::profileFlags("tTicks", "lvwTicks", "Ticks");
    std::get<setting::ProfileFlags>(ticks.kind).heading = "Heading";
    const DeclaredSettings part = {[=] { return TableFile{"Herd.tbl", "tHerd", {days, ticks}}; }};
    EXPECT_EQ(found(part, "gnu days"), Lines{"control txtDays -1: Days /  / gnu days"});
    EXPECT_EQ(found(part, "heading"), Lines{"control lvwTicks -1: Ticks /  / Heading"});
}

RowListDeclaration listOfGnus(const std::vector<std::string>& names)
{
    RowListDeclaration list;
    list.list = "lvwHerd";
    list.columns = {"Gnu", "Age"};
    list.load = [names](const SettingsFiles& files, const HubProfiles&) {
        files.ReadTextFile("Herd.tbl");
        std::vector<CellRow> rows;
        for (const std::string& name : names)
            rows.push_back({{name, ""}});
        return rows;
    };
    return list;
}

TEST_F(FindParts, OfAListIsAllThatItTells)
{
    const DeclaredList part = listPart([] {
        RowListDeclaration list = listOfGnus({});
        list.label = "Herd";
        list.explanation = "Explains.";
        list.remark = "Remark";
        list.toolTips = {"Tip"};
        list.dialog.labels = {"Field"};
        list.dialog.entries = {{"Yearling"}, {"Bull"}};
        return list;
    });
    for (const char* told : {"Gnu", "Age", "Explains.", "Remark", "Tip", "Field", "Yearling", "Bull"})
        EXPECT_EQ(found(part, told), Lines{"control lvwHerd -1: Herd /  / " + std::string(told)});
}

TEST_F(FindParts, OfAListAreAsManyRowsAsOneLoadOfTheEditorReads)
{
    std::vector<std::string> names(lineLimit + 1);
    names[lineLimit - 1] = "last";
    names[lineLimit] = "behind";
    const DeclaredList part = listPart([names] { return listOfGnus(names); });
    EXPECT_EQ(found(part, "last"), Lines{"row lvwHerd 4999: Gnu / last / "});
    EXPECT_EQ(found(part, "behind"), Lines());
}

TEST_F(FindParts, OfARowOfFewerCellsThanColumnsAreThoseThatItHas)
{
    const DeclaredList part = listPart([] {
        RowListDeclaration list = listOfGnus({});
        list.load = [](const SettingsFiles&, const HubProfiles&) {
            return std::vector<CellRow>{{{"first"}}, {{"second", "old", "hidden"}}};
        };
        return list;
    });
    EXPECT_EQ(found(part, "first"), Lines{"row lvwHerd 0: Gnu / first / "});
    EXPECT_EQ(found(part, "second"), Lines{"row lvwHerd 1: Gnu / second | old / "});
}

TEST_F(FindParts, OfAListWithTicksTellThem)
{
    const DeclaredList part = listPart([] {
        RowListDeclaration list = listOfGnus({});
        list.ticks = true;
        list.load = [](const SettingsFiles&, const HubProfiles&) {
            return std::vector<CellRow>{{{"first"}, true}, {{"second"}}};
        };
        return list;
    });
    EXPECT_EQ(found(part, "first"), Lines{"row lvwHerd 0: Gnu / first: on / "});
    EXPECT_EQ(found(part, "second"), Lines{"row lvwHerd 1: Gnu / second: off / "});
}

TEST_F(FindParts, OfSeveralWordsAreTheDetailsThatHoldThem)
{
    const DeclaredList part = listPart([] {
        RowListDeclaration list = listOfGnus({});
        list.remark = "Remark";
        list.toolTips = {"Tip"};
        return list;
    });
    EXPECT_EQ(found(part, "tip remark"), Lines{"control lvwHerd -1: Gnu /  / Tip, Remark"});
}

TEST_F(FindParts, OfTicksAreTheirRowsFromTheFirstOn)
{
    hub.file("Herd.tbl") = "tHerd = {\r\n\tbFeed = 1,\r\n\tbCount = 0,\r\n}\r\n";
    const DeclaredTicks ticks = {[] {
        return TickList{.control = "lvwHerd",
                        .caption = "Herd",
                        .file = {.path = "Herd.tbl", .table = "tHerd", .form = ListFile::Form::Flags}};
    }};
    EXPECT_EQ(found(ticks, "feed"), Lines{"row lvwHerd 0: Herd / Feed: on / "});
    EXPECT_EQ(found(ticks, "count"), Lines{"row lvwHerd 1: Herd / Count: off / "});
}

TEST_F(FindParts, OfATextAreAsManyLinesAsOneLoadOfTheEditorReads)
{
    OwnPart own = {OwnPartKind::Rules};
    own.texts = [](const SettingsFiles&, const HubProfiles&) {
        std::string text;
        for (std::size_t line = 1; line < lineLimit; ++line)
            text += "x\n";
        return std::vector<PlacedText>{{"", "txtHerd", -1, "Herd", text + "last\nbehind"}};
    };
    EXPECT_EQ(found(own, "last"), Lines{"row txtHerd -1: Herd / last / "});
    EXPECT_EQ(found(own, "behind"), Lines());
}

TEST_F(FindParts, OfAListStandBelowItsFileAloneThoughItReadsAFileOfTheHubToo)
{
    hub.file("Herd.tbl") = "";
    hub.store.files["/hub/cfg/Herd.xml"] = "";
    const auto ofOne = [this](const char* other) {
        return found(listPart([other] {
                         RowListDeclaration list = listOfGnus({"gnat"});
                         list.load = [load = list.load, other](const SettingsFiles& files,
                                                               const HubProfiles& profiles) {
                             files.store().read(other);
                             return load(files, profiles);
                         };
                         return list;
                     }),
                     "herd gnat");
    };
    const std::string row = "row lvwHerd 0: Gnu / gnat / Herd.tbl";
    EXPECT_EQ(ofOne("/hub/cfg/Herd.xml"), Lines{row});
    EXPECT_EQ(ofOne((hub.root + "/Other.tbl").c_str()), Lines()) << "which of the two it is, nobody knows";
}

TEST_F(FindParts, OfATextAreItsLines)
{
    hub.file("Herd.asc") = "one gnu\r\n \r\ntwo gnus";
    EXPECT_EQ(found(DeclaredText{"tlbHerd", "Herd", "Herd.asc", "A text of gnus."}),
              (Lines{"control tlbHerd -1: Herd /  / A text of gnus.", "row tlbHerd -1: Herd / one gnu / ",
                     "row tlbHerd -1: Herd / two gnus / "}));
}

TEST_F(FindParts, OfAPartOfItsOwnAreItsSettingsAndLists)
{
    OwnPart own = {OwnPartKind::Rules};
    own.files = [] {
        return std::vector{
            TableFile{"Herd.tbl", "tHerd", {setting::number("iGnus", "txtOne", "Number of gnus", 5, 1, 9)}}};
    };
    own.lists = [] { return std::vector{listOfGnus({"gnat"})}; };
    EXPECT_EQ(found(own),
              (Lines{"control lvwHerd -1: Gnu /  / ", "control txtOne -1: Number of gnus /  / "}));
}

GridSource gridOfGnus(const std::vector<PermissionCell>& cells)
{
    GridSource grid;
    grid.commands = {"Feed gnu", "Count gnu"};
    grid.named = {"all"};
    grid.load = [cells](const SettingsFiles&, const HubProfiles&) { return cells; };
    return grid;
}

TEST_F(FindParts, OfAGridWithoutTargetsAreItsRows)
{
    GridWords words;
    words.targets = false;
    words.explanation = "Who may feed gnus.";
    const DeclaredGrid grid = {[] {
                                   return gridOfGnus({{0, 0, 0, true}, {0, 1, 0, false}, {1, 0, 0, false}});
                               },
                               words};
    EXPECT_EQ(found(grid), (Lines{"control lvwPermissions -1: Command /  / Who may feed gnus.",
                                  "row lvwPermissions 0: Feed gnu / Unregistered: Yes / ",
                                  "row lvwPermissions 1: Feed gnu / Gnus: No / ",
                                  "row lvwPermissions 2: Count gnu / Unregistered: No / "}));
    EXPECT_EQ(found(grid, "allow to"), Lines{"control lvwPermissions -1: Command /  / Allow To"});
}

TEST_F(FindParts, OfAGridWithTargetsAreARowForEachCommandAndProfileAndItsCells)
{
    const DeclaredGrid grid = {[] {
        return gridOfGnus({{0, 0, 1, true}, {0, 0, 2, false}, {0, 1, 0, false}, {1, 1, 1, true}});
    }};
    EXPECT_EQ(found(grid, "feed"), (Lines{"row lvwPermissions 0: Feed gnu / Unregistered / ",
                                          "row lvwPermissions 2: Feed gnu / Gnus / "}));
    EXPECT_EQ(found(grid, "gnu yes"), (Lines{"cell lvwPermissions 0: Feed gnu: Unregistered / Gnus: Yes / ",
                                             "cell lvwPermissions 3: Count gnu: Gnus / Gnus: Yes / "}));
    EXPECT_EQ(found(grid, "gnu no"), (Lines{"cell lvwPermissions 1: Feed gnu: Unregistered / all: No / ",
                                            "cell lvwPermissions 2: Feed gnu: Gnus / Unregistered: No / "}));
}

TEST_F(FindParts, OfAPartOfItsOwnAreItsTextsLineByLineBelowWhatExplainsThem)
{
    OwnPart own = {OwnPartKind::Rules};
    own.explanations = {{"lvwHerd", "Each row is a gnu."}, {"lvwOther", "No gnu."}};
    own.texts = [](const SettingsFiles&, const HubProfiles&) {
        return std::vector<PlacedText>{{"Herd.tbl", "lvwHerd", 4, "Herd", "one gnu\r\n \r\ntwo gnus"},
                                       {"Herd.tbl", "lvwHerd", 5, "Herd", "three gnus"}};
    };
    EXPECT_EQ(found(own),
              (Lines{"control lvwHerd -1: Herd /  / Each row is a gnu.", "row lvwHerd 4: Herd / one gnu / ",
                     "row lvwHerd 4: Herd / two gnus / ", "row lvwHerd 5: Herd / three gnus / "}));
}

} // namespace
} // namespace quillfen
