#include "portal/nmdc.h"
#include "portal/opnicks.h"

#include <gtest/gtest.h>
#include <utility>

namespace quillfen {
namespace {

std::string keyOf(std::string lock)
{
    return LockToKey(lock);
}

TEST(TextSplits, TheTwoSidesAreNotSymmetricalWithoutASeparator)
{
    EXPECT_EQ(TextBefore("a b c", " "), "a");
    EXPECT_EQ(TextAfter("a b c", " "), "b c");
    EXPECT_EQ(TextBefore("a$$b", "$$"), "a");
    EXPECT_EQ(TextAfter("a$$b", "$$"), "b");
    EXPECT_EQ(TextBefore("abc", " "), "abc");
    EXPECT_EQ(TextAfter("abc", " "), "");
    EXPECT_EQ(TextBefore(" b", " "), "");
    EXPECT_EQ(TextAfter("a ", " "), "");
    EXPECT_EQ(TextBefore("", " "), "");
}

TEST(LockToKeyTest, CutsTheCallersLockAtItsFirstBlank)
{
    std::string lock = "EXTENDEDPROTOCOLABCABCABCABCABCABC Pk=X";
    const std::string key = LockToKey(lock);
    EXPECT_EQ(lock, "EXTENDEDPROTOCOLABCABCABCABCABCABC");
    // E^C^B^5 = 0x41 and E^X = 0x1D, with their nibbles swapped.
    EXPECT_EQ(static_cast<unsigned char>(key[0]), 20);
    EXPECT_EQ(static_cast<unsigned char>(key[1]), 209);
}

TEST(LockToKeyTest, GivesOnePieceForEachCharacter)
{
    // X^Y = 1 becomes 16, Y^X likewise; the first value is X^X^Y^5 = 0x5C, swapped 0xC5.
    EXPECT_EQ(keyOf("XYX"), "\xC5\x10\x10");
}

TEST(LockToKeyTest, WritesTheSixReservedValuesOut)
{
    // The second value of a lock of two is their XOR with its nibbles swapped.
    const auto second = [](unsigned char swapped) {
        std::string lock = "@@";
        lock[1] = static_cast<char>('@' ^ swapped);
        const std::string key = keyOf(lock);
        return key.substr(key.find("%/") == 8 ? 10 : 1);
    };
    EXPECT_EQ(second(0x00), "/%DCN000%/");
    EXPECT_EQ(second(0x50), "/%DCN005%/");
    EXPECT_EQ(second(0x42), "/%DCN036%/");
    EXPECT_EQ(second(0x06), "/%DCN096%/");
    EXPECT_EQ(second(0xC7), "/%DCN124%/");
    EXPECT_EQ(second(0xE7), "/%DCN126%/");
    EXPECT_EQ(second(0x10), "\x01");
    EXPECT_EQ(second(0x40), "\x04");
}

TEST(LockToKeyTest, WorksOnAllEightBits)
{
    // First: FF^01^FF^05 = 0x04, swapped 0x40; second: FF^01 = 0xFE, swapped 0xEF.
    EXPECT_EQ(keyOf("\xFF\x01"), "\x40\xEF");
}

TEST(LockToKeyTest, ALockWithoutNeighboursIsAnsweredAndHarmsNothing)
{
    EXPECT_EQ(keyOf(""), "");
    EXPECT_EQ(keyOf(" Pk=X"), "");
    EXPECT_EQ(keyOf("A"), "P"); // A^A^0^5 = 5, swapped 0x50
}

TEST(ReceiveBufferTest, GivesWholeMessagesAndKeepsTheFragment)
{
    ReceiveBuffer buffer;
    buffer.append("one|two|thr");
    EXPECT_EQ(buffer.takeMessage(), "one");
    EXPECT_EQ(buffer.takeMessage(), "two");
    EXPECT_EQ(buffer.takeMessage(), std::nullopt);
    EXPECT_EQ(buffer.waiting(), "thr");
    buffer.append("ee||");
    EXPECT_EQ(buffer.takeMessage(), "three");
    EXPECT_EQ(buffer.takeMessage(), "");
    EXPECT_EQ(buffer.takeMessage(), std::nullopt);
    EXPECT_TRUE(buffer.empty());
}

TEST(ReceiveBufferTest, CutsTheSameMessagesOutOfAnyPieces)
{
    std::string text;
    for (int at = 0; at < 500; ++at)
        text += std::string(static_cast<std::size_t>(at % 37), 'x') + std::to_string(at) + '|';
    for (const std::size_t piece : {1U, 2U, 7U, 64U, 5000U}) {
        ReceiveBuffer buffer;
        std::string taken;
        for (std::size_t at = 0; at < text.size(); at += piece) {
            buffer.append(std::string_view(text).substr(at, piece));
            while (const auto message = buffer.takeMessage())
                taken += *message + '|';
        }
        EXPECT_EQ(taken, text) << piece;
    }
}

TEST(MyInfoTest, IsReadByBlankAndThenByDollar)
{
    const MyInfo info = readMyInfo("$ALL nick some words<++ V:1>$A$LAN(T1)\x01$me@home$12345$");
    EXPECT_EQ(info.nick, "nick");
    EXPECT_EQ(info.description, "some words<++ V:1>");
    EXPECT_EQ(info.mode, "ACTIVE");
    EXPECT_EQ(info.speed, "LAN(T1)");
    EXPECT_EQ(info.status, 1);
    EXPECT_EQ(info.email, "me@home");
    EXPECT_EQ(info.share, "12345");
}

TEST(MyInfoTest, AnyOtherModeIsPassive)
{
    EXPECT_EQ(readMyInfo("$ALL nick d$P$x$$1$").mode, "PASSIVE");
    EXPECT_EQ(readMyInfo("$ALL nick d$ $x$$1$").mode, "PASSIVE");
    EXPECT_EQ(readMyInfo("$ALL nick d$a$x$$1$").mode, "PASSIVE");
}

TEST(MyInfoTest, AShareThatIsNoNumberOrEmptyBecomesZero)
{
    EXPECT_EQ(readMyInfo("$ALL nick d$A$x$e$lots$").share, "0");
    EXPECT_EQ(readMyInfo("$ALL nick d$A$x$e$$").share, "0");
}

TEST(MyInfoTest, ACutMessageReadsAsEmptyFields)
{
    EXPECT_EQ(readMyInfo("").nick, "");
    EXPECT_EQ(readMyInfo("$ALL nick").nick, "nick");
    EXPECT_EQ(readMyInfo("$ALL nick d$A$").speed, "");
    EXPECT_EQ(readMyInfo("$ALL nick d$A$").status, 0);
    EXPECT_EQ(readMyInfo("$ALL nick d$A$\xFE$").status, 0xFE);
}

TEST(ConnectionCategoryTest, FollowsItsTable)
{
    const std::pair<const char*, const char*> table[] = {
        {"28.8Kbps", "Modem"},
        {"33.6Kbps", "Modem"},
        {"56Kbps", "Modem"},
        {"Satellite", "Satellite"},
        {"Microwave", "Satellite"},
        {"ISDN", "ISDN"},
        {"DSL", "DSL"},
        {"Cable", "Cable"},
        {"LAN(T1)", "LAN"},
        {"LAN(T3)", "LAN"},
        {"LAN", "LAN"},
        {"Bot", "Unknown"},
        {"", "Unknown"},
        {"lan", "Unknown"},
    };
    for (const auto& [speed, category] : table)
        EXPECT_EQ(ConnectionCategory(speed), category) << speed;
}

TEST(OpNicksTest, KeepOrderAndDuplicatesAndLoseTheFirst)
{
    OpNicks nicks;
    for (const char* nick : {"b", "a", "b", "c"})
        nicks.append(nick);
    nicks.removeFirst("b");
    EXPECT_EQ(nicks.all(), (std::vector<std::string>{"a", "b", "c"}));
    nicks.removeFirst("nobody");
    nicks.removeFirst("b");
    EXPECT_FALSE(nicks.contains("b"));
    nicks.removeFirst("b");
    EXPECT_EQ(nicks.all(), (std::vector<std::string>{"a", "c"}));
}

} // namespace
} // namespace quillfen
