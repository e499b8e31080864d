#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillfen {

/// What stands under a name, and what the file that takes its place must keep of it.
struct FileFacts
{
    enum class Kind
    {
        None,
        File,
        Folder,
        Other ///< a device or a pipe
    };

    Kind kind = Kind::None;
    unsigned mode = 0;
    unsigned owner = 0;
    unsigned group = 0;
};

/// Who may read what is made.
enum class Access
{
    AsUsual,
    OwnerOnly
};

/// The platform's calls by which DiskStore changes the disk, one by one: a test counts them, and lets any
/// fail or be the last. Each throws std::system_error.
class DiskCalls
{
public:
    using Handle = std::intptr_t;

    DiskCalls() = default;
    DiskCalls(const DiskCalls&) = delete;
    DiskCalls& operator=(const DiskCalls&) = delete;
    virtual ~DiskCalls() = default;

    /// The path itself, or where its link leads to in the end.
    virtual std::string followed(const std::string& path);

    virtual FileFacts facts(const std::string& path);

    /// Taking a file's place asks nothing of the file: one that was closed to writers must stay so.
    virtual void requireWritable(const std::string& file);

    /// Makes a new file; fails where one of this name is.
    virtual Handle create(const std::string& path, Access access);

    /// Opens a file that is there, to be written from its start.
    virtual Handle open(const std::string& path);

    /// Writes some of the bytes, and returns how many.
    virtual std::size_t write(Handle file, std::string_view bytes);

    virtual void rewind(Handle file);

    /// Ends the file where the next byte would be written.
    virtual void endHere(Handle file);

    /// Gives an open file the mode and the group of another, and its owner where the platform lets us.
    virtual void giveRights(Handle file, const FileFacts& facts);

    virtual void sync(Handle file);

    /// Closes the file, whatever it throws.
    virtual void close(Handle file);

    /// Puts a file into the place of another or of none.
    virtual void replace(const std::string& aside, const std::string& target);

    virtual void remove(const std::string& file);
    virtual void makeFolder(const std::string& folder, Access access);
    virtual void removeFolder(const std::string& folder);

    /// Returns when the names in a folder would outlast a power cut.
    virtual void syncFolder(const std::string& folder);

    /// The same for all that was written to the folder's disk.
    virtual void syncDisk(const std::string& folder);
};

} // namespace quillfen
