#pragma once

#include "declarations/rebuild.h"
#include "functions/catalogue.h"
#include "settings/paths.h"
#include "settings/profiles.h"
#include "settings/tablefile.h"
#include "store/diskstore.h"
#include "store/history.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace quillfen::bench {

/// A temporary folder that goes with its object.
class TemporaryFolder
{
public:
    TemporaryFolder() { std::filesystem::create_directory(path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("quillfen-bench-" + std::to_string(std::random_device()()));
};

/// Where a run's hubs lie until it ends. Not one goes before: for minutes after a deletion ext4 looks at the
/// deleted file's number, and passes over it, whenever it makes a file nearby, so that a benchmark which
/// tidies up thousands of files between its repetitions would measure mostly that.
inline const std::filesystem::path& folderOfRun()
{
    static const TemporaryFolder folder;
    return folder.path;
}

/// A copy of the sample hub on the disk. Its hub file has so many profiles that the program counts as many as
/// are asked for, "Unregistered" among them.
class HubFolder
{
public:
    explicit HubFolder(std::size_t profileCount)
        : m_folder(folderOfRun() / std::to_string(++hubCount)),
          files(m_disk, SettingsPaths(scripts()))
    {
        std::filesystem::copy(QUILLFEN_SAMPLE_HUB, m_folder, std::filesystem::copy_options::recursive);
        writeProfiles(profileCount);
        files.store().keepVersionsIn(&m_history);
    }

    HubFolder(const HubFolder&) = delete;
    HubFolder& operator=(const HubFolder&) = delete;

    std::string scripts() const { return (m_folder / "scripts").string(); }
    std::filesystem::path folder() const { return m_folder; }
    std::filesystem::path data() const { return m_folder / "data"; } ///< with the earlier versions
    std::filesystem::path tree() const { return files.paths().settingsRoot(); }

    /// The program's start as far as the tree goes, each question answered with OK. A start that follows has
    /// nothing to ask.
    void start() { reconcileSettings(reconciliation(files), profiles); }

    /// The rebuild for more profiles, through a store of the caller's if it likes.
    void rebuild() const { rebuild(files); }
    void rebuild(const SettingsFiles& through) const
    {
        CheckSettingsRebuild(reconciliation(through), RebuildCase::Profiles, profiles);
    }

private:
    static Reconciliation reconciliation(const SettingsFiles& through)
    {
        return {through, folderCatalogue(), QUILLFEN_VERSION, [](const RebuildQuestion&) { return true; }};
    }

    void writeProfiles(std::size_t count) const
    {
        std::ofstream file(m_folder / "cfg" / "Profiles.xml", std::ios::binary | std::ios::trunc);
        file << "<Profiles>\r\n";
        for (std::size_t profile = 1; profile < count; ++profile)
            file << "<Profile>\r\n<Name>Profile" << profile << "</Name>\r\n</Profile>\r\n";
        file << "</Profiles>\r\n";
    }

    static inline int hubCount = 0;

    std::filesystem::path m_folder;
    DiskStore m_disk;

public:
    SettingsFiles files;
    HubProfiles profiles; ///< filled by the start

    History& history() { return m_history; }

private:
    VersionStore m_versions{m_disk, data().string()};
    History m_history{m_disk, files.paths().settingsRoot(), m_versions};
};

} // namespace quillfen::bench
