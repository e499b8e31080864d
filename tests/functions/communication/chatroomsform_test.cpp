#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"
#include "support/lua.h"

#include <QCheckBox>
#include <QGroupBox>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::luaValues;
using test::sameBytes;

class ChatRoomsForm : public test::FormTest
{
protected:
    EditorForm& openForm() { return open("Communication~ChatRooms"); }
    static QCheckBox& box(EditorForm& form, const char* name) { return find<QCheckBox>(form, name); }

    static RowList& list(EditorForm& form, const QString& word)
    {
        return find<RowList>(form, "lvwEnabledProfiles" + word);
    }

    const QStringList words = {"Create", "Delete", "Suspend", "Members", "Default"};
    std::string& settings = hub.file("Communication/ChatRooms/ChatRoomSettings.tbl");
};

TEST_F(ChatRoomsForm, ShowsTheFileWithoutTheUnregistered)
{
    settings = golden("communication/ChatRoomSettings.save.tbl");
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmCommunicationChatRooms");
    EXPECT_EQ(form.windowTitle(), "Communication ~ ChatRooms");
    EXPECT_EQ(box(form, "chkDeleted").text(), "Deletion");
    EXPECT_EQ(box(form, "chkSuspended").text(), "Suspension");
    for (const char* name : {"chkDeleted", "chkSuspended"}) {
        const auto* frame = qobject_cast<QGroupBox*>(box(form, name).parentWidget());
        ASSERT_TRUE(frame);
        EXPECT_EQ(frame->title(), "Announce To Ops");
    }
    EXPECT_FALSE(box(form, "chkDeleted").isChecked());
    EXPECT_TRUE(box(form, "chkSuspended").isChecked());
    for (const QString& word : words) {
        EXPECT_EQ(shown(list(form, word)), (QStringList{"Master", "Operator", "VIP"}));
        EXPECT_EQ(list(form, word).accessibleName(), "Enabled Profiles - " + word);
        EXPECT_EQ(list(form, word).model()->headerData(0, Qt::Horizontal).toString(), "Enabled Profiles");
    }
    EXPECT_TRUE(list(form, "Default").rows()[0].checked);
    EXPECT_FALSE(list(form, "Default").rows()[1].checked);
    EXPECT_TRUE(list(form, "Members").rows()[2].checked);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(ChatRoomsForm, IsSavedInItsOwnOrder)
{
    auto& form = openForm();
    box(form, "chkDeleted").click();
    EXPECT_TRUE(isDirty(form));
    clickTick(list(form, "Create"), 1);
    clickTick(list(form, "Delete"), 2);
    clickTick(list(form, "Suspend"), 0);
    clickTick(list(form, "Suspend"), 1);
    clickTick(list(form, "Members"), 1);
    clickTick(list(form, "Members"), 2);
    clickTick(list(form, "Default"), 0);
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("communication/ChatRoomSettings.save.tbl")));
    const auto values = luaValues(settings);
    EXPECT_EQ(values.at("tChatRoomSettings.tAnnounce.bDeleted"), "0");
    EXPECT_EQ(values.at("tChatRoomSettings.tEnabledProfiles.0"), "1");
    EXPECT_EQ(values.at("tChatRoomSettings.tEnabledProfilesCreate.0"), "0");
    EXPECT_EQ(values.size(), 17U);
}

TEST_F(ChatRoomsForm, ATickAloneMakesItDirty)
{
    auto& form = openForm();
    clickTick(list(form, "Members"), 0);
    EXPECT_TRUE(isDirty(form));
}

TEST_F(ChatRoomsForm, ARestoreTicksBothBoxesAndNoProfileAndLeavesTheFile)
{
    settings = golden("communication/ChatRoomSettings.save.tbl");
    const std::string before = settings;
    auto& form = openForm();
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(box(form, "chkDeleted").isChecked());
    EXPECT_TRUE(box(form, "chkSuspended").isChecked());
    for (const QString& word : words) {
        for (const CellRow& row : list(form, word).rows())
            EXPECT_FALSE(row.checked);
    }
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(settings, before);
}

TEST_F(ChatRoomsForm, AHubWithoutProfilesShowsEmptyLists)
{
    hub.profiles = {};
    auto& form = openForm();
    EXPECT_TRUE(list(form, "Default").isEmpty());
}

} // namespace
} // namespace quillfen
