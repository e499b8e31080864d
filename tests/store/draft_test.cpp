#include "store/draft.h"
#include "store/history.h"
#include "support/memorystore.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using Names = std::vector<std::string>;

class DraftOfASave : public testing::Test
{
protected:
    DraftOfASave()
    {
        disk.folders = {"/hub", "/hub/a"};
        disk.files = {{"/hub/a/one", "1"}, {"/hub/a/two", "2"}};
    }

    test::MemoryStore disk;
    DraftStore store{disk};
};

TEST_F(DraftOfASave, WritesNothingUntilItIsCommitted)
{
    const auto before = disk.files;
    Draft draft(store, {"a save"});
    store.write("/hub/a/one", "new");
    store.remove("/hub/a/two");
    store.makeFolder("/hub/b");
    EXPECT_EQ(disk.files, before);
    EXPECT_EQ(disk.log, Names());
    draft.commit();
    EXPECT_EQ(disk.files, (std::map<std::string, std::string>{{"/hub/a/one", "new"}}));
    EXPECT_EQ(disk.log, (Names{"write /hub/a/one", "remove /hub/a/two", "make /hub/b"}));
}

TEST_F(DraftOfASave, GoesWithoutATraceWhenItIsNotCommitted)
{
    const auto before = disk.files;
    {
        Draft draft(store, {"advice"});
        store.write("/hub/a/one", "new");
        EXPECT_EQ(draft.changes().size(), 1U);
    }
    EXPECT_EQ(disk.files, before);
    EXPECT_EQ(store.read("/hub/a/one"), "1");
}

TEST_F(DraftOfASave, AnswersReadsWithWhatItHolds)
{
    const Draft draft(store, {"a save"});
    store.write("/hub/a/one", "new");
    store.remove("/hub/a/two");
    store.makeFolder("/hub/b");
    store.write("/hub/a/added", "a");
    EXPECT_EQ(store.read("/hub/a/one"), "new");
    EXPECT_EQ(store.size("/hub/a/one"), 3U);
    EXPECT_EQ(store.read("/hub/a/two"), std::nullopt);
    EXPECT_EQ(store.size("/hub/a/two"), std::nullopt);
    EXPECT_FALSE(store.exists("/hub/a/two"));
    EXPECT_TRUE(store.exists("/hub/b"));
    EXPECT_EQ(store.read("/hub/b"), std::nullopt);
    EXPECT_EQ(store.list("/hub/a"), (Names{"added", "one"}));
    EXPECT_EQ(store.listFolders("/hub"), (Names{"a", "b"}));
    EXPECT_EQ(store.list("/hub"), Names());
}

TEST_F(DraftOfASave, TakesACommitInTheMiddleOfItself)
{
    Draft draft(store, {"a save"});
    store.write("/hub/a/one", "new");
    store.commit(
        {{StoreChange::Kind::Write, "/hub/a/three", "3"}, {StoreChange::Kind::Remove, "/hub/a/two", {}}});
    EXPECT_EQ(disk.log, Names());
    EXPECT_EQ(store.size("/hub/a/one"), 3U);
    EXPECT_EQ(store.size("/hub/a/three"), 1U);
    EXPECT_FALSE(store.exists("/hub/a/two"));
    draft.commit();
    EXPECT_EQ(disk.log, (Names{"write /hub/a/one", "write /hub/a/three", "remove /hub/a/two"}));
    EXPECT_EQ(store.size("/hub/a/one"), 3U) << "the disk's own answer";
}

TEST_F(DraftOfASave, KeepsTheOrderOfWritingAndOfAPathItsLastPlace)
{
    Draft draft(store, {"a save"});
    for (const char* path : {"/hub/a/one", "/hub/a/two", "/hub/a/one"})
        store.write(path, "new");
    draft.commit();
    EXPECT_EQ(disk.log, (Names{"write /hub/a/two", "write /hub/a/one"}));
}

TEST_F(DraftOfASave, LastsNoLongerThanItsCommit)
{
    Draft draft(store, {"a save"});
    draft.commit();
    store.write("/hub/a/one", "at once");
    EXPECT_EQ(disk.files.at("/hub/a/one"), "at once");
}

TEST_F(DraftOfASave, TellsWhatIsNewAndWhatIsOldWhenItFailedInBetween)
{
    Draft draft(store, {"a save"});
    for (const char* path : {"/hub/a/one", "/hub/a/two", "/hub/a/three"})
        store.write(path, "new");
    disk.failingCall = 1;
    try {
        draft.commit();
        FAIL() << "no error";
    } catch (const HalfCommitted& failure) {
        EXPECT_EQ(failure.path(), "/hub/a/two");
        EXPECT_EQ(failure.reason(), "No space left on device");
        EXPECT_EQ(failure.changed(), Names{"/hub/a/one"});
        EXPECT_EQ(failure.left(), (Names{"/hub/a/two", "/hub/a/three"}));
    }
}

TEST_F(DraftOfASave, ARebuildLeavesWhatIsAsItShouldBe)
{
    Draft draft(store, {"a rebuild", Cause::Kind::Rebuild});
    store.write("/hub/a/one", "1");
    store.write("/hub/a/two", "new");
    store.write("/hub/a/three", "");
    draft.commit();
    EXPECT_EQ(disk.log, (Names{"write /hub/a/two", "write /hub/a/three"}));
}

