#include "find/settingvalue.h"

#include "settings/lines.h"
#include "settings/overloaded.h"
#include "settings/profiles.h"

#include <algorithm>

namespace quillfen {
namespace {

/// A place counted from 0 among so many; nothing where the value is none.
std::optional<std::size_t> placeOf(const std::string& value, std::size_t count)
{
    const auto number = wholeNumber(value.empty() ? "0" : value);
    if (!number || *number < 0 || *number >= static_cast<double>(count))
        return std::nullopt;
    return static_cast<std::size_t>(*number);
}

std::vector<std::string_view> views(const std::vector<std::string>& texts)
{
    return {texts.begin(), texts.end()};
}

std::string wordOf(const setting::Letter& letter, const std::string& value)
{
    const auto word = std::find_if(letter.words.begin(), letter.words.end(),
                                   [&](const std::string& each) { return setting::letterOf(each) == value; });
    return word == letter.words.end() ? value : *word;
}

} // namespace

std::string_view onOrOff(bool checked)
{
    return checked ? "on" : "off";
}

std::string shownValue(const setting::Field& field, const SettingValues& values, const HubProfiles& profiles)
{
    const auto found = values.find(field.key);
    std::string value = found == values.end() ? std::string() : found->second;
    const Overloaded words = {
        [&](const setting::Flag&) { return std::string(onOrOff(isOne(value))); },
        [&](const setting::Options& options) {
            const auto place = placeOf(value, options.captions.size());
            return place ? options.captions[*place] : value;
        },
        [&](const setting::ProfileKey&) {
            const auto place = placeOf(value, profiles.count() - 1);
            return place ? profiles.names()[*place + 1] : value;
        },
        [&](const setting::Letter& letter) { return wordOf(letter, value); },
        [&](const auto& /*shows its text*/) { return value; },
    };
    return std::visit(words, field.kind);
}

std::vector<TickedRow> shownRows(const setting::Field& field, const SettingValues& values,
                                 const HubProfiles& profiles)
{
    std::vector<TickedRow> rows;
    const Overloaded takers = {
        [&](const setting::ProfileFlags& flags) {
            for (std::size_t row = flags.firstProfile; row < profiles.count(); ++row)
                rows.push_back({profiles.names()[row], isOne(values.at(profileRow(field.key, row)))});
        },
        [&](const setting::NamedFlags& flags) {
            for (const std::string& name : flags.names)
                rows.push_back({name, isOne(values.at(flagRow(field.key, name)))});
        },
        [](const auto& /*is no list*/) {},
    };
    std::visit(takers, field.kind);
    return rows;
}

std::vector<std::string_view> entriesOf(const setting::Field& field, const HubProfiles& profiles)
{
    const Overloaded entries = {
        [](const setting::Entry& entry) { return views(entry.entries); },
        [](const setting::Options& options) { return views(options.captions); },
        [](const setting::Letter& letter) { return views(letter.words); },
        [&](const setting::ProfileKey&) {
            return std::vector<std::string_view>(profiles.names().begin() + 1, profiles.names().end());
        },
        [](const auto& /*offers none*/) { return std::vector<std::string_view>(); },
    };
    return std::visit(entries, field.kind);
}

std::string shownControl(const setting::Field& field, const SettingValues& values)
{
    const auto* options = std::get_if<setting::Options>(&field.kind);
    if (!options)
        return field.control;
    const auto found = values.find(field.key);
    const auto chosen =
        placeOf(found == values.end() ? std::string() : found->second, options->captions.size());
    const auto place = options->firstButton + static_cast<int>(chosen.value_or(0));
    return field.control + '(' + std::to_string(place) + ')';
}

} // namespace quillfen
