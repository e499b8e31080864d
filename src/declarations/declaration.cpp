#include "declarations/declaration.h"

#include "settings/lines.h"
#include "settings/overloaded.h"
#include "settings/profiles.h"
#include "settings/tablefile.h"
#include "settings/tablewriter.h"

#include <algorithm>

namespace quillfen {
namespace {

/// A value of a setting: its key as the readers know it, and its default.
struct ValueRow
{
    std::string key;
    std::string defaultText;
};

using ValueRows = std::vector<ValueRow>;

template <typename Kind>
bool isA(const setting::FieldKind& kind)
{
    return std::holds_alternative<Kind>(kind);
}

const setting::Field* fieldOf(const Setting& setting)
{
    return std::get_if<setting::Field>(&setting);
}

bool isNested(const setting::FieldKind& kind)
{
    return isA<setting::ProfileFlags>(kind) || isA<setting::NamedFlags>(kind);
}

bool isQuoted(const setting::FieldKind& kind)
{
    return isA<setting::Text>(kind) || isA<setting::Entry>(kind) || isA<setting::Letter>(kind);
}

/// The rows of each kind of setting: one for each that isn't nested, and none for what is never read.
struct RowsOf
{
    const HubProfiles& profiles;

    ValueRows operator()(const setting::Field& field) const
    {
        const std::string byDefault = setting::defaultText(field.kind);
        ValueRows rows;
        if (const auto* profileFlags = std::get_if<setting::ProfileFlags>(&field.kind)) {
            rows.reserve(profiles.count());
            for (std::size_t row = profileFlags->firstProfile; row < profiles.count(); ++row)
                rows.push_back({HubProfiles::key(row), byDefault});
        } else if (const auto* namedFlags = std::get_if<setting::NamedFlags>(&field.kind)) {
            for (const std::string& name : namedFlags->names)
                rows.push_back({"b" + name, byDefault});
        } else {
            rows.push_back({field.key, byDefault});
        }
        return rows;
    }

    ValueRows operator()(const setting::NamedTexts& named) const
    {
        ValueRows rows;
        for (const setting::NamedText& text : named.texts)
            rows.push_back({text.name, text.defaultValue});
        return rows;
    }

    ValueRows operator()(const setting::ConstantText& constant) const { return {{constant.key, {}}}; }
    ValueRows operator()(const setting::RebuiltOnly& only) const { return {{only.key, only.defaultText}}; }
    ValueRows operator()(const auto& /*is never read*/) const { return {}; }
};

/// The nested table of a setting's rows, which bears its key; empty for a setting without one.
std::string_view nestedTableOf(const Setting& setting)
{
    const auto* const field = fieldOf(setting);
    const bool nested = field ? isNested(field->kind) : std::holds_alternative<setting::NamedTexts>(setting);
    return nested ? std::string_view(keyOf(setting)) : std::string_view();
}

/// The table in which a rebuild looks for a setting's rows.
std::string_view homeOf(const Setting& setting, const TableFile& file)
{
    for (const std::string_view table : {nestedTableOf(setting), nestOf(setting)}) {
        if (!table.empty())
            return table;
    }
    return file.table;
}

bool isKeptByRestore(const Setting& setting)
{
    const auto* const field = fieldOf(setting);
    return field && field->keptByRestore;
}

const setting::RebuildRule& rebuildRuleOf(const Setting& setting)
{
    static const setting::RebuildRule usual;
    const auto* const field = fieldOf(setting);
    return field ? field->rebuild : usual;
}

/// Makes the name that a nested row has among the values, in a text that serves row after row: a rebuild has
/// thousands of them.
const std::string& nameRow(std::string& name, std::string_view table, std::string_view row)
{
    return name.assign(table).append("/").append(row);
}

std::string rowName(std::string_view table, std::string_view row)
{
    std::string name;
    return nameRow(name, table, row);
}

/// Takes each value from `valueOf(setting, row)`.
template <typename ValueOf>
SettingValues gathered(const std::vector<Setting>& settings, const HubProfiles& profiles,
                       const ValueOf& valueOf)
{
    SettingValues values;
    std::string name;
    for (const Setting& each : settings) {
        const std::string_view table = nestedTableOf(each);
        for (const ValueRow& row : std::visit(RowsOf{profiles}, each))
            values.insert_or_assign(table.empty() ? row.key : nameRow(name, table, row.key),
                                    valueOf(each, row));
    }
    return values;
}

std::string valueOrDefault(const std::string& value, const std::string& defaultText)
{
    return value.empty() ? defaultText : value;
}

/// What a form shows for a stored text. A missing flag of a list is off.
std::string shown(const Setting& setting, const std::string& stored)
{
    const auto* const field = fieldOf(setting);
    if (!field)
        return stored;
    const Overloaded texts = {
        [&stored](const setting::Flag& flag) {
            return flag.details.tickedAboveZero ? (leadingNumber(stored) > 0 ? "1" : "0") : stored;
        },
        [&stored](const setting::Letter& letter) {
            return valueOrDefault(stored, setting::letterOf(letter.wordWhereNone));
        },
        [&stored](const setting::ProfileFlags&) { return valueOrDefault(stored, "0"); },
        [&stored](const setting::NamedFlags&) { return valueOrDefault(stored, "0"); },
        [&stored](const auto&) { return stored; },
    };
    return std::visit(texts, field->kind);
}

/// Writes a setting of each kind.
struct Writer
{
    TableWriter& table;
    const SettingValues& values;
    RowOrder order;
    const HubProfiles& profiles;

