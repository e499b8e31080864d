// What Windows does with files as no other platform does.
#include "settings/filename.h"
#include "store/diskstore.h"
#include "store/nativepath.h"
#include "support/diskfolder.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace quillfen {
namespace {

/// A file as another process has it open.
class HeldFile
{
public:
    HeldFile(const std::string& path, DWORD shared)
        : m_handle(CreateFileW(nativePath(path).c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING,
                               FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        EXPECT_NE(m_handle, INVALID_HANDLE_VALUE);
    }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile() { CloseHandle(m_handle); }

private:
    HANDLE m_handle;
};

class WindowsDisk : public testing::Test
{
protected:
    WindowsDisk() { disk.write(file, "old"); }

    void expectRefusedWrite()
    {
        try {
            disk.commit({{StoreChange::Kind::Write, file, "new"}});
            FAIL() << "no error";
        } catch (const StoreError& error) {
            EXPECT_EQ(error.path(), file);
            EXPECT_NE(error.reason(), "");
        }
    }

    DiskStore disk;
    test::DiskFolder place;
    const std::string file = place.path() + "/GERMAN.tbl";
};

TEST_F(WindowsDisk, ANameInAnotherCaseIsThatOfTheSameFile)
{
    const std::string other = place.path() + "/german.tbl";
    EXPECT_EQ(disk.read(other), "old");
    disk.write(other, "new");
    EXPECT_EQ(place.files().size(), 1U);
    EXPECT_EQ(disk.read(file), "new");
}

TEST_F(WindowsDisk, AFileThatIsHeldWithoutSharingIsToldAndKeepsItsBytes)
{
    {
        const HeldFile held(file, 0);
        expectRefusedWrite();
    }
    EXPECT_EQ(place.files(), (std::map<std::string, std::string>{{"GERMAN.tbl", "old"}}));
    disk.write(file, "new");
    EXPECT_EQ(disk.read(file), "new");
}

TEST_F(WindowsDisk, AFileThatAnotherProcessReadsGetsItsNewBytes)
{
    const HeldFile held(file, FILE_SHARE_READ | FILE_SHARE_WRITE); // as Lua opens it
    disk.commit({{StoreChange::Kind::Write, file, "new"}});
    EXPECT_EQ(place.files(), (std::map<std::string, std::string>{{"GERMAN.tbl", "new"}}));
}

TEST_F(WindowsDisk, AReadOnlyFileIsToldAndKeepsItsBytes)
{
    ASSERT_NE(SetFileAttributesW(nativePath(file).c_str(), FILE_ATTRIBUTE_READONLY), 0);
    expectRefusedWrite();
    EXPECT_EQ(place.files(), (std::map<std::string, std::string>{{"GERMAN.tbl", "old"}}));
    ASSERT_NE(SetFileAttributesW(nativePath(file).c_str(), FILE_ATTRIBUTE_NORMAL), 0);
}

TEST_F(WindowsDisk, BackslashesAndSlashesLeadToTheSameFile)
{
    std::string path = file;
    std::replace(path.begin(), path.end(), '/', '\\');
    EXPECT_EQ(path.substr(1, 2), ":\\");
    disk.write(path, "new");
    EXPECT_EQ(disk.read(file), "new");
}

TEST_F(WindowsDisk, APathMayBeLongerThan260)
{
    std::string folder = place.path();
    for (int depth = 0; depth < 6; ++depth) {
        folder += '/' + std::string(60, 'f');
        disk.makeFolder(folder);
    }
    const std::string deep = folder + "/file.tbl";
    ASSERT_GT(deep.size(), 360U);
    disk.commit({{StoreChange::Kind::Write, deep, "old"}});
    disk.commit({{StoreChange::Kind::Write, deep, "new"}});
    EXPECT_EQ(disk.read(deep), "new");
    disk.remove(deep);
    EXPECT_FALSE(disk.exists(deep));
}

TEST_F(WindowsDisk, ADeviceIsNoFileAndNoNewFileMayBearItsName)
{
    for (const char* name : {"con", "NUL", "nul.txt", "Com1.tbl"})
        EXPECT_NE(fileNameFault(name), "") << name;
    EXPECT_FALSE(disk.read(place.path() + "/nul"));
    EXPECT_EQ(disk.list(place.path()), std::vector<std::string>{"GERMAN.tbl"});
}

TEST_F(WindowsDisk, ANameWithADotOrBlankAtItsEndIsAnotherFilesAndRefused)
{
    EXPECT_EQ(disk.read(file + "."), "old");
    for (const char* name : {"GERMAN.tbl.", "GERMAN.tbl "})
        EXPECT_NE(fileNameFault(name), "") << name;
}

TEST_F(WindowsDisk, AColonInAListedNameLeadsOutOfItsFile)
{
    EXPECT_NE(leavingNameFault("GERMAN.tbl:stream"), "");
    EXPECT_NE(leavingNameFault("C:GERMAN.tbl"), "");
}

TEST_F(WindowsDisk, AFileInAFolderThatIsNotThereIsGoneAlready)
{
    EXPECT_NO_THROW(disk.remove(place.path() + "/none/file"));
}

} // namespace
} // namespace quillfen
