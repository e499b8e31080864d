#pragma once

#include "declarations/rebuild.h"
#include "functions/catalogue.h"
#include "support/hub.h"

#include <string>

namespace quillfen::test {

/// A start on a hub whose owner agrees to everything: the tree is built or rebuilt where it is due.
inline StartResult buildTree(const SettingsFiles& files, HubProfiles& profiles,
                             const std::string& version = "5.2.0")
{
    profiles = {};
    return reconcileSettings({files, folderCatalogue(), version, [](const RebuildQuestion&) { return true; }},
                             profiles);
}

inline StartResult buildTree(Hub& hub, const std::string& version = "5.2.0")
{
    return buildTree(hub.files, hub.profiles, version);
}

} // namespace quillfen::test
