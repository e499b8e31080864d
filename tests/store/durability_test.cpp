// What waits for the disk, and when: a power cut must find the old bytes or the new ones, and none in
// between.
#include "store/diskstore.h"
#include "support/diskfolder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <system_error>

namespace quillfen {
namespace {

using Kind = StoreChange::Kind;
using Lines = std::vector<std::string>;

/// The platform's calls, with a record of those that a power cut would part.
class RecordedCalls : public DiskCalls
{
public:
    Lines record;
    bool folderIsClosed = false; ///< takes no new file

    Handle create(const std::string& path, Access access) override
    {
        if (folderIsClosed)
            throw std::system_error(EACCES, std::generic_category());
        return DiskCalls::create(path, access);
    }
    std::size_t write(Handle file, std::string_view bytes) override
    {
        record.push_back("write " + std::string(bytes));
        return DiskCalls::write(file, bytes);
    }
    void endHere(Handle file) override
    {
        record.emplace_back("cut off the rest");
        DiskCalls::endHere(file);
    }
    void sync(Handle file) override
    {
        record.emplace_back("wait for a file");
        DiskCalls::sync(file);
    }
    void replace(const std::string& aside, const std::string& target) override
    {
        record.push_back("replace " + nameOf(target));
        DiskCalls::replace(aside, target);
    }
    void remove(const std::string& file) override
    {
        record.push_back("remove " + nameOf(file));
        DiskCalls::remove(file);
    }
    void syncFolder(const std::string& folder) override
    {
        record.push_back("wait for folder " + nameOf(folder));
        DiskCalls::syncFolder(folder);
    }
    void syncDisk(const std::string& folder) override
    {
        record.push_back("wait for the disk of " + nameOf(folder));
        DiskCalls::syncDisk(folder);
    }

private:
    static std::string nameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }
};

class Durability : public testing::Test
{
protected:
    Durability()
    {
        for (const char* folder : {"one", "two"})
            std::filesystem::create_directory(place.path() + '/' + folder);
        std::ofstream(at("one/old")) << "old";
        std::ofstream(at("two/gone")) << "gone";
    }

    std::string at(const std::string& name) const { return place.path() + '/' + name; }

    test::DiskFolder place;
    RecordedCalls calls;
    DiskStore disk{calls};
};

TEST_F(Durability, OfACommitIsThatOfItsBytesBeforeAndOfItsNamesBehind)
{
    disk.commit({{Kind::Write, at("one/old"), "new"},
                 {Kind::Write, at("one/made"), "more"},
                 {Kind::Remove, at("two/gone")}});
    EXPECT_EQ(calls.record,
              (Lines{"write new", "wait for a file", "write more", "wait for a file", "replace old",
                     "replace made", "remove gone", "wait for folder one", "wait for folder two"}));
}

TEST_F(Durability, OfACommitIsAlsoThatOfTheFolderThatANewOneStandsIn)
{
    disk.commit({{Kind::MakeFolder, at("two/inner")}});
    EXPECT_EQ(calls.record, Lines{"wait for folder two"});
}

TEST_F(Durability, OfWhatIsWrittenByItselfWaitsForTheSync)
{
    disk.write(at("one/old"), "new");
    disk.remove(at("two/gone"));
    EXPECT_EQ(calls.record, (Lines{"write new", "replace old", "remove gone"}));
    calls.record.clear();
    disk.sync(at("one"));
    EXPECT_EQ(calls.record, Lines{"wait for the disk of one"});
}

TEST_F(Durability, OfBytesWrittenOverTheOldIsTheirOwn)
{
    calls.folderIsClosed = true;
    disk.commit({{Kind::Write, at("one/old"), "n"}});
    EXPECT_EQ(calls.record, (Lines{"write n", "cut off the rest", "wait for a file", "wait for folder one"}));
    calls.record.clear();
    disk.write(at("one/old"), "more");
    EXPECT_EQ(calls.record, (Lines{"write more", "cut off the rest"}));
}

} // namespace
} // namespace quillfen
