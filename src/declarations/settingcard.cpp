#include "declarations/settingcard.h"

#include "settings/overloaded.h"
#include "settings/profiles.h"

#include <iterator>

namespace quillfen {
namespace {

std::string rangeText(int from, int to)
{
    return std::to_string(from) + " to " + std::to_string(to);
}

std::string rangeOf(const setting::FieldKind& kind)
{
    const Overloaded ranges = {
        [](const setting::Number& number) { return rangeText(number.minimum, number.maximum); },
        [](const setting::Text& text) {
            return text.limit > 0 ? "up to " + std::to_string(text.limit) + " characters" : std::string();
        },
        [](const auto& /*chosen or ticked*/) { return std::string(); },
    };
    return std::visit(ranges, kind);
}

/// The default as the control shows it.
struct ShownDefault
{
    const HubProfiles& profiles;
    using Shown = std::optional<std::string>;

    Shown operator()(const setting::Flag& flag) const { return flag.defaultValue ? "on" : "off"; }
    Shown operator()(const setting::Number& number) const { return std::to_string(number.defaultValue); }
    Shown operator()(const setting::Text& text) const { return text.defaultValue; }
    Shown operator()(const setting::Entry& entry) const { return entry.defaultValue; }
    Shown operator()(const setting::Letter& letter) const { return letter.defaultWord; }

    Shown operator()(const setting::Options& options) const
    {
        return options.captions.at(static_cast<std::size_t>(options.defaultValue));
    }

    Shown operator()(const setting::ProfileKey& /*kind*/) const
    {
        return profiles.count() > 1 ? Shown(profiles.names()[1]) : std::nullopt;
    }

    Shown operator()(const setting::ProfileFlags& /*kind*/) const { return std::nullopt; }
    Shown operator()(const setting::NamedFlags& /*kind*/) const { return std::nullopt; }
};

SettingCard cardOf(const TableFile& file, const setting::Field& field, const HubProfiles& profiles)
{
    SettingCard card{controlOf(field), std::string(field.explanation), rangeOf(field.kind), file.path,
                     field.key};
    if (!field.keptByRestore)
        card.defaultValue = std::visit(ShownDefault{profiles}, field.kind);
    return card;
}

void addCards(std::vector<SettingCard>& cards, const TableFile& file, const HubProfiles& profiles)
{
    const Overloaded adders = {
        [&](const setting::Field& field) { cards.push_back(cardOf(file, field, profiles)); },
        [&](const setting::NamedTexts& texts) {
            cards.push_back({texts.control, std::string(texts.explanation), {}, file.path, texts.key});
        },
        [&](const setting::Idle& idle) {
            cards.push_back(
                {idle.field.control, "It belongs to no setting: nothing of it is read or saved."});
        },
        [](const auto& /*without a control*/) {},
    };
    for (const Setting& setting : file.settings)
        std::visit(adders, setting);
}

/// The cards of what a part is made of besides settings and lists.
struct OtherCardsOf
{
    using Cards = std::vector<SettingCard>;

    Cards operator()(const DeclaredGrid& part) const
    {
        return {{part.words.list, std::string(part.words.explanation)}};
    }

    Cards operator()(const DeclaredTicks& part) const
    {
        const TickList ticks = part.ticks();
        return {{ticks.control, std::string(ticks.explanation), {}, ticks.file.path}};
    }

    Cards operator()(const DeclaredText& part) const
    {
        return {{part.toolbar, std::string(part.explanation), {}, part.path}};
    }

    Cards operator()(const OwnPart& part) const
    {
        Cards cards;
        for (const ControlExplanation& each : part.explanations)
            cards.push_back({each.control, std::string(each.explanation), {}, each.file, each.key});
        return cards;
    }

    template <typename Part>
    Cards operator()(const Part& /*of settings or lists alone*/) const
    {
        return {};
    }
};

std::string shownValue(const std::string& value)
{
    return value.empty() ? "nothing" : value;
}

} // namespace

std::string controlOf(const Setting& setting)
{
    const Overloaded names = {
        [](const setting::Field& field) {
            const auto* options = std::get_if<setting::Options>(&field.kind);
            return options ? field.control + '(' + std::to_string(options->firstButton) + ')' : field.control;
        },
        [](const setting::NamedTexts& texts) { return texts.control; },
        [](const setting::Idle& idle) { return idle.field.control; },
        [](const auto& /*without a control*/) { return std::string(); },
    };
    return std::visit(names, setting);
}

std::vector<SettingCard> cardsOf(const PartDeclaration& part, const HubProfiles& profiles)
{
    std::vector<SettingCard> cards;
    for (const TableFile& file : settingsFilesOf(part))
        addCards(cards, file, profiles);
    for (const RowListDeclaration& list : listsOf(part, profiles))
        cards.push_back({list.list, std::string(list.explanation)});
    const auto others = std::visit(OtherCardsOf(), part);
    cards.insert(cards.end(), others.begin(), others.end());
    return cards;
}

std::vector<std::string> linesOf(const SettingCard& card, const std::optional<std::string>& stored)
{
    std::vector<std::string> lines;
    if (!card.explanation.empty())
        lines.push_back(card.explanation);
    std::string values;
    if (!card.range.empty())
        values = "Range: " + card.range + ". ";
    if (card.defaultValue)
        values += "Default: " + shownValue(*card.defaultValue) + '.';
    if (!values.empty())
        lines.push_back(values);
    if (stored)
        lines.push_back("In the file: " + shownValue(*stored) + '.');
    if (!card.file.empty())
        lines.push_back((card.key.empty() ? "" : card.key + " in ") + card.file);
    return lines;
}

} // namespace quillfen
