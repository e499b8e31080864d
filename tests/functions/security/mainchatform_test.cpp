#include "functions/security/securityformtest.h"

#include <QPlainTextEdit>

namespace quillfen {
namespace {

using test::sameBytes;
using test::withModal;

class MainChatForms : public test::SecurityForms
{
};

TEST_F(MainChatForms, TheBlockFormShowsItsFileAndSavesInItsOwnOrder)
{
    auto& form = open("Security~MainBlock");
    EXPECT_EQ(form.objectName(), "frmSecurityMainBlock");
    EXPECT_EQ(form.windowTitle(), "Security ~ MainBlock");
    EXPECT_EQ(text(form, "lblLabel(0)"), "Temporary Block Time");
    EXPECT_EQ(text(form, "lblLabel(1)"), "Enabled Profiles");
    EXPECT_EQ(text(form, "lblLabel(2)"), "Exempt Profiles");
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "10");
    EXPECT_EQ(shown(find<RowList>(form, "lvwExemptProfiles")),
              (QStringList{"Unregistered", "Master", "Operator", "VIP"}));
    EXPECT_FALSE(isDirty(form));
    tick(form, "lvwEnabledProfiles", {1, 2});
    tick(form, "lvwExemptProfiles", {3});
    type(form, "txtUpDown", "2000"); // beyond the arrows' range, and written as typed
    save(form);
    EXPECT_TRUE(sameBytes(file("MainBlock/MainBlockSettings.tbl"), golden("MainBlock.save.tbl")));
    EXPECT_EQ(range(form, "updUpDown"), (std::pair<std::string, std::string>("5", "1440")));
    discard(form);
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "2000");
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0110");
}

TEST_F(MainChatForms, AnEmptiedBlockTimeIsSavedAsItIsTyped)
{
    auto& form = open("Security~MainBlock");
    find<QLineEdit>(form, "txtUpDown").clear();
    save(form);
    EXPECT_NE(file("MainBlock/MainBlockSettings.tbl").find("\tiBlockTime = ,\r\n"), std::string::npos);
}

TEST_F(MainChatForms, ARestoreOfTheBlockUnticksAllAndSetsTheTime)
{
    file("MainBlock/MainBlockSettings.tbl") = golden("MainBlock.save.tbl");
    auto& form = open("Security~MainBlock");
    restore(form);
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "10");
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
    EXPECT_EQ(ticks(form, "lvwExemptProfiles"), "0000");
    EXPECT_TRUE(sameBytes(file("MainBlock/MainBlockSettings.tbl"), golden("MainBlock.save.tbl")));
}

TEST_F(MainChatForms, TheLockFormSavesAndRestoresBothLists)
{
    auto& form = open("Security~MainLock");
    EXPECT_EQ(form.objectName(), "frmSecurityMainLock");
    EXPECT_EQ(form.windowTitle(), "Security ~ MainLock");
    EXPECT_EQ(labelOf(form, "lvwEnabledProfiles"), "Enabled Profiles");
    EXPECT_EQ(labelOf(form, "lvwExemptProfiles"), "Exempt Profiles");
    tick(form, "lvwEnabledProfiles", {0});
    EXPECT_TRUE(isDirty(form));
    tick(form, "lvwExemptProfiles", {2, 3});
    save(form);
    EXPECT_TRUE(sameBytes(file("MainLock/MainLockSettings.tbl"), golden("MainLock.save.tbl")));
    restore(form);
    save(form);
    EXPECT_TRUE(sameBytes(file("MainLock/MainLockSettings.tbl"), golden("MainLock.build.tbl")));
}

TEST_F(MainChatForms, TheCleanerFormSavesItsList)
{
    auto& form = open("Security~MainCleaner");
    EXPECT_EQ(form.objectName(), "frmSecurityMainCleaner");
    EXPECT_EQ(form.windowTitle(), "Security ~ MainCleaner");
    EXPECT_EQ(labelOf(form, "lvwEnabledProfiles"), "Enabled Profiles");
    tick(form, "lvwEnabledProfiles", {1});
    save(form);
    EXPECT_TRUE(sameBytes(file("MainCleaner/MainCleanerSettings.tbl"), golden("MainCleaner.save.tbl")));
    restore(form);
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
}

TEST_F(MainChatForms, TheCleanersTextIsSavedByItsOwnEditor)
{
    auto& form = open("Security~MainCleaner");
    withModal([&form] { button(form, "EDIT", "tlbListview").trigger(); },
              [](QWidget& modal) {
                  EXPECT_EQ(modal.objectName(), "frmGlobalTextEdit");
                  auto* edit = modal.findChild<QPlainTextEdit*>("txtTextBox");
                  EXPECT_EQ(edit->toPlainText(), "Cleaned");
                  edit->selectAll();
                  QTest::keyClicks(edit, "Swept");
                  modal.findChild<QToolBar*>("tlbFormToolbar")->findChild<QAction*>("SAVE")->trigger();
                  modal.close();
              });
    EXPECT_EQ(file("MainCleaner/MainCleaner.asc"), "Swept\r\n");
    EXPECT_FALSE(isDirty(form));
}

} // namespace
} // namespace quillfen
