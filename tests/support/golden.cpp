#include "support/golden.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace quillfen::test {
namespace {

std::string visible(const std::string& line)
{
    std::string text;
    for (const char character : line) {
        if (character == '\t')
            text += "\\t";
        else if (character == '\r')
            text += "\\r";
        else
            text += character;
    }
    return text;
}

} // namespace

std::string golden(const std::string& name)
{
    std::ifstream file(std::string(QUILLFEN_GOLDEN) + "/" + name, std::ios::binary);
    EXPECT_TRUE(file) << "no golden file " << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> goldenNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(QUILLFEN_GOLDEN)) {
        if (entry.is_regular_file())
            names.push_back(entry.path().lexically_relative(QUILLFEN_GOLDEN).generic_string());
    }
    return names;
}

testing::AssertionResult sameBytes(const std::string& actual, const std::string& expected)
{
    if (actual == expected)
        return testing::AssertionSuccess();
    std::istringstream actualLines(actual);
    std::istringstream expectedLines(expected);
    for (int number = 1;; ++number) {
        std::string actualLine;
        std::string expectedLine;
        const bool more = static_cast<bool>(std::getline(actualLines, actualLine));
        const bool wanted = static_cast<bool>(std::getline(expectedLines, expectedLine));
        if (actualLine != expectedLine || more != wanted || (!more && !wanted)) {
            return testing::AssertionFailure() << "line " << number << "\n  is:     " << visible(actualLine)
                                               << "\n  wanted: " << visible(expectedLine);
        }
    }
}

} // namespace quillfen::test
