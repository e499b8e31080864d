#pragma once

#include "store/versionstore.h"

namespace quillfen {

/// A file that is about to be replaced, with its bytes; without if there is none, or it can't be read.
struct ReplacedFile
{
    std::string path;
    std::optional<std::string> bytes;
};

/// What is to be done to bring files back, and which can't be, with the reason.
struct BringingBack
{
    std::vector<StoreChange> changes;
    std::vector<std::string> refused;
};

/// The earlier versions of the files below one folder, the settings root.
class History
{
public:
    /// The store's paths are the disk's; a version's are those below the root.
    History(const FileStore& disk, std::string root, VersionStore& versions);

    /// Keeps what is about to be replaced, as far as it lies below the root; nothing if none does. Throws
    /// StoreError, also where one of the files can't be read.
    std::optional<unsigned> keep(const Cause& cause, const std::vector<ReplacedFile>& replaced);

    /// Keeps all files below the root as they stand; the entry's number. Throws StoreError.
    std::optional<unsigned> backUp(const std::string& words);

    void forget(unsigned number) { m_versions.forget(number); }
    VersionList entries() { return m_versions.entries(); }

    /// Every file that changed since an entry was made, as it stood before that one: what to bring back to
    /// have the tree as it was.
    std::vector<KeptFile> treeBefore(unsigned number);

    std::optional<std::string> keptBytes(const KeptFile& file) const { return m_versions.bytes(file); }

    /// The bytes that stand in a kept file's place today.
    std::optional<std::string> todaysBytes(const KeptFile& file) const;

    /// What brings files back that stand otherwise today. Carried out by a commit it is a save like any
    /// other. A path that would leave the root is refused, and so is a file whose bytes are damaged or gone.
    BringingBack bringBack(const std::vector<KeptFile>& files) const;

private:
    std::optional<std::string> toldPath(const std::string& path) const;
    std::optional<std::string> realPath(const std::string& told) const;
    void addFolders(const std::string& path, BringingBack& result) const;
    void addTree(const std::string& folder, std::vector<ReplacedFile>& files) const;

    const FileStore& m_disk;
    std::string m_root;
    VersionStore& m_versions;
};

} // namespace quillfen
