#pragma once

#include "store/filestore.h"
#include "store/versionstore.h"

#include <functional>
#include <map>
#include <string>

namespace quillfen {

class Draft;
class History;
class ReadRecord;

/// What a store asks and tells of commits.
struct StoreListener
{
    /// By whose doing files are written while no draft is open.
    std::function<Cause()> cause = [] { return Cause{"Quillfen"}; };

    /// A commit is done: why no version of what it replaced was kept, or nothing if all went well.
    std::function<void(const std::string& fault)> versionKept = [](const std::string&) {};
};

/// What all settings are read from and written to: the disk, and over it the open draft, if there is one.
/// What is written while none is open is committed at once.
class DraftStore : public FileStore
{
public:
    explicit DraftStore(FileStore& disk);

    std::optional<std::string> read(const std::string& path) const override;
    std::optional<std::uintmax_t> size(const std::string& path) const override;
    bool exists(const std::string& path) const override;
    std::vector<std::string> list(const std::string& folder) const override;
    std::vector<std::string> listFolders(const std::string& folder) const override;

    void write(const std::string& path, std::string_view bytes) override;
    void makeFolder(const std::string& path) override;
    void remove(const std::string& path) override;
    void commit(const std::vector<StoreChange>& changes) override;
    void sync(const std::string& folder) override;

    /// Whether a draft is open.
    bool isDrafting() const { return m_draft != nullptr; }

    /// From now on what a commit replaces is kept there; nowhere if it is null.
    void keepVersionsIn(History* history) { m_history = history; }

    /// From now on asks and tells that one.
    void hear(StoreListener listener) { m_listener = std::move(listener); }

private:
    friend class Draft;
    friend class ReadRecord;

    const StoreChange* drafted(const std::string& path) const;
    void take(StoreChange change);
    void carryOutWhole(const std::vector<StoreChange>& changes, const Cause& cause);
    void carryOutOneByOne(std::vector<StoreChange> changes, const Cause& cause);

    FileStore& m_disk;
    StoreListener m_listener;
    History* m_history = nullptr;
    Draft* m_draft = nullptr;
    ReadRecord* m_record = nullptr;
};

/// What a save would do to the disk. While it is open, it holds all that is written to its store and answers
/// reads with it. It goes without a trace unless it was committed. A store has one at a time.
class Draft
{
public:
    Draft(DraftStore& store, Cause cause);
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;
    ~Draft();

    /// What it holds, in the order of writing. A path that was written twice stands where it was last.
    const std::vector<StoreChange>& changes() const { return m_changes; }

    /// Closes the draft and carries it out: as a whole, but a rebuild file by file, and there only what holds
    /// other bytes. Throws StoreError, which is a HalfCommitted if some files changed.
    void commit();

private:
    friend class DraftStore;

    void close();

    DraftStore& m_store;
    Cause m_cause;
    std::vector<StoreChange> m_changes;
};

/// What a file held, as far as it takes to see that it holds something else: 0 for no file.
using FileMark = std::size_t;
FileMark markOf(const std::optional<std::string>& bytes);

/// Notes, while it is there, which files its store is asked for and what they held. A store has one at a
/// time.
class ReadRecord
{
public:
    explicit ReadRecord(DraftStore& store) : m_store(store) { m_store.m_record = this; }
    ReadRecord(const ReadRecord&) = delete;
    ReadRecord& operator=(const ReadRecord&) = delete;
    ~ReadRecord() { m_store.m_record = nullptr; }

    const std::map<std::string, FileMark>& files() const { return m_files; }

private:
    friend class DraftStore;

    DraftStore& m_store;
    std::map<std::string, FileMark> m_files;
};

} // namespace quillfen
