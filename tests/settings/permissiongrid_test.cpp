#include "declarations/griddeclaration.h"
#include "settings/permissiongrid.h"
#include "support/hub.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

class Grid : public testing::Test
{
protected:
    Grid() { hub.profiles.add("Master"); }

    static bool isAllowed(const std::vector<PermissionCell>& cells, std::size_t command, std::size_t by,
                          std::size_t on)
    {
        for (const PermissionCell& cell : cells) {
            if (cell.command == command && cell.by == by && cell.on == on)
                return cell.allowed;
        }
        throw std::out_of_range("no such cell");
    }

    test::Hub hub;
    PermissionGrid grid{{{"Kick", "Kick.tbl", "tKick"}, {"Ban", "Ban.tbl", "tBan"}}};
};

TEST_F(Grid, HasACellForEachCommandActingAndTargetProfile)
{
    hub.file("Kick.tbl") = "tKick = {\r\n\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t},\r\n"
                           "\t[0] = {\r\n\t\t[-1] = 1.0,\r\n\t\t[0] = 2,\r\n\t},\r\n}\r\n";
    const auto cells = loadGrid(grid, hub.files, hub.profiles);
    ASSERT_EQ(cells.size(), 8U);
    EXPECT_FALSE(isAllowed(cells, 0, 0, 0));
    EXPECT_TRUE(isAllowed(cells, 0, 0, 1));
    EXPECT_TRUE(isAllowed(cells, 0, 1, 0));
    EXPECT_FALSE(isAllowed(cells, 0, 1, 1)); // only the number 1 allows
    EXPECT_FALSE(isAllowed(cells, 1, 0, 1)); // a missing file allows nothing
    EXPECT_EQ(hub.store.readings[hub.root + "/Kick.tbl"], 1);
}

TEST_F(Grid, SavesEachCommandsSquare)
{
    auto cells = loadGrid(grid, hub.files, hub.profiles);
    cells[1].allowed = true;
    cells[6].allowed = true;
    saveGrid(grid, cells, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Kick.tbl"), "tKick = {\r\n\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t},\r\n"
                                    "\t[0] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n");
    EXPECT_EQ(hub.file("Ban.tbl"), "tBan = {\r\n\t[-1] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n"
                                   "\t[0] = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n");
}

TEST_F(Grid, ARebuildKeepsEachValueAndGivesANewProfileNone)
{
    hub.file("Kick.tbl") = "tKick = {\r\n\t[-1] = {\r\n\t\t[-1] = 1,\r\n\t},\r\n}\r\n";
    rebuildGridFile(grid.commands[0], 0, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Kick.tbl"), "tKick = {\r\n\t[-1] = {\r\n\t\t[-1] = 1,\r\n\t\t[0] = 0,\r\n\t},\r\n"
                                    "\t[0] = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n");
}

TEST_F(Grid, CountsItsProfilesFromItsFirstOneOn)
{
    grid.firstProfile = 1;
    hub.file("Kick.tbl") = "tKick = {\r\n\t[0] = {\r\n\t\t[0] = 1,\r\n\t},\r\n}\r\n";
    auto cells = loadGrid(grid, hub.files, hub.profiles);
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_TRUE(isAllowed(cells, 0, 1, 1));
    EXPECT_FALSE(isAllowed(cells, 1, 1, 1));
    cells[1].allowed = true;
    saveGrid(grid, cells, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Ban.tbl"), "tBan = {\r\n\t[0] = {\r\n\t\t[0] = 1,\r\n\t},\r\n}\r\n");
}

TEST_F(Grid, MayLeaveTheUnregisteredOut)
{
    grid.firstProfile = 1;
    EXPECT_EQ(loadGrid(grid, hub.files, hub.profiles).size(), 2U);
    rebuildGridFile(grid.commands[0], 1, hub.files, hub.profiles);
    EXPECT_EQ(hub.file("Kick.tbl"), "tKick = {\r\n\t[0] = {\r\n\t\t[0] = 0,\r\n\t},\r\n}\r\n");
}

TEST(GridWords, OfGridsWithoutFiltersHoldTheProfilesKeysAndNameEachTarget)
{
    const GridWords filtered;
    EXPECT_TRUE(filtered.filters);
    EXPECT_FALSE(filtered.namesTarget);
    for (const GridWords& words : {unfilteredGrid(), blockGrid()}) {
        EXPECT_EQ(words.columns, (std::vector<std::string>{"Command", "By Profile", "On Profile", "Allow To",
                                                           "iProfileBy", "iProfileOn"}));
        EXPECT_FALSE(words.filters);
        EXPECT_TRUE(words.namesTarget);
    }
    EXPECT_FALSE(unfilteredGrid().namesCommandByProfile);
    EXPECT_TRUE(blockGrid().namesCommandByProfile);
}

} // namespace
} // namespace quillfen
