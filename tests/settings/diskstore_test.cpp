#include "settings/diskstore.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>

namespace quillfen {
namespace {

class Disk : public testing::Test
{
protected:
    Disk()
    {
        const auto temporary = std::filesystem::temp_directory_path();
        std::random_device random; // another run of the tests has a folder of its own
        do
            folder = (temporary / ("quillfen-disk-" + std::to_string(random()))).string();
        while (!std::filesystem::create_directory(folder));
    }
    ~Disk() override { std::filesystem::remove_all(folder); }

    DiskStore disk;
    std::string folder;
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
    for (const char* name : {"/b.asc", "/B.asc", "/caf\xC3\xA9", "/.hidden"})
        disk.write(folder + name, "x");
    disk.makeFolder(folder + "/a");
    disk.write(folder + "/a/inner", "x");
    EXPECT_EQ(disk.list(folder), (std::vector<std::string>{".hidden", "B.asc", "b.asc", "caf\xC3\xA9"}));
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

TEST_F(Disk, AFailureTellsFileAndReason)
{
    const auto failureOf = [](auto act) {
        try {
            act();
        } catch (const StoreError& error) {
            return std::pair(error.path(), error.reason());
        }
        return std::pair<std::string, std::string>();
    };
    EXPECT_EQ(failureOf([&] { disk.write(folder + "/no/a", "x"); }),
              std::pair(folder + "/no/a", std::string("No such file or directory")));
    EXPECT_EQ(failureOf([&] { disk.write(folder, "x"); }), std::pair(folder, std::string("Is a directory")));
    EXPECT_EQ(failureOf([&] { disk.makeFolder(folder + "/no/a"); }),
              std::pair(folder + "/no/a", std::string("No such file or directory")));
    EXPECT_EQ(failureOf([&] { disk.remove(folder); }), std::pair(folder, std::string("Is a directory")));
}

#ifdef __linux__
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
