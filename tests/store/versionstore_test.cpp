#include "store/versionentry.h"
#include "store/versionstore.h"
#include "support/memorystore.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using Names = std::vector<std::string>;

class Versions : public testing::Test
{
protected:
    Versions() { disk.folders = {"", "/data"}; }

    unsigned keep(const std::string& bytes, Cause::Kind kind = Cause::Kind::Save)
    {
        return versions.keep({"a cause", kind}, {{"General\\a.tbl", bytes}});
    }

    std::vector<unsigned> numbers()
    {
        std::vector<unsigned> all;
        for (const VersionEntry& entry : versions.entries().entries)
            all.push_back(entry.number);
        return all;
    }

    std::string& entryFile(unsigned number)
    {
        const auto digits = std::to_string(number);
        return disk.files["/data/v/entries/" + std::string(10 - digits.size(), '0') + digits];
    }

    Names blobs() const { return disk.list("/data/v/bytes"); }

    test::MemoryStore disk;
    VersionStore versions{disk, "/data/v"};
};

TEST_F(Versions, ToldByAnotherRunAreWhatWasKept)
{
    versions.now = [] { return std::time_t{1795347000}; };
    const std::string odd = "every\nbyte\r%25\\\x01\xE9 ";
    versions.keep({odd, Cause::Kind::Rebuild}, {{"General\\" + odd, std::string("\0\n\r", 3)}, {"new", {}}});
    VersionStore another(disk, "/data/v");
    const auto list = another.entries();
    ASSERT_EQ(list.entries.size(), 1U);
    const VersionEntry& entry = list.entries[0];
    EXPECT_EQ(entry.number, 1U);
    EXPECT_EQ(entry.time, "2026-11-22T11:30:00Z");
    EXPECT_EQ(entry.cause, (Cause{odd, Cause::Kind::Rebuild}));
    ASSERT_EQ(entry.files.size(), 2U);
    EXPECT_EQ(entry.files[0].told, "General\\" + odd);
    EXPECT_EQ(another.bytes(entry.files[0]), std::string("\0\n\r", 3));
    EXPECT_EQ(entry.files[1].told, "new");
    EXPECT_FALSE(entry.files[1].wasThere());
    EXPECT_EQ(entry.fault, "");
    EXPECT_EQ(list.skipped, Names());
}

TEST_F(Versions, AreWholeWhereTheirWordsEndInALineEnd)
{
    versions.keep({"a cause\n"}, {{"a file\r", "bytes"}});
    VersionStore another(disk, "/data/v");
    const auto list = another.entries();
    ASSERT_EQ(list.entries.size(), 1U);
    EXPECT_EQ(list.entries[0].cause.words, "a cause\n");
    ASSERT_EQ(list.entries[0].files.size(), 1U);
    EXPECT_EQ(list.entries[0].files[0].told, "a file\r");
}

TEST_F(Versions, EqualBytesAreKeptOnce)
{
    versions.keep({"a save"}, {{"a", "same"}, {"b", "same"}, {"c", "other"}});
    keep("same");
    EXPECT_EQ(blobs().size(), 2U);
}

TEST_F(Versions, BytesWhoseHashesAreEqualStayApart)
{
    keep("bytes");
    disk.files["/data/v/bytes/" + blobName("bytes")] =
        "BYTES"; // what another text of this hash would look like
    const auto number = keep("bytes");
    const auto entries = versions.entries().entries;
    ASSERT_EQ(entries[0].number, number);
    EXPECT_EQ(versions.bytes(entries[0].files[0]), "bytes");
    EXPECT_EQ(blobs().size(), 2U);
}

TEST_F(Versions, BytesThatNobodyMayReadAreNotWrittenOver)
{
    keep("bytes");
    const std::string there = "/data/v/bytes/" + blobName("bytes");
    disk.unreadable = {there};
    disk.files[there] = "another's";
    keep("bytes");
    EXPECT_EQ(disk.files[there], "another's");
    EXPECT_EQ(versions.bytes(versions.entries().entries[0].files[0]), "bytes");
}

TEST_F(Versions, NewestComesFirst)
{
    keep("a");
    keep("b");
    EXPECT_EQ(numbers(), (std::vector<unsigned>{2, 1}));
}

TEST_F(Versions, TheNewestTwoHundredSavesStay)
{
    for (int at = 0; at < 205; ++at)
        keep(std::to_string(at));
    EXPECT_EQ(numbers().size(), 200U);
    EXPECT_EQ(numbers().front(), 205U);
    EXPECT_EQ(numbers().back(), 6U);
    EXPECT_EQ(blobs().size(), 200U) << "bytes go with their last entry";
}

TEST_F(Versions, RebuildsAndBackupsStayTwiceAsLong)
{
    keep("rebuilt", Cause::Kind::Rebuild);
    keep("backed up", Cause::Kind::Backup);
    for (int at = 0; at < 210; ++at)
        keep(std::to_string(at));
    EXPECT_EQ(numbers().back(), 1U);
    for (int at = 0; at < 400; ++at)
        keep(std::to_string(at), Cause::Kind::Rebuild);
    EXPECT_EQ(numbers().size(), 400U);
    EXPECT_EQ(numbers().back(), 213U);
}

