#pragma once

#include "functions/catalogue.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>
#include <string>

namespace quillfen::test {

/// A hub of three profiles with the folders of the security functions, all empty.
class SecurityFiles : public testing::Test
{
protected:
    SecurityFiles()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
        for (const auto& row : folderCatalogue()) {
            for (const auto& folder : row.folders)
                hub.store.folders.insert(hub.files.paths().inSettings(folder));
        }
    }

    std::string& file(const std::string& path) { return hub.file("Security/" + path); }
    bool has(const std::string& path) const { return hub.has("Security/" + path); }
    static std::string golden(const std::string& name) { return test::golden("security/" + name); }

    Hub hub;
};

} // namespace quillfen::test
