#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"
#include "support/lua.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QLineEdit>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::golden;
using test::LuaValues;
using test::luaValues;
using test::sameBytes;
using test::SeenDialog;

/// Welcome settings, network hubs and clock.
class WelcomeForms : public test::FormTest
{
protected:
    static QLineEdit& box(EditorForm& form, const QString& name) { return find<QLineEdit>(form, name); }
    static QLineEdit& box(EditorForm& form, int at) { return box(form, QString("txtTextBox(%1)").arg(at)); }
    static RowList& enabled(EditorForm& form) { return find<RowList>(form, "lvwEnabledProfiles"); }
    static RowList& hubs(EditorForm& form) { return find<RowList>(form, "lvwHubs"); }
    static QAction& tool(EditorForm& form, const char* key) { return button(form, key, "tlbHubs"); }

    static void type(QLineEdit& line, const QString& text)
    {
        line.selectAll();
        QTest::keyClicks(&line, text);
    }

    static QStringList labels(EditorForm& form, int count)
    {
        QStringList all;
        for (int at = 0; at < count; ++at)
            all.append(find<QLabel>(form, QString("lblLabel(%1)").arg(at)).text());
        return all;
    }

    std::string& settings = hub.file("Communication/WelcomeInfo/WelcomeInfoSettings.tbl");
    std::string& hubsFile = hub.file("Communication/WelcomeInfo/WelcomeInfoNetworkHubs.tbl");
    std::string& clock = hub.file("Communication/Clock/ClockSettings.tbl");
};

TEST_F(WelcomeForms, TheSettingsShowTheirFile)
{
    settings = golden("communication/WelcomeInfoSettings.rebuild.tbl");
    auto& form = open("Communication~WelcomeInfo~Settings");
    EXPECT_EQ(form.objectName(), "frmCommunicationWelcomeInfoSettings");
    EXPECT_EQ(form.windowTitle(), "Communication ~ WelcomeInfo ~ Settings");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(0)").text(), "Show Operators");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(1)").text(), "Only Online Operators");
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(1)").isChecked());
    EXPECT_EQ(labels(form, 8),
              (QStringList{"Network Founder", "Network Name", "Network Founded Date", "Hub Owner",
                           "Hub Email", "Hublist Address", "Hub Web Site", "Enabled Profiles"}));
    QStringList values;
    for (int at = 0; at < 7; ++at)
        values.append(box(form, at).text());
    EXPECT_EQ(values, (QStringList{"Ann", "The Net", "1.4.2005", "Bea", "bea@example.com", "list.example.com",
                                   "www.example.com"}));
    EXPECT_EQ(form.findChild<QLineEdit*>("txtTextBox(7)"), nullptr);
    EXPECT_TRUE(enabled(form).rows()[1].checked);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(WelcomeForms, TheSettingsAreSavedInTheFormsOrderWithoutTheMinimumShare)
{
    settings =
        "tWelcomeInfoSettings = {\r\n\tsMinShare = \"1\",\r\n\tbShowOps = 1,\r\n\tbOnlyOnline = 1,\r\n}\r\n";
    auto& form = open("Communication~WelcomeInfo~Settings");
    const QStringList values = {
        "Ann", "The Net", "1.4.2005", "Bea", "bea@example.com", "list.example.com", "www.example.com"};
    for (int at = 0; at < 7; ++at)
        type(box(form, at), values[at]);
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    find<QCheckBox>(form, "chkCheckBox(1)").click();
    clickTick(enabled(form), 0);
    clickTick(enabled(form), 1);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("communication/WelcomeInfoSettings.save.tbl")));
    const auto seen = luaValues(settings);
    EXPECT_FALSE(seen.contains("tWelcomeInfoSettings.sMinShare"));
    EXPECT_EQ(seen.at("tWelcomeInfoSettings.sNetworkFounded"), "1.4.2005");
}

TEST_F(WelcomeForms, AQuoteIsWrittenAsItIsAndTheHubScriptCannotLoadIt)
{
    auto& form = open("Communication~WelcomeInfo~Settings");
    type(box(form, 3), "Bea \"B\" Z");
    button(form, "SAVE").trigger();
    EXPECT_NE(settings.find("\tsHubOwner = \"Bea \"B\" Z\",\r\n"), std::string::npos);
    EXPECT_THROW(luaValues(settings), std::runtime_error);
}

TEST_F(WelcomeForms, ARestoreClearsTheTextsTicksBothBoxesAndNoProfile)
{
    settings = golden("communication/WelcomeInfoSettings.save.tbl");
    const std::string before = settings;
    auto& form = open("Communication~WelcomeInfo~Settings");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    for (int at = 0; at < 7; ++at)
        EXPECT_EQ(box(form, at).text(), "");
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(1)").isChecked());
    for (const CellRow& row : enabled(form).rows())
        EXPECT_FALSE(row.checked);
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(settings, before);
}

