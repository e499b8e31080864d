#include "functions/customise/customiseformtest.h"

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::luaValues;
using test::sameBytes;
using test::SeenDialog;

class CustomRightClickForm : public test::CustomiseForms
{
protected:
    EditorForm& openForm() { return open("CustomiseUser~CustomRightClick"); }
    static RowList& list(EditorForm& form) { return find<RowList>(form, "lvwCustomRightClicks"); }

    static void move(EditorForm& form, const char* key)
    {
        button(form, key, "tlbListviewMovement").trigger();
    }

    /// The movement buttons that can be pressed, by their first letters' order: top, up, down, bottom.
    static std::string movable(EditorForm& form)
    {
        std::string all;
        for (const char* key : {"MoveTop", "MoveUp", "MoveDown", "MoveBottom"})
            all += button(form, key, "tlbListviewMovement").isEnabled() ? '1' : '0';
        return all;
    }

    /// What the list shows, each row with its tick.
    static QStringList rowsOf(EditorForm& form)
    {
        QStringList all;
        for (const CellRow& row : list(form).rows())
            all.append(QString::fromStdString(row.cells[0]) + (row.checked ? "+" : "-"));
        return all;
    }

    std::string& stored = file("CustomRightClick/CustomRightClick.tbl");
};

TEST_F(CustomRightClickForm, ShowsTextsProfilesAndPlacesInWords)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmCustomiseUserCustomRightClick");
    EXPECT_EQ(form.windowTitle(), "CustomiseUser ~ Custom Right Click");
    EXPECT_EQ(columns(list(form)), (QStringList{"Right Click", "Profile", "Location"}));
    EXPECT_EQ(list(form).accessibleName(), "Hub Settings"); // the label of another form's list
    EXPECT_TRUE(labels(form).contains("Hub Settings"));
    EXPECT_EQ(shown(list(form)),
              (QStringList{R"(Tools\Who = where|Operators Only|Hub)", "Wave|All Profiles|Users",
                           "Register|Unregistered|Hub & Users", "Find more|Operator|Search"}));
    EXPECT_EQ(ticks(form, "lvwCustomRightClicks"), "1010");
    EXPECT_EQ(find<QToolBar>(form, "tlbFormToolbar").findChild<QAction*>("RESTORE"), nullptr);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(CustomRightClickForm, RowsAreAddedUntickedAndSaved)
{
    auto& form = openForm();
    const auto dialogs = entering({{{R"(Tools\Who = where)", "Operators Only", "Hub"}, "cmdAdd"},
                                   {{"Wave", "All Profiles", "Users"}, "cmdAdd"},
                                   {{"Register", "Unregistered", "Hub & Users"}, "cmdAdd"},
                                   {{"Find more", "Operator", "Search"}, "cmdOK"}},
                                  [&form] { button(form, "NEW", "tlbHubs").trigger(); });
    EXPECT_EQ(dialogs, (QList<SeenDialog>(4, {"frmGlobalEditOneTextTwoCombo",
                                              "Add Right Click",
                                              {"Right Click", "Profile", "Location"},
                                              {"", "", ""}})));
    EXPECT_EQ(ticks(form, "lvwCustomRightClicks"), "0000");
    tick(form, "lvwCustomRightClicks", {0, 2});
    save(form);
    EXPECT_TRUE(sameBytes(stored, golden("CustomRightClick.save.tbl")));
    EXPECT_EQ(luaValues(stored).at("tCustomRightClick.4.sProfile"), "1");
}

TEST_F(CustomRightClickForm, TheDialogOffersEachProfileAndTheTwoGroupsAndTheFourPlaces)
{
    auto& form = openForm();
    QList<QStringList> offered;
    test::withModal([&form] { button(form, "NEW", "tlbHubs").trigger(); },
                    [&](QWidget& dialog) {
                        for (const char* name : {"cboComboBox(0)", "cboComboBox(1)"}) {
                            const auto* combo = dialog.findChild<QComboBox*>(name);
                            offered.append(QStringList());
                            for (int at = 0; at < combo->count(); ++at)
                                offered.back().append(combo->itemText(at));
                        }
                        dialog.close();
                    });
    EXPECT_EQ(offered, (QList<QStringList>{
                           {"Unregistered", "Master", "Operator", "VIP", "Operators Only", "All Profiles"},
                           {"Hub", "Users", "Hub & Users", "Search"}}));
}

