#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"

#include <string>
#include <vector>

namespace quillfen {

/// The topic changer and the kick bar changer: a delay, and texts that are shown in turn.
struct Changer
{
    TableFile settings;
    RowListDeclaration texts;
};

const Changer& topicChanger();
const Changer& kickBarChanger();

void buildTopicChanger(const SettingsFiles& files, const HubProfiles& profiles);
void buildKickBarChanger(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
