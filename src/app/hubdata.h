#pragma once

#include "store/diskstore.h"
#include "store/history.h"

#include <QLockFile>
#include <QString>

#include <memory>

namespace quillfen {

/// What the program keeps of a hub beside it, in the user's own data folder: earlier versions of the
/// settings, and the mark that an editor runs on the hub.
class HubData
{
public:
    /// The program's folder names the hub. The data folder is the platform's, or that of a test.
    HubData(DiskStore& disk, const QString& programFolder, const QString& dataFolder = usualDataFolder());

    History& history() { return m_history; }

    /// No other editor has said that it runs on this hub.
    bool isOnlyEditor() const { return m_isOnlyEditor; }

    /// Deletes what crashes left, unless another editor might be at work there.
    void sweep();

    static QString usualDataFolder();

private:
    bool lock();

    DiskStore& m_disk;
    DiskStore m_privateDisk{Access::OwnerOnly};
    std::string m_settingsRoot;
    std::string m_folder;
    VersionStore m_versions;
    History m_history;
    std::unique_ptr<QLockFile> m_lock;
    bool m_isOnlyEditor;
};

} // namespace quillfen