TEST_F(CustomRightClickForm, ARowIsEditedAndKeepsItsTick)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    const auto dialogs =
        entering({{{"Sign up", "VIP", QString()}, "cmdOK"}}, [&form] { doubleClickRow(list(form), 2); });
    EXPECT_EQ(dialogs, (QList<SeenDialog>{{"frmGlobalEditOneTextTwoCombo",
                                           "Edit Right Click",
                                           {"Right Click", "Profile", "Location"},
                                           {"Register", "Unregistered", "Hub & Users"}}}));
    EXPECT_EQ(shown(list(form)).value(2), "Sign up|VIP|Hub & Users");
    EXPECT_TRUE(list(form).rows()[2].checked);
    EXPECT_TRUE(isDirty(form));
}

TEST_F(CustomRightClickForm, ARowOfAProfileThatIsGoneKeepsItWhileItsTextIsEdited)
{
    stored =
        "tCustomRightClick = {\r\n\tiCommands = 1,\r\n\t[1] = {\r\n\t\t\tbEnabled = 0,\r\n\t\t\tiWhere = 1,"
        "\r\n\t\t\tsProfile = 9,\r\n\t\t\tsRightClick = \"x\",\r\n\t},\r\n}\r\n";
    auto& form = openForm();
    EXPECT_EQ(shown(list(form)), QStringList("x|9|Hub"));
    test::withModal([&form] { doubleClickRow(list(form), 0); },
                    [](QWidget& dialog) {
                        EXPECT_EQ(find<QComboBox>(dialog, "cboComboBox(0)").currentText(), "");
                        EXPECT_FALSE(find<QPushButton>(dialog, "cmdAdd").isEnabled());
                        test::fillField(test::fieldOf(dialog, 0), "y");
                        find<QPushButton>(dialog, "cmdOK").click();
                    });
    EXPECT_EQ(shown(list(form)), QStringList("y|9|Hub"));
    save(form);
    EXPECT_NE(stored.find("\t\t\tsProfile = 9,\r\n\t\t\tsRightClick = \"y\",\r\n"), std::string::npos);
}

TEST_F(CustomRightClickForm, AddingAsksForAllThreeFieldsAndEditingForNone)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    const auto required = [](const std::function<void()>& action) {
        std::string places;
        test::withModal(action, [&places](QWidget& dialog) {
            for (int field = 0; field < 3; ++field) {
                if (test::fieldOf(dialog, field)->palette().color(QPalette::Base) == QColor(0xFF, 0x80, 0x80))
                    places += std::to_string(field);
            }
            dialog.close();
        });
        return places;
    };
    EXPECT_EQ(required([&form] { button(form, "NEW", "tlbHubs").trigger(); }), "012");
    EXPECT_EQ(required([&form] { doubleClickRow(list(form), 0); }), "");
}

TEST_F(CustomRightClickForm, NoRowIsSelectedUntilSpaceOrAClickSelectsOne)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    list(form).setFocus();
    EXPECT_EQ(list(form).currentRow(), -1);
    EXPECT_FALSE(button(form, "MoveDown", "tlbListviewMovement").isEnabled());
    const bool ticked = list(form).rows()[0].checked;
    QTest::keyClick(&list(form), Qt::Key_Space);
    EXPECT_EQ(list(form).currentRow(), 0);
    EXPECT_NE(list(form).rows()[0].checked, ticked);
    EXPECT_TRUE(button(form, "MoveDown", "tlbListviewMovement").isEnabled());
}

TEST_F(CustomRightClickForm, ADeleteAsksAndTheLastRowCanGo)
{
    auto& form = openForm();
    EXPECT_FALSE(button(form, "DELETE", "tlbHubs").isEnabled());
    EXPECT_FALSE(button(form, "EDIT", "tlbHubs").isEnabled());
    entering({{{"Wave", "All Profiles", "Users"}, "cmdOK"}},
             [&form] { button(form, "NEW", "tlbHubs").trigger(); });
    EXPECT_TRUE(button(form, "DELETE", "tlbHubs").isEnabled());
    EXPECT_TRUE(button(form, "EDIT", "tlbHubs").isEnabled());
    const auto boxes = deleteRow(form, "lvwCustomRightClicks", "tlbHubs", 0, QMessageBox::Cancel);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete right click?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this right click?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    answering(QMessageBox::Ok, [&form] { QTest::keyClick(&list(form), Qt::Key_Delete); });
    EXPECT_TRUE(list(form).isEmpty());
    EXPECT_EQ(movable(form), "0000");
    save(form);
    EXPECT_TRUE(sameBytes(stored, "tCustomRightClick = {\r\n\tiCommands = 0,\r\n}\r\n"));
}

TEST_F(CustomRightClickForm, ATickChangesTheForm)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    clickTick(list(form), 0);
    save(form);
    EXPECT_EQ(luaValues(stored).at("tCustomRightClick.1.bEnabled"), "0");
}

