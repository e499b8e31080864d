#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"

#include <span>
#include <string>
#include <string_view>

namespace quillfen {

/// The bot that speaks for a group of functions unless the owner gives one of them another.
struct BotGroup
{
    std::string_view word;
    std::string_view name;
    std::string_view description;
    std::span<const std::string_view> functions;
};

std::span<const BotGroup> botGroups();

/// Whether operators hear of changes, and which profiles may make them.
const TableFile& botSettings();

/// Every function with its bot: function, nick, description, email and the group's word, which the list
/// hides.
const RowListDeclaration& bots();

void buildBots(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
