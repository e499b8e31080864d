#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"

namespace quillfen {

/// The lines with which users come and go: for everybody, or for named users.
struct IntrosOutros
{
    TableFile settings;
    RowListGroup lines; ///< intros and outros
};

const IntrosOutros& standardIntrosOutros();
const IntrosOutros& customIntrosOutros();

void buildIntrosOutros(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
