#include "functions/customise/customrightclick.h"

#include "settings/lines.h"
#include "settings/profiles.h"
#include "settings/tablewriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>

namespace quillfen {
namespace {

constexpr std::string_view menuLinesPath = R"(CustomiseUser\CustomRightClick\CustomRightClick.tbl)";
constexpr std::string_view menuLinesTable = "tCustomRightClick";

/// The cells of a row.
enum MenuLineCell
{
    RightClick,
    SeenBy,
    MenuPlace
};

/// Where in the client's menus a line stands; the file counts them from 1.
constexpr std::array<const char*, 4> locations = {"Hub", "Users", "Hub & Users", "Search"};

/// Who sees a line, beside the profiles: as it is shown, and as it is stored.
constexpr std::pair<const char*, const char*> userGroups[] = {{"Operators Only", "ops"},
                                                              {"All Profiles", "all"}};

/// The integer that a text is; nothing if it is another text.
std::optional<long long> integer(const std::string& text)
{
    long long number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    return fault == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::string shownProfile(const std::string& stored, const HubProfiles& profiles)
{
    for (const auto& [word, code] : userGroups) {
        if (stored == code)
            return word;
    }
    const auto row = integer(stored).value_or(-2) + 1; // the key of the first row is -1
    const bool isThere = row >= 0 && row < static_cast<long long>(profiles.count());
    return isThere ? profiles.names()[static_cast<std::size_t>(row)] : stored;
}

/// The key of a profile that is gone is shown as it stands, and stays a bare number.
std::string storedProfile(const std::string& shown, const HubProfiles& profiles)
{
    for (const auto& [word, code] : userGroups) {
        if (shown == word)
            return inQuotes(code);
    }
    const auto& names = profiles.names();
    const auto name = std::find(names.begin(), names.end(), shown);
    if (name != names.end())
        return HubProfiles::key(static_cast<std::size_t>(name - names.begin()));
    return integer(shown) ? shown : inQuotes(shown);
}

std::string shownLocation(const std::string& stored)
{
    const auto place = integer(stored).value_or(0) - 1;
    const bool isThere = place >= 0 && place < static_cast<long long>(locations.size());
    return isThere ? locations[static_cast<std::size_t>(place)] : stored;
}

/// A place that is none of the four stays as it stands; a row that has none would stop the script from
/// loading the file.
std::string storedLocation(const std::string& shown)
{
    const auto* const place = std::find(locations.begin(), locations.end(), shown);
    if (place != locations.end())
        return std::to_string(place - locations.begin() + 1);
    return shown.empty() ? "0" : shown;
}

/// Every line of the file counts here, where other settings end at the 5000th: rows that a load left out
/// would be lost at the next save.
std::vector<CellRow> loadRows(const SettingsFiles& files, const HubProfiles& profiles)
{
    std::string bytes = files.store().read(files.paths().resolve(menuLinesPath)).value_or(std::string());
    const auto most =
        static_cast<double>(bytes.size()); // no row is shorter than a byte, whatever the count says
    const TableIndex index(std::move(bytes), std::numeric_limits<std::size_t>::max());
    const auto count =
        static_cast<int>(std::clamp(leadingNumber(index.value("iCommands", menuLinesTable)), 0.0, most));
    std::vector<CellRow> rows;
    for (int number = 1; number <= count; ++number) {
        const std::string block = std::to_string(number);
        rows.push_back(
            {{index.value("sRightClick", block), shownProfile(index.value("sProfile", block), profiles),
              shownLocation(index.value("iWhere", block))},
             isOne(index.value("bEnabled", block))});
    }
    return rows;
}

void saveRows(const SettingsFiles& files, const HubProfiles& profiles, const std::vector<CellRow>& rows)
{
    TableWriter lines(menuLinesTable);
    lines.row("iCommands", std::to_string(rows.size()));
    int number = 0;
    for (const CellRow& row : rows) {
        // The rows of a block stand two tabs deeper than its brace.
        lines.open(bracketed(std::to_string(++number))).indent(3);
        lines.row("bEnabled", row.checked ? "1" : "0");
        lines.row("iWhere", storedLocation(row.cells[MenuPlace]));
        lines.row("sProfile", storedProfile(row.cells[SeenBy], profiles));
        lines.text("sRightClick", row.cells[RightClick]);
        lines.indent(2).close();
    }
    files.WriteSettingsFile(menuLinesPath, lines.closed());
}

} // namespace

RowListDeclaration customRightClicks(const HubProfiles& profiles)
{
    std::vector<std::string> whose = profiles.names();
    for (const auto& group : userGroups)
        whose.emplace_back(group.first);

    RowListDeclaration list = listOf("Right Click", Fewest::None);
    list.list = "lvwCustomRightClicks";
    list.toolbar = "tlbHubs";
    list.movement = "tlbListviewMovement";
    list.label = "Hub Settings"; // copied from the list of hubs, as the toolbar's name is
    list.explanation =
        "Each ticked row is a line that the users of its profile get in their right click menus, "
        "in the order of this list.";
    list.columns = {"Right Click", "Profile", "Location"};
    list.ticks = true;
    list.menu = "mnuFirst";
    list.dialog.form = EditForm::OneTextTwoCombo;
    list.dialog.labels = list.columns;
    list.dialog.entries = {whose, std::vector<std::string>(locations.begin(), locations.end())};
    list.take = [](const std::vector<std::string>& fields, CellRow& row) {
        for (std::size_t at = 0; at < fields.size(); ++at) {
            if (!fields[at].empty()) // a stored profile or location that is none of the entries isn't shown
                row.cells[at] = fields[at];
        }
    };
    list.deletion = deletionOf("right click", "right click");
    list.load = loadRows;
    list.save = saveRows;
    return list;
}

FunctionDeclaration customRightClickFunction()
{
    const FormDescription form = {.name = "frmCustomiseUserCustomRightClick",
                                  .caption = "CustomiseUser ~ Custom Right Click",
                                  .hasRestore = false};
    return {.nodes = {{"CustomiseUser~CustomRightClick",
                       "Custom Right Click",
                       {{form, {DeclaredList{customRightClicks}}}}}},
            .folders = {R"(CustomiseUser\CustomRightClick)"},
            .build = {EmptyTable{std::string(menuLinesPath),
                                 std::string(menuLinesTable)}}}; // without a count, which reads as none
}

} // namespace quillfen
