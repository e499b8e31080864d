#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"

namespace quillfen {

/// A collection of texts that the hub script sends by command or on a timer: jokes, limericks, proverbs and
/// quotations.
struct Collection
{
    TableFile settings;
    RowListDeclaration texts;
};

const Collection& jokes();
const Collection& limericks();
const Collection& proverbs();
const Collection& quotations();

void buildJokes(const SettingsFiles& files, const HubProfiles& profiles);
void buildLimericks(const SettingsFiles& files, const HubProfiles& profiles);
void buildProverbs(const SettingsFiles& files, const HubProfiles& profiles);
void buildQuotations(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
