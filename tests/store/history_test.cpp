#include "store/draft.h"
#include "store/history.h"
#include "support/memorystore.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using Names = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

class EarlierVersions : public testing::Test
{
protected:
    EarlierVersions()
    {
        disk.folders = {"/hub", "/hub/a"};
        disk.files = {{"/hub/a/one", "1"}, {"/hub/a/two", "2"}};
        versionDisk.folders = {"", "/data"};
        store.keepVersionsIn(&history);
    }

    unsigned newest() { return history.entries().entries.at(0).number; }
    KeptFile newestFile() { return history.entries().entries.at(0).files.at(0); }

    test::MemoryStore disk;
    test::MemoryStore versionDisk;
    VersionStore versions{versionDisk, "/data/versions"};
    History history{disk, "/hub", versions};
    DraftStore store{disk};
};

TEST_F(EarlierVersions, OneFileIsBroughtBackAndThatIsAnEntryItself)
{
    store.write("/hub/a/one", "new");
    const auto result = history.bringBack({newestFile()});
    EXPECT_EQ(result.refused, Names());
    store.commit(result.changes);
    EXPECT_EQ(disk.files.at("/hub/a/one"), "1");
    EXPECT_EQ(history.entries().entries.size(), 2U);
    EXPECT_EQ(history.keptBytes(newestFile()), "new");
}

TEST_F(EarlierVersions, AnEntryIsBroughtBackAsAWhole)
{
    const Files before = disk.files;
    {
        Draft draft(store, {"a save"});
        store.write("/hub/a/one", "new");
        store.remove("/hub/a/two");
        store.write("/hub/three", "new");
        draft.commit();
    }
    EXPECT_NE(disk.files, before);
    store.commit(history.bringBack(history.entries().entries.at(0).files).changes);
    EXPECT_EQ(disk.files, before);
}

TEST_F(EarlierVersions, TheTreeIsBroughtBackAsItStoodBeforeAnyEntry)
{
    std::vector<Files> states = {disk.files};
    const auto then = [&](const std::function<void()>& change) {
        change();
        states.push_back(disk.files);
    };
    then([&] { store.write("/hub/a/one", "11"); });
    then([&] { store.write("/hub/a/new", "n"); });
    then([&] { store.remove("/hub/a/two"); });
    then([&] { store.write("/hub/a/one", "111"); });
    then([&] { store.remove("/hub/a/new"); });
    for (unsigned number = 1; number < states.size(); ++number) {
        const auto now = disk.files;
        store.commit(history.bringBack(history.treeBefore(number)).changes);
        EXPECT_EQ(disk.files, states[number - 1]) << number;
        disk.files = now;
    }
}

TEST_F(EarlierVersions, ABackupIsTheTreeOfItsDay)
{
    disk.folders.insert("/hub/a/inner");
    disk.files["/hub/a/inner/three"] = "3";
    const Files before = disk.files;
    const auto number = history.backUp("Backup");
    ASSERT_TRUE(number);
    EXPECT_EQ(history.entries().entries.at(0).cause, (Cause{"Backup", Cause::Kind::Backup}));
    disk.files["/hub/a/one"] = "changed by another hand";
    disk.files.erase("/hub/a/inner/three");
    disk.folders.erase("/hub/a/inner");
    store.commit(history.bringBack(history.treeBefore(*number)).changes);
    EXPECT_EQ(disk.files, before);
    EXPECT_TRUE(disk.folders.contains("/hub/a/inner"));
}

TEST_F(EarlierVersions, WhatStandsAsItStoodIsNotWritten)
{
    store.write("/hub/a/one", "new");
    disk.files["/hub/a/one"] = "1";
    EXPECT_TRUE(history.bringBack({newestFile()}).changes.empty());
    EXPECT_TRUE(history.bringBack({{"a\\none", ""}}).changes.empty());
}

TEST_F(EarlierVersions, AFolderThatIsGoneIsMadeOnceForAllOfItsFiles)
{
    {
        Draft draft(store, {"a save"});
        store.remove("/hub/a/one");
        store.remove("/hub/a/two");
        draft.commit();
    }
    disk.folders.erase("/hub/a");
    const auto changes = history.bringBack(history.entries().entries.at(0).files).changes;
    ASSERT_EQ(changes.size(), 3U);
    EXPECT_EQ(changes[0].kind, StoreChange::Kind::MakeFolder);
    EXPECT_EQ(changes[0].path, "/hub/a");
    EXPECT_EQ(changes[1].path, "/hub/a/one");
    EXPECT_EQ(changes[2].path, "/hub/a/two");
}