TEST_F(Versions, SixtyFourMebibytesOfSavesStay)
{
    const std::size_t size = std::size_t{16} << 20U;
    for (const char each : {'a', 'b', 'c', 'd'})
        versions.keep({"a save"}, {{"a", std::string(size, each)}, {"new", {}}});
    EXPECT_EQ(numbers(), (std::vector<unsigned>{4, 3, 2, 1}));
    keep("one byte more is too much");
    EXPECT_EQ(numbers(), (std::vector<unsigned>{5, 4, 3, 2}));
    EXPECT_EQ(blobs().size(), 4U);
}

TEST_F(Versions, EqualBytesCountOnce)
{
    const std::string large(std::size_t{40} << 20U, 'x');
    keep(large);
    keep(large);
    EXPECT_EQ(numbers(), (std::vector<unsigned>{2, 1}));
}

TEST_F(Versions, TheNewestStaysHoweverLargeItIs)
{
    keep("small");
    keep(std::string((std::size_t{65} << 20U), 'x'));
    EXPECT_EQ(numbers(), std::vector<unsigned>{2});
}

TEST_F(Versions, BytesThatALaterEntryHasTooStayWhenTheFirstGoes)
{
    keep("shared");
    for (int at = 0; at < 199; ++at)
        keep(std::to_string(at));
    keep("shared");
    EXPECT_EQ(numbers().back(), 2U);
    EXPECT_EQ(versions.bytes(versions.entries().entries[0].files[0]), "shared");
}

TEST_F(Versions, AnotherProgramsEntriesCountToo)
{
    keep("a");
    VersionStore another(disk, "/data/v");
    EXPECT_EQ(another.keep({"another's"}, {{"a", "b"}}), 2U);
    EXPECT_EQ(keep("c"), 3U);
    EXPECT_EQ(numbers(), (std::vector<unsigned>{3, 2, 1}));
    another.forget(2);
    EXPECT_EQ(numbers(), (std::vector<unsigned>{3, 1}));
}

TEST_F(Versions, AnotherProgramsEntriesGoWhenTheyAreTheOldest)
{
    VersionStore another(disk, "/data/v");
    another.keep({"another's"}, {{"a", "b"}});
    for (int at = 0; at < 200; ++at)
        keep(std::to_string(at));
    EXPECT_FALSE(disk.exists("/data/v/entries/0000000001"));
}

TEST_F(Versions, ACutEntryShowsWhatItHas)
{
    versions.keep({"a save"}, {{"a", "1"}, {"b", "2"}, {"c", "3"}});
    const std::string whole = entryFile(1);
    for (std::size_t size = 0; size < whole.size(); ++size) {
        entryFile(1) = whole.substr(0, size);
        VersionStore another(disk, "/data/v");
        const auto list = another.entries();
        ASSERT_EQ(list.entries.size() + list.skipped.size(), 1U) << size;
        if (!list.entries.empty()) {
            EXPECT_EQ(list.entries[0].fault, "its end is missing");
            for (const KeptFile& file : list.entries[0].files)
                EXPECT_TRUE(another.bytes(file)) << "no half of a name is taken for a whole one";
        } else {
            EXPECT_EQ(list.skipped, Names{"0000000001 isn't an entry"});
        }
    }
}

TEST_F(Versions, LinesThatMakeNoSenseAreToldAndTheOthersShown)
{
    keep("a");
    std::string& text = entryFile(1);
    text.insert(text.find("had "), "nonsense\nhad ../../passwd a\nkind of\n");
    VersionStore another(disk, "/data/v");
    const auto list = another.entries();
    ASSERT_EQ(list.entries.size(), 1U);
    EXPECT_EQ(list.entries[0].files.size(), 1U);
    EXPECT_EQ(list.entries[0].fault, "3 of its lines can't be read");
}

TEST_F(Versions, ALineThatMakesNoSenseIsToldThoughItIsTheOnlyOne)
{
    keep("a");
    entryFile(1).insert(entryFile(1).find("had "), "nonsense\n");
    EXPECT_EQ(VersionStore(disk, "/data/v").entries().entries.at(0).fault, "1 of its lines can't be read");
}

