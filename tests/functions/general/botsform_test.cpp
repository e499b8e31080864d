#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::sameBytes;

class BotsForm : public test::FormTest
{
protected:
    static RowList& list(EditorForm& form) { return find<RowList>(form, "lvwBots"); }

    static void typeBot(QWidget& dialog, const QStringList& values)
    {
        for (int field = 0; field < values.size(); ++field)
            find<QLineEdit>(dialog, QString("txtTextBox(%1)").arg(field)).setText(values[field]);
        find<QPushButton>(dialog, "cmdOK").click();
    }

    std::string& settings = hub.file("General/Bots/BotSettings.tbl");
    std::string& bots = hub.file("General/Bots/Bots.tbl");
};

TEST_F(BotsForm, ShowsEveryFunctionWithItsBot)
{
    auto& form = open("General~Bots");
    EXPECT_EQ(form.objectName(), "frmGeneralBots");
    EXPECT_EQ(form.windowTitle(), "General ~ Bots");
    EXPECT_EQ(find<QCheckBox>(form, "chkNotifyOps").text(), "Notify Ops of change");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Enabled Profiles");
    EXPECT_EQ(find<RowList>(form, "lvwAllowedProfiles").rows().size(), 4U);
    EXPECT_EQ(shown(list(form)).size(), 57);
    EXPECT_EQ(
        shown(list(form))[1],
        QStringLiteral(
            u"ChatRooms|\u2022CommunicationBot\u2022|\u2022Communication Bot\u2022|quillfen@example.com"));
    QStringList keys;
    for (auto* action : find<QToolBar>(form, "tlbBots").actions())
        keys.append(action->objectName());
    EXPECT_EQ(keys, QStringList{"EDIT"}); // the list is fixed
}

TEST_F(BotsForm, EditsABotAndSavesSettingsBeforeBots)
{
    auto& form = open("General~Bots");
    clickRow(list(form), rowOf(list(form), "Mute"));
    test::withModal([&form] { button(form, "EDIT", "tlbBots").trigger(); },
                    [](QWidget& dialog) {
                        EXPECT_EQ(dialog.objectName(), "frmGlobalEditThreeFields");
                        EXPECT_EQ(dialog.windowTitle(), "Edit Bot");
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(0)").text(), "Mute Bot");
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(1)").text(), "Description");
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(2)").text(), "Email");
                        EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(2)").text(), "quillfen@example.com");
                        typeBot(dialog, {"Hush", "keeps quiet", ""}); // only the nick is required
                    });
    EXPECT_TRUE(isDirty(form));
    find<QCheckBox>(form, "chkNotifyOps").click();
    clickTick(find<RowList>(form, "lvwAllowedProfiles"), 1);
    hub.store.log.clear();
    button(form, "SAVE").trigger();
    EXPECT_EQ(hub.store.log, (std::vector<std::string>{"write " + hub.root + "/General/Bots/BotSettings.tbl",
                                                       "write " + hub.root + "/General/Bots/Bots.tbl"}));
    EXPECT_TRUE(sameBytes(
        settings, "tBotSettings = {\r\n\tbNotifyOps = 1,\r\n\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n"
                  "\t\t[0] = 1,\r\n\t\t[1] = 0,\r\n\t\t[2] = 0,\r\n\t},\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(bots, golden("general/Bots.save.tbl")));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(BotsForm, ADoubleClickAndTheBorrowedMenuEditToo)
{
    auto& form = open("General~Bots");
    test::withModal([&form] { doubleClickRow(list(form), 0); },
                    [](QWidget& dialog) {
                        typeBot(dialog, {"One", "d", "e"});
                    });
    EXPECT_EQ(shown(list(form))[0], "Main|One|d|e");
    test::withModal([this] { find<QAction>(window(), "mnuBotsEdit").trigger(); },
                    [](QWidget& dialog) {
                        typeBot(dialog, {"Two", "d", "e"});
                    });
    EXPECT_EQ(shown(list(form))[0], "Main|Two|d|e");
}

TEST_F(BotsForm, TheDeleteKeyDeletesNoBot)
{
    auto& form = open("General~Bots");
    clickRow(list(form), 0);
    EXPECT_TRUE(
        answering(QMessageBox::Ok, [&form] { QTest::keyClick(&list(form), Qt::Key_Delete); }).isEmpty());
    EXPECT_EQ(list(form).rows().size(), 57U);
}

TEST_F(BotsForm, ARestoreGivesEveryGroupItsBotBackAndNobodyTheCommand)
{
    const std::string fresh = settings;
    settings =
        "tBotSettings = {\r\n\tbNotifyOps = 1,\r\n\ttEnabledProfiles = {\r\n\t\t[0] = 1,\r\n\t},\r\n}\r\n";
    bots = golden("general/Bots.save.tbl");
    // A stored group is no group's default.
    bots.replace(bots.find("sFunction = \"Security\""), 22, "sFunction = \"Games\"");
    auto& form = open("General~Bots");
    EXPECT_EQ(shown(list(form))[rowOf(list(form), "Mute")], "Mute|Hush|keeps quiet|");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(shown(list(form))[rowOf(list(form), "Mute")],
              QStringLiteral(
                  u"Mute|\u2022CommunicationBot\u2022|\u2022Communication Bot\u2022|quillfen@example.com"));
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(bots, golden("general/Bots.build.tbl")));
    EXPECT_TRUE(sameBytes(settings, fresh));
}

} // namespace
} // namespace quillfen