/// Notes among what is written when it was waited for.
class WaitingStore : public test::MemoryStore
{
public:
    void sync(const std::string& folder) override { log.push_back("wait " + folder); }
};

TEST(DraftOfARebuild, LetsTheDiskBeWaitedForThroughIt)
{
    WaitingStore disk;
    DraftStore(disk).sync("/hub");
    EXPECT_EQ(disk.log, Names{"wait /hub"});
}

TEST(DraftOfARebuild, WaitsForTheDiskOnceBeforeTheFileThatSaysThatAllIsThere)
{
    WaitingStore disk;
    disk.folders = {"/hub"};
    DraftStore store(disk);
    Draft draft(store, {"a rebuild", Cause::Kind::Rebuild});
    for (const char* file : {"/hub/one", "/hub/two", "/hub/version"})
        store.write(file, "new");
    draft.commit();
    EXPECT_EQ(disk.log, (Names{"write /hub/one", "write /hub/two", "wait /hub", "write /hub/version"}));
}

/// A save whose versions are kept.
class DraftWithVersions : public DraftOfASave
{
protected:
    DraftWithVersions()
    {
        store.keepVersionsIn(&history);
        StoreListener listener;
        listener.cause = [this] { return Cause{active}; };
        listener.versionKept = [this](const std::string& fault) { told.push_back(fault); };
        store.hear(listener);
        versionDisk.folders = {"", "/data"};
    }

    std::vector<VersionEntry> entries() { return versions.entries().entries; }

    test::MemoryStore versionDisk;
    VersionStore versions{versionDisk, "/data/versions"};
    History history{disk, "/hub", versions};
    std::string active = "General ~ Bots";
    Names told;
};

TEST_F(DraftWithVersions, KeepsWhatItReplacedOrDeletedAndThatAFileWasNotThere)
{
    Draft draft(store, {"General ~ Bots"});
    store.write("/hub/a/one", "new");
    store.remove("/hub/a/two");
    store.write("/hub/three", "new");
    draft.commit();
    ASSERT_EQ(entries().size(), 1U);
    EXPECT_EQ(entries()[0].cause, Cause{"General ~ Bots"});
    const auto files = entries()[0].files;
    ASSERT_EQ(files.size(), 3U);
    EXPECT_EQ(files[0].told, "a\\one");
    EXPECT_EQ(versions.bytes(files[0]), "1");
    EXPECT_EQ(files[1].told, "a\\two");
    EXPECT_EQ(versions.bytes(files[1]), "2");
    EXPECT_EQ(files[2], (KeptFile{"three", ""}));
    EXPECT_EQ(told, Names{""});
}

TEST_F(DraftWithVersions, KeepsNoVersionOfWhatStaysAsItIsOrLiesElsewhere)
{
    disk.folders.insert("/hubs");
    store.write("/hub/a/one", "1");
    store.remove("/hub/a/none");
    store.write("/hubs/news", "n");
    EXPECT_TRUE(entries().empty());
    EXPECT_EQ(versionDisk.log, Names());
}

TEST_F(DraftWithVersions, KeepsWhatIsWrittenAtOnceUnderTheNameOfWhoeverWorksThen)
{
    active = "Communication ~ MOTD";
    store.remove("/hub/a/two");
    ASSERT_EQ(entries().size(), 1U);
    EXPECT_EQ(entries()[0].cause.words, "Communication ~ MOTD");
}

TEST_F(DraftWithVersions, AFailingVersionStoreIsToldAndStopsNoSave)
{
    for (int call = 0; call < 4; ++call) {
        versionDisk.failingCall = static_cast<int>(versionDisk.log.size());
        store.write("/hub/a/one", "new " + std::to_string(call));
        EXPECT_EQ(disk.files.at("/hub/a/one"), "new " + std::to_string(call));
        EXPECT_NE(told.back().find("No space left on device"), std::string::npos);
        versionDisk.failingCall = -1;
        store.write("/hub/a/one", "then " + std::to_string(call)); // one call of the version store's more
        EXPECT_EQ(told.back(), "");
    }
}

TEST_F(DraftWithVersions, ASaveThatChangedNothingLeavesNoEntryAndOneThatDidDoes)
{
    disk.failingCall = 0;
    EXPECT_THROW(store.write("/hub/a/one", "new"), StoreError);
    EXPECT_TRUE(entries().empty());
    EXPECT_TRUE(versionDisk.list("/data/versions/bytes").empty());
    Draft draft(store, {"a save"});
    store.write("/hub/a/one", "new");
    store.write("/hub/a/two", "new");
    disk.failingCall = 1;
    EXPECT_THROW(draft.commit(), HalfCommitted);
    EXPECT_EQ(entries().size(), 1U);
}

TEST_F(DraftWithVersions, ARebuildIsOneEntry)
{
    Draft draft(store, {"Rebuild from 5.1.9", Cause::Kind::Rebuild});
    store.write("/hub/a/one", "new");
    store.write("/hub/a/two", "2");
    draft.commit();
    ASSERT_EQ(entries().size(), 1U);
    EXPECT_EQ(entries()[0].cause, (Cause{"Rebuild from 5.1.9", Cause::Kind::Rebuild}));
    EXPECT_EQ(entries()[0].files.size(), 1U);
    EXPECT_EQ(told, Names{""});
}

} // namespace
} // namespace quillfen