TEST_F(WelcomeForms, HubsAreAddedEditedAndSavedWithTheirNumbers)
{
    auto& form = open("Communication~WelcomeInfo~NetworkHubs");
    EXPECT_EQ(form.objectName(), "frmCommunicationWelcomeInfoNetworkHubs");
    EXPECT_EQ(form.windowTitle(), "Communication ~ WelcomeInfo ~ NetworkHubs");
    EXPECT_EQ(hubs(form).accessibleName(), "Network Hubs");
    EXPECT_EQ(hubs(form).model()->headerData(0, Qt::Horizontal).toString(), "HubName");
    EXPECT_FALSE(tool(form, "DELETE").isEnabled());
    EXPECT_FALSE(tool(form, "EDIT").isEnabled());
    auto seen = entering({{{"one.example.com"}, "cmdAdd"}, {{"two"}, "cmdAdd"}, {{"three"}, "cmdOK"}},
                         [&form] { tool(form, "NEW").trigger(); });
    ASSERT_EQ(seen.size(), 3);
    EXPECT_EQ(seen[1], (SeenDialog{"frmGlobalEditOneFields", "Add Hub", {"Hub"}, {""}}));
    EXPECT_TRUE(isDirty(form));
    EXPECT_TRUE(tool(form, "EDIT").isEnabled());
    seen = entering({{{"two.example.com"}}}, [&form] { doubleClickRow(hubs(form), 1); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen[0], (SeenDialog{"frmGlobalEditOneFields", "Edit Hub", {"Hub"}, {"two"}}));
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(hubsFile, "tWelcomeInfoNetworkHubs = {\r\n\t[1] = \"one.example.com\",\r\n"
                                    "\t[2] = \"two.example.com\",\r\n\t[3] = \"three\",\r\n}\r\n"));
    EXPECT_EQ(luaValues(hubsFile).at("tWelcomeInfoNetworkHubs.2"), "two.example.com");
}

TEST_F(WelcomeForms, AHubsDeletionAsksInTheWordsOfOtherLists)
{
    hubsFile = "tWelcomeInfoNetworkHubs = {\r\n\t[1] = \"one\",\r\n\t[2] = \"two\",\r\n}\r\n";
    auto& form = open("Communication~WelcomeInfo~NetworkHubs");
    EXPECT_EQ(shown(hubs(form)), (QStringList{"one", "two"}));
    clickRow(hubs(form), 0);
    const auto boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Intro?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this File?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(hubsFile, "tWelcomeInfoNetworkHubs = {\r\n\t[1] = \"two\",\r\n}\r\n"));
}

TEST_F(WelcomeForms, ARestoreEmptiesTheHubsAndADiscardFillsThemOnce)
{
    hubsFile = "tWelcomeInfoNetworkHubs = {\r\n\t[1] = \"one\",\r\n}\r\n";
    auto& form = open("Communication~WelcomeInfo~NetworkHubs");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(hubs(form).isEmpty());
    EXPECT_FALSE(tool(form, "DELETE").isEnabled());
    EXPECT_TRUE(isDirty(form));
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(shown(hubs(form)), QStringList{"one"});
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(shown(hubs(form)), QStringList{"one"});
    EXPECT_FALSE(isDirty(form));
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(hubsFile, "tWelcomeInfoNetworkHubs = {\r\n}\r\n"));
}

TEST_F(WelcomeForms, TheClockIsEditedAndSaved)
{
    auto& form = open("Communication~Clock");
    EXPECT_EQ(form.objectName(), "frmCommunicationClock");
    EXPECT_EQ(form.windowTitle(), "Communication ~ Clock");
    EXPECT_EQ(labels(form, 4),
              (QStringList{"Display Delay", "Daylight Saving", "Standard", "Enabled Profiles"}));
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(0)").text(), "Enable Manual Control");
    EXPECT_EQ(box(form, "txtUpDown").text(), "60");
    EXPECT_FALSE(isDirty(form));
    type(box(form, "txtUpDown"), "300"); // beyond its arrows' range, and kept
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    type(box(form, 0), "CEST");
    type(box(form, 1), "CET");
    clickTick(enabled(form), 3);
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(clock, golden("communication/ClockSettings.save.tbl")));
    const auto values = luaValues(clock);
    EXPECT_EQ(values.at("tClockSettings.bManualControl"), "1");
    EXPECT_EQ(values.at("tClockSettings.sStandardTime"), "CET");
    EXPECT_EQ(values.at("tClockSettings.tEnabledProfiles.2"), "1");
}

TEST_F(WelcomeForms, TheClocksManualControlEnablesAndDisablesNothing)
{
    auto& form = open("Communication~Clock");
    for (int click = 0; click < 2; ++click) {
        find<QCheckBox>(form, "chkCheckBox(0)").click();
        for (const char* name : {"txtUpDown", "txtTextBox(0)", "txtTextBox(1)"})
            EXPECT_TRUE(box(form, QString(name)).isEnabled());
    }
}

TEST_F(WelcomeForms, TheClocksArrowsStayFrom0To250)
{
    auto& form = open("Communication~Clock");
    find<QAbstractSpinBox>(form, "updUpDown").stepBy(999);
    EXPECT_EQ(box(form, "txtUpDown").text(), "250");
    find<QAbstractSpinBox>(form, "updUpDown").stepBy(-999);
    EXPECT_EQ(box(form, "txtUpDown").text(), "0");
}

TEST_F(WelcomeForms, ARestoredClockShowsItsDefaultsAndStaysUnsaved)
{
    clock = golden("communication/ClockSettings.save.tbl");
    const std::string before = clock;
    auto& form = open("Communication~Clock");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(box(form, "txtUpDown").text(), "60");
    EXPECT_EQ(box(form, 0).text(), "BST");
    EXPECT_EQ(box(form, 1).text(), "GMT");
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_FALSE(enabled(form).rows()[3].checked);
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(clock, before);
}

} // namespace
} // namespace quillfen