TEST_F(EarlierVersions, EachFolderThatIsGoneIsMade)
{
    disk.folders.insert({"/hub/b", "/hub/c"});
    disk.files["/hub/b/one"] = "1";
    disk.files["/hub/c/one"] = "1";
    {
        Draft draft(store, {"a save"});
        store.remove("/hub/b/one");
        store.remove("/hub/c/one");
        draft.commit();
    }
    disk.folders.erase("/hub/b");
    disk.folders.erase("/hub/c");
    EXPECT_EQ(history.bringBack(history.entries().entries.at(0).files).changes.size(), 4U);
}

TEST_F(EarlierVersions, AFileOfAShortNameIsKept)
{
    disk.files["/hub/x"] = "1";
    store.remove("/hub/x");
    EXPECT_EQ(history.entries().entries.at(0).files.at(0).told, "x");
}

TEST_F(EarlierVersions, AFolderThatIsGoneIsMadeBehindThatAboveIt)
{
    disk.folders.insert({"/hub/b", "/hub/b/c"});
    disk.files["/hub/b/c/one"] = "1";
    store.remove("/hub/b/c/one");
    disk.folders.erase("/hub/b");
    disk.folders.erase("/hub/b/c");
    std::vector<std::string> paths;
    for (const StoreChange& change : history.bringBack(history.entries().entries.at(0).files).changes)
        paths.push_back(change.path);
    EXPECT_EQ(paths, (std::vector<std::string>{"/hub/b", "/hub/b/c", "/hub/b/c/one"}));
}

TEST_F(EarlierVersions, WhatLiesElsewhereIsNotKept)
{
    disk.folders.insert("/elsewhere");
    disk.files["/elsewhere/one"] = "1";
    disk.files["/hub/a\\b"] = "1"; // a name that no told path can tell
    store.write("/elsewhere/one", "new");
    store.write("/hub/a\\b", "new");
    EXPECT_TRUE(history.entries().entries.empty());
}

TEST_F(EarlierVersions, APathThatWouldLeaveTheTreeIsRefused)
{
    store.write("/hub/a/one", "new");
    KeptFile file = newestFile();
    for (const std::string told : {"..\\one", "a\\..\\..\\one", "\\one", "", "a\\", "a\\\\one", "/etc/passwd",
                                   "a/../../one", "C:\\one", "C:one", ".", "a\\."}) {
        file.told = told;
        const auto result = history.bringBack({file, {told, ""}});
        EXPECT_TRUE(result.changes.empty()) << told;
        EXPECT_EQ(result.refused.at(0), told + ": it would leave the settings folder");
        EXPECT_EQ(result.refused.size(), 2U) << told;
        EXPECT_EQ(history.todaysBytes(file), std::nullopt) << told;
    }
}

TEST_F(EarlierVersions, DamagedBytesAreRefusedAndTheOthersBroughtBack)
{
    {
        Draft draft(store, {"a save"});
        store.write("/hub/a/one", "new");
        store.write("/hub/a/two", "new");
        draft.commit();
    }
    const auto files = history.entries().entries.at(0).files;
    versionDisk.files["/data/versions/bytes/" + files[0].blob] = "0";
    const auto result = history.bringBack(files);
    EXPECT_EQ(result.refused, Names{"a\\one: its bytes are damaged or gone"});
    ASSERT_EQ(result.changes.size(), 1U);
    EXPECT_EQ(result.changes[0].path, "/hub/a/two");
}

TEST_F(EarlierVersions, AFileThatCannotBeReadIsToldAndNotTakenForNone)
{
    class Unreadable : public test::MemoryStore
    {
    public:
        std::optional<std::string> read(const std::string&) const override { return std::nullopt; }
    };
    Unreadable unreadable;
    unreadable.files = disk.files;
    History blind(unreadable, "/hub", versions);
    EXPECT_THROW(blind.keep({"a save"}, {{"/hub/a/one", std::nullopt}}), StoreError);
    EXPECT_TRUE(history.entries().entries.empty());
}

} // namespace
} // namespace quillfen