TEST_F(CustomRightClickForm, TheMovementButtonsFollowTheSelectedRow)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    EXPECT_EQ(movable(form), "0000"); // no row is selected yet
    clickRow(list(form), 0);
    EXPECT_EQ(movable(form), "0011");
    clickRow(list(form), 1);
    EXPECT_EQ(movable(form), "1111");
    clickRow(list(form), 3);
    EXPECT_EQ(movable(form), "1100");
    discard(form);
    EXPECT_EQ(movable(form), "0000");
    entering({{{"Last", "All Profiles", "Users"}, "cmdOK"}},
             [&form] { button(form, "NEW", "tlbHubs").trigger(); });
    EXPECT_EQ(movable(form), "1100"); // the added row is the selected one
}

TEST_F(CustomRightClickForm, MoveUpOnTheSecondRowMakesItTheFirst)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    clickRow(list(form), 1);
    move(form, "MoveUp");
    EXPECT_EQ(rowsOf(form), (QStringList{"Wave-", R"(Tools\Who = where+)", "Register+", "Find more-"}));
    EXPECT_EQ(list(form).currentRow(), 0);
    EXPECT_EQ(movable(form), "0011");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(CustomRightClickForm, MoveDownChangesPlacesWithTheRowBehind)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    clickRow(list(form), 2);
    move(form, "MoveDown");
    EXPECT_EQ(rowsOf(form), (QStringList{R"(Tools\Who = where+)", "Wave-", "Find more-", "Register+"}));
    EXPECT_EQ(list(form).currentRow(), 3);
    EXPECT_EQ(movable(form), "1100");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(CustomRightClickForm, ARowMovedToAnEndKeepsItsTickAndTheOthersTheirOrder)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    clickRow(list(form), 0);
    move(form, "MoveBottom");
    EXPECT_EQ(rowsOf(form), (QStringList{"Wave-", "Register+", "Find more-", R"(Tools\Who = where+)"}));
    EXPECT_EQ(list(form).currentRow(), 3);
    EXPECT_EQ(movable(form), "1100");
    clickRow(list(form), 2);
    move(form, "MoveTop");
    EXPECT_EQ(rowsOf(form), (QStringList{"Find more-", "Wave-", "Register+", R"(Tools\Who = where+)"}));
    EXPECT_EQ(list(form).currentRow(), 0);
    EXPECT_EQ(movable(form), "0011");
    save(form);
    const auto values = luaValues(stored); // the numbers are those of the new order
    EXPECT_EQ(values.at("tCustomRightClick.1.sRightClick"), "Find more");
    EXPECT_EQ(values.at("tCustomRightClick.1.iWhere"), "4");
    EXPECT_EQ(values.at("tCustomRightClick.4.sProfile"), "ops");
    EXPECT_EQ(values.at("tCustomRightClick.4.bEnabled"), "1");
}

TEST_F(CustomRightClickForm, RowsAreMovedByTheKeyboardToo)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    auto& rows = list(form);
    clickRow(rows, 2);
    QTest::keyClick(&rows, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(rowsOf(form)[1], "Register+");
    QTest::keyClick(&rows, Qt::Key_End, Qt::AltModifier);
    EXPECT_EQ(rowsOf(form)[3], "Register+");
    QTest::keyClick(&rows, Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(rowsOf(form)[0], "Register+");
    QTest::keyClick(&rows, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(rowsOf(form)[1], "Register+");
    EXPECT_EQ(rows.currentRow(), 1);
}

TEST_F(CustomRightClickForm, FiftyThousandRowsAreShownMovedAndSaved)
{
    stored = "tCustomRightClick = {\r\n\tiCommands = 50000,\r\n";
    for (int row = 1; row <= 50000; ++row)
        stored += "\t[" + std::to_string(row) +
                  "] = {\r\n\t\t\tbEnabled = 0,\r\n\t\t\tiWhere = 1,\r\n\t\t\tsProfile = 2,\r\n"
                  "\t\t\tsRightClick = \"line\",\r\n\t},\r\n";
    stored += "}\r\n";
    const std::string before = stored;
    auto& form = openForm();
    ASSERT_EQ(list(form).rows().size(), 50000U);
    clickRow(list(form), 49999);
    for (int round = 0; round < 10; ++round) {
        move(form, "MoveTop");
        move(form, "MoveBottom");
        move(form, "MoveUp");
        move(form, "MoveDown");
    }
    save(form);
    EXPECT_TRUE(stored == before); // all rows are alike, and none was lost
}

TEST_F(CustomRightClickForm, TheBorrowedMenuServesTheList)
{
    stored = golden("CustomRightClick.save.tbl");
    auto& form = openForm();
    clickRow(list(form), 0);
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstDelete").trigger(); });
    EXPECT_EQ(list(form).rows().size(), 3U);
}

} // namespace
} // namespace quillfen
