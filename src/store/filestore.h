#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// A file or folder that could not be written or made: which one, and the platform's reason.
class StoreError : public std::runtime_error
{
public:
    StoreError(std::string path, std::string reason)
        : std::runtime_error(path + ": " + reason),
          m_path(std::move(path)),
          m_reason(std::move(reason))
    {
    }

    const std::string& path() const { return m_path; }
    const std::string& reason() const { return m_reason; }

private:
    std::string m_path;
    std::string m_reason;
};

/// A commit that failed when some of its files had taken their places already: which ones are new, and which
/// still hold what they held.
class HalfCommitted : public StoreError
{
public:
    HalfCommitted(const StoreError& failure, std::vector<std::string> changed, std::vector<std::string> left)
        : StoreError(failure),
          m_changed(std::move(changed)),
          m_left(std::move(left))
    {
    }

    const std::vector<std::string>& changed() const { return m_changed; }
    const std::vector<std::string>& left() const { return m_left; }

private:
    std::vector<std::string> m_changed;
    std::vector<std::string> m_left;
};

/// One thing to be done to the disk.
struct StoreChange
{
    enum class Kind
    {
        Write,
        Remove,
        MakeFolder
    };

    Kind kind;
    std::string path;
    std::string bytes{}; ///< of a file that is written
};

/// The disk as the core sees it. Paths are the platform's, in UTF-8; contents are bytes, never text mode.
class FileStore
{
public:
    FileStore() = default;
    FileStore(const FileStore&) = delete;
    FileStore& operator=(const FileStore&) = delete;
    virtual ~FileStore() = default;

    /// All bytes of a file; nothing if there is no such file or it can't be read.
    virtual std::optional<std::string> read(const std::string& path) const = 0;

    /// How many bytes a file has; nothing if there is no such file.
    virtual std::optional<std::uintmax_t> size(const std::string& path) const = 0;

    /// Replaces or makes a file. Its folder must exist. Throws StoreError.
    virtual void write(const std::string& path, std::string_view bytes) = 0;

    /// Whether a file or folder of this name exists.
    virtual bool exists(const std::string& path) const = 0;

    /// Makes one folder, whose parent must exist. Throws StoreError.
    virtual void makeFolder(const std::string& path) = 0;

    /// The names of the files in a folder, in the order of their bytes, without its folders; none if it can't
    /// be read.
    virtual std::vector<std::string> list(const std::string& folder) const = 0;

    /// The names of the folders in a folder, in the same way.
    virtual std::vector<std::string> listFolders(const std::string& folder) const = 0;

    /// Deletes a file; one that is gone already is no failure. Throws StoreError.
    virtual void remove(const std::string& path) = 0;

    /// Carries out changes in their order, each path among them once. Throws HalfCommitted if some were made,
    /// and any other StoreError if none was.
    virtual void commit(const std::vector<StoreChange>& changes);

    /// Returns when all that was written below a folder would outlast a power cut. Throws StoreError.
    virtual void sync(const std::string& folder);
};

/// Throws StoreError.
inline void makeFolderIfMissing(FileStore& store, const std::string& folder)
{
    if (!store.exists(folder))
        store.makeFolder(folder);
}

/// Makes a folder and those above it, as far as they are missing. Throws StoreError.
void makeFolderAndThoseAbove(FileStore& store, const std::string& folder);

/// Carries out one change by the call of its kind. Throws StoreError.
void carryOut(FileStore& store, const StoreChange& change);

/// Carries out changes by one call each, and tells in the failure of one what became of the others.
void carryOutEach(const std::vector<StoreChange>& changes,
                  const std::function<void(const StoreChange& change)>& carryOut);

} // namespace quillfen
