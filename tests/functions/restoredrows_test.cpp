// The rows that RESTORE shows in lists.
#include "functions/catalogue.h"
#include "support/freshtree.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace quillfen {
namespace {

/// A list as "<form> <list>".
using ListNames = std::set<std::string>;

using Rows = std::vector<CellRow>;

/// The rows without the empty cells at their ends, which show nothing.
Rows filled(Rows rows)
{
    for (CellRow& row : rows) {
        while (!row.cells.empty() && row.cells.back().empty())
            row.cells.pop_back();
    }
    return rows;
}

class RestoredRows : public testing::Test
{
protected:
    RestoredRows()
    {
        hub.store.files["/hub/cfg/Profiles.xml"] = "<Name>Master</Name>\r\n<Name>VIP</Name>\r\n";
        test::buildTree(hub);
    }

    /// The lists whose rows are restored so that this is true of them and of the rows of a fresh tree.
    ListNames listsThat(const std::function<bool(const Rows& restored, const Rows& fresh)>& isTrue) const
    {
        ListNames names;
        for (const FormDeclaration& form : formCatalogue()) {
            for (const PartDeclaration& part : form.parts) {
                for (const RowListDeclaration& list : listsOf(part, hub.profiles)) {
                    if (list.restored && isTrue(filled(list.restored(hub.profiles)),
                                                filled(list.load(hub.files, hub.profiles))))
                        names.insert(form.form.name + ' ' + list.list);
                }
            }
        }
        return names;
    }

    test::Hub hub;
};

TEST_F(RestoredRows, AreNoneWhereAnOwnerBeginsWithNone)
{
    EXPECT_EQ(
        listsThat([](const Rows& restored, const Rows&) { return restored.empty(); }),
        (ListNames{"frmCommunicationKickBarChanger lvwKickBars", "frmCommunicationTopicChanger lvwTopics",
                   "frmCommunicationWelcomeInfoNetworkHubs lvwHubs", "frmCustomiseUserAsciiIntro lvwAscii",
                   "frmSecurityAntiAdvertiseAddresses lvwAllowedAddresses",
                   "frmSecurityAntiAdvertiseAddresses lvwBlockedAddresses"}));
}

TEST_F(RestoredRows, AreThoseOfAFreshTree)
{
    EXPECT_EQ(
        listsThat(
            [](const Rows& restored, const Rows& fresh) { return !restored.empty() && restored == fresh; }),
        (ListNames{"frmCustomiseUserDescriptionTags lvwDescriptionTags", "frmGeneralBots lvwBots",
                   "frmUserActionsAttacks lvwAttacks", "frmUserActionsDoAction lvwDoActions",
                   "frmUserActionsInsultsStandard lvwInsults", "frmUserActionsInsultsMedieval lvwInsultsOne",
                   "frmUserActionsInsultsMedieval lvwInsultsTwo", "frmUserActionsInsultsModern lvwInsultsOne",
                   "frmUserActionsInsultsModern lvwInsultsTwo", "frmUserActionsInsultsModern lvwInsultsThree",
                   "frmUserActionsInsultsModern lvwInsultsFour"}));
}

// A fresh tree has no lines of intros and outros, and its third medieval words stand below a misspelt name.
TEST_F(RestoredRows, AreMoreThanThoseOfAFreshTree)
{
    EXPECT_EQ(
        listsThat([](const Rows& restored, const Rows& fresh) { return !restored.empty() && fresh.empty(); }),
        (ListNames{"frmCustomiseUserIntroOutro lvwIntro", "frmCustomiseUserIntroOutro lvwOutro",
                   "frmCustomiseUserCustomIntroOutro lvwIntro", "frmCustomiseUserCustomIntroOutro lvwOutro",
                   "frmUserActionsInsultsMedieval lvwInsultsThree"}));
}

} // namespace
} // namespace quillfen
