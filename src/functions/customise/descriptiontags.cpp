#include "functions/customise/descriptiontags.h"

#include "settings/lines.h"
#include "settings/profiles.h"
#include "settings/tablewriter.h"

#include <map>
#include <set>

namespace quillfen {
namespace {

constexpr const char* tagSettingsPath = R"(CustomiseUser\DescriptionTags\DescriptionTagSettings.tbl)";
constexpr const char* tagSettingsTable = "tDescriptionTagSettings";
constexpr const char* tagTable = "tProfiles";

/// No control holds this flag: only the rebuild writes it, and each save of the form loses it again.
const TableFile& rebuiltOnly()
{
    static const TableFile file = {
        tagSettingsPath, tagSettingsTable, {setting::rebuiltFlag("bNotifyOps", true)}};
    return file;
}

std::string defaultTag(const std::string& profile)
{
    return "[" + profile + "]";
}

/// The tags that the file has, by profile key.
std::map<std::string, std::string> storedTags(const SettingsFiles& files)
{
    std::vector<ListRow> rows;
    files.ReadTableToList(tagSettingsPath, rows, "=", tagTable);
    std::map<std::string, std::string> tags;
    for (ListRow& row : rows)
        tags.try_emplace(std::move(row.text), std::move(row.second));
    return tags;
}

/// The row of each profile with the tag that `tagOf(row)` gives it.
template <typename TagOf>
std::vector<CellRow> tagRows(const HubProfiles& profiles, const TagOf& tagOf)
{
    std::vector<CellRow> rows;
    for (std::size_t row = 0; row < profiles.count(); ++row)
        rows.push_back({{profiles.names()[row], tagOf(row)}});
    return rows;
}

/// A tag ends at its `=` here: lists are read so.
std::vector<CellRow> loadTags(const SettingsFiles& files, const HubProfiles& profiles)
{
    auto tags = storedTags(files);
    return tagRows(profiles, [&tags](std::size_t row) { return tags[HubProfiles::key(row)]; });
}

std::vector<CellRow> defaultTags(const HubProfiles& profiles)
{
    return tagRows(profiles, [&profiles](std::size_t row) { return defaultTag(profiles.names()[row]); });
}

/// The keys of the tags that stand in their own table, which ends at its brace.
std::set<std::string, std::less<>> tagKeys(std::string_view bytes)
{
    std::set<std::string, std::less<>> keys;
    LineCursor cursor(bytes);
    bool inTable = false;
    while (const auto line = cursor.next()) {
        const auto key = trimmedTableKey(splitOnce(*line, '=').left);
        if (inTable && key == "}")
            return keys;
        if (inTable)
            keys.emplace(key);
        inTable = inTable || key == tagTable;
    }
    return keys;
}

std::vector<CellRow> rebuiltTags(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto bytes = files.store().read(files.paths().resolve(tagSettingsPath)).value_or(std::string());
    const auto keys = tagKeys(bytes);
    const TableIndex index(bytes);
    return tagRows(profiles, [&](std::size_t row) {
        const std::string key = HubProfiles::key(row);
        // Asked for a tag that is missing, the index would find a flag of the table behind.
        const auto value = keys.contains(key) ? index.value(key, tagTable) : std::string();
        return value.empty() ? defaultTag(profiles.names()[row]) : value;
    });
}

void writeTags(TableWriter& lines, const std::vector<CellRow>& tags)
{
    lines.open(tagTable);
    for (std::size_t row = 0; row < tags.size(); ++row)
        lines.text(bracketed(HubProfiles::key(row)), tags[row].cells[1]);
    lines.close();
}

void rebuildDescriptionTags(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto index = files.index(tagSettingsPath);
    TableWriter lines(tagSettingsTable);
    const auto writeKept = [&](const TableFile& file) {
        writeRows(lines, file, rebuilt(file, index, profiles), RowOrder::Rebuild, profiles);
    };
    writeKept(rebuiltOnly());
    writeTags(lines, rebuiltTags(files, profiles));
    writeKept(taggedProfiles());
    files.WriteSettingsFile(tagSettingsPath, lines.closed());
}

} // namespace

const TableFile& taggedProfiles()
{
    static const TableFile file = {
        tagSettingsPath,
        tagSettingsTable,
        {setting::enabledProfiles().explained(
            "Puts the tag of their profile into the descriptions of users of the ticked profiles.")}};
    return file;
}

RowListDeclaration descriptionTags()
{
    RowListDeclaration list;
    list.list = "lvwDescriptionTags";
    list.toolbar = "tlbListview";
    list.explanation = "Each row is the tag that the descriptions of a profile's users get.";
    list.columns = {"Profile", "Tag"};
    list.menu = "mnuOnlyEdit";
    list.dialog.editTitle = "Edit File"; // copied from a list of files
    list.labelsOf = [](const CellRow& row) { return std::vector<std::string>{row.cells[0] + " Tag"}; };
    list.fieldsOf = [](const CellRow& row) { return std::vector<std::string>{row.cells[1]}; };
    list.take = [](const std::vector<std::string>& fields, CellRow& row) { row.cells[1] = fields[0]; };
    list.load = loadTags;
    list.restored = defaultTags;
    return list;
}

void saveDescriptionTags(const SettingValues& tagged, const std::vector<CellRow>& tags,
                         const SettingsFiles& files, const HubProfiles& profiles)
{
    TableWriter lines(tagSettingsTable);
    writeRows(lines, taggedProfiles(), tagged, RowOrder::Save, profiles);
    writeTags(lines, tags);
    files.WriteSettingsFile(tagSettingsPath, lines.closed());
}

FunctionDeclaration descriptionTagsFunction()
{
    const OwnPart part = {.kind = OwnPartKind::DescriptionTags,
                          .files = [] { return std::vector{taggedProfiles()}; },
                          .lists = [] { return std::vector{descriptionTags()}; }};
    return {
        .nodes = {{"CustomiseUser~DescriptionTags",
                   "Description Tags",
                   {{{"frmCustomiseUserDescriptionTags", "CustomiseUser ~ DescriptionTags"}, {part}}}}},
        .folders = {R"(CustomiseUser\DescriptionTags)"},
        .build = {rebuildDescriptionTags,
                  EmptyTable{R"(CustomiseUser\DescriptionTags\DescriptionTags.tbl)", "tDescriptionTags"}}};
}

} // namespace quillfen
