#include "store/linediff.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace quillfen {
namespace {

/// The lines with a sign in front.
std::string shown(std::string_view oldText, std::string_view newText)
{
    std::string text;
    for (const DiffLine& line : lineDifference(oldText, newText)) {
        text += line.kind == DiffLine::Kind::Same ? ' ' : line.kind == DiffLine::Kind::Old ? '-' : '+';
        text.append(line.text).append("\n");
    }
    return text;
}

TEST(LineDifference, IsNoneBetweenEqualTexts)
{
    EXPECT_EQ(shown("", ""), "");
    EXPECT_EQ(shown("a\r\nb\r\n", "a\r\nb\r\n"), " a\n b\n");
}

TEST(LineDifference, ShowsALineThatChangedAsOldAndNew)
{
    EXPECT_EQ(shown("t = {\r\n\ta = 1,\r\n\tb = 2,\r\n}\r\n", "t = {\r\n\ta = 1,\r\n\tb = 3,\r\n}\r\n"),
              " t = {\n \ta = 1,\n-\tb = 2,\n+\tb = 3,\n }\n");
}

TEST(LineDifference, ShowsWhatCameAndWhatWent)
{
    EXPECT_EQ(shown("", "a\nb\n"), "+a\n+b\n");
    EXPECT_EQ(shown("a\nb", ""), "-a\n-b\n");
    EXPECT_EQ(shown("a\nb\nc\n", "b\nc\nd\n"), "-a\n b\n c\n+d\n");
}

TEST(LineDifference, OfRandomTextsLeadsFromOneToTheOtherByTheFewestLines)
{
    std::mt19937 random(7);
    const auto number = [&random](unsigned below) { return static_cast<unsigned>(random() % below); };
    for (int round = 0; round < 3000; ++round) {
        std::vector<std::string> lines[2];
        for (auto& each : lines) {
            for (unsigned count = number(9); count > 0; --count)
                each.emplace_back(1, static_cast<char>('a' + number(3)));
        }
        std::string texts[2];
        for (int which = 0; which < 2; ++which) {
            for (const std::string& line : lines[which])
                texts[which] += line + '\n';
        }
        std::vector<std::string> led[2];
        std::size_t same = 0;
        for (const DiffLine& line : lineDifference(texts[0], texts[1])) {
            if (line.kind != DiffLine::Kind::New)
                led[0].emplace_back(line.text);
            if (line.kind != DiffLine::Kind::Old)
                led[1].emplace_back(line.text);
            same += line.kind == DiffLine::Kind::Same ? 1U : 0U;
        }
        ASSERT_EQ(led[0], lines[0]);
        ASSERT_EQ(led[1], lines[1]);
        // the longest common subsequence by its own definition
        std::vector<std::vector<std::size_t>> longest(lines[0].size() + 1,
                                                      std::vector<std::size_t>(lines[1].size() + 1));
        for (std::size_t a = 1; a <= lines[0].size(); ++a) {
            for (std::size_t b = 1; b <= lines[1].size(); ++b)
                longest[a][b] = lines[0][a - 1] == lines[1][b - 1]
                                    ? longest[a - 1][b - 1] + 1
                                    : std::max(longest[a - 1][b], longest[a][b - 1]);
        }
        ASSERT_EQ(same, longest.back().back()) << texts[0] << "--\n" << texts[1];
    }
}

TEST(LineDifference, OfThousandsOfLinesTakesAllBetweenTheFirstAndTheLastForDifferent)
{
    std::string before = "first\n";
    std::string after = "first\n";
    for (int at = 0; at < 6000; ++at) {
        before += "b" + std::to_string(at) + '\n';
        after += "a" + std::to_string(at) + '\n';
    }
    before += "last\n";
    after += "last\n";
    const auto lines = lineDifference(before, after);
    ASSERT_EQ(lines.size(), 12002U);
    EXPECT_EQ(lines.front(), (DiffLine{DiffLine::Kind::Same, "first"}));
    EXPECT_EQ(lines[1], (DiffLine{DiffLine::Kind::Old, "b0"}));
    EXPECT_EQ(lines[6001], (DiffLine{DiffLine::Kind::New, "a0"}));
    EXPECT_EQ(lines.back(), (DiffLine{DiffLine::Kind::Same, "last"}));
}

/// Texts of lines that change, with one between any two that stays.
std::pair<std::string, std::string> changedLines(int count)
{
    std::pair<std::string, std::string> texts;
    for (int at = 0; at < count; ++at) {
        const std::string number = std::to_string(at);
        texts.first += "old " + number + "\nkept " + number + '\n';
        texts.second += "new " + number + "\nkept " + number + '\n';
    }
    return texts;
}

TEST(LineDifference, IsLookedForUpToTwoThousandLinesThatDiffer)
{
    const auto isKept = [](const DiffLine& line) { return line.kind == DiffLine::Kind::Same; };
    const auto few = changedLines(1000);
    EXPECT_EQ(std::ranges::count_if(lineDifference(few.first, few.second), isKept), 1000);
    const auto many = changedLines(1001);
    EXPECT_EQ(std::ranges::count_if(lineDifference(many.first, many.second), isKept), 1) << "the last";
}

} // namespace
} // namespace quillfen
