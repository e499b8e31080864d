// What the find box knows of each kind of part.
#include "find/findforms.h"
#include "settings/lines.h"
#include "support/hub.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillfen {
namespace {

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
