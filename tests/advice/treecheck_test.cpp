#include "advice/treecheck.h"
#include "declarations/rebuild.h"
#include "functions/catalogue.h"
#include "support/hub.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

/// A hub's tree as a first start builds it.
class TreeCheck : public testing::TestWithParam<int>
{
protected:
    void build(int profiles)
    {
        std::string& bytes = hub.store.files["/hub/cfg/Profiles.xml"];
        for (int profile = 0; profile < profiles; ++profile)
            bytes += "<Name>P" + std::to_string(profile) + "</Name>\r\n";
        reconcileSettings(
            {hub.files, folderCatalogue(), "5.2.0", [](const RebuildQuestion&) { return true; }},
            hub.profiles);
    }

    /// The findings as lines.
    std::vector<std::string> found() const
    {
        std::vector<std::string> lines;
        for (const Finding& finding : checkTree(hub.files))
            lines.push_back(finding.file + ':' + std::to_string(finding.line) + ": " + finding.words);
        return lines;
    }

    test::Hub hub;
};

using Lines = std::vector<std::string>;

INSTANTIATE_TEST_SUITE_P(Profiles, TreeCheck, testing::Values(1, 5, 64),
                         [](const auto& each) { return "Of" + std::to_string(each.param); });

TEST_P(TreeCheck, FindsNothingInAFreshTree)
{
    build(GetParam());
    EXPECT_EQ(found(), Lines{});
}

} // namespace
} // namespace quillfen