TEST_F(Versions, WhatIsNoEntryIsSkippedAndTold)
{
    keep("a");
    entryFile(2) = "a foreign text\n";
    entryFile(3) = "quillfen version 1\n" + std::string(std::size_t{5} << 20U, 'x') + "\nend\n";
    disk.files["/data/v/entries/notes.txt"] = "mine";
    disk.files["/data/v/entries/4000000000"] = entryFile(1);
    disk.files["/data/v/entries/4294967295"] = entryFile(1);
    disk.files["/data/v/entries/3999999999"] = entryFile(1);
    disk.files["/data/v/entries/0000000004"] = entryFile(1);
    disk.unreadable = {"/data/v/entries/0000000004"};
    const auto list = versions.entries();
    ASSERT_EQ(list.entries.size(), 2U);
    EXPECT_EQ(list.entries.front().number, 3'999'999'999U);
    EXPECT_EQ(list.skipped, (Names{"0000000002 isn't an entry", "0000000003 is too large for an entry",
                                   "0000000004 can't be read", "4000000000 isn't an entry",
                                   "4294967295 isn't an entry", "notes.txt isn't an entry"}));
    disk.files.erase("/data/v/entries/notes.txt");
    EXPECT_EQ(versions.entries().skipped.size(), 5U);
}

TEST_F(Versions, AreKeptBesideWhatIsNoEntry)
{
    keep("a");
    entryFile(2) = "a foreign text\n";
    const auto number = keep("b");
    EXPECT_EQ(number, 3U) << "what stands there is not ours to replace";
    EXPECT_EQ(entryFile(2), "a foreign text\n");
}

TEST_F(Versions, DamagedBytesAreNotGivenOut)
{
    keep("bytes");
    const KeptFile file = versions.entries().entries[0].files[0];
    std::string& kept = disk.files["/data/v/bytes/" + file.blob];
    for (const char* damaged : {"Bytes", "byte", "bytes and more", ""}) {
        kept = damaged;
        EXPECT_EQ(versions.bytes(file), std::nullopt) << damaged;
    }
    disk.files.erase("/data/v/bytes/" + file.blob);
    EXPECT_EQ(versions.bytes(file), std::nullopt);
    EXPECT_EQ(versions.bytes({"told", "../../passwd"}), std::nullopt);
}

TEST_F(Versions, AreKeptOrNotWhicheverCallFails)
{
    keep("before");
    for (int call = 0; call < 2; ++call) {
        disk.failingCall = static_cast<int>(disk.log.size()) + call;
        EXPECT_THROW(keep("next"), StoreError);
        disk.failingCall = -1;
        EXPECT_EQ(numbers(), std::vector<unsigned>{1});
    }
    EXPECT_EQ(keep("next"), 2U);
}

/// What lies in users' folders has to be read by every later version.
TEST(VersionEntries, AreKeptInAFormatThatStays)
{
    VersionEntry entry;
    entry.time = "2026-11-23T00:00:00Z";
    entry.cause = {"Rebuild\nfrom 5%", Cause::Kind::Rebuild};
    entry.files = {{"General\\a.tbl", "cbf2-5-0"}, {"General\\b.tbl", ""}};
    const std::string text = "quillfen version 1\n"
                             "time 2026-11-23T00:00:00Z\n"
                             "kind rebuild\n"
                             "cause Rebuild%0afrom 5%25\n"
                             "had cbf2-5-0 General\\a.tbl\n"
                             "hadNot General\\b.tbl\n"
                             "end\n";
    EXPECT_EQ(composedEntry(entry), text);
    entry.cause.kind = Cause::Kind::Save;
    EXPECT_NE(composedEntry(entry).find("\nkind save\n"), std::string::npos);
    entry.cause.kind = Cause::Kind::Backup;
    EXPECT_NE(composedEntry(entry).find("\nkind backup\n"), std::string::npos);
    const auto parsed = parsedEntry(7, text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->cause.words, "Rebuild\nfrom 5%");
    EXPECT_EQ(parsed->files.size(), 2U);
}

TEST_F(Versions, AnEntryThatIsGoneIsForgottenAlready)
{
    keep("kept");
    versions.forget(7);
    EXPECT_EQ(numbers(), std::vector<unsigned>{1});
}

TEST_F(Versions, SweepingDeletesBytesThatNoEntryTellsOf)
{
    keep("kept");
    disk.files["/data/v/bytes/" + blobName("left")] = "left";
    versions.sweep();
    EXPECT_EQ(blobs(), Names{blobName("kept")});
    disk.files["/data/v/bytes/" + blobName("left")] = "left";
    entryFile(2) = "can't be read";
    versions.sweep();
    EXPECT_EQ(blobs().size(), 2U) << "who knows what that entry told of";
}

TEST(BlobNames, TellTheSizeOnlyWhereAllOfThemIsInOrder)
{
    EXPECT_EQ(blobSize("cbf29ce484222325-5-0"), 5U);
    for (const char* name : {"", "cbf2", "cbf2-5", "cbf2--0", "cbf2-5-", "xyz-5-0", "cbfx-5-0", "cbf2-5x-0",
                             "cbf2-5-0x", "cbf2-5-0-1", "-5-0"})
        EXPECT_EQ(blobSize(name), std::nullopt) << name;
}

TEST(UtcText, TellsDaysOfAllKinds)
{
    EXPECT_EQ(utcText(0), "1970-01-01T00:00:00Z");
    EXPECT_EQ(utcText(951782399), "2000-02-28T23:59:59Z");
    EXPECT_EQ(utcText(951782400), "2000-02-29T00:00:00Z");
    EXPECT_EQ(utcText(4102444799), "2099-12-31T23:59:59Z");
}

} // namespace
} // namespace quillfen
