#include "functions/security/securityformtest.h"
#include "support/dialogs.h"

#include <QCheckBox>
#include <QComboBox>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::sameBytes;
using test::SeenDialog;

class AntiAdvertiseForms : public test::SecurityForms
{
protected:
    std::string& settings = file("AntiAdvertise/AntiAdvertiseSettings.tbl");
    std::string& actions = file("AntiAdvertise/AntiAdvertiseBlockedActions.tbl");
    std::string& blocked = file("AntiAdvertise/AntiAdvertiseBlockedAddresses.tbl");
    std::string& allowed = file("AntiAdvertise/AntiAdvertiseAllowedAddresses.tbl");

    static QCheckBox& check(EditorForm& form, int number)
    {
        return find<QCheckBox>(form, QStringLiteral("chkCheckBox(%1)").arg(number));
    }
};

TEST_F(AntiAdvertiseForms, SettingsSaveBothFiles)
{
    auto& form = open("Security~AntiAdvertise~Settings");
    EXPECT_EQ(form.objectName(), "frmSecurityAntiAdvertiseSettings");
    EXPECT_EQ(form.windowTitle(), "Security ~ AntiAdvertise ~  Settings")
        << "two blanks before the last word";
    EXPECT_EQ(check(form, 0).text(), "Enable IP Block");
    EXPECT_EQ(check(form, 0).toolTip(), "Allows IPs beginning with 0 (such as 0.3.6.0)");
    EXPECT_EQ(check(form, 1).text(), "Enable Silent Mode");
    EXPECT_EQ(check(form, 2).text(), "Allow In PM to Ops");
    EXPECT_EQ(text(form, "lblLabel(0)"), "TimeBan");
    EXPECT_EQ(text(form, "lblLabel(1)"), "Action");
    EXPECT_EQ(text(form, "lblLabel(2)"), "Blocked Profiles");
    EXPECT_EQ(find<RowList>(form, "lvwBlockedActions").accessibleName(), "Blocked Actions");
    EXPECT_EQ(shown(find<RowList>(form, "lvwBlockedActions")),
              (QStringList{"Main", "PM", "Nick", "Description", "Anagrams", "CodeBreaker", "GuessTheNumber",
                           "Hangman", "Numbers", "Trivia"}));
    EXPECT_EQ(ticks(form, "lvwBlockedActions"), "1111111111");
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "TempBan");
    EXPECT_EQ(range(form, "updUpDown"), (std::pair<std::string, std::string>("5", "1440")));
    check(form, 0).click();
    check(form, 2).click();
    type(form, "txtUpDown", "1441");
    find<QComboBox>(form, "cboComboBox").setCurrentText("Ban");
    EXPECT_TRUE(find<QLineEdit>(form, "txtUpDown").isEnabled()) << "the time stays live for every action";
    tick(form, "lvwBlockedProfiles", {0, 1});
    tick(form, "lvwBlockedActions", {1, 9});
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("AntiAdvertise.save.tbl")));
    EXPECT_TRUE(sameBytes(actions, golden("BlockedActions.save.tbl")));
    discard(form);
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "Ban");
    EXPECT_EQ(ticks(form, "lvwBlockedActions"), "1011111110");
}

TEST_F(AntiAdvertiseForms, EachLetterOfAnActionComesBack)
{
    for (const auto& [letter, word] : {std::pair("D", "Disconnect"),
                                       {"W", "Warn"},
                                       {"N", "Notify Ops"},
                                       {"K", "Kick"},
                                       {"T", "TempBan"},
                                       {"B", "Ban"}}) {
        const std::string row = std::string("\tsAction = \"") + letter + "\",\r\n";
        settings = "tAntiAdvertiseSettings = {\r\n" + row + "}\r\n";
        auto& form = open("Security~AntiAdvertise~Settings");
        EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), word);
        check(form, 0).click();
        save(form);
        EXPECT_NE(settings.find(row), std::string::npos) << word;
        form.parentWidget()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(AntiAdvertiseForms, AnActionLosesTheFirstLetterOfItsKeyWhicheverItIs)
{
    actions = "tAntiAdvertiseBlockedActions = {\r\n\txMain = 1,\r\n\tbPM = 0,\r\n}\r\n";
    auto& form = open("Security~AntiAdvertise~Settings");
    EXPECT_EQ(shown(find<RowList>(form, "lvwBlockedActions")), (QStringList{"Main", "PM"}));
    tick(form, "lvwBlockedActions", {1});
    save(form);
    EXPECT_EQ(actions, "tAntiAdvertiseBlockedActions = {\r\n\tbMain = 1,\r\n\tbPM = 1,\r\n}\r\n");
}

