#pragma once

#include "settings/profiles.h"
#include "settings/tablefile.h"
#include "support/memorystore.h"

#include <initializer_list>

namespace quillfen::test {

/// A hub in memory with the script's folder, its settings root and any folders below that are asked for.
struct Hub
{
    MemoryStore store;
    SettingsFiles files{store, SettingsPaths("/hub/scripts")};
    HubProfiles profiles;

    explicit Hub(std::initializer_list<const char*> settingsFolders = {})
    {
        store.folders = {"/hub", "/hub/cfg", "/hub/scripts", script, root};
        for (const auto* folder : settingsFolders)
            store.folders.insert(root + '/' + folder);
    }

    std::string& file(const std::string& path) { return store.files[root + '/' + path]; }
    bool has(const std::string& path) const { return store.files.count(root + '/' + path) > 0; }

    const std::string script = "/hub/scripts/Morvaleth's Quillfen";
    const std::string root = script + "/Settings";
};

} // namespace quillfen::test
