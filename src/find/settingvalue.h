#pragma once

#include "declarations/declaration.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// A row of a setting that is a list: what it shows, and whether it is ticked.
struct TickedRow
{
    std::string text;
    bool checked;
};

/// What a field shows of a file's values, in a user's words; empty where that is rows.
std::string shownValue(const setting::Field& field, const SettingValues& values, const HubProfiles& profiles);

/// The rows that it shows; none where it is no list.
std::vector<TickedRow> shownRows(const setting::Field& field, const SettingValues& values,
                                 const HubProfiles& profiles);

/// What a user can choose from in it.
std::vector<std::string_view> entriesOf(const setting::Field& field, const HubProfiles& profiles);

/// The control that shows the value: of options the button of the chosen one.
std::string shownControl(const setting::Field& field, const SettingValues& values);

/// "on" or "off", as a tick is told in words.
std::string_view onOrOff(bool checked);

} // namespace quillfen
