#include "functions/security/securityformtest.h"
#include "support/dialogs.h"

#include <QCheckBox>
#include <QComboBox>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::Entry;
using test::sameBytes;
using test::SeenDialog;

class BlockerForms : public test::SecurityForms
{
protected:
    std::string& nicks = file("BadNickBlocker/BadNickBlockerNickList.tbl");
    std::string& users = file("CloneBlocker/CloneBlockerExemptUsers.tbl");
    std::string& virus = file("AntiVirus/AntiVirusSettings.tbl");

    static QComboBox& action(EditorForm& form) { return find<QComboBox>(form, "cboComboBox"); }
};

TEST_F(BlockerForms, EachOffersTheSixActionsAndTheRangeOfATimeBan)
{
    for (const char* key : {"Security~BadNickBlocker", "Security~CloneBlocker", "Security~AntiVirus"}) {
        auto& form = open(key);
        EXPECT_EQ(text(form, "lblLabel(0)"), "TimeBan") << key;
        EXPECT_EQ(text(form, "lblLabel(1)"), "Action") << key;
        EXPECT_EQ(entries(action(form)),
                  (QStringList{"Disconnect", "Warn", "Notify Ops", "Kick", "TempBan", "Ban"}))
            << key;
        EXPECT_EQ(range(form, "updUpDown"), (std::pair<std::string, std::string>("5", "1440"))) << key;
    }
}

TEST_F(BlockerForms, TheBadNickFormSavesBothFiles)
{
    auto& form = open("Security~BadNickBlocker");
    EXPECT_EQ(form.objectName(), "frmSecurityBadNickBlocker");
    EXPECT_EQ(form.windowTitle(), "Security ~ BadNickBlocker");
    EXPECT_EQ(text(form, "lblLabel(2)"), "Exempt Profiles");
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "60");
    EXPECT_EQ(action(form).currentText(), "TempBan");
    type(form, "txtUpDown", "90");
    action(form).setCurrentText("Ban");
    tick(form, "lvwExemptProfiles", {1, 3});
    const auto seen = entering({{{"root"}, "cmdAdd"}, {{"ad min"}, "cmdAdd"}, {{"bot"}, "cmdOK"}},
                               [&form] { button(form, "NEW", "tlbListview").trigger(); });
    ASSERT_EQ(seen.size(), 3);
    EXPECT_EQ(seen[2], (SeenDialog{"frmGlobalEditOneFields", "Add Bad Nick", {"Bad Nick"}, {""}}));
    EXPECT_EQ(shown(find<RowList>(form, "lvwBadNickList")), (QStringList{"root", "ad min", "bot"}));
    save(form);
    EXPECT_TRUE(sameBytes(file("BadNickBlocker/BadNickBlockerSettings.tbl"), golden("BadNick.save.tbl")));
    EXPECT_TRUE(sameBytes(nicks, golden("BadNickList.save.tbl")));
}

