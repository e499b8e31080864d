// What the saves of all forms and a rebuild leave on the disk when it fails, is full, or the process is
// killed.
#include "functions/catalogue.h"
#include "shell/sweep.h"
#include "store/diskstore.h"
#include "store/draft.h"
#include "store/history.h"
#include "support/diskfolder.h"
#include "support/faultycalls.h"
#include "support/freshtree.h"

#include <algorithm>
#include <random>

#ifndef _WIN32
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace quillfen {
namespace {

using test::DiskFolder;
using Files = std::map<std::string, std::string>;
using Kind = StoreChange::Kind;

/// What one save wants done, and by whom.
struct Save
{
    Cause cause;
    std::vector<StoreChange> changes;
};

class SavesOnTheDisk : public test::Sweep
{
protected:
    /// Saves each form, changed all over, and rebuilds for more profiles, all from the same tree.
    SavesOnTheDisk() : before(hub.store.files)
    {
        folders = hub.store.folders;
        forEachForm([this](const std::string& key, EditorForm& form) {
            hub.store.files = before;
            changeEverything(form);
            hub.store.log.clear();
            if (form.isDirty())
                useModals([&form] { button(form, "SAVE").trigger(); });
            remember({key});
        });
        EXPECT_EQ(saves.size(), formCatalogue().size());
        for (int profile = 0; profile < 20; ++profile)
            hub.store.files["/hub/cfg/Profiles.xml"] += "<Name>P" + std::to_string(profile) + "</Name>\r\n";
        const std::string profiles = hub.store.files["/hub/cfg/Profiles.xml"];
        hub.store.log.clear();
        test::buildTree(hub);
        remember({"Rebuild", Cause::Kind::Rebuild});
        EXPECT_GT(saves.back().changes.size(), 10U);
    }

    void remember(const Cause& cause)
    {
        Save save{cause, {}};
        for (const std::string& line : hub.store.log) {
            const auto blank = line.find(' ');
            const std::string path = line.substr(blank + 1);
            if (line.starts_with("write "))
                save.changes.push_back({Kind::Write, path, hub.store.files.at(path)});
            else
                save.changes.push_back({line.starts_with("make ") ? Kind::MakeFolder : Kind::Remove, path});
        }
        saves.push_back(std::move(save));
        hub.store.files = before;
        hub.store.folders = folders;
    }

    /// The tree of before in a folder on the disk.
    void build(const DiskFolder& place) const
    {
        for (const std::string& folder : folders)
            std::filesystem::create_directories(place.path() + folder);
        for (const auto& [path, bytes] : before)
            std::ofstream(place.path() + path, std::ios::binary | std::ios::trunc) << bytes;
    }

    /// Puts back what a save changed.
    void undo(const Save& save, const DiskFolder& place) const
    {
        for (const StoreChange& change : save.changes) {
            const auto old = before.find(change.path);
            if (change.kind == Kind::MakeFolder)
                continue;
            if (old == before.end())
                std::filesystem::remove(place.path() + change.path);
            else
                std::ofstream(place.path() + change.path, std::ios::binary | std::ios::trunc) << old->second;
        }
        for (auto change = save.changes.rbegin(); change != save.changes.rend(); ++change) {
            if (change->kind == Kind::MakeFolder)
                std::filesystem::remove(place.path() + change->path);
        }
    }

    static void commit(const Save& save, const DiskFolder& place, FileStore& disk, History* history = nullptr)
    {
        DraftStore store(disk);
        store.keepVersionsIn(history);
        Draft draft(store, save.cause);
        std::vector<StoreChange> changes = save.changes;
        for (StoreChange& change : changes)
            change.path = place.path() + change.path;
        store.commit(changes);
        draft.commit();
    }

    /// Every file that a save changes holds its old bytes or its new ones.
    void expectOldOrNew(const Save& save, const DiskFolder& place) const
    {
        for (const StoreChange& change : save.changes) {
            if (change.kind == Kind::MakeFolder)
                continue;
            const auto bytes = DiskStore().read(place.path() + change.path);
            const auto old = before.find(change.path);
            const bool isOld = old == before.end() ? !bytes : bytes == old->second;
            const bool isNew = change.kind == Kind::Remove ? !bytes : bytes == change.bytes;
            EXPECT_TRUE(isOld || isNew) << change.path;
        }
    }

    /// Every file holds the bytes of before or those of a save, and no other file is there.
    void expectBytesOfSomeSave(const DiskFolder& place) const
    {
        std::map<std::string, std::set<std::string>> allowed;
        for (const auto& [path, bytes] : before)
            allowed[path].insert(bytes);
        for (const Save& save : saves) {
            for (const StoreChange& change : save.changes)
                allowed[change.path].insert(change.bytes);
        }
        const Files now = place.files();
        for (const auto& [path, bytes] : now)
            EXPECT_TRUE(allowed["/" + path].contains(bytes)) << path;
        for (const auto& [path, bytes] : before)
            EXPECT_TRUE(now.contains(path.substr(1)) || mayBeGone(path)) << path;
    }

    bool mayBeGone(const std::string& path) const
    {
        return std::any_of(saves.begin(), saves.end(), [&path](const Save& save) {
            return std::any_of(save.changes.begin(), save.changes.end(), [&path](const StoreChange& change) {
                return change.kind == Kind::Remove && change.path == path;
            });
        });
    }

    /// Runs one save after the other, until it is killed or one fails.
    void saveOnAndOn(std::size_t first, const DiskFolder& place) const
    try {
        DiskStore disk;
        for (std::size_t at = first;; at = (at + 1) % saves.size())
            commit(saves[at], place, disk);
    } catch (const StoreError&) {
        return;
    }

    static std::size_t countAsides(const DiskFolder& place)
    {
        std::size_t count = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(place.path()))
            count += entry.path().filename().string().starts_with(".quillfen-") ? 1U : 0U;
        return count;
    }

    Files before;
    std::set<std::string> folders;
    std::vector<Save> saves;
};

struct Fault
{
    const char* name;
    int reason;
    bool dies = false;
    std::size_t mostBytes = SIZE_MAX;
};

void PrintTo(const Fault& fault, std::ostream* stream)
{
    *stream << fault.name;
}

class FaultsOfTheDisk : public SavesOnTheDisk, public testing::WithParamInterface<Fault>
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, FaultsOfTheDisk,
                         testing::Values(Fault{"Full", ENOSPC}, Fault{"Closed", EACCES}, Fault{"Broken", EIO},
                                         Fault{"FullAndShort", ENOSPC, false, 1000},
                                         Fault{"Death", EIO, true}),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_P(FaultsOfTheDisk, AtEveryCallOfEverySaveLeaveEachFileOldOrNew)
{
    const DiskFolder place;
    build(place);
    int failures = 0;
    for (const Save& save : saves) {
        SCOPED_TRACE(save.cause.words);
        // Of the rebuild's many calls, which are alike, each seventh.
        const int step = save.cause.kind == Cause::Kind::Rebuild ? 7 : 1;
        bool reached = !save.changes.empty();
        for (int call = 0; reached; call += step) {
            test::FaultyCalls calls;
            calls.failingCall = call;
            calls.reason = GetParam().reason;
            calls.dies = GetParam().dies;
            calls.mostBytes = GetParam().mostBytes;
            DiskStore disk(calls);
            bool told = false;
            try {
                commit(save, place, disk);
            } catch (const StoreError&) {
                told = true;
            }
            reached = calls.wasReached();
            failures += told ? 1 : 0;
            expectOldOrNew(save, place);
            if (GetParam().dies)
                DiskStore().sweep(place.path() + hub.root);
            undo(save, place);
        }
    }
    EXPECT_GT(failures, 500);
    RecordProperty("failures", failures);
    EXPECT_EQ(countAsides(place), 0U);
    Files after;
    for (const auto& [path, bytes] : place.files())
        after["/" + path] = bytes;
    EXPECT_EQ(after, before);
}

TEST_F(SavesOnTheDisk, CanEachBeBroughtBack)
{
    const DiskFolder place;
    const DiskFolder data;
    build(place);
    const auto untouched = place.files();
    DiskStore disk;
    VersionStore versions(disk, data.path() + "/versions");
    History history(disk, place.path() + hub.root, versions);
    for (const Save& save : saves) {
        SCOPED_TRACE(save.cause.words);
        commit(save, place, disk, &history);
        if (place.files() == untouched)
            continue; // it wrote what stood there
        const auto entry = history.entries().entries.at(0);
        EXPECT_EQ(entry.cause, save.cause);
        const auto result = history.bringBack(entry.files);
        EXPECT_TRUE(result.refused.empty());
        disk.commit(result.changes);
        undo({save.cause, {{Kind::Write, "/hub/cfg/Profiles.xml", {}}}}, place);
        EXPECT_EQ(place.files(), untouched);
    }
    EXPECT_GT(history.entries().entries.size(), 80U);
}

#ifndef _WIN32
TEST_F(SavesOnTheDisk, KilledAtAnyMomentLeaveEachFileOldOrNewAndTheNextStartSweeps)
{
    constexpr int kills = 200;
    const DiskFolder place;
    build(place);
    std::mt19937 random(std::random_device{}());
    std::size_t asides = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const std::size_t first = random() % saves.size();
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            saveOnAndOn(first, place);
            _exit(1); // a save failed
        }
        usleep(static_cast<useconds_t>(random() % 20000));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        asides += countAsides(place);
        DiskStore().sweep(place.path() + hub.root);
        EXPECT_EQ(countAsides(place), 0U);
        expectBytesOfSomeSave(place);
    }
    EXPECT_GT(asides, 0U) << "some were killed in the midst of a save";
}
#endif

} // namespace
} // namespace quillfen
