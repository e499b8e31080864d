#include "store/diskcalls.h"

#include "store/nativepath.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quillfen {
namespace {

namespace fs = std::filesystem;

constexpr int mostLinks = 40; // as the platforms have it

#ifdef _WIN32

void require(bool done)
{
    if (!done)
        throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
}

HANDLE handleOf(DiskCalls::Handle file)
{
    return reinterpret_cast<HANDLE>(file);
}

DiskCalls::Handle opened(const std::string& path, DWORD disposition)
{
    HANDLE file = CreateFileW(nativePath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, disposition,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    require(file != INVALID_HANDLE_VALUE);
    return reinterpret_cast<DiskCalls::Handle>(file);
}

#else

constexpr mode_t keptBits = 07777;

void require(bool done)
{
    if (!done)
        throw std::system_error(errno, std::generic_category());
}

DiskCalls::Handle opened(const std::string& path, int flags, mode_t mode = 0)
{
    const int file = ::open(path.c_str(), flags | O_CLOEXEC, mode);
    require(file >= 0);
    return file;
}

int descriptor(DiskCalls::Handle file)
{
    return static_cast<int>(file);
}

/// A folder, opened for as long as somebody waits for it.
class OpenFolder
{
public:
    explicit OpenFolder(const std::string& path)
        : m_descriptor(quillfen::descriptor(opened(path, O_RDONLY | O_DIRECTORY)))
    {
    }
    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;
    ~OpenFolder() { ::close(m_descriptor); }

    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

#endif

} // namespace

std::string DiskCalls::followed(const std::string& path)
{
    fs::path at = nativePath(path);
    for (int links = 0; fs::is_symlink(fs::symlink_status(at)); ++links) {
        if (links == mostLinks)
            throw std::system_error(std::make_error_code(std::errc::too_many_symbolic_link_levels));
        const fs::path target = fs::read_symlink(at);
        at = target.is_absolute() ? target : at.parent_path() / target;
    }
    return pathText(at);
}

#ifdef _WIN32

FileFacts DiskCalls::facts(const std::string& path)
{
    const auto status = fs::status(nativePath(path));
    if (!fs::exists(status))
        return {};
    auto kind = FileFacts::Kind::Other;
    if (fs::is_regular_file(status))
        kind = FileFacts::Kind::File;
    else if (fs::is_directory(status))
        kind = FileFacts::Kind::Folder;
    return {kind};
}

void DiskCalls::requireWritable(const std::string& file)
{
    const DWORD attributes = GetFileAttributesW(nativePath(file).c_str());
    require(attributes != INVALID_FILE_ATTRIBUTES);
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0)
        throw std::system_error(ERROR_ACCESS_DENIED, std::system_category());
}

DiskCalls::Handle DiskCalls::create(const std::string& path, Access) // a user's data folder is his alone
{
    return opened(path, CREATE_NEW);
}

DiskCalls::Handle DiskCalls::open(const std::string& path)
{
    return opened(path, OPEN_EXISTING);
}

std::size_t DiskCalls::write(Handle file, std::string_view bytes)
{
    constexpr std::size_t most = 1U << 30U;
    DWORD written = 0;
    require(WriteFile(handleOf(file), bytes.data(), static_cast<DWORD>(std::min(bytes.size(), most)),
                      &written, nullptr) != 0);
    return written;
}

void DiskCalls::rewind(Handle file)
{
    require(SetFilePointerEx(handleOf(file), {}, nullptr, FILE_BEGIN) != 0);
}

void DiskCalls::endHere(Handle file)
{
    require(SetEndOfFile(handleOf(file)) != 0);
}

void DiskCalls::giveRights(Handle, const FileFacts&) {} // ReplaceFile does that

void DiskCalls::sync(Handle file)
{
    require(FlushFileBuffers(handleOf(file)) != 0);
}

void DiskCalls::close(Handle file)
{
    require(CloseHandle(handleOf(file)) != 0);
}

void DiskCalls::replace(const std::string& aside, const std::string& target)
{
    const fs::path from = nativePath(aside);
    const fs::path to = nativePath(target);
    // ReplaceFile keeps who may do what with the file, but wants one to be there.
    if (fs::exists(to))
        require(ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                             nullptr) != 0);
    else
        require(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH) != 0);
}

