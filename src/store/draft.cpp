#include "store/draft.h"

#include "store/asidefile.h"
#include "store/history.h"
#include "store/nativepath.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace quillfen {
namespace {

using ChangeKind = StoreChange::Kind;

/// A name in a folder's listing after a change below that folder.
void follow(std::vector<std::string>& names, const std::string& folder, const StoreChange& change,
            ChangeKind added)
{
    if (folderOf(change.path) != pathText(nativePath(folder)))
        return;
    const std::string name = pathText(nativePath(change.path).filename());
    const auto place = std::lower_bound(names.begin(), names.end(), name);
    const bool isThere = place != names.end() && *place == name;
    if (change.kind == added && !isThere)
        names.insert(place, name);
    else if (change.kind == ChangeKind::Remove && isThere)
        names.erase(place);
}

/// What changes are about to replace, without what they leave as it is.
std::vector<ReplacedFile> replacedBy(const std::vector<StoreChange>& changes, const FileStore& disk)
{
    std::vector<ReplacedFile> replaced;
    for (const StoreChange& change : changes) {
        if (change.kind == ChangeKind::MakeFolder)
            continue;
        auto old = disk.read(change.path);
        const bool stays = change.kind == ChangeKind::Write ? old == change.bytes : !disk.exists(change.path);
        if (!stays)
            replaced.push_back({change.path, std::move(old)});
    }
    return replaced;
}

/// The version of what a commit is about to replace. It goes again if nothing was replaced.
class KeptVersion
{
public:
    KeptVersion(History* history, const Cause& cause, const std::vector<ReplacedFile>& replaced)
        : m_history(history)
    {
        if (!history)
            return;
        try {
            m_number = history->keep(cause, replaced);
        } catch (const StoreError& error) {
            m_fault = error.what();
        }
    }

    /// Runs a commit.
    void dropIfNothingChanges(const std::function<void()>& commit)
    {
        try {
            commit();
        } catch (const HalfCommitted&) {
            throw;
        } catch (const StoreError&) {
            if (m_number)
                m_history->forget(*m_number);
            throw;
        }
    }

    const std::string& fault() const { return m_fault; }

private:
    History* m_history;
    std::optional<unsigned> m_number;
    std::string m_fault;
};

} // namespace

DraftStore::DraftStore(FileStore& disk) : m_disk(disk) {}

const StoreChange* DraftStore::drafted(const std::string& path) const
{
    if (!m_draft)
        return nullptr;
    const auto& changes = m_draft->m_changes;
    const auto found = std::find_if(changes.begin(), changes.end(),
                                    [&path](const StoreChange& change) { return change.path == path; });
    return found == changes.end() ? nullptr : &*found;
}

std::optional<std::string> DraftStore::read(const std::string& path) const
{
    const StoreChange* change = drafted(path);
    auto bytes = !change                             ? m_disk.read(path)
                 : change->kind == ChangeKind::Write ? std::optional(change->bytes)
                                                     : std::nullopt;
    if (m_record)
        m_record->m_files[path] = markOf(bytes);
    return bytes;
}

FileMark markOf(const std::optional<std::string>& bytes)
{
    return bytes ? std::hash<std::string>()(*bytes) | 1U : 0;
}

std::optional<std::uintmax_t> DraftStore::size(const std::string& path) const
{
    const StoreChange* change = drafted(path);
    if (!change)
        return m_disk.size(path);
    return change->kind == ChangeKind::Write ? std::optional<std::uintmax_t>(change->bytes.size())
                                             : std::nullopt;
}

bool DraftStore::exists(const std::string& path) const
{
    const StoreChange* change = drafted(path);
    return change ? change->kind != ChangeKind::Remove : m_disk.exists(path);
}

std::vector<std::string> DraftStore::list(const std::string& folder) const
{
    auto names = m_disk.list(folder);
    if (m_draft) {
        for (const StoreChange& change : m_draft->m_changes)
            follow(names, folder, change, ChangeKind::Write);
    }
    return names;
}

std::vector<std::string> DraftStore::listFolders(const std::string& folder) const
{
    auto names = m_disk.listFolders(folder);
    if (m_draft) {
        for (const StoreChange& change : m_draft->m_changes)
            follow(names, folder, change, ChangeKind::MakeFolder);
    }
    return names;
}

void DraftStore::write(const std::string& path, std::string_view bytes)
{
    take({ChangeKind::Write, path, std::string(bytes)});
}

void DraftStore::makeFolder(const std::string& path)
{
    take({ChangeKind::MakeFolder, path});
}

void DraftStore::remove(const std::string& path)
{
    take({ChangeKind::Remove, path});
}

void DraftStore::take(StoreChange change)
{
    if (!m_draft)
        return carryOutWhole({std::move(change)}, m_listener.cause());
    std::erase_if(m_draft->m_changes,
                  [&change](const StoreChange& each) { return each.path == change.path; });
    m_draft->m_changes.push_back(std::move(change));
}

void DraftStore::commit(const std::vector<StoreChange>& changes)
{
    if (!m_draft)
        return carryOutWhole(changes, m_listener.cause());
    for (const StoreChange& change : changes)
        take(change);
}

void DraftStore::sync(const std::string& folder)
{
    m_disk.sync(folder);
}

Draft::Draft(DraftStore& store, Cause cause) : m_store(store), m_cause(std::move(cause))
{
    assert(!store.m_draft);
    store.m_draft = this;
}

Draft::~Draft()
{
    close();
}

void Draft::close()
{
    if (m_store.m_draft == this)
        m_store.m_draft = nullptr;
}

void Draft::commit()
{
    close();
    if (m_cause.kind == Cause::Kind::Rebuild)
        m_store.carryOutOneByOne(m_changes, m_cause);
    else
        m_store.carryOutWhole(m_changes, m_cause);
}

void DraftStore::carryOutWhole(const std::vector<StoreChange>& changes, const Cause& cause)
{
    KeptVersion version(m_history, cause,
                        m_history ? replacedBy(changes, m_disk) : std::vector<ReplacedFile>());
    version.dropIfNothingChanges([&] { m_disk.commit(changes); });
    m_listener.versionKept(version.fault());
}

void DraftStore::carryOutOneByOne(std::vector<StoreChange> changes, const Cause& cause)
{
    const auto replaced = replacedBy(changes, m_disk);
    KeptVersion version(m_history, cause, replaced);
    std::erase_if(changes, [&replaced](const StoreChange& change) {
        return change.kind != ChangeKind::MakeFolder &&
               std::none_of(replaced.begin(), replaced.end(),
                            [&change](const ReplacedFile& file) { return file.path == change.path; });
    });
    version.dropIfNothingChanges([&] {
        carryOutEach(changes, [&](const StoreChange& change) {
            if (&change != &changes.back())
                return carryOut(m_disk, change);
            m_disk.sync(folderOf(change.path)); // the last says that all the others are there
            m_disk.commit({change});
        });
    });
    m_listener.versionKept(version.fault());
}

} // namespace quillfen
