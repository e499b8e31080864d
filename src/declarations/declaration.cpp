#include "declarations/declaration.h"

#include "settings/profiles.h"
#include "settings/tablefile.h"
#include "settings/tablewriter.h"

#include <algorithm>

namespace quillfen {
namespace {

/// A row of a nested table.
struct NestedRow
{
    std::string key;           ///< as the readers know it
    std::string_view standard; ///< what stands in for a missing or an empty one at a rebuild
};

std::vector<NestedRow> profileRows(const Setting& setting, const HubProfiles& profiles)
{
    std::vector<NestedRow> rows;
    rows.reserve(profiles.count());
    for (std::size_t row = setting.firstProfile; row < profiles.count(); ++row)
        rows.push_back({HubProfiles::key(row), "0"});
    return rows;
}

std::vector<NestedRow> nestedRows(const Setting& setting, const HubProfiles& profiles)
{
    if (setting.kind == Setting::Kind::Profiles)
        return profileRows(setting, profiles);
    std::vector<NestedRow> rows;
    if (setting.kind == Setting::Kind::Flags) {
        for (const std::string& each : setting.entries)
            rows.push_back({"b" + each, "0"});
    } else if (setting.kind == Setting::Kind::Texts) {
        for (std::size_t at = 0; at < setting.entries.size(); ++at)
            rows.push_back({setting.entries[at], setting.standards.at(at)});
    }
    return rows;
}

bool isNested(const Setting& setting)
{
    return setting.kind == Setting::Kind::Profiles || setting.kind == Setting::Kind::Flags ||
           setting.kind == Setting::Kind::Texts;
}

/// Makes the name that a nested row has among the values, in a text that serves row after row: a rebuild has
/// thousands of them.
const std::string& nameRow(std::string& name, const Setting& setting, std::string_view key)
{
    return name.assign(setting.key).append("/").append(key);
}

std::string rowName(const Setting& setting, std::string_view key)
{
    std::string name;
    return nameRow(name, setting, key);
}

TableWriter& writeTable(TableWriter& table, const Setting& setting, const SettingValues& values,
                        const HubProfiles& profiles)
{
    table.open(setting.key);
    std::string name;
    for (const NestedRow& row : nestedRows(setting, profiles)) {
        const std::string& value = values.at(nameRow(name, setting, row.key));
        if (setting.kind == Setting::Kind::Profiles)
            table.row(bracketed(row.key), value);
        else if (setting.kind == Setting::Kind::Texts)
            table.text(row.key, value);
        else
            table.row(row.key, value);
    }
    return table.close();
}

TableWriter& writeConstants(TableWriter& table, const Setting& setting, RowOrder order)
{
    const bool differs = order == RowOrder::Rebuild && !setting.rebuildEntries.empty();
    table.open(setting.key);
    for (const std::string& row : differs ? setting.rebuildEntries : setting.entries)
        table.row(row);
    return table.close();
}

TableWriter& writeSetting(TableWriter& table, const Setting& setting, const SettingValues& values,
                          RowOrder order, const HubProfiles& profiles)
{
    const bool saves = order == RowOrder::Save;
    const std::string& key = saves && !setting.keyInSave.empty() ? setting.keyInSave : setting.key;
    switch (setting.kind) {
    case Setting::Kind::Flag:
    case Setting::Kind::Number:
    case Setting::Kind::Options:
    case Setting::Kind::Profile:
        return table.row(key, values.at(setting.key));
    case Setting::Kind::Text:
    case Setting::Kind::Entry:
    case Setting::Kind::Letter:
        return table.text(key, saves && setting.constant ? *setting.constant : values.at(setting.key));
    case Setting::Kind::Profiles:
    case Setting::Kind::Flags:
    case Setting::Kind::Texts:
        return writeTable(table, setting, values, profiles);
    case Setting::Kind::Rows:
        return writeConstants(table, setting, order);
    }
    return table;
}

/// Takes each value from `valueOf(setting, key, table)`, the standard of a nested row standing in for one
/// that is empty if `fills` says so for its setting.
template <typename ValueOf>
SettingValues gathered(
    const TableFile& file, const HubProfiles& profiles, const ValueOf& valueOf, bool (*fills)(const Setting&),
    bool (*skips)(const Setting&) = [](const Setting&) { return false; })
{
    SettingValues values;
    std::string name;
    for (const Setting& setting : file.settings) {
        if (skips(setting))
            continue;
        if (!isNested(setting))
            values[setting.key] = valueOf(setting, setting.key, std::string());
        for (const NestedRow& row : nestedRows(setting, profiles)) {
            auto value = valueOf(setting, row.key, setting.key);
            if (value.empty() && fills(setting))
                value = row.standard;
            values.insert_or_assign(nameRow(name, setting, row.key), std::move(value));
        }
    }
    return values;
}

/// A missing flag is off for every reader; a missing text is filled in by a rebuild only.
bool isFlags(const Setting& setting)
{
    return setting.kind != Setting::Kind::Texts;
}

bool isAny(const Setting& /*setting*/)
{
    return true;
}

/// Closes and opens the nested tables that end and begin between one setting and the next.
void pass(TableWriter& table, std::string_view nestBefore, std::string_view nest)
{
    if (nestBefore == nest)
        return;
    if (!nestBefore.empty())
        table.close();
    if (!nest.empty())
        table.open(nest);
}

std::vector<const Setting*> inOrder(const TableFile& file, RowOrder order)
{
    std::vector<const Setting*> settings;
    if (order == RowOrder::Save || file.rebuildOrder.empty()) {
        for (const Setting& setting : file.settings) {
            if (!setting.idle && (setting.saved || order == RowOrder::Rebuild))
                settings.push_back(&setting);
        }
        return settings;
    }
    for (const std::string& key : file.rebuildOrder) {
        settings.push_back(&*std::find_if(file.settings.begin(), file.settings.end(),
                                          [&key](const Setting& setting) { return setting.key == key; }));
    }
    return settings;
}

} // namespace

std::string flagRow(const Setting& setting, const std::string& entry)
{
    return rowName(setting, "b" + entry);
}

std::string textRow(const Setting& setting, const std::string& entry)
{
    return rowName(setting, entry);
}

std::string profileRow(const Setting& setting, std::size_t row)
{
    return rowName(setting, HubProfiles::key(row));
}

SettingValues loaded(const TableFile& file, const TableIndex& index, const HubProfiles& profiles)
{
    return gathered(
        file, profiles,
        [&index](const Setting& setting, const std::string& key, const std::string& table) {
            const auto value = index.value(key, table);
            return setting.shown ? setting.shown(value) : value;
        },
        isFlags);
}

SettingValues restored(const TableFile& file, const HubProfiles& profiles)
{
    return gathered(
        file, profiles,
        [](const Setting& setting, const std::string&, const std::string&) { return setting.standard; },
        isAny, [](const Setting& setting) { return setting.keptByRestore; });
}

SettingValues rebuilt(const TableFile& file, const TableIndex& index, const HubProfiles& profiles)
{
    return gathered(
        file, profiles,
        [&](const Setting& setting, const std::string& key, const std::string& table) {
            const std::string& home = setting.nest.empty() ? file.table : setting.nest;
            const auto value = index.value(key, table.empty() ? home : table);
            return value.empty() || setting.resets ? setting.rebuildStandard.value_or(setting.standard)
                                                   : value;
        },
        isAny);
}

void writeRows(TableWriter& table, const TableFile& file, const SettingValues& values, RowOrder order,
               const HubProfiles& profiles)
{
    std::string_view nest;
    for (const Setting* setting : inOrder(file, order)) {
        pass(table, nest, setting->nest);
        writeSetting(table, *setting, values, order, profiles);
        nest = setting->nest;
    }
    pass(table, nest, {});
}

std::string composed(const TableFile& file, const SettingValues& values, RowOrder order,
                     const HubProfiles& profiles)
{
    TableWriter table(file.table);
    writeRows(table, file, values, order, profiles);
    return table.closed();
}

void rebuildTableFile(const TableFile& file, const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto values = rebuilt(file, files.index(file.path), profiles);
    files.WriteSettingsFile(file.path, composed(file, values, RowOrder::Rebuild, profiles));
}

void saveTableFile(const TableFile& file, const SettingValues& values, const SettingsFiles& files,
                   const HubProfiles& profiles)
{
    const std::string folder = files.paths().resolve(file.path.substr(0, file.path.find_last_of('\\')));
    if (file.makesFolder)
        makeFolderIfMissing(files.store(), folder);
    files.WriteSettingsFile(file.path, composed(file, values, RowOrder::Save, profiles));
}

} // namespace quillfen
