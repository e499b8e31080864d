#include "store/diskstore.h"

#include "store/asidefile.h"
#include "store/nativepath.h"

#include <algorithm>
#include <fstream>
#include <memory>
#include <set>
#include <system_error>

namespace quillfen {
namespace {

namespace fs = std::filesystem;

DiskCalls& platformCalls()
{
    static DiskCalls calls;
    return calls;
}

/// Runs calls of the platform's, and tells their failure as one of the path that the caller knows.
template <typename Act>
void tellingOf(const std::string& path, const Act& act)
{
    try {
        act();
    } catch (const std::system_error& error) {
        throw StoreError(path, error.code().message());
    }
}

/// Whether a failure says that a file's place can't be taken, though its bytes may be written over: its
/// folder is closed to us, its rights couldn't be kept, or somebody holds it open.
bool leavesItsPlace(const std::error_code& reason)
{
    for (const auto each : {std::errc::permission_denied, std::errc::operation_not_permitted,
                            std::errc::device_or_resource_busy, std::errc::cross_device_link}) {
        if (reason == each)
            return true;
    }
#ifdef _WIN32
    constexpr int sharingViolation = 32;
    constexpr int unableToRemoveReplaced = 1175;
    return reason.value() == sharingViolation || reason.value() == unableToRemoveReplaced;
#else
    return false;
#endif
}

/// A file's new bytes on their way: prepared aside, then in place.
class PendingFile
{
public:
    PendingFile(DiskCalls& calls, const StoreChange& change)
        : m_calls(calls),
          m_change(change),
          m_target(calls.followed(change.path)),
          m_facts(calls.facts(m_target))
    {
        if (m_facts.kind == FileFacts::Kind::Folder)
            throw std::system_error(std::make_error_code(std::errc::is_a_directory));
        if (m_facts.kind == FileFacts::Kind::File)
            m_calls.requireWritable(m_target);
    }

    const std::string& target() const { return m_target; }

    void prepare(Access access, Durable durable)
    {
        if (m_facts.kind == FileFacts::Kind::Other)
            return; // a device is written to, not replaced
        try {
            m_aside = std::make_unique<AsideFile>(m_calls, m_target);
            m_aside->fill(m_change.bytes, m_facts, access, durable);
        } catch (const std::system_error& error) {
            m_aside.reset();
            if (!mayStayInPlace(error.code()))
                throw;
        }
    }

    void finish(const FileStore& store, Durable durable)
    {
        if (m_aside && tookPlace())
            return;
        m_aside.reset();
        if (m_facts.kind == FileFacts::Kind::File)
            writeInPlace(m_calls, m_target, m_change.bytes, store.read(m_target), durable);
        else
            writeToDevice(m_calls, m_target, m_change.bytes);
    }

private:
    bool mayStayInPlace(const std::error_code& reason) const
    {
        return m_facts.kind == FileFacts::Kind::File && leavesItsPlace(reason);
    }

    bool tookPlace()
    {
        try {
            m_aside->takePlace();
            return true;
        } catch (const std::system_error& error) {
            if (!mayStayInPlace(error.code()))
                throw;
            return false;
        }
    }

    DiskCalls& m_calls;
    const StoreChange& m_change;
    std::string m_target;
    FileFacts m_facts;
    std::unique_ptr<AsideFile> m_aside;
};

/// Several changes on their way. What was prepared goes again unless it was carried out.
class PendingChanges
{
public:
    PendingChanges(DiskCalls& calls, Access access, Durable durable)
        : m_calls(calls),
          m_access(access),
          m_durable(durable)
    {
    }
    PendingChanges(const PendingChanges&) = delete;
    PendingChanges& operator=(const PendingChanges&) = delete;

    ~PendingChanges()
    {
        m_files.clear();
        for (auto folder = m_made.rbegin(); folder != m_made.rend(); ++folder)
            undo(*folder);
    }

    /// Nothing that was there is touched yet.
    void prepare(const StoreChange& change)
    {
        tellingOf(change.path, [&] {
            switch (change.kind) {
            case StoreChange::Kind::Write:
                m_files.emplace_back(std::make_unique<PendingFile>(m_calls, change));
                return m_files.back()->prepare(m_access, m_durable);
            case StoreChange::Kind::Remove:
                if (m_calls.facts(change.path).kind == FileFacts::Kind::Folder)
                    throw std::system_error(std::make_error_code(std::errc::is_a_directory));
                return;
            case StoreChange::Kind::MakeFolder:
                return makeFolder(change.path);
            }
        });
    }

    void finish(const std::vector<StoreChange>& changes, const FileStore& store)
    {
        auto file = m_files.begin();
        carryOutEach(changes, [&](const StoreChange& change) {
            tellingOf(change.path, [&] {
                if (change.kind == StoreChange::Kind::Write)
                    (*file++)->finish(store, m_durable);
                else if (change.kind == StoreChange::Kind::Remove)
                    m_calls.remove(change.path);
            });
            if (change.kind != StoreChange::Kind::MakeFolder)
                m_made.clear(); // they may hold something that stays
        });
        m_made.clear();
        if (m_durable == Durable::Now)
            syncFolders(changes);
    }

private:
    void makeFolder(const std::string& folder)
    {
        if (m_calls.facts(folder).kind == FileFacts::Kind::Folder)
            return;
        m_calls.makeFolder(folder, m_access);
        m_made.push_back(folder);
    }

    void undo(const std::string& folder)
    {
        try {
            m_calls.removeFolder(folder);
        } catch (const std::system_error&) { // an empty folder more does no harm
            return;
        }
    }

