#pragma once

#include "store/filestore.h"

#include <functional>
#include <map>
#include <set>
#include <vector>

namespace quillfen::test {

/// A disk in memory. It tells what was written and made, in that order, and can fail any such call.
class MemoryStore : public FileStore
{
public:
    std::map<std::string, std::string> files;
    std::set<std::string> folders;
    std::set<std::string> unreadable;            ///< files that are there and nobody may read
    std::vector<std::string> log;                ///< "write <path>", "make <path>" and "remove <path>"
    mutable std::map<std::string, int> readings; ///< how often each file was read
    int failingCall = -1;                        ///< the write, make or remove of this number, from 0, fails

    /// What a reader gets of a file's bytes, where that is something else.
    std::function<std::string(const std::string& bytes)> damage;

    std::optional<std::string> read(const std::string& path) const override
    {
        ++readings[path];
        const auto file = files.find(path);
        if (file == files.end() || unreadable.count(path) > 0)
            return std::nullopt;
        return damage ? damage(file->second) : file->second;
    }

    std::optional<std::uintmax_t> size(const std::string& path) const override
    {
        const auto file = files.find(path);
        return file == files.end() ? std::nullopt : std::optional<std::uintmax_t>(file->second.size());
    }

    void write(const std::string& path, std::string_view bytes) override
    {
        note("write ", path);
        if (folders.count(parent(path)) == 0)
            throw StoreError(path, "No such file or directory");
        if (folders.count(path) > 0)
            throw StoreError(path, "Is a directory");
        files[path] = bytes;
    }

    bool exists(const std::string& path) const override
    {
        return files.count(path) > 0 || folders.count(path) > 0;
    }

    void makeFolder(const std::string& path) override
    {
        note("make ", path);
        if (folders.count(parent(path)) == 0)
            throw StoreError(path, "No such file or directory");
        folders.insert(path);
    }

    std::vector<std::string> list(const std::string& folder) const override
    {
        std::vector<std::string> names;
        for (const auto& [path, bytes] : files) {
            if (parent(path) == folder)
                names.push_back(path.substr(folder.size() + 1));
        }
        return names;
    }

    std::vector<std::string> listFolders(const std::string& folder) const override
    {
        std::vector<std::string> names;
        for (const std::string& path : folders) {
            if (parent(path) == folder && path != folder)
                names.push_back(path.substr(folder.size() + 1));
        }
        return names;
    }

    void remove(const std::string& path) override
    {
        note("remove ", path);
        files.erase(path);
    }

private:
    static std::string parent(const std::string& path) { return path.substr(0, path.find_last_of('/')); }

    void note(const std::string& what, const std::string& path)
    {
        if (static_cast<int>(log.size()) == failingCall)
            throw StoreError(path, "No space left on device");
        log.push_back(what + path);
    }
};

} // namespace quillfen::test