TEST_F(BlockerForms, TheBadNicksShowWithoutNumbersAndCloseUpAfterADelete)
{
    nicks = golden("BadNickList.save.tbl");
    auto& form = open("Security~BadNickBlocker");
    auto& list = find<RowList>(form, "lvwBadNickList");
    EXPECT_EQ(shown(list), (QStringList{"root", "ad min", "bot"}));
    EXPECT_EQ(list.model()->headerData(0, Qt::Horizontal), "Nick");
    EXPECT_EQ(labelOf(form, "lvwBadNickList"), "Bad Nicks");
    clickRow(list, 1);
    auto boxes = answering(QMessageBox::Cancel, [&form] { button(form, "DELETE", "tlbListview").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Bad Nick?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Bad Nick?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(list.rows().size(), 3U);
    answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbListview").trigger(); });
    save(form);
    EXPECT_EQ(nicks, "tBadNickBlockerNickList = {\r\n\t[1] = \"root\",\r\n\t[2] = \"bot\",\r\n}\r\n");
}

TEST_F(BlockerForms, TheLastBadNickMayGo)
{
    nicks = "tBadNickBlockerNickList = {\r\n\t[1] = \"root\",\r\n}\r\n";
    auto& form = open("Security~BadNickBlocker");
    clickRow(find<RowList>(form, "lvwBadNickList"), 0);
    answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbListview").trigger(); });
    EXPECT_FALSE(button(form, "DELETE", "tlbListview").isEnabled());
    EXPECT_FALSE(button(form, "EDIT", "tlbListview").isEnabled());
    save(form);
    EXPECT_EQ(nicks, "tBadNickBlockerNickList = {\r\n}\r\n");
}

TEST_F(BlockerForms, ADoubleClickAndTheButtonEditABadNick)
{
    nicks = golden("BadNickList.save.tbl");
    auto& form = open("Security~BadNickBlocker");
    auto& list = find<RowList>(form, "lvwBadNickList");
    clickRow(list, 1);
    const auto seen = entering({{{"admin"}}}, [&list] { doubleClickRow(list, 1); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen[0], (SeenDialog{"frmGlobalEditOneFields", "Edit Bad Nick", {"Bad Nick"}, {"ad min"}}));
    EXPECT_EQ(shown(list), (QStringList{"root", "admin", "bot"}));
    EXPECT_TRUE(isDirty(form));
    clickRow(list, 2);
    entering({{{"robot"}}}, [&form] { button(form, "EDIT", "tlbListview").trigger(); });
    EXPECT_EQ(shown(list), (QStringList{"root", "admin", "robot"}));
}

TEST_F(BlockerForms, ARestoreSetsTimeAndActionAndLeavesTheLists)
{
    file("BadNickBlocker/BadNickBlockerSettings.tbl") = golden("BadNick.save.tbl");
    nicks = golden("BadNickList.save.tbl");
    file("CloneBlocker/CloneBlockerSettings.tbl") = golden("Clone.save.tbl");
    users = golden("CloneUsers.save.tbl");
    virus = golden("AntiVirus.save.tbl");
    auto& nick = open("Security~BadNickBlocker");
    restore(nick);
    EXPECT_EQ(action(nick).currentText(), "TempBan");
    EXPECT_EQ(find<QLineEdit>(nick, "txtUpDown").text(), "60");
    EXPECT_EQ(ticks(nick, "lvwExemptProfiles"), "0101");
    EXPECT_EQ(find<RowList>(nick, "lvwBadNickList").rows().size(), 3U);
    auto& clone = open("Security~CloneBlocker");
    restore(clone);
    EXPECT_EQ(action(clone).currentText(), "TempBan");
    EXPECT_EQ(find<QLineEdit>(clone, "txtUpDown").text(), "60");
    EXPECT_EQ(ticks(clone, "lvwEnabledProfiles"), "1000");
    EXPECT_EQ(ticks(clone, "lvwExemptProfiles"), "0010");
    EXPECT_EQ(find<RowList>(clone, "lvwExemptUsers").rows().size(), 2U);
    auto& antiVirus = open("Security~AntiVirus");
    find<QCheckBox>(antiVirus, "chkCheckBox").click();
    restore(antiVirus);
    EXPECT_EQ(action(antiVirus).currentText(), "Disconnect");
    EXPECT_EQ(find<QLineEdit>(antiVirus, "txtUpDown").text(), "60");
    EXPECT_TRUE(find<QCheckBox>(antiVirus, "chkCheckBox").isChecked());
}

TEST_F(BlockerForms, TheCloneFormSavesBothFiles)
{
    auto& form = open("Security~CloneBlocker");
    EXPECT_EQ(form.objectName(), "frmSecurityCloneBlocker");
    EXPECT_EQ(form.windowTitle(), "Security ~ CloneBlocker");
    EXPECT_EQ(text(form, "lblLabel(2)"), "Enabled Profiles");
    EXPECT_EQ(text(form, "lblLabel(3)"), "Exempt Profiles");
    type(form, "txtUpDown", "5");
    action(form).setCurrentText("Notify Ops");
    tick(form, "lvwEnabledProfiles", {0});
    tick(form, "lvwExemptProfiles", {2});
    const auto seen =
        entering({{{"Ann"}, "cmdAdd"}, {{"bob"}}}, [&form] { button(form, "NEW", "tlbListview").trigger(); });
    ASSERT_EQ(seen.size(), 2);
    EXPECT_EQ(seen[0], (SeenDialog{"frmGlobalEditOneFields", "Add Exempt User", {"Exempt User"}, {""}}));
    auto& list = find<RowList>(form, "lvwExemptUsers");
    EXPECT_EQ(list.model()->headerData(0, Qt::Horizontal), "User");
    EXPECT_EQ(labelOf(form, "lvwExemptUsers"), "Exempt Users");
    clickRow(list, 1);
    const auto edited = entering({{{"Bob"}}}, [&form] { button(form, "EDIT", "tlbListview").trigger(); });
    ASSERT_EQ(edited.size(), 1);
    EXPECT_EQ(edited[0],
              (SeenDialog{"frmGlobalEditOneFields", "Edit Exempt User", {"Exempt User"}, {"bob"}}));
    save(form);
    EXPECT_TRUE(sameBytes(file("CloneBlocker/CloneBlockerSettings.tbl"), golden("Clone.save.tbl")));
    EXPECT_TRUE(sameBytes(users, golden("CloneUsers.save.tbl")));
    const auto boxes =
        answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbListview").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Exempt User?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Exempt User?");
    discard(form);
    EXPECT_EQ(shown(list), (QStringList{"Ann", "Bob"}));
    for (int time = 0; time < 2; ++time) {
        clickRow(list, 0);
        answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbListview").trigger(); });
    }
    save(form);
    EXPECT_EQ(users, "tCloneBlockerExemptUsers = {\r\n}\r\n") << "the last one may go";
}

TEST_F(BlockerForms, TheAntiVirusNotificationIsNeitherReadNorWrittenAndOnlyMakesTheFormDirty)
{
    virus = "tAntiVirusSettings = {\r\n\tbSendNotification = 1,\r\n\tsAction = \"D\",\r\n}\r\n";
    auto& form = open("Security~AntiVirus");
    EXPECT_EQ(form.objectName(), "frmSecurityAntiVirus");
    EXPECT_EQ(form.windowTitle(), "Security ~ AntiVirus");
    auto& box = find<QCheckBox>(form, "chkCheckBox");
    EXPECT_EQ(box.text(), "Send Notification");
    EXPECT_FALSE(box.isChecked());
    box.click();
    EXPECT_TRUE(isDirty(form));
    type(form, "txtUpDown", "61");
    action(form).setCurrentText("Warn");
    save(form);
    EXPECT_TRUE(sameBytes(virus, golden("AntiVirus.save.tbl")));
    EXPECT_TRUE(box.isChecked());
    discard(form);
    EXPECT_TRUE(box.isChecked());
}

TEST_F(BlockerForms, AnUnknownLetterLeavesTheActionEmptyAndNoLetterLeavesItAtKick)
{
    virus = "tAntiVirusSettings = {\r\n\tsAction = \"x\",\r\n}\r\n";
    auto& form = open("Security~AntiVirus");
    EXPECT_EQ(action(form).currentText(), "");
    virus = "tAntiVirusSettings = {\r\n}\r\n";
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(action(form).currentText(), "Kick");
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "0");
}

} // namespace
} // namespace quillfen