    /// The files are in their places whatever comes of this: without it a power cut might bring back the old
    /// ones.
    void syncFolders(const std::vector<StoreChange>& changes)
    {
        std::set<std::string> folders;
        for (const auto& file : m_files)
            folders.insert(folderOf(file->target()));
        for (const StoreChange& change : changes) {
            if (change.kind != StoreChange::Kind::Write)
                folders.insert(folderOf(change.path));
        }
        for (const std::string& folder : folders) {
            try {
                m_calls.syncFolder(folder);
            } catch (const std::system_error&) {
                continue;
            }
        }
    }

    DiskCalls& m_calls;
    Access m_access;
    Durable m_durable;
    std::vector<std::unique_ptr<PendingFile>> m_files;
    std::vector<std::string> m_made;
};

void carryOutAll(DiskCalls& calls, Access access, Durable durable, const std::vector<StoreChange>& changes,
                 const FileStore& store)
{
    PendingChanges pending(calls, access, durable);
    for (const StoreChange& change : changes)
        pending.prepare(change);
    pending.finish(changes, store);
}

/// The names of what is in a folder and of the kind that is asked for, in the order of their bytes.
template <typename IsWanted>
std::vector<std::string> entryNamesIn(const std::string& folder, const IsWanted& isWanted)
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(nativePath(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        if (isWanted(*entry))
            names.push_back(pathText(entry->path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Deletes what a crash left, each folder once whichever links lead to it.
class Sweeper
{
public:
    explicit Sweeper(DiskCalls& calls) : m_calls(calls) {}

    void sweep(const fs::path& folder, int depth = 0)
    {
        std::error_code error;
        const auto real = fs::canonical(folder, error);
        if (error || depth > deepest || !m_seen.insert(real).second)
            return;
        for (fs::directory_iterator entry(real, error), end; !error && entry != end; entry.increment(error))
            look(*entry, depth);
    }

private:
    /// No folder that we write to lies deeper, and links may lead anywhere.
    static constexpr int deepest = 4;

    void look(const fs::directory_entry& entry, int depth)
    {
        std::error_code error;
        if (entry.is_directory(error))
            return sweep(entry.path(), depth + 1);
        if (isAsideName(pathText(entry.path().filename())))
            remove(pathText(entry.path()));
        else if (entry.is_symlink(error)) // what replaces its target is made beside that
            sweepBeside(fs::canonical(entry.path(), error));
    }

    void sweepBeside(const fs::path& target)
    {
        const auto folder = pathText(target.parent_path());
        for (const std::string& name : entryNamesIn(folder, [](const auto&) { return true; })) {
            if (isAsideName(name))
                remove(pathText(target.parent_path() / nativePath(name)));
        }
    }

    void remove(const std::string& file)
    {
        try {
            m_calls.remove(file);
        } catch (const std::system_error&) { // the next start tries again
            return;
        }
    }

    DiskCalls& m_calls;
    std::set<fs::path> m_seen;
};

} // namespace

DiskStore::DiskStore(Access access) : DiskStore(platformCalls(), access) {}

DiskStore::DiskStore(DiskCalls& calls, Access access) : m_calls(calls), m_access(access) {}

std::optional<std::string> DiskStore::read(const std::string& path) const
{
    std::error_code error;
    if (!fs::is_regular_file(nativePath(path), error))
        return std::nullopt;
    std::ifstream file(nativePath(path), std::ios::binary);
    if (!file)
        return std::nullopt;
    std::string bytes;
    const auto size = fs::file_size(nativePath(path), error);
    if (!error)
        bytes.resize(static_cast<std::size_t>(size));
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (file.bad())
        return std::nullopt; // a part of a file is worse than none
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::optional<std::uintmax_t> DiskStore::size(const std::string& path) const
{
    std::error_code error;
    const auto size = fs::file_size(nativePath(path), error);
    return error ? std::nullopt : std::optional(size);
}

bool DiskStore::exists(const std::string& path) const
{
    std::error_code error;
    return fs::exists(nativePath(path), error);
}

std::vector<std::string> DiskStore::list(const std::string& folder) const
{
    return entryNamesIn(folder, [](const fs::directory_entry& entry) {
        std::error_code unreadable;
        return entry.is_regular_file(unreadable) && !isAsideName(pathText(entry.path().filename()));
    });
}

std::vector<std::string> DiskStore::listFolders(const std::string& folder) const
{
    return entryNamesIn(folder, [](const fs::directory_entry& entry) {
        std::error_code unreadable;
        return entry.is_directory(unreadable);
    });
}

void DiskStore::write(const std::string& path, std::string_view bytes)
{
    carryOutAll(m_calls, m_access, Durable::Later, {{StoreChange::Kind::Write, path, std::string(bytes)}},
                *this);
}

void DiskStore::makeFolder(const std::string& path)
{
    carryOutAll(m_calls, m_access, Durable::Later, {{StoreChange::Kind::MakeFolder, path}}, *this);
}

void DiskStore::remove(const std::string& path)
{
    carryOutAll(m_calls, m_access, Durable::Later, {{StoreChange::Kind::Remove, path}}, *this);
}

void DiskStore::commit(const std::vector<StoreChange>& changes)
{
    carryOutAll(m_calls, m_access, Durable::Now, changes, *this);
}

void DiskStore::sync(const std::string& folder)
{
    tellingOf(folder, [&] { m_calls.syncDisk(folder); });
}

void DiskStore::sweep(const std::string& folder)
{
    Sweeper(m_calls).sweep(nativePath(folder));
}

} // namespace quillfen