    void operator()(const setting::Field& field)
    {
        const bool isRenamed = order == RowOrder::Save && !field.keyInSave.empty();
        if (isNested(field.kind))
            writeTable(field.key, RowsOf{profiles}(field), isA<setting::ProfileFlags>(field.kind), false);
        else
            write(isRenamed ? field.keyInSave : field.key, values.at(field.key), isQuoted(field.kind));
    }

    void operator()(const setting::NamedTexts& texts)
    {
        writeTable(texts.key, RowsOf{profiles}(texts), false, true);
    }

    void operator()(const setting::ConstantRows& constant)
    {
        const bool differs = order == RowOrder::Rebuild && !constant.rebuiltRows.empty();
        table.open(constant.key);
        for (const std::string& row : differs ? constant.rebuiltRows : constant.rows)
            table.row(row);
        table.close();
    }

    void operator()(const setting::ConstantText& constant)
    {
        table.text(constant.key, order == RowOrder::Save ? constant.text : values.at(constant.key));
    }

    void operator()(const setting::RebuiltOnly& only) { write(only.key, values.at(only.key), only.quoted); }
    void operator()(const setting::Idle& /*idle*/) {}

    void write(const std::string& key, const std::string& value, bool quoted)
    {
        if (quoted)
            table.text(key, value);
        else
            table.row(key, value);
    }

    void writeTable(const std::string& key, const ValueRows& rows, bool bracketsKeys, bool quoted)
    {
        table.open(key);
        std::string name;
        for (const ValueRow& row : rows)
            write(bracketsKeys ? bracketed(row.key) : row.key, values.at(nameRow(name, key, row.key)),
                  quoted);
        table.close();
    }
};

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

bool isWritten(const Setting& setting, RowOrder order)
{
    if (std::holds_alternative<setting::RebuiltOnly>(setting))
        return order == RowOrder::Rebuild;
    return !std::holds_alternative<setting::Idle>(setting);
}

std::vector<const Setting*> inOrder(const TableFile& file, RowOrder order)
{
    std::vector<const Setting*> settings;
    if (order == RowOrder::Save || file.rebuildOrder.empty()) {
        for (const Setting& each : file.settings) {
            if (isWritten(each, order))
                settings.push_back(&each);
        }
        return settings;
    }
    for (const std::string& key : file.rebuildOrder) {
        settings.push_back(&*std::find_if(file.settings.begin(), file.settings.end(),
                                          [&key](const Setting& each) { return keyOf(each) == key; }));
    }
    return settings;
}

} // namespace

std::string flagRow(const std::string& key, const std::string& name)
{
    return rowName(key, "b" + name);
}

std::string textRow(const std::string& key, const std::string& name)
{
    return rowName(key, name);
}

std::string profileRow(const std::string& key, std::size_t row)
{
    return rowName(key, HubProfiles::key(row));
}

SettingValues loaded(const TableFile& file, const TableIndex& index, const HubProfiles& profiles)
{
    return gathered(file.settings, profiles, [&index](const Setting& setting, const ValueRow& row) {
        return shown(setting, index.value(row.key, nestedTableOf(setting)));
    });
}

SettingValues restored(const TableFile& file, const HubProfiles& profiles)
{
    std::vector<Setting> settings = file.settings;
    std::erase_if(settings, isKeptByRestore);
    return gathered(settings, profiles, [](const Setting&, const ValueRow& row) { return row.defaultText; });
}

SettingValues rebuilt(const TableFile& file, const TableIndex& index, const HubProfiles& profiles)
{
    return gathered(file.settings, profiles, [&](const Setting& setting, const ValueRow& row) {
        const setting::RebuildRule& rule = rebuildRuleOf(setting);
        const std::string stored = rule.resets ? "" : index.value(row.key, homeOf(setting, file));
        return valueOrDefault(stored, rule.defaultText.value_or(row.defaultText));
    });
}

void writeRows(TableWriter& table, const TableFile& file, const SettingValues& values, RowOrder order,
               const HubProfiles& profiles)
{
    Writer writer{table, values, order, profiles};
    std::string_view nest;
    for (const Setting* each : inOrder(file, order)) {
        pass(table, nest, nestOf(*each));
        std::visit(writer, *each);
        nest = nestOf(*each);
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
