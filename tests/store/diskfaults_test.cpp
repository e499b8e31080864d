// What becomes of the files when a call of the platform's fails, or is the process's last.
#include "store/diskstore.h"
#include "support/diskfolder.h"
#include "support/faultycalls.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using Files = std::map<std::string, std::string>;

#ifdef _WIN32
constexpr bool hasLinks = false;
#else
constexpr bool hasLinks = true;
#endif

/// What fails.
struct Fault
{
    const char* name;
    int reason;
    bool dies = false;
};

void PrintTo(const Fault& fault, std::ostream* stream)
{
    *stream << fault.name;
}

class DiskFaults : public testing::TestWithParam<Fault>
{
protected:
    /// A folder with files of all that a commit does: replaced, new, in a new folder, removed, a link's
    /// target.
    struct Place
    {
        test::DiskFolder folder;
        test::FaultyCalls calls;
        DiskStore disk{calls};

        Place()
        {
            if (hasLinks)
                std::filesystem::create_symlink("target", at("link"));
            for (const auto& [name, bytes] : before)
                std::ofstream(at(name)) << bytes;
        }

        std::string at(const std::string& name) const { return folder.path() + '/' + name; }
        std::vector<StoreChange> changes() const
        {
            using Kind = StoreChange::Kind;
            return {{Kind::Write, at("replaced"), std::string(5000, 'n')},
                    {Kind::MakeFolder, at("folder")},
                    {Kind::Write, at("folder/inner"), "inner"},
                    {Kind::Write, at("link"), "new target"},
                    {Kind::Remove, at("removed")},
                    {Kind::Write, at("made"), "made"}};
        }
        void swept()
        {
            DiskStore next;
            next.sweep(folder.path());
        }
    };

    /// The states between the changes, each of whose files is old or new.
    static std::vector<Files> states()
    {
        std::vector<Files> all = {before};
        const auto then = [&all](const auto& change) {
            Files next = all.back();
            change(next);
            all.push_back(std::move(next));
        };
        then([](Files& files) { files["replaced"] = std::string(5000, 'n'); });
        then([](Files& files) { files["folder/inner"] = "inner"; });
        then([](Files& files) { files["link"] = files[hasLinks ? "target" : "link"] = "new target"; });
        then([](Files& files) { files.erase("removed"); });
        then([](Files& files) { files["made"] = "made"; });
        return all;
    }

    static std::size_t stateOf(const Files& files)
    {
        const auto all = states();
        const auto found = std::find(all.begin(), all.end(), files);
        EXPECT_NE(found, all.end()) << "a file is neither old nor new";
        return static_cast<std::size_t>(found - all.begin());
    }

    static inline const Files before = {{"replaced", std::string(3000, 'o')},
                                        {"target", "old target"},
                                        {"link", "old target"},
                                        {"removed", "r"}};
};

INSTANTIATE_TEST_SUITE_P(Of, DiskFaults,
                         testing::Values(Fault{"FullDisk", ENOSPC}, Fault{"NoRight", EACCES},
                                         Fault{"BrokenDisk", EIO}, Fault{"Death", EIO, true}),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_P(DiskFaults, AtAnyCallOfACommitLeaveEachFileOldOrNew)
{
    for (const std::size_t mostBytes : {SIZE_MAX, std::size_t{777}}) {
        bool reached = true;
        for (int call = 0; reached; ++call) {
            Place place;
            place.calls.failingCall = call;
            place.calls.reason = GetParam().reason;
            place.calls.dies = GetParam().dies;
            place.calls.mostBytes = mostBytes;
            SCOPED_TRACE(call);
            try {
                place.disk.commit(place.changes());
                EXPECT_EQ(stateOf(place.folder.files()), states().size() - 1);
            } catch (const HalfCommitted& failure) {
                place.swept();
                EXPECT_EQ(stateOf(place.folder.files()), failure.changed().size());
                EXPECT_EQ(failure.changed().size() + failure.left().size(), states().size() - 1);
            } catch (const StoreError&) {
                place.swept();
                EXPECT_EQ(place.folder.files(), before);
                EXPECT_TRUE(GetParam().dies || !place.disk.exists(place.at("folder")));
            }
            EXPECT_TRUE(place.calls.closedEachOnce());
            EXPECT_FALSE(place.calls.replacedByOpenOne());
            reached = place.calls.wasReached();
        }
    }
}

TEST_P(DiskFaults, AtAnyCallOfACommitNeedNoSweepingUnlessTheProcessDied)
{
    bool reached = true;
    for (int call = 0; reached && !GetParam().dies; ++call) {
        Place place;
        place.calls.failingCall = call;
        place.calls.reason = GetParam().reason;
        try {
            place.disk.commit(place.changes());
        } catch (const StoreError&) {
        }
        stateOf(place.folder.files());
        reached = place.calls.wasReached();
    }
}

TEST_F(DiskFaults, ADeadProcessLeavesWhatTheNextStartSweepsUp)
{
    Place place;
    place.calls.failingCall = 12;
    place.calls.dies = true;
    EXPECT_THROW(place.disk.commit(place.changes()), StoreError);
    const auto left = place.folder.files();
    EXPECT_GT(left.size(), before.size());
    EXPECT_EQ(place.disk.list(place.folder.path()),
              (std::vector<std::string>{"link", "removed", "replaced", "target"}))
        << "no listing shows it";
    place.swept();
    EXPECT_EQ(place.folder.files(), before);
}

TEST_F(DiskFaults, AFailureBeforeAnyFileTookItsPlaceIsTheFirstFilesOwn)
{
    Place place;
    place.calls.mostBytes = 0; // a disk that takes nothing
    try {
        place.disk.commit(place.changes());
        FAIL() << "no error";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.path(), place.at("replaced"));
        EXPECT_EQ(error.reason(), "Input/output error");
    }
    EXPECT_EQ(place.folder.files(), before);
}

