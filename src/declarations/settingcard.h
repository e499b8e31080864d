#pragma once

#include "declarations/formdeclaration.h"

#include <optional>
#include <string>
#include <vector>

namespace quillfen {

/// What can be told of one control. All texts are code page bytes.
struct SettingCard
{
    std::string control;     ///< its name
    std::string explanation; ///< what it does for the hub's users; empty where its label says it
    std::string range{};     ///< what it may hold: "1 to 50"; empty for anything
    std::string file{};      ///< a told path; empty where it is not one alone
    std::string key{};       ///< in that file

    /// What RESTORE shows, as the control shows it: "on" or "off", a number, a text, the chosen entry.
    /// Nothing where it leaves the control alone, or where that isn't one value.
    std::optional<std::string> defaultValue{};
};

/// The name that a setting's control is found by, of an option group that of its first button; empty for a
/// setting without one.
std::string controlOf(const Setting& setting);

/// The cards of the controls of a form's part, in its order.
std::vector<SettingCard> cardsOf(const PartDeclaration& part, const HubProfiles& profiles);

/// What a card says, a line for each thing. `stored` is what the file holds, where the control shows
/// something else.
std::vector<std::string> linesOf(const SettingCard& card, const std::optional<std::string>& stored = {});

} // namespace quillfen
