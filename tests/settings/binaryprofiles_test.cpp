#include "settings/binaryprofiles.h"
#include "support/binaryprofiles.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::bigEndian;
using test::binaryProfiles;
using test::headerItem;
using test::itemOf;
using test::profileItem;
using test::valueOf;
using Names = std::vector<std::string>;

const std::string title = valueOf("FI", "PtokaX Profiles");
const std::string version = valueOf("FV", bigEndian(1, 4));

TEST(BinaryProfiles, AreReadFromTheBytesThatAHubWrites)
{
    const std::string bytes("\x00\x00\x00\x1F\x00\x13\x46\x49PtokaX Profiles\x00\x08\x46\x56\x00\x00\x00\x01"
                            "\x00\x00\x00\x13\x00\x0A\x50\x4EMaster\x00\x05\x50\x46\x31"
                            "\x00\x00\x00\x0B\x00\x07\x50\x4ER\xE9g",
                            31 + 19 + 11);
    EXPECT_EQ(binaryProfileNames(bytes), (Names{"Master", "R\xE9g"}));
}

TEST(BinaryProfiles, KeepTheFilesOrderAndTheirBytes)
{
    const Names names = {"Master", "Operator", "\x80 <b>&", "x", std::string(60'000, 'n')};
    EXPECT_EQ(binaryProfileNames(binaryProfiles(names)), names);
}

TEST(BinaryProfiles, MayBeNone)
{
    EXPECT_EQ(binaryProfileNames(headerItem()), Names{});
}

TEST(BinaryProfiles, MayBearValuesInAnyOrderAndUnknownOnes)
{
    EXPECT_EQ(binaryProfileNames(itemOf(valueOf("XX", "?") + version + title) +
                                 itemOf(valueOf("\xFF\x01", "") + valueOf("ZZ", "new") + valueOf("PN", "A")) +
                                 itemOf(valueOf("PN", "B") + valueOf("PN", "second"))),
              (Names{"A", "B"}));
}

TEST(BinaryProfiles, OfALaterVersionAreReadToo)
{
    EXPECT_EQ(binaryProfileNames(itemOf(title + valueOf("FV", bigEndian(0xFFFFFFFF, 4))) + profileItem("A")),
              Names{"A"});
}

TEST(BinaryProfiles, CutAnywhereButBehindAnItemAreDamaged)
{
    const std::string whole = binaryProfiles({"Master", "Operator"});
    const std::size_t afterHeader = headerItem().size();
    const std::size_t afterMaster = afterHeader + profileItem("Master").size();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const auto names = binaryProfileNames(whole.substr(0, length));
        EXPECT_EQ(names.has_value(), length == afterHeader || length == afterMaster) << length;
    }
}

TEST(BinaryProfiles, WithoutTheirHeaderAreAnotherFile)
{
    for (const std::string& header :
         {itemOf(""), itemOf(title), itemOf(version), itemOf(valueOf("FI", "PtokaX Profile") + version),
          itemOf(valueOf("FI", "PtokaX Profiles2") + version),
          itemOf(valueOf("FI", "PtokaX RegUsers") + version), itemOf(title + valueOf("FV", bigEndian(0, 4))),
          itemOf(title + valueOf("FV", bigEndian(1, 2))), itemOf(title + valueOf("FV", bigEndian(1, 8))),
          itemOf(title + valueOf("FV", "")), std::string()})
        EXPECT_FALSE(binaryProfileNames(header + profileItem("A"))) << header;
    EXPECT_FALSE(binaryProfileNames("<Profiles>\r\n<Name>A</Name>\r\n</Profiles>\r\n"));
}

TEST(BinaryProfiles, WithoutANameAreDamaged)
{
    EXPECT_FALSE(binaryProfileNames(headerItem() + itemOf("")));
    EXPECT_FALSE(binaryProfileNames(headerItem() + itemOf(valueOf("PF", "1"))));
    EXPECT_FALSE(binaryProfileNames(headerItem() + itemOf(valueOf("PN", ""))));
    EXPECT_FALSE(binaryProfileNames(headerItem() + profileItem("A") + itemOf(valueOf("Pn", "B"))));
}

TEST(BinaryProfiles, OfWrongSizesAreDamaged)
{
    const std::string values = valueOf("PN", "A");
    for (const unsigned long size :
         {0UL, 1UL, 3UL, 4UL, 8UL, 10UL, 0x7FFFFFFFUL, 0x80000000UL, 0xFFFFFFFCUL, 0xFFFFFFFFUL})
        EXPECT_FALSE(binaryProfileNames(headerItem() + bigEndian(size, 4) + values)) << size;
    for (const unsigned long size : {0UL, 1UL, 2UL, 3UL, 6UL, 0x7FFFUL, 0xFFFFUL})
        EXPECT_FALSE(binaryProfileNames(headerItem() + itemOf(bigEndian(size, 2) + "PNA"))) << size;
    EXPECT_FALSE(binaryProfileNames(bigEndian(0xFFFFFFFF, 4) + std::string(36, '\0')))
        << "four gigabytes in forty bytes";
    EXPECT_FALSE(binaryProfileNames(binaryProfiles({"A"}) + '\0'));
}

} // namespace
} // namespace quillfen