TEST_F(AntiAdvertiseForms, ARestoreSetsWhatHasADefaultAndLeavesTheLists)
{
    settings = golden("AntiAdvertise.save.tbl");
    actions = golden("BlockedActions.save.tbl");
    auto& form = open("Security~AntiAdvertise~Settings");
    restore(form);
    for (int number = 0; number < 3; ++number)
        EXPECT_TRUE(check(form, number).isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "60");
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "TempBan");
    EXPECT_EQ(ticks(form, "lvwBlockedProfiles"), "1100");
    EXPECT_EQ(ticks(form, "lvwBlockedActions"), "1011111110");
}

TEST_F(AntiAdvertiseForms, AddressesAreAddedAndSavedUnderTheirProperTables)
{
    auto& form = open("Security~AntiAdvertise~Addresses");
    EXPECT_EQ(form.objectName(), "frmSecurityAntiAdvertiseAddresses");
    EXPECT_EQ(form.windowTitle(), "Security ~ AntiAdvertise");
    for (const char* toolbar : {"tlbBlockedAddresses", "tlbAllowedAddresses"}) {
        EXPECT_FALSE(button(form, "EDIT", toolbar).isEnabled());
        EXPECT_FALSE(button(form, "DELETE", toolbar).isEnabled());
    }
    auto seen = entering({{{"hub.example.com"}, "cmdAdd"}, {{"no-ip"}}},
                         [&form] { button(form, "NEW", "tlbBlockedAddresses").trigger(); });
    ASSERT_EQ(seen.size(), 2);
    EXPECT_EQ(seen[1],
              (SeenDialog{"frmGlobalEditOneFields", "Add Blocked Address", {"Blocked Address"}, {""}}));
    seen =
        entering({{{"our.example.org"}}}, [&form] { button(form, "NEW", "tlbAllowedAddresses").trigger(); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen[0],
              (SeenDialog{"frmGlobalEditOneFields", "Add Allowed Address", {"Allowed Address"}, {""}}));
    auto& list = find<RowList>(form, "lvwAllowedAddresses");
    EXPECT_EQ(list.model()->headerData(0, Qt::Horizontal), "Address");
    clickRow(list, 0);
    seen = entering({{{"our.example.com"}}}, [&list] { doubleClickRow(list, 0); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(
        seen[0],
        (SeenDialog{
            "frmGlobalEditOneFields", "Edit Allowed Address", {"Allowed Address"}, {"our.example.org"}}));
    hub.store.log.clear();
    save(form);
    EXPECT_TRUE(sameBytes(blocked, golden("BlockedAddresses.save.tbl")));
    EXPECT_TRUE(sameBytes(allowed, golden("AllowedAddresses.save.tbl")));
    EXPECT_EQ(written(), (std::vector<std::string>{"AntiAdvertiseBlockedAddresses.tbl",
                                                   "AntiAdvertiseAllowedAddresses.tbl"}));
    discard(form);
    EXPECT_EQ(shown(list), (QStringList{"our.example.com"}));
    auto& blockedList = find<RowList>(form, "lvwBlockedAddresses");
    EXPECT_EQ(blockedList.model()->headerData(0, Qt::Horizontal), "Address");
    clickRow(blockedList, 1);
    const std::function<void()> ways[] = {[&form] { button(form, "EDIT", "tlbBlockedAddresses").trigger(); },
                                          [&blockedList] { doubleClickRow(blockedList, 1); }};
    for (const auto& edit : ways) {
        seen = entering({{{"x"}, "cmdCancel"}}, edit);
        ASSERT_EQ(seen.size(), 1);
        EXPECT_EQ(
            seen[0],
            (SeenDialog{"frmGlobalEditOneFields", "Edit Blocked Address", {"Blocked Address"}, {"no-ip"}}));
    }
    EXPECT_FALSE(isDirty(form));
}

TEST_F(AntiAdvertiseForms, EachMenuReachesItsOwnList)
{
    auto& form = open("Security~AntiAdvertise~Addresses");
    for (const auto& [menu, name, word] : {std::tuple("First", "lvwBlockedAddresses", "Blocked"),
                                           {"Second", "lvwAllowedAddresses", "Allowed"}}) {
        const auto routine = [&form, menu](const char* entry) {
            return form.routine(QStringLiteral("gMenu%1%2Click").arg(menu, entry));
        };
        auto& list = find<RowList>(form, name);
        auto seen = entering({{{"a"}, "cmdAdd"}, {{"b"}}}, routine("Add"));
        ASSERT_EQ(seen.size(), 2);
        EXPECT_EQ(seen[0].title, QStringLiteral("Add %1 Address").arg(word));
        clickRow(list, 1);
        seen = entering({{{"c"}}}, routine("Edit"));
        ASSERT_EQ(seen.size(), 1);
        EXPECT_EQ(seen[0].title, QStringLiteral("Edit %1 Address").arg(word));
        EXPECT_EQ(shown(list), (QStringList{"a", "c"}));
        clickRow(list, 0);
        EXPECT_EQ(answering(QMessageBox::Ok, routine("Delete")).size(), 1);
        EXPECT_EQ(shown(list), QStringList{"c"});
    }
}

TEST_F(AntiAdvertiseForms, ADeleteOfAnAllowedAddressAsksAndTakesTheSelectedOne)
{
    allowed = "tAntiAdvertiseAllowedAddresses = {\r\n\t\"a\",\r\n\t\"b\",\r\n\t\"c\",\r\n}\r\n";
    auto& form = open("Security~AntiAdvertise~Addresses");
    auto& list = find<RowList>(form, "lvwAllowedAddresses");
    clickRow(list, 1);
    const auto press = [&form] { button(form, "DELETE", "tlbAllowedAddresses").trigger(); };
    const auto boxes = answering(QMessageBox::Cancel, press);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Intro?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this File?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(shown(list), (QStringList{"a", "b", "c"}));
    EXPECT_FALSE(isDirty(form));
    answering(QMessageBox::Ok, press);
    EXPECT_EQ(shown(list), (QStringList{"a", "c"}));
    EXPECT_TRUE(isDirty(form));
}

TEST_F(AntiAdvertiseForms, ADeleteIsWordedAsThatOfTheIntrosAndTheLastAddressStays)
{
    blocked = golden("BlockedAddresses.save.tbl");
    allowed = golden("AllowedAddresses.save.tbl");
    auto& form = open("Security~AntiAdvertise~Addresses");
    clickRow(find<RowList>(form, "lvwBlockedAddresses"), 0);
    auto boxes =
        answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbBlockedAddresses").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Intro?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this File?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    for (const auto& [list, toolbar, text] :
         {std::tuple("lvwBlockedAddresses", "tlbBlockedAddresses",
                     "There must be a minimum of one Blocked Address"),
          {"lvwAllowedAddresses", "tlbAllowedAddresses", "There must be a minimum of one Allowed Address"}}) {
        find<RowList>(form, list).clearSelection(); // the only row needs no selection to be meant
        for (int time = 0; time < 2; ++time) {
            boxes = answering(QMessageBox::Ok, [&] { button(form, "DELETE", toolbar).trigger(); });
            ASSERT_EQ(boxes.size(), 1);
            EXPECT_EQ(boxes[0].title, "Cannot delete");
            EXPECT_EQ(boxes[0].text, text);
            EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
            EXPECT_EQ(find<RowList>(form, list).rows().size(), 1U);
            clickRow(find<RowList>(form, list), 0);
        }
    }
}

TEST_F(AntiAdvertiseForms, ARestoreClearsBothAddressListsAndASaveWritesThemEmpty)
{
    blocked = golden("BlockedAddresses.save.tbl");
    allowed = golden("AllowedAddresses.save.tbl");
    auto& form = open("Security~AntiAdvertise~Addresses");
    restore(form);
    EXPECT_TRUE(find<RowList>(form, "lvwBlockedAddresses").isEmpty());
    EXPECT_TRUE(find<RowList>(form, "lvwAllowedAddresses").isEmpty());
    for (const char* toolbar : {"tlbBlockedAddresses", "tlbAllowedAddresses"}) {
        EXPECT_FALSE(button(form, "EDIT", toolbar).isEnabled());
        EXPECT_FALSE(button(form, "DELETE", toolbar).isEnabled());
    }
    save(form);
    EXPECT_EQ(blocked, "tAntiAdvertiseBlockedAddresses = {\r\n}\r\n");
    EXPECT_EQ(allowed, "tAntiAdvertiseAllowedAddresses = {\r\n}\r\n");
}

} // namespace
} // namespace quillfen
