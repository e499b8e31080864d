#include "declarations/setting.h"

#include "settings/overloaded.h"

#include <utility>

namespace quillfen {
namespace setting {

std::string defaultText(const FieldKind& kind)
{
    const Overloaded texts = {
        [](const Flag& flag) { return std::string(flag.defaultValue ? "1" : "0"); },
        [](const Number& number) { return std::to_string(number.defaultValue); },
        [](const Text& text) { return text.defaultValue; },
        [](const Entry& entry) { return entry.defaultValue; },
        [](const Options& options) { return std::to_string(options.defaultValue); },
        [](const Letter& letter) { return letterOf(letter.defaultWord); },
        [](const auto&) { return std::string("0"); }, // flags that are off, and the hub's first profile
    };
    return std::visit(texts, kind);
}

Field flag(std::string key, std::string control, std::string label, bool defaultValue, FlagDetails details)
{
    return {std::move(key), std::move(control), std::move(label), Flag{defaultValue, details}};
}

Field number(std::string key, std::string control, std::string label, int defaultValue, int minimum,
             int maximum, NumberDetails details)
{
    return {std::move(key), std::move(control), std::move(label),
            Number{defaultValue, minimum, maximum, details}};
}

Field text(std::string key, std::string control, std::string label, std::string defaultValue, int limit)
{
    return {std::move(key), std::move(control), std::move(label), Text{std::move(defaultValue), limit}};
}

Field entry(std::string key, std::string control, std::string label, std::string defaultValue,
            std::vector<std::string> entries)
{
    return {std::move(key), std::move(control), std::move(label),
            Entry{std::move(defaultValue), std::move(entries)}};
}

Field options(std::string key, std::string control, std::string label, int defaultValue, int firstButton,
              std::vector<std::string> captions)
{
    return {std::move(key), std::move(control), std::move(label),
            Options{defaultValue, firstButton, std::move(captions)}};
}

Field profileFlags(std::string key, std::string control, std::string label, std::string heading)
{
    return {std::move(key), std::move(control), std::move(label), ProfileFlags{std::move(heading)}};
}

Field hubProfileFlags(std::string key, std::string control, std::string label, std::string heading)
{
    return {std::move(key), std::move(control), std::move(label), ProfileFlags{std::move(heading), 1}};
}

Field enabledProfiles()
{
    return profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles");
}

Field exemptProfiles()
{
    return profileFlags("tExemptProfiles", "lvwExemptProfiles", "Exempt Profiles");
}

Field namedFlags(std::string key, std::string control, std::string label, std::vector<std::string> names)
{
    return {std::move(key), std::move(control), std::move(label), NamedFlags{std::move(names)}};
}

Field profileKey(std::string key, std::string control, std::string label)
{
    return {std::move(key), std::move(control), std::move(label), ProfileKey{}};
}

Field letter(std::string key, std::string control, std::string label, std::string defaultWord,
             std::vector<std::string> words, std::string wordWhereNone)
{
    return {std::move(key), std::move(control), std::move(label),
            Letter{std::move(defaultWord), std::move(words), std::move(wordWhereNone)}};
}

Field Field::explained(std::string_view sentence) const
{
    Field field = *this;
    field.explanation = sentence;
    return field;
}

Field notRestored(Field field)
{
    field.keptByRestore = true;
    return field;
}

RebuiltOnly rebuiltFlag(std::string key, bool defaultValue)
{
    return {std::move(key), defaultText(Flag{defaultValue}), false};
}

RebuiltOnly rebuiltText(std::string key, std::string defaultValue)
{
    return {std::move(key), std::move(defaultValue), true};
}

} // namespace setting

const std::string& keyOf(const Setting& setting)
{
    const Overloaded keys = {
        [](const setting::Idle& idle) -> const std::string& { return idle.field.key; },
        [](const auto& each) -> const std::string& { return each.key; },
    };
    return std::visit(keys, setting);
}

std::string_view nestOf(const Setting& setting)
{
    const auto* const field = std::get_if<setting::Field>(&setting);
    return field ? std::string_view(field->nest) : std::string_view();
}

} // namespace quillfen
