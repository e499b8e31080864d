#include "shell/kit/listview.h"
#include "shell/kit/permissiongridpart.h"
#include "support/formtest.h"

#include <QMenu>

namespace quillfen {
namespace {

/// A grid of one value per command and profile, whose cells stay in memory.
class OneSidedGrid : public test::FormTest
{
protected:
    OneSidedGrid()
    {
        standIn(DeclaredGrid{[this] { return source(); }, words()});
    }

    GridSource source()
    {
        GridSource grid;
        grid.commands = {"Read", "Write"};
        grid.load = [this](const SettingsFiles&, const HubProfiles&) { return cells; };
        grid.save = [this](const std::vector<PermissionCell>& saved, const SettingsFiles&,
                           const HubProfiles&) { cells = saved; };
        return grid;
    }

    static GridWords words()
    {
        GridWords words;
        words.columns = {"Command", "Profile", "Setting"};
        words.targets = false;
        words.clickToggles = true;
        words.commandFilter = "VERB";
        words.commandFilterTip = "View By Verb";
        return words;
    }

    std::vector<PermissionCell> cells = {
        {0, 0, 0, true}, {0, 1, 1, false}, {1, 0, 0, false}, {1, 1, 1, true}};
};

TEST_F(OneSidedGrid, HasThreeColumnsAndIsToggledByAClick)
{
    auto& form = open("Games~Anagrams");
    auto& list = find<ListView>(form, "lvwPermissions");
    EXPECT_EQ(shown(list),
              (QStringList{"Read|Unregistered|Yes", "|Master|No", "Write|Unregistered|No", "|Master|Yes"}));
    clickRow(list, 1);
    EXPECT_EQ(shown(list)[1], "|Master|Yes");
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(cells[1].allowed);
    list.select(1);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(shown(list)[1], "|Master|No");
}

TEST_F(OneSidedGrid, ADoubleClickTogglesOnce)
{
    auto& list = find<ListView>(open("Games~Anagrams"), "lvwPermissions");
    doubleClickRow(list, 1);
    EXPECT_EQ(shown(list)[1], "|Master|Yes");
}

TEST_F(OneSidedGrid, AFilterOfAnotherKeyIsNotTakenOffByAPress)
{
    auto& form = open("Games~Anagrams");
    auto& list = find<ListView>(form, "lvwPermissions");
    auto& filter = button(form, "VERB", "tlbListview");
    EXPECT_EQ(filter.toolTip(), "View By Verb");
    EXPECT_FALSE(filter.icon().isNull());
    find<QAction>(*filter.menu(), "C*Write").trigger();
    filter.trigger();
    EXPECT_EQ(shown(list), (QStringList{"Write|Unregistered|No", "|Master|Yes"}));
    EXPECT_TRUE(filter.isChecked());
}

TEST_F(OneSidedGrid, MayHaveNamedTargetsBehindTheProfiles)
{
    hub.profiles = {};
    GridSource grid = source();
    grid.commands = {"Send"};
    grid.named = {"All", "Ops"};
    cells = {{0, 0, 0, false}, {0, 0, 1, true}, {0, 0, 2, false}};
    GridWords words;
    words.columns.insert(words.columns.end(), {"iProfileBy", "iProfileOn"});
    PermissionGridPart part(grid, words, {hub.files, hub.profiles});
    const std::unique_ptr<QWidget> widget(part.widget());
    part.load();
    const auto& list = find<ListView>(*widget, "lvwPermissions");
    EXPECT_EQ(shown(list), (QStringList{"Send|Unregistered|Unregistered|No", "||All|Yes", "||Ops|No"}));
    EXPECT_EQ(list.model()->index(0, 5).data(), "-1");
    EXPECT_EQ(list.model()->index(2, 4).data(), "-1");
    EXPECT_EQ(list.model()->index(2, 5).data(), "Ops");
}

} // namespace
} // namespace quillfen
