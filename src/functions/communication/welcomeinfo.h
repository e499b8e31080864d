#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"

namespace quillfen {

/// The facts of the welcome information.
const TableFile& welcomeInfoSettings();

/// The hubs of the network.
const RowListDeclaration& networkHubs();

void buildWelcomeInfo(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
