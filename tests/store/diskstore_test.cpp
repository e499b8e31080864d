#include "store/diskstore.h"
#include "support/diskfolder.h"

#include <algorithm>
#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quillfen {
namespace {

class Disk : public testing::Test
{
protected:
    DiskStore disk;
    test::DiskFolder place;
    const std::string folder = place.path();
};

TEST_F(Disk, KeepsEveryByte)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    disk.write(folder + "/a", bytes);
    EXPECT_EQ(disk.read(folder + "/a"), bytes);
}

TEST_F(Disk, AShorterTextReplacesALongerOne)
{
    disk.write(folder + "/a", "a long text");
    disk.write(folder + "/a", "b");
    EXPECT_EQ(disk.read(folder + "/a"), "b");
}

TEST_F(Disk, HasNamesInUtf8)
{
    disk.write(folder + "/caf\xC3\xA9", "x");
    EXPECT_TRUE(
        std::filesystem::exists(std::filesystem::path(folder) / std::filesystem::path(u8"caf\u00E9")));
}

TEST_F(Disk, AMissingFileAndAFolderAreNotRead)
{
    EXPECT_FALSE(disk.read(folder + "/no"));
    EXPECT_FALSE(disk.read(folder));
    EXPECT_FALSE(disk.exists(folder + "/no"));
    EXPECT_TRUE(disk.exists(folder));
}

TEST_F(Disk, MakesOneFolder)
{
    disk.makeFolder(folder + "/a");
    EXPECT_TRUE(std::filesystem::is_directory(folder + "/a"));
}

TEST_F(Disk, ListsTheFilesOfAFolderInOrderAndNotItsFolders)
{
    for (const char* name : {"/b.asc", "/C.asc", "/caf\xC3\xA9", "/.hidden"})
        disk.write(folder + name, "x");
    disk.makeFolder(folder + "/a");
    disk.write(folder + "/a/inner", "x");
    EXPECT_EQ(disk.list(folder), (std::vector<std::string>{".hidden", "C.asc", "b.asc", "caf\xC3\xA9"}));
    EXPECT_EQ(disk.list(folder + "/no"), std::vector<std::string>());
    EXPECT_EQ(disk.list(folder + "/b.asc"), std::vector<std::string>());
}

TEST_F(Disk, SortsTheFilesOfAFolderWhicheverCameFirst)
{
    std::vector<std::string> sorted;
    for (char name = 'a'; name <= 'z'; ++name)
        sorted.emplace_back(1, name);
    for (std::size_t file = 0; file < sorted.size(); ++file) // each of them once, to and fro
        disk.write(folder + "/" + sorted[file * 7 % sorted.size()], "x");
    EXPECT_EQ(disk.list(folder), sorted);
}

TEST_F(Disk, RemovesAFileAndMindsNoneThatIsGone)
{
    disk.write(folder + "/a", "x");
    disk.remove(folder + "/a");
    EXPECT_FALSE(disk.exists(folder + "/a"));
    EXPECT_NO_THROW(disk.remove(folder + "/a"));
}

TEST_F(Disk, TellsTheSizeOfAFileAndOfNothingElse)
{
    disk.write(folder + "/a", "four");
    EXPECT_EQ(disk.size(folder + "/a"), 4U);
    EXPECT_EQ(disk.size(folder + "/b"), std::nullopt);
}

TEST_F(Disk, AFailureTellsFileAndReason)
{
#ifdef _WIN32
    const std::string noFolder =
        std::system_category().message(ERROR_PATH_NOT_FOUND); // in the user's language
#else
    const std::string noFolder = "No such file or directory";
#endif
    const auto failureOf = [](auto act) {
        try {
            act();
        } catch (const StoreError& error) {
            return std::pair(error.path(), error.reason());
        }
        return std::pair<std::string, std::string>();
    };
    EXPECT_EQ(failureOf([&] { disk.write(folder + "/no/a", "x"); }), std::pair(folder + "/no/a", noFolder));
    EXPECT_EQ(failureOf([&] { disk.write(folder, "x"); }), std::pair(folder, std::string("Is a directory")));
    EXPECT_EQ(failureOf([&] { disk.makeFolder(folder + "/no/a"); }), std::pair(folder + "/no/a", noFolder));
    EXPECT_EQ(failureOf([&] { disk.remove(folder); }), std::pair(folder, std::string("Is a directory")));
}

