#include "settings/diskstore.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace quillfen {
namespace {

std::filesystem::path native(const std::string& path)
{
    return {std::u8string(path.begin(), path.end())};
}

[[noreturn]] void failWithLastError(const std::string& path)
{
    throw StoreError(path, std::generic_category().message(errno != 0 ? errno : EIO));
}

} // namespace

std::optional<std::string> DiskStore::read(const std::string& path) const
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(native(path), error))
        return std::nullopt;
    std::ifstream file(native(path), std::ios::binary);
    if (!file)
        return std::nullopt;
    std::string bytes;
    const auto size = std::filesystem::file_size(native(path), error);
    if (!error)
        bytes.resize(static_cast<std::size_t>(size));
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

void DiskStore::write(const std::string& path, std::string_view bytes)
{
    errno = 0;
    std::ofstream file(native(path), std::ios::binary | std::ios::trunc);
    if (!file)
        failWithLastError(path);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close(); // A full disk often shows only now.
    if (!file)
        failWithLastError(path);
}

bool DiskStore::exists(const std::string& path) const
{
    std::error_code error;
    return std::filesystem::exists(native(path), error);
}

void DiskStore::makeFolder(const std::string& path)
{
    std::error_code error;
    std::filesystem::create_directory(native(path), error);
    if (error)
        throw StoreError(path, error.message());
}

std::vector<std::string> DiskStore::list(const std::string& folder) const
{
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(native(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unreadable;
        if (!entry->is_regular_file(unreadable))
            continue;
        const std::u8string name = entry->path().filename().u8string();
        names.emplace_back(name.begin(), name.end());
    }
    std::sort(names.begin(), names.end());
    return names;
}

void DiskStore::remove(const std::string& path)
{
    std::error_code error;
    if (std::filesystem::is_directory(native(path), error))
        throw StoreError(path, std::make_error_code(std::errc::is_a_directory).message());
    std::filesystem::remove(native(path), error);
    if (error)
        throw StoreError(path, error.message());
}

} // namespace quillfen
