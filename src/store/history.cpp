#include "store/history.h"

#include "store/nativepath.h"

#include <algorithm>

namespace quillfen {
namespace {

using namespace std::string_view_literals;

/// Whether a told path stays below the folder in which it is looked for.
bool staysBelow(std::string_view told)
{
    if (told.find_first_of("/:\0"sv) != std::string_view::npos)
        return false;
    for (;;) {
        const auto end = std::min(told.find('\\'), told.size());
        const auto step = told.substr(0, end);
        if (step.empty() || step == "." || step == "..")
            return false;
        if (end == told.size())
            return true;
        told.remove_prefix(end + 1);
    }
}

} // namespace

History::History(const FileStore& disk, std::string root, VersionStore& versions)
    : m_disk(disk),
      m_root(std::move(root)),
      m_versions(versions)
{
}

std::optional<std::string> History::toldPath(const std::string& path) const
{
    if (!path.starts_with(m_root) || path.size() < m_root.size() + 2)
        return std::nullopt;
    std::string told = path.substr(m_root.size() + 1);
    if (told.find('\\') != std::string::npos)
        return std::nullopt;
    std::replace(told.begin(), told.end(), '/', '\\');
    return staysBelow(told) ? std::optional(told) : std::nullopt;
}

std::optional<std::string> History::realPath(const std::string& told) const
{
    if (!staysBelow(told))
        return std::nullopt;
    std::string path = told;
    std::replace(path.begin(), path.end(), '\\', '/');
    return m_root + '/' + path;
}

std::optional<unsigned> History::keep(const Cause& cause, const std::vector<ReplacedFile>& replaced)
{
    VersionStore::Contents contents;
    for (const ReplacedFile& file : replaced) {
        auto told = toldPath(file.path);
        if (!told)
            continue;
        if (!file.bytes && m_disk.exists(file.path))
            throw StoreError(file.path, "it can't be read");
        contents.emplace_back(std::move(*told), file.bytes);
    }
    return contents.empty() ? std::nullopt : std::optional(m_versions.keep(cause, contents));
}

void History::addTree(const std::string& folder, std::vector<ReplacedFile>& files) const
{
    for (const std::string& name : m_disk.list(folder))
        files.push_back({folder + '/' + name, m_disk.read(folder + '/' + name)});
    for (const std::string& name : m_disk.listFolders(folder))
        addTree(folder + '/' + name, files);
}

std::optional<unsigned> History::backUp(const std::string& words)
{
    std::vector<ReplacedFile> files;
    addTree(m_root, files);
    return keep({words, Cause::Kind::Backup}, files);
}

std::vector<KeptFile> History::treeBefore(unsigned number)
{
    const auto list = m_versions.entries();
    std::map<std::string, KeptFile> oldest;
    for (const VersionEntry& entry : list.entries) { // from the newest on, so that the older one wins
        if (entry.number < number)
            break;
        for (const KeptFile& file : entry.files)
            oldest[file.told] = file;
    }
    std::vector<KeptFile> files;
    files.reserve(oldest.size());
    for (auto& [told, file] : oldest)
        files.push_back(std::move(file));
    return files;
}

std::optional<std::string> History::todaysBytes(const KeptFile& file) const
{
    const auto path = realPath(file.told);
    return path ? m_disk.read(*path) : std::nullopt;
}

void History::addFolders(const std::string& path, BringingBack& result) const
{
    const auto folder = nativePath(path).parent_path();
    const auto name = pathText(folder);
    const auto isMade = [&name](const StoreChange& change) { return change.path == name; };
    if (folder.empty() || m_disk.exists(name) ||
        std::any_of(result.changes.begin(), result.changes.end(), isMade))
        return;
    addFolders(name, result);
    result.changes.push_back({StoreChange::Kind::MakeFolder, name});
}

BringingBack History::bringBack(const std::vector<KeptFile>& files) const
{
    BringingBack result;
    for (const KeptFile& file : files) {
        const auto path = realPath(file.told);
        if (!path) {
            result.refused.push_back(file.told + ": it would leave the settings folder");
            continue;
        }
        if (!file.wasThere()) {
            if (m_disk.exists(*path))
                result.changes.push_back({StoreChange::Kind::Remove, *path});
            continue;
        }
        auto bytes = keptBytes(file);
        if (!bytes) {
            result.refused.push_back(file.told + ": its bytes are damaged or gone");
        } else if (m_disk.read(*path) != bytes) {
            addFolders(*path, result);
            result.changes.push_back({StoreChange::Kind::Write, *path, std::move(*bytes)});
        }
    }
    return result;
}

} // namespace quillfen
