#pragma once

#include "functions/catalogue.h"
#include "support/golden.h"
#include "support/hub.h"
#include "support/lua.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace quillfen::test {

/// A hub of three profiles with the folders of all functions, which are empty, and the files of one group.
class GroupFiles : public testing::Test
{
protected:
    /// The group's folder of settings, and that of its golden files.
    GroupFiles(std::string folder, std::string goldenFolder)
        : m_folder(std::move(folder)),
          m_goldenFolder(std::move(goldenFolder))
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
        for (const auto& row : folderCatalogue()) {
            for (const auto& each : row.folders)
                hub.store.folders.insert(hub.files.paths().inSettings(each));
        }
    }

    std::string& file(const std::string& path) { return hub.file(m_folder + '/' + path); }
    bool has(const std::string& path) const { return hub.has(m_folder + '/' + path); }
    std::string golden(const std::string& name) const { return test::golden(m_goldenFolder + '/' + name); }

    Hub hub;

private:
    std::string m_folder;
    std::string m_goldenFolder;
};

} // namespace quillfen::test