void DiskCalls::remove(const std::string& file)
{
    require(DeleteFileW(nativePath(file).c_str()) != 0 || GetLastError() == ERROR_FILE_NOT_FOUND ||
            GetLastError() == ERROR_PATH_NOT_FOUND);
}

void DiskCalls::makeFolder(const std::string& folder, Access)
{
    require(CreateDirectoryW(nativePath(folder).c_str(), nullptr) != 0);
}

void DiskCalls::removeFolder(const std::string& folder)
{
    require(RemoveDirectoryW(nativePath(folder).c_str()) != 0);
}

void DiskCalls::syncFolder(const std::string&) {} // names are written through

void DiskCalls::syncDisk(const std::string&) {}

#else

FileFacts DiskCalls::facts(const std::string& path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        require(errno == ENOENT);
        return {};
    }
    auto kind = FileFacts::Kind::Other;
    if (S_ISREG(status.st_mode))
        kind = FileFacts::Kind::File;
    else if (S_ISDIR(status.st_mode))
        kind = FileFacts::Kind::Folder;
    return {kind, status.st_mode & keptBits, status.st_uid, status.st_gid};
}

void DiskCalls::requireWritable(const std::string& file)
{
    require(access(file.c_str(), W_OK) == 0);
}

DiskCalls::Handle DiskCalls::create(const std::string& path, Access access)
{
    return opened(path, O_WRONLY | O_CREAT | O_EXCL, access == Access::OwnerOnly ? 0600 : 0666);
}

DiskCalls::Handle DiskCalls::open(const std::string& path)
{
    return opened(path, O_WRONLY);
}

std::size_t DiskCalls::write(Handle file, std::string_view bytes)
{
    ssize_t written = -1;
    do
        written = ::write(descriptor(file), bytes.data(), bytes.size());
    while (written < 0 && errno == EINTR);
    require(written >= 0);
    return static_cast<std::size_t>(written);
}

void DiskCalls::rewind(Handle file)
{
    require(lseek(descriptor(file), 0, SEEK_SET) == 0);
}

void DiskCalls::endHere(Handle file)
{
    const off_t here = lseek(descriptor(file), 0, SEEK_CUR);
    require(here >= 0 && ftruncate(descriptor(file), here) == 0);
}

void DiskCalls::giveRights(Handle file, const FileFacts& facts)
{
    struct stat own = {};
    require(fstat(descriptor(file), &own) == 0);
    if (own.st_gid != facts.group)
        require(fchown(descriptor(file), static_cast<uid_t>(-1), facts.group) == 0);
    if (own.st_uid != facts.owner && fchown(descriptor(file), facts.owner, static_cast<gid_t>(-1)) != 0)
        require(errno == EPERM); // only the administrator may give files away
    if ((own.st_mode & keptBits) != facts.mode)
        require(fchmod(descriptor(file), facts.mode) == 0);
}

void DiskCalls::sync(Handle file)
{
    require(fsync(descriptor(file)) == 0);
}

void DiskCalls::close(Handle file)
{
    require(::close(descriptor(file)) == 0);
}

void DiskCalls::replace(const std::string& aside, const std::string& target)
{
    require(std::rename(aside.c_str(), target.c_str()) == 0);
}

void DiskCalls::remove(const std::string& file)
{
    require(unlink(file.c_str()) == 0 || errno == ENOENT);
}

void DiskCalls::makeFolder(const std::string& folder, Access access)
{
    require(mkdir(folder.c_str(), access == Access::OwnerOnly ? 0700 : 0777) == 0);
}

void DiskCalls::removeFolder(const std::string& folder)
{
    require(rmdir(folder.c_str()) == 0);
}

void DiskCalls::syncFolder(const std::string& folder)
{
    const OpenFolder open(folder);
    require(fsync(open.descriptor()) == 0);
}

void DiskCalls::syncDisk(const std::string& folder)
{
#ifdef __linux__
    const OpenFolder open(folder);
    require(syncfs(open.descriptor()) == 0);
#else
    static_cast<void>(folder);
    ::sync();
#endif
}

#endif

} // namespace quillfen
