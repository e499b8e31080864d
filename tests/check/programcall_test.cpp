#include "check/programcall.h"
#include "store/nativepath.h"

#include <array>
#include <gtest/gtest.h>

namespace quillfen {
namespace {

constexpr std::array calledAs{"elsewhere/by-another-name", "--check", "Hüb"};

TEST(ProgramCall, TellsWhereTheProgramLiesByWhateverNameItWasCalled)
{
    const ProgramCall call = programCall(static_cast<int>(calledAs.size()), calledAs.data());
    const std::filesystem::path folder = nativePath(call.folder);
    EXPECT_TRUE(folder.is_absolute()) << call.folder;
    EXPECT_TRUE(std::filesystem::exists(folder / "core_tests") ||
                std::filesystem::exists(folder / "core_tests.exe"))
        << call.folder;
}

#ifndef _WIN32 // where the platform's own words count
TEST(ProgramCall, LeavesTheProgramsNameOutOfItsArguments)
{
    const ProgramCall call = programCall(static_cast<int>(calledAs.size()), calledAs.data());
    EXPECT_EQ(call.arguments, (std::vector<std::string>{"--check", "Hüb"}));
}
#endif

} // namespace
} // namespace quillfen