TEST_F(Disk, ACommitCarriesOutAllOfItsChanges)
{
    disk.write(folder + "/gone", "x");
    disk.write(folder + "/old", "x");
    using Kind = StoreChange::Kind;
    disk.commit({{Kind::MakeFolder, folder + "/a"},
                 {Kind::Write, folder + "/a/b", "b"},
                 {Kind::Write, folder + "/old", "new"},
                 {Kind::Remove, folder + "/gone"}});
    EXPECT_EQ(place.files(), (std::map<std::string, std::string>{{"a/b", "b"}, {"old", "new"}}));
}

TEST_F(Disk, ACommitWithOneBadChangeCarriesOutNone)
{
    disk.write(folder + "/old", "x");
    using Kind = StoreChange::Kind;
    EXPECT_THROW(disk.commit({{Kind::MakeFolder, folder + "/a"},
                              {Kind::Write, folder + "/a/b", "b"},
                              {Kind::Write, folder + "/old", "new"},
                              {Kind::Write, folder + "/no/c", "c"}}),
                 StoreError);
    EXPECT_EQ(place.files(), (std::map<std::string, std::string>{{"old", "x"}}));
    EXPECT_FALSE(disk.exists(folder + "/a"));
}

TEST_F(Disk, ListsTheFoldersOfAFolderInOrder)
{
    for (const char* name : {"/b", "/a", "/a/inner"})
        disk.makeFolder(folder + name);
    disk.write(folder + "/file", "x");
    EXPECT_EQ(disk.listFolders(folder), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(disk.listFolders(folder + "/no"), std::vector<std::string>());
}

TEST_F(Disk, ReplacesAFileWhoseNameIsAsLongAsNamesMayBe)
{
    const std::string name = folder + '/' + std::string(255, 'n');
    disk.write(name, "old");
    disk.write(name, "new");
    EXPECT_EQ(disk.read(name), "new");
}

TEST_F(Disk, SweepsUpItsOwnAsideFilesAndNothingElse)
{
    disk.makeFolder(folder + "/a");
    const std::vector<std::string> owners = {".quillfen-1", "quillfen-1.aside", ".hidden", "a/notes.aside"};
    for (const std::string& name : owners)
        disk.write(folder + '/' + name, "x");
    for (const char* name : {"/.quillfen-1-2.aside", "/a/.quillfen-3-4.aside"})
        std::ofstream(folder + name) << "left";
    disk.sweep(folder);
    std::vector<std::string> names;
    for (const auto& [name, bytes] : place.files())
        names.push_back(name);
    EXPECT_EQ(names,
              (std::vector<std::string>{".hidden", ".quillfen-1", "a/notes.aside", "quillfen-1.aside"}));
}

TEST_F(Disk, SweepsAsDeepAsTheTreeOfAHubGoes)
{
    std::string inner = folder;
    for (int depth = 1; depth <= 5; ++depth) {
        inner += "/f";
        disk.makeFolder(inner);
        std::ofstream(inner + "/.quillfen-1-2.aside") << depth;
    }
    disk.sweep(folder);
    EXPECT_EQ(place.files(), (std::map<std::string, std::string>{{"f/f/f/f/f/.quillfen-1-2.aside", "5"}}));
}

#ifndef _WIN32
TEST_F(Disk, SweepsWhereLinksLeadAndComesBackFromARing)
{
    for (const char* name : {"/tree", "/beside", "/beside/linked"})
        disk.makeFolder(folder + name);
    disk.write(folder + "/beside/file", "x");
    std::filesystem::create_symlink(folder + "/beside/file", folder + "/tree/file");
    std::filesystem::create_symlink(folder + "/beside/linked", folder + "/tree/linked");
    std::filesystem::create_symlink(folder + "/tree", folder + "/tree/ring");
    std::filesystem::create_symlink(folder + "/nowhere", folder + "/tree/broken");
    for (const char* name : {"/beside/.quillfen-1-2.aside", "/beside/linked/.quillfen-3-4.aside"})
        std::ofstream(folder + name) << "left";
    disk.sweep(folder + "/tree");
    EXPECT_EQ(place.files(), (std::map<std::string, std::string>{{"beside/file", "x"}, {"tree/file", "x"}}));
}

TEST_F(Disk, AFileKeepsItsModeAndOwner)
{
    const std::string file = folder + "/a";
    disk.write(file, "x");
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    const bool isRoot = geteuid() == 0;
    if (isRoot) {
        ASSERT_EQ(chown(file.c_str(), 1234, 4321), 0);
    }
    disk.write(file, "y");
    struct stat status = {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    EXPECT_EQ(status.st_uid, isRoot ? 1234U : geteuid());
    EXPECT_EQ(status.st_gid, isRoot ? 4321U : getegid());
}

TEST_F(Disk, AFileOfAnotherGroupKeepsItAndItsOwner)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root gives a file to any group";
    const std::string file = folder + "/a";
    disk.write(file, "x");
    ASSERT_EQ(chown(file.c_str(), static_cast<uid_t>(-1), 4321), 0);
    disk.write(file, "y");
    struct stat status = {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 0U);
    EXPECT_EQ(status.st_gid, 4321U);
}

TEST_F(Disk, ANewFileHasTheUsualRightsAndAPrivateOneItsOwnersAlone)
{
    const mode_t before = umask(022);
    disk.write(folder + "/usual", "x");
    DiskStore own(Access::OwnerOnly);
    own.makeFolder(folder + "/private");
    own.write(folder + "/private/file", "x");
    umask(before);
    const auto modeOf = [this](const char* name) {
        struct stat status = {};
        EXPECT_EQ(stat((folder + name).c_str(), &status), 0);
        return status.st_mode & 07777U;
    };
    EXPECT_EQ(modeOf("/usual"), 0644U);
    EXPECT_EQ(modeOf("/private"), 0700U);
    EXPECT_EQ(modeOf("/private/file"), 0600U);
}

TEST_F(Disk, ALinkIsFollowedAndNotReplaced)
{
    disk.makeFolder(folder + "/far");
    disk.write(folder + "/far/target", "old");
    std::filesystem::create_symlink("far/target", folder + "/link");
    std::filesystem::create_symlink("link", folder + "/linkToLink");
    std::filesystem::create_symlink("far/none", folder + "/dangling");
    disk.write(folder + "/linkToLink", "new");
    disk.write(folder + "/dangling", "made");
    EXPECT_TRUE(std::filesystem::is_symlink(folder + "/link"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder + "/linkToLink"));
    EXPECT_EQ(disk.read(folder + "/far/target"), "new");
    EXPECT_EQ(disk.read(folder + "/far/none"), "made");
}

TEST_F(Disk, FortyLinksAreFollowedAndNoMore)
{
    const auto link = [this](int number) { return folder + "/link" + std::to_string(number); };
    std::filesystem::create_symlink("target", link(1));
    for (int number = 2; number <= 41; ++number)
        std::filesystem::create_symlink("link" + std::to_string(number - 1), link(number));
    disk.write(link(40), "x");
    EXPECT_EQ(disk.read(folder + "/target"), "x");
    EXPECT_THROW(disk.write(link(41), "y"), StoreError);
}

TEST_F(Disk, ARingOfLinksIsAFailure)
{
    std::filesystem::create_symlink("b", folder + "/a");
    std::filesystem::create_symlink("a", folder + "/b");
    EXPECT_THROW(disk.write(folder + "/a", "x"), StoreError);
}

/// A user whom rights bind: root, to whom nothing is closed, is another one for as long as this lives.
class BoundUser
{
public:
    explicit BoundUser(const std::string& folder)
        : m_isRoot(geteuid() == 0),
          m_isBound(!m_isRoot ||
                    (chown(folder.c_str(), nobody, nobody) == 0 && setresuid(nobody, nobody, 0) == 0))
    {
    }
    BoundUser(const BoundUser&) = delete;
    BoundUser& operator=(const BoundUser&) = delete;

    ~BoundUser()
    {
        const bool isBack = !m_isRoot || setresuid(0, 0, 0) == 0;
        EXPECT_TRUE(isBack);
    }

    static bool isOwnerOf(const std::string& file)
    {
        struct stat status = {};
        return stat(file.c_str(), &status) == 0 && status.st_uid == geteuid();
    }

    /// Not where there is no other user than root.
    bool isBound() const { return m_isBound; }

private:
    static constexpr uid_t nobody = 65534;
    bool m_isRoot;
    bool m_isBound;
};

TEST_F(Disk, AFileThatIsClosedToWritersStaysAsItIs)
{
    const BoundUser user(folder);
    if (!user.isBound())
        GTEST_SKIP() << "nothing is closed to root";
    disk.write(folder + "/a", "old");
    ASSERT_EQ(chmod((folder + "/a").c_str(), 0444), 0);
    EXPECT_THROW(disk.write(folder + "/a", "new"), StoreError);
    EXPECT_EQ(disk.read(folder + "/a"), "old");
}

TEST_F(Disk, AFileOfAnotherUserIsReplacedByOneOfOurs)
{
    disk.write(folder + "/a", "old");
    ASSERT_EQ(chmod((folder + "/a").c_str(), 0666), 0);
    const BoundUser user(folder);
    if (!user.isBound() || BoundUser::isOwnerOf(folder + "/a"))
        GTEST_SKIP() << "there is no other user";
    disk.write(folder + "/a", "new");
    EXPECT_EQ(disk.read(folder + "/a"), "new");
    EXPECT_TRUE(BoundUser::isOwnerOf(folder + "/a"));
}

TEST_F(Disk, AFileThatIsClosedToReadersIsNotRead)
{
    disk.write(folder + "/a", "secret");
    ASSERT_EQ(chmod((folder + "/a").c_str(), 0), 0);
    const BoundUser user(folder);
    if (!user.isBound())
        GTEST_SKIP() << "nothing is closed to root";
    EXPECT_EQ(disk.read(folder + "/a"), std::nullopt);
    EXPECT_EQ(disk.size(folder + "/a"), 6U);
}

TEST_F(Disk, AFileInAFolderThatTakesNoNewOneIsWrittenInPlace)
{
    const BoundUser user(folder);
    if (!user.isBound())
        GTEST_SKIP() << "nothing is closed to root";
    disk.makeFolder(folder + "/closed");
    disk.write(folder + "/closed/a", "a longer old text");
    ASSERT_EQ(chmod((folder + "/closed").c_str(), 0555), 0);
    disk.write(folder + "/closed/a", "new");
    EXPECT_EQ(disk.read(folder + "/closed/a"), "new");
    EXPECT_THROW(disk.write(folder + "/closed/b", "new"), StoreError);
    ASSERT_EQ(chmod((folder + "/closed").c_str(), 0755), 0);
}
#endif

#ifdef __linux__
TEST_F(Disk, WhatIsNoFileIsWrittenToAndNotReplaced)
{
    const std::string pipe = folder + "/pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    disk.write(pipe, "bytes");
    std::string got(9, ' ');
    got.resize(static_cast<std::size_t>(std::max<ssize_t>(0, read(reader, got.data(), got.size()))));
    close(reader);
    EXPECT_EQ(got, "bytes");
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST_F(Disk, TellsFilesFromFoldersFromDevicesAndWhatCannotBeToldFromNone)
{
    using Kind = FileFacts::Kind;
    DiskCalls calls;
    disk.write(folder + "/file", "x");
    EXPECT_EQ(calls.facts(folder + "/file").kind, Kind::File);
    EXPECT_EQ(calls.facts(folder).kind, Kind::Folder);
    EXPECT_EQ(calls.facts("/dev/null").kind, Kind::Other);
    EXPECT_EQ(calls.facts(folder + "/none").kind, Kind::None);
    EXPECT_THROW(calls.removeFolder(folder), std::system_error) << "which holds a file";
    EXPECT_THROW(calls.facts(folder + "/file/none"), std::system_error);
}

TEST_F(Disk, LeavesNoFolderOpenThatItWaitedFor)
{
    const auto opened = [] {
        const std::filesystem::directory_iterator all("/proc/self/fd");
        return std::distance(begin(all), end(all));
    };
    DiskCalls calls;
    const auto before = opened();
    calls.syncFolder(folder);
    calls.syncDisk(folder);
    EXPECT_EQ(opened(), before);
    EXPECT_THROW(calls.syncFolder(folder + "/none"), std::system_error);
    EXPECT_THROW(calls.syncDisk(folder + "/none"), std::system_error);
}

TEST_F(Disk, AFullDiskIsAFailure)
{
    try {
        disk.write("/dev/full", std::string(100000, 'x'));
        FAIL() << "no error";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.reason(), "No space left on device");
    }
    EXPECT_THROW(disk.write("/dev/full", "x"), StoreError); // shows only when the file is closed
}
#endif

} // namespace
} // namespace quillfen
