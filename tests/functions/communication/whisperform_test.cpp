#include "support/formtest.h"
#include "support/golden.h"
#include "support/lua.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QLineEdit>

namespace quillfen {
namespace {

using test::answering;
using test::LuaValues;
using test::luaValues;
using test::sameBytes;

/// The two forms that no node leads to.
class WhisperForms : public test::FormTest
{
protected:
    std::string& whisper = hub.file("Communication/Whisper/WhisperSettings.tbl");
    const char* hubEmail = "Communication/HubEmail/HubEmailSettings.tbl";

    static QLineEdit& inbox(EditorForm& form) { return find<QLineEdit>(form, "txtUpDown"); }

    static void type(EditorForm& form, const char* text)
    {
        inbox(form).selectAll();
        QTest::keyClicks(&inbox(form), text);
    }
};

TEST_F(WhisperForms, WhisperBearsTheKickSettingsLabel)
{
    auto& form = open("Communication~Whisper");
    EXPECT_EQ(form.objectName(), "frmCommunicationWhisper");
    EXPECT_EQ(form.windowTitle(), "Communication ~ Whisper");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox").text(), "Announce Kicked Return");
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox").isChecked());
    EXPECT_FALSE(isDirty(form));
}

TEST_F(WhisperForms, WhisperIsSaved)
{
    auto& form = open("Communication~Whisper");
    find<QCheckBox>(form, "chkCheckBox").click();
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(whisper, "tWhisperSettings = {\r\n\tbSendConfirmation = 0,\r\n}\r\n"));
    EXPECT_EQ(luaValues(whisper), (LuaValues{{"tWhisperSettings.bSendConfirmation", "0"}}));
}

TEST_F(WhisperForms, WhisperIsRestoredAndDiscarded)
{
    whisper = "tWhisperSettings = {\r\n\tbSendConfirmation = 0,\r\n}\r\n";
    const std::string before = whisper;
    auto& form = open("Communication~Whisper");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox").isChecked());
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(whisper, before);
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox").isChecked());
    EXPECT_FALSE(isDirty(form));
}

TEST_F(WhisperForms, HubEmailShowsWhatTheReaderGivesForNoFile)
{
    auto& form = open("Communication~HubEmail");
    EXPECT_EQ(form.objectName(), "frmCommunicationHubEmail");
    EXPECT_EQ(form.windowTitle(), "Communication ~ HubEmail");
    EXPECT_EQ(inbox(form).text(), "0");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Inbox Capacity");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(WhisperForms, HubEmailsFirstSaveMakesItsFolderAndKeepsWhatWasTypedBeyondTheRange)
{
    auto& form = open("Communication~HubEmail");
    type(form, "999");
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    ASSERT_TRUE(hub.has(hubEmail));
    EXPECT_TRUE(sameBytes(hub.file(hubEmail), "tHubEmailSettings = {\r\n\tiInboxSize = 999,\r\n}\r\n"));
    EXPECT_EQ(luaValues(hub.file(hubEmail)), (LuaValues{{"tHubEmailSettings.iInboxSize", "999"}}));
    type(form, "20");
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(hub.file(hubEmail), "tHubEmailSettings = {\r\n\tiInboxSize = 20,\r\n}\r\n"));
}

TEST_F(WhisperForms, TheInboxArrowsStayFrom0To250)
{
    auto& form = open("Communication~HubEmail");
    auto& arrows = find<QAbstractSpinBox>(form, "updUpDown");
    arrows.stepBy(999);
    EXPECT_EQ(inbox(form).text(), "250");
    arrows.stepBy(-999);
    EXPECT_EQ(inbox(form).text(), "0");
}

TEST_F(WhisperForms, HubEmailIsRestoredTo10AndNothingIsWritten)
{
    auto& form = open("Communication~HubEmail");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(inbox(form).text(), "10");
    EXPECT_TRUE(isDirty(form));
    EXPECT_FALSE(hub.has(hubEmail));
}

TEST_F(WhisperForms, AFolderThatCannotBeMadeIsToldAndTheFormStaysDirty)
{
    auto& form = open("Communication~HubEmail");
    type(form, "20");
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].text.toStdString(),
              test::native("Communication ~ HubEmail couldn't be saved. /hub/scripts/Morvaleth's "
                           "Quillfen/Settings/Communication/HubEmail: No space left on device. Nothing "
                           "that you typed is lost: mend it and save again."));
    EXPECT_EQ(inbox(form).text(), "20");
    EXPECT_TRUE(isDirty(form));
}

} // namespace
} // namespace quillfen