TEST_F(DiskFaults, AMadeFolderGoesAgainUntilAnotherChangeIsCarriedOut)
{
    class UnreplacedFile : public test::FaultyCalls
    {
    public:
        void replace(const std::string&, const std::string&) override
        {
            throw std::system_error(EIO, std::generic_category());
        }
    };
    using Kind = StoreChange::Kind;
    test::DiskFolder place;
    UnreplacedFile calls;
    DiskStore disk(calls);
    const std::string folder = place.path() + "/folder";
    EXPECT_THROW(disk.commit({{Kind::MakeFolder, folder}, {Kind::Write, folder + "/inner", "x"}}),
                 StoreError);
    EXPECT_FALSE(disk.exists(folder));
    const std::string removed = place.path() + "/removed";
    std::ofstream(removed) << "x";
    EXPECT_THROW(disk.commit({{Kind::MakeFolder, folder},
                              {Kind::Remove, removed},
                              {Kind::Write, place.path() + "/other", "x"}}),
                 StoreError);
    EXPECT_TRUE(disk.exists(folder)) << "the removal was told as done, and so is what came before it";
}

/// A folder whose files can't be replaced: each write goes over the old bytes.
class InPlace : public DiskFaults
{
protected:
    class ClosedFolder : public test::FaultyCalls
    {
    public:
        Handle create(const std::string&, Access) override { throw closed(); }
        void replace(const std::string&, const std::string&) override { throw closed(); }

    private:
        static std::system_error closed() { return {EACCES, std::generic_category()}; }
    };

    test::DiskFolder folder;
    const std::string file = folder.path() + "/file";
};

TEST_F(InPlace, AFileIsReplacedInAFolderThatTakesNoNewOne)
{
    for (const std::size_t size : {0U, 1U, 4000U}) {
        ClosedFolder calls;
        std::ofstream(file) << "old bytes";
        DiskStore disk(calls);
        disk.commit({{StoreChange::Kind::Write, file, std::string(size, 'n')}});
        EXPECT_EQ(folder.files(), (Files{{"file", std::string(size, 'n')}}));
    }
}

TEST_F(InPlace, WhatWasMadeBesideTheFileIsGoneBeforeItsRoomIsNeeded)
{
    class HeldFile : public test::FaultyCalls
    {
    public:
        std::size_t filesAtOpen = 0;

        Handle open(const std::string& path) override
        {
            const std::filesystem::directory_iterator folder(std::filesystem::path(path).parent_path());
            filesAtOpen = static_cast<std::size_t>(std::distance(begin(folder), end(folder)));
            return FaultyCalls::open(path);
        }
        void replace(const std::string&, const std::string&) override
        {
            throw std::system_error(EBUSY, std::generic_category());
        }
    };
    HeldFile calls;
    std::ofstream(file) << "old bytes";
    DiskStore(calls).write(file, "new bytes");
    EXPECT_EQ(folder.files(), (Files{{"file", "new bytes"}}));
    EXPECT_EQ(calls.filesAtOpen, 1U);
}

TEST_F(InPlace, AFailureOfTheCloseIsTold)
{
    class FullAtTheClose : public ClosedFolder
    {
    public:
        void close(Handle handle) override
        {
            ClosedFolder::close(handle);
            throw std::system_error(ENOSPC, std::generic_category());
        }
    };
    FullAtTheClose calls;
    std::ofstream(file) << "old bytes";
    EXPECT_THROW(DiskStore(calls).write(file, "new bytes"), StoreError);
    if (hasLinks) {
        EXPECT_THROW(DiskStore(calls).write("/dev/null", "bytes"), StoreError) << "of a device as well";
    }
}

TEST_F(InPlace, ANewFileIsToldToFail)
{
    ClosedFolder calls;
    DiskStore disk(calls);
    EXPECT_THROW(disk.write(file, "x"), StoreError);
    EXPECT_EQ(folder.files(), Files());
}

TEST_F(InPlace, AFailureAtAnyCallLeavesTheOldBytesOrTheNew)
{
    const std::string old(3000, 'o');
    for (const std::size_t size : {10U, 9000U}) {
        const std::string replacing(size, 'n');
        bool reached = true;
        for (int call = 0; reached; ++call) {
            ClosedFolder calls;
            calls.mostBytes = 1000;
            calls.failingCall = call;
            calls.reason = ENOSPC;
            std::ofstream(file, std::ios::trunc) << old;
            DiskStore disk(calls);
            bool failed = false;
            try {
                disk.commit({{StoreChange::Kind::Write, file, replacing}});
            } catch (const StoreError&) {
                failed = true;
            }
            const auto bytes = folder.files().at("file");
            EXPECT_TRUE(bytes == replacing || (failed && bytes == old)) << call;
            EXPECT_TRUE(calls.closedEachOnce()) << call;
            reached = calls.wasReached();
        }
    }
}

} // namespace
} // namespace quillfen
