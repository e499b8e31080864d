#include "advice/settingfindings.h"

#include "declarations/declaration.h"
#include "settings/lines.h"
#include "settings/tableindex.h"
#include "settings/tabletrim.h"

#include <algorithm>
#include <optional>

namespace quillfen {
namespace {

using Words = std::optional<std::string>;

Words outside(double value, const std::string& text, int from, int to)
{
    if (value >= from && value <= to)
        return std::nullopt;
    return text + " is outside its range. Enter a number from " + std::to_string(from) + " to " +
           std::to_string(to) + '.';
}

/// What is wrong with a value of each kind; nothing where all is well, or where its bytes tell already.
struct WordsOf
{
    const std::string& value;

    Words operator()(const setting::Flag& flag) const
    {
        const auto number = wholeNumber(value);
        if (!number || *number == 0 || *number == 1 || (flag.details.tickedAboveZero && *number > 0))
            return std::nullopt;
        return value + " is neither on nor off. Enter 1 or 0.";
    }

    Words operator()(const setting::Number& kind) const
    {
        const auto number = wholeNumber(value);
        if (!number || value == std::to_string(kind.defaultValue))
            return std::nullopt;
        Words words = outside(*number, value, kind.minimum, kind.maximum);
        if (words || !kind.details.clockTime || static_cast<int>(*number) % 100 < 60)
            return words;
        return value + " is no time of day. Enter hours and minutes, such as 1300 for one o'clock.";
    }

    Words operator()(const setting::Text& kind) const
    {
        const auto limit = static_cast<std::size_t>(kind.limit);
        if (limit == 0 || value.size() <= limit)
            return std::nullopt;
        return "the text is longer than the " + std::to_string(limit) +
               " characters that the form shows. Shorten it.";
    }

    Words operator()(const setting::Options& kind) const
    {
        const auto number = wholeNumber(value);
        return number ? outside(*number, value, 0, static_cast<int>(kind.captions.size()) - 1) : std::nullopt;
    }

    Words operator()(const setting::Letter& kind) const
    {
        const bool known = value.empty() ||
                           std::any_of(kind.words.begin(), kind.words.end(), [this](const std::string& word) {
                               return setting::letterOf(word) == value;
                           });
        if (known)
            return std::nullopt;
        return "\"" + value + "\" stands for none of the choices. Choose one in the form.";
    }

    // Any text may stand there, or what stands there is known by its own name.
    Words operator()(const setting::Entry& /*kind*/) const { return std::nullopt; }
    Words operator()(const setting::ProfileFlags& /*kind*/) const { return std::nullopt; }
    Words operator()(const setting::NamedFlags& /*kind*/) const { return std::nullopt; }
    Words operator()(const setting::ProfileKey& /*kind*/) const { return std::nullopt; }
};

/// The profiles that may use a function stand under this key. That of the clients' checker bears it too, but
/// its ticks exempt profiles.
bool saysWhoMayUse(const setting::Field& field)
{
    return field.key == "tEnabledProfiles" && std::holds_alternative<setting::ProfileFlags>(field.kind) &&
           field.label.find("Exempt") == std::string::npos;
}

/// The line where a table of flags opens that has rows and none of them on; 0 for no such table.
std::size_t lineOfEmptyFlags(std::string_view bytes, std::string_view key)
{
    LineCursor cursor(bytes);
    std::size_t opening = 0;
    for (std::size_t number = 1; const auto line = cursor.next(); ++number) {
        const auto row = splitOnce(*line, '=');
        if (opening == 0 && trimmedTableKey(row.left) == key)
            opening = number;
        else if (opening > 0 && !row.found)
            return number > opening + 1 ? opening : 0;
        else if (opening > 0 && isOne(trimmedTableValue(row.right)))
            return 0;
    }
    return 0;
}

const std::string& keyInSave(const Setting& setting)
{
    const auto* const field = std::get_if<setting::Field>(&setting);
    return field && !field->keyInSave.empty() ? field->keyInSave : keyOf(setting);
}

} // namespace

std::vector<Finding> useFindings(const TableFile& file, std::string_view bytes)
{
    for (const Setting& setting : file.settings) {
        const auto* const field = std::get_if<setting::Field>(&setting);
        const std::size_t line = field && saysWhoMayUse(*field) ? lineOfEmptyFlags(bytes, field->key) : 0;
        if (line > 0)
            return {{file.path, line,
                     "no profile is ticked, so that nobody has any use of this function. Tick those that "
                     "may use it."}};
    }
    return {};
}

const Setting* settingAt(const TableFile& file, std::string_view bytes, std::size_t line)
{
    const Setting* last = nullptr;
    std::string_view table;
    LineCursor cursor(bytes);
    for (std::size_t number = 1; number <= line; ++number) {
        const auto row = cursor.next();
        if (!row)
            break;
        const std::string_view key = trimmedTableKey(splitOnce(*row, '=').left);
        const auto found =
            std::find_if(file.settings.begin(), file.settings.end(), [&](const Setting& setting) {
                return trimmedTableKey(keyInSave(setting)) == key &&
                       (nestOf(setting).empty() || nestOf(setting) == table);
            });
        if (found != file.settings.end())
            last = &*found;
        if (row->ends_with('{'))
            table = key;
    }
    return last;
}

std::vector<Finding> unreadFindings(std::string_view file, std::string_view bytes)
{
    LineCursor cursor(bytes);
    for (std::size_t number = 1; cursor.next(); ++number) {
        if (number > lineLimit)
            return {
                {std::string(file), number,
                 "the editor reads no further than line 5,000, and its next save loses what stands below. "
                 "Take lines out above."}};
    }
    return {};
}

std::vector<Finding> settingFindings(const TableFile& file, std::string_view bytes)
{
    const TableIndex index{std::string(bytes)};
    std::vector<Finding> findings = unreadFindings(file.path, bytes);
    for (const Setting& setting : file.settings) {
        const auto* const field = std::get_if<setting::Field>(&setting);
        if (!field)
            continue;
        const std::string value = index.value(field->key);
        if (auto words = std::visit(WordsOf{value}, field->kind); words && !value.empty())
            findings.push_back({file.path, index.line(field->key), std::move(*words)});
    }
    return findings;
}

} // namespace quillfen
