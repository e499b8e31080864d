#include "settings/declaration.h"

#include "settings/profiles.h"
#include "settings/tablefile.h"

#include <algorithm>
#include <set>

namespace quillfen {
namespace {

std::string profilesText(const Setting& setting, const SettingValues& values, const HubProfiles& profiles)
{
    std::string rows = "\t" + setting.key + " = {\r\n";
    for (std::size_t row = 0; row < profiles.count(); ++row) {
        const auto& value = values.at(profileRow(setting, row));
        rows.append("\t\t[").append(HubProfiles::key(row)).append("] = ").append(value).append(",\r\n");
    }
    return rows + "\t},\r\n";
}

std::string rowText(const Setting& setting, const SettingValues& values, const HubProfiles& profiles)
{
    switch (setting.kind) {
    case Setting::Kind::Flag:
    case Setting::Kind::Number:
    case Setting::Kind::Options:
        return "\t" + setting.key + " = " + values.at(setting.key) + ",\r\n";
    case Setting::Kind::Text:
    case Setting::Kind::Entry:
    case Setting::Kind::Letter:
        return "\t" + setting.key + " = \"" + values.at(setting.key) + "\",\r\n";
    case Setting::Kind::Profiles:
        return profilesText(setting, values, profiles);
    }
    return {};
}

/// Takes each value from `valueOf(key, table)`, "0" standing in for a profile's flag that has none.
template <typename ValueOf>
SettingValues gathered(
    const TableFile& file, const HubProfiles& profiles, const ValueOf& valueOf,
    bool (*skips)(const Setting&) = [](const Setting&) { return false; })
{
    SettingValues values;
    for (const Setting& setting : file.settings) {
        if (skips(setting))
            continue;
        if (setting.kind != Setting::Kind::Profiles) {
            values[setting.key] = valueOf(setting, setting.key, std::string());
            continue;
        }
        for (std::size_t row = 0; row < profiles.count(); ++row) {
            const auto value = valueOf(setting, HubProfiles::key(row), setting.key);
            values[profileRow(setting, row)] = value.empty() ? "0" : value;
        }
    }
    return values;
}

std::vector<const Setting*> inOrder(const TableFile& file, RowOrder order)
{
    std::vector<const Setting*> settings;
    if (order == RowOrder::Save || file.rebuildOrder.empty()) {
        for (const Setting& setting : file.settings)
            settings.push_back(&setting);
        return settings;
    }
    for (const std::string& key : file.rebuildOrder) {
        settings.push_back(&*std::find_if(file.settings.begin(), file.settings.end(),
                                          [&key](const Setting& setting) { return setting.key == key; }));
    }
    return settings;
}

} // namespace

Setting flag(std::string key, std::string control, std::string label, std::string standard)
{
    return {Setting::Kind::Flag, std::move(key), std::move(control), std::move(label), std::move(standard)};
}

Setting number(std::string key, std::string control, std::string label, std::string standard, int minimum,
               int maximum)
{
    return {Setting::Kind::Number,
            std::move(key),
            std::move(control),
            std::move(label),
            std::move(standard),
            minimum,
            maximum};
}

Setting text(std::string key, std::string control, std::string label, std::string standard)
{
    return {Setting::Kind::Text, std::move(key), std::move(control), std::move(label), std::move(standard)};
}

Setting entry(std::string key, std::string control, std::string label, std::string standard,
              std::vector<std::string> entries)
{
    return {
        Setting::Kind::Entry, std::move(key), std::move(control), std::move(label), std::move(standard), 0, 0,
        std::move(entries)};
}

Setting options(std::string key, std::string control, std::string label, std::string standard,
                int firstOption, std::vector<std::string> entries)
{
    Setting setting =
        entry(std::move(key), std::move(control), std::move(label), std::move(standard), std::move(entries));
    setting.kind = Setting::Kind::Options;
    setting.firstOption = firstOption;
    return setting;
}

Setting profileFlags(std::string key, std::string control, std::string label)
{
    return {Setting::Kind::Profiles, std::move(key), std::move(control), std::move(label)};
}

Setting letter(std::string key, std::string control, std::string label, std::string standard,
               std::vector<std::string> entries)
{
    Setting setting =
        entry(std::move(key), std::move(control), std::move(label), std::move(standard), std::move(entries));
    setting.kind = Setting::Kind::Letter;
    return setting;
}

std::string profileRow(const Setting& setting, std::size_t row)
{
    return setting.key + "/" + HubProfiles::key(row);
}

SettingValues loaded(const TableFile& file, const TableIndex& index, const HubProfiles& profiles)
{
    return gathered(file, profiles,
                    [&index](const Setting& setting, const std::string& key, const std::string& table) {
                        const auto value = index.value(key, table);
                        return setting.shown ? setting.shown(value) : value;
                    });
}

SettingValues restored(const TableFile& file, const HubProfiles& profiles)
{
    return gathered(
        file, profiles,
        [](const Setting& setting, const std::string&, const std::string&) { return setting.standard; },
        [](const Setting& setting) { return setting.keptByRestore; });
}

SettingValues rebuilt(const TableFile& file, const TableIndex& index, const HubProfiles& profiles)
{
    return gathered(
        file, profiles, [&](const Setting& setting, const std::string& key, const std::string& table) {
            const auto value = index.value(key, table.empty() ? file.table : table);
            return value.empty() || setting.resets ? setting.rebuildStandard.value_or(setting.standard)
                                                   : value;
        });
}

std::string composed(const TableFile& file, const SettingValues& values, RowOrder order,
                     const HubProfiles& profiles)
{
    std::string text = file.table + " = {\r\n";
    for (const Setting* setting : inOrder(file, order))
        text += rowText(*setting, values, profiles);
    return text + "}";
}

void rebuildTableFile(const TableFile& file, const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto values = rebuilt(file, files.index(file.path), profiles);
    files.WriteSettingsFile(file.path, composed(file, values, RowOrder::Rebuild, profiles));
}

std::vector<std::string> faults(const TableFile& file)
{
    std::vector<std::string> found;
    std::multiset<std::string> keys;
    for (const Setting& setting : file.settings)
        keys.insert(setting.key);
    for (const std::string& key : std::set<std::string>(keys.begin(), keys.end())) {
        if (keys.count(key) > 1)
            found.push_back("key twice: " + key);
    }
    const std::multiset<std::string> ordered(file.rebuildOrder.begin(), file.rebuildOrder.end());
    if (!ordered.empty() && ordered != keys)
        found.emplace_back("the rebuild's order doesn't name each key once");
    return found;
}

} // namespace quillfen
