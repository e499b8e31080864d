#pragma once

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

    /// Replaces or makes a file. Its folder must exist. Throws StoreError.
    virtual void write(const std::string& path, std::string_view bytes) = 0;

    /// Whether a file or folder of this name exists.
    virtual bool exists(const std::string& path) const = 0;

    /// Makes one folder, whose parent must exist. Throws StoreError.
    virtual void makeFolder(const std::string& path) = 0;

    /// The names of the files in a folder, in the order of their bytes, without its folders; none if it can't
    /// be read.
    virtual std::vector<std::string> list(const std::string& folder) const = 0;

    /// Deletes a file; one that is gone already is no failure. Throws StoreError.
    virtual void remove(const std::string& path) = 0;
};

/// Throws StoreError.
inline void makeFolderIfMissing(FileStore& store, const std::string& folder)
{
    if (!store.exists(folder))
        store.makeFolder(folder);
}

} // namespace quillfen
