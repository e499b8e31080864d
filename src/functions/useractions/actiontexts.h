#pragma once

#include "settings/listdeclaration.h"

namespace quillfen {

/// The texts with which users insult and attack each other, and the actions that they can do.
const RowListDeclaration& insults();
const RowListDeclaration& attacks();
const RowListDeclaration& doActions();

/// The columns of words from which the hub script composes an insult.
const RowListGroup& medievalInsults();
const RowListGroup& modernInsults();

void buildInsults(const SettingsFiles& files, const HubProfiles& profiles);
void buildAttacks(const SettingsFiles& files, const HubProfiles& profiles);
void buildDoActions(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
