#pragma once

#include "store/filestore.h"

#include <ctime>
#include <map>
#include <set>

namespace quillfen {

/// What replaced files: a save, a rebuild, or a backup, which replaces none.
struct Cause
{
    enum class Kind
    {
        Save,
        Rebuild,
        Backup
    };

    std::string words; ///< as people read it: "General ~ Bots", "Rebuild from 5.1.9"; UTF-8
    Kind kind = Kind::Save;

    bool operator==(const Cause&) const = default;
};

/// A file as it stood before something replaced it.
struct KeptFile
{
    std::string told; ///< its path below the settings root, with backslashes; UTF-8
    std::string blob; ///< under which its bytes are kept; empty if there was no such file

    bool wasThere() const { return !blob.empty(); }
    bool operator==(const KeptFile&) const = default;
};

/// What one cause replaced.
struct VersionEntry
{
    unsigned number = 0; ///< a later entry has a higher one
    std::string time;    ///< UTC, "2026-11-22T11:29:15Z"
    Cause cause;
    std::vector<KeptFile> files;
    std::string fault; ///< what of it can't be read; empty if all can
};

/// The entries of a store, newest first, and what in its folder can't be read as one.
struct VersionList
{
    std::vector<VersionEntry> entries;
    std::vector<std::string> skipped;
};

/// Earlier bytes of files, in a folder of their own: equal bytes once, and an entry for each cause. The
/// newest 200 entries and 64 MiB of bytes stay; rebuilds and backups stay twice as long. Several programs may
/// use one folder at a time.
class VersionStore
{
public:
    static constexpr unsigned entryLimit = 200;
    static constexpr std::uintmax_t byteLimit = std::uintmax_t{64} << 20U;

    /// The folder is made, with those above it, when the first entry is.
    VersionStore(FileStore& disk, std::string folder);

    /// A file's told path and its bytes, or nothing if there is no such file.
    using Contents = std::vector<std::pair<std::string, std::optional<std::string>>>;

    /// Keeps an entry and returns its number. Throws StoreError; there is no entry then.
    unsigned keep(const Cause& cause, const Contents& files);

    /// Takes an entry back; one that can't be deleted stays.
    void forget(unsigned number);

    VersionList entries();

    /// The bytes of a kept file; nothing if they are damaged or gone.
    std::optional<std::string> bytes(const KeptFile& file) const;

    /// Deletes bytes that no entry tells of. To be called where nobody else uses the folder.
    void sweep();

    /// What time it is; UTC.
    std::function<std::time_t()> now = [] { return std::time(nullptr); };

private:
    std::string entryPath(unsigned number) const;
    std::string blobPath(const std::string& blob) const;
    void makeFolders();
    std::string keptBlob(const std::string& bytes);
    unsigned nextNumber() const;
    void refresh();
    void readEntry(const std::string& name);
    void dropOldest();
    void removeBlobsBut(const std::set<std::string>& used, const std::set<std::string>& candidates);
    std::set<std::string> usedBlobs() const;

    FileStore& m_disk;
    std::string m_folder;
    std::map<unsigned, VersionEntry> m_entries;   ///< as far as read
    std::map<std::string, std::string> m_skipped; ///< files that are no entries, and why
};

} // namespace quillfen
