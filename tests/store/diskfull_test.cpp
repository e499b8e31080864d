// Saves on a disk that is really full, where the machine lets us have a small one.
#include "store/diskstore.h"
#include "support/diskfolder.h"

#include <gtest/gtest.h>
#include <sys/mount.h>

namespace quillfen {
namespace {

using Files = std::map<std::string, std::string>;
using Kind = StoreChange::Kind;

class FullDisk : public testing::Test
{
protected:
    static constexpr std::size_t page = 4096;

    void SetUp() override
    {
        m_isMounted = mount("tmpfs", folder.path().c_str(), "tmpfs", 0, "size=256k") == 0;
        if (!m_isMounted)
            GTEST_SKIP() << "no disk to be had";
    }

    void TearDown() override
    {
        if (m_isMounted) {
            EXPECT_EQ(umount(folder.path().c_str()), 0);
        }
    }

    std::string at(const std::string& name) const { return folder.path() + '/' + name; }

    /// Takes all room but so many pages.
    void fillUpTo(std::size_t pages) const
    {
        const auto free = std::filesystem::space(folder.path()).available;
        std::ofstream(at("filler")) << std::string(free - pages * page, 'f');
    }

    test::DiskFolder folder;
    DiskStore disk;

private:
    bool m_isMounted = false;
};

TEST_F(FullDisk, ASaveOfSeveralFilesIsWholeOrNotAtAllWhateverRoomThereIs)
{
    int saved = 0;
    int failed = 0;
    for (std::size_t pages = 0; pages < 20; ++pages) {
        Files before;
        Files after;
        std::vector<StoreChange> changes;
        for (const std::string name : {"a", "b", "c"}) {
            before[name] = std::string(9000, 'o');
            after[name] = std::string(20000, 'n');
            disk.write(at(name), before[name]);
            changes.push_back({Kind::Write, at(name), after[name]});
        }
        fillUpTo(pages);
        bool isSaved = true;
        try {
            disk.commit(changes);
        } catch (const HalfCommitted&) {
            FAIL() << "the room was taken before any file took its place";
        } catch (const StoreError& error) {
            EXPECT_EQ(error.reason(), "No space left on device");
            isSaved = false;
        }
        disk.remove(at("filler"));
        EXPECT_EQ(folder.files(), isSaved ? after : before) << pages;
        ++(isSaved ? saved : failed);
        disk.commit(changes);
        EXPECT_EQ(folder.files(), after) << "there is room again";
    }
    EXPECT_GT(saved, 0);
    EXPECT_GT(failed, 5);
}

} // namespace
} // namespace quillfen
