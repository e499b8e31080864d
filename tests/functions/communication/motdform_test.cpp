#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"
#include "support/lua.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::luaValues;
using test::sameBytes;

class MotdForm : public test::FormTest
{
protected:
    EditorForm& openForm() { return open("Communication~MOTD"); }
    static RowList& list(EditorForm& form) { return find<RowList>(form, "lvwMOTD"); }
    static QAction& tool(EditorForm& form, const char* key) { return button(form, key, "tlbMOTD"); }

    std::string& settings = hub.file("Communication/MOTD/MOTDSettings.tbl");
};

TEST_F(MotdForm, ShowsTheProfilesAndAllInBold)
{
    settings = golden("communication/MOTDSettings.save.tbl");
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmCommunicationMOTD");
    EXPECT_EQ(form.windowTitle(), "Communication ~ MOTD");
    EXPECT_EQ(shown(list(form)),
              (QStringList{"Unregistered|PM", "Master|Main", "Operator|Main", "VIP|PM", "All|Main"}));
    QStringList state;
    for (int row = 0; row < 5; ++row) {
        const auto index = list(form).model()->index(row, 0);
        state.append(index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? "on" : "off");
        EXPECT_EQ(index.data(Qt::FontRole).value<QFont>().bold(), row == 4);
    }
    EXPECT_EQ(state, (QStringList{"on", "off", "on", "off", "on"}));
    EXPECT_EQ(list(form).model()->headerData(0, Qt::Horizontal).toString(), "Profile Active");
    EXPECT_EQ(list(form).model()->headerData(1, Qt::Horizontal).toString(), "Send To");
    EXPECT_EQ(find<QToolBar>(form, "tlbFormToolbar").findChild<QAction*>("RESTORE"), nullptr);
    QStringList keys;
    for (const auto* action : find<QToolBar>(form, "tlbMOTD").actions())
        keys.append(action->objectName());
    EXPECT_EQ(keys, (QStringList{"EDIT", "AMEND"}));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(MotdForm, ShowsAFileOfARebuildAlike)
{
    settings = golden("communication/MOTDSettings.rebuild.tbl");
    auto& form = openForm();
    EXPECT_EQ(shown(list(form)),
              (QStringList{"Unregistered|PM", "Master|Main", "Operator|Main", "VIP|PM", "All|PM"}));
}

TEST_F(MotdForm, ReadsItsFileOnce)
{
    hub.store.readings.clear();
    openForm();
    EXPECT_EQ(hub.store.readings[hub.root + "/Communication/MOTD/MOTDSettings.tbl"], 1);
}

TEST_F(MotdForm, TicksAndTogglesAreSaved)
{
    auto& form = openForm();
    for (const int row : {0, 2, 4})
        clickTick(list(form), row);
    EXPECT_TRUE(isDirty(form));
    for (const int row : {1, 4}) {
        clickRow(list(form), row);
        tool(form, "EDIT").trigger();
        EXPECT_EQ(list(form).currentRow(), row);
    }
    doubleClickRow(list(form), 2);
    doubleClickRow(list(form), 3);
    doubleClickRow(list(form), 3);
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("communication/MOTDSettings.save.tbl")));
    const auto values = luaValues(settings);
    EXPECT_EQ(values.at("tMOTDSettings.tByProfile.-1.bUse"), "1");
    EXPECT_EQ(values.at("tMOTDSettings.tByProfile.0.bInMain"), "1");
    EXPECT_EQ(values.at("tMOTDSettings.tAll.bInMain"), "1");
    EXPECT_EQ(values.size(), 10U);
}

TEST_F(MotdForm, AToggleAloneMakesItDirtyAndADiscardTakesItBack)
{
    auto& form = openForm();
    clickRow(list(form), 0);
    tool(form, "EDIT").trigger();
    EXPECT_EQ(shown(list(form))[0], "Unregistered|Main");
    EXPECT_TRUE(isDirty(form));
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(shown(list(form)),
              (QStringList{"Unregistered|PM", "Master|PM", "Operator|PM", "VIP|PM", "All|PM"}));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(MotdForm, AmendOpensTheTextOfTheRowAndLeavesTheFormClean)
{
    auto& form = openForm();
    const std::pair<int, const char*> files[] = {{0, "-1"}, {3, "2"}, {4, "all"}};
    for (const auto& [row, name] : files) {
        clickRow(list(form), row);
        const std::string file = std::string("Communication/MOTD/MOTDs/") + name + ".asc";
        test::withModal([&form] { tool(form, "AMEND").trigger(); },
                        [name = name](QWidget& dialog) {
                            EXPECT_EQ(dialog.objectName(), "frmGlobalTextEdit");
                            EXPECT_EQ(find<QLineEdit>(dialog, "txtPath").text(),
                                      QString(R"(Communication\MOTD\MOTDs\%1.asc)").arg(name));
                            find<QPlainTextEdit>(dialog, "txtTextBox").setPlainText("Welcome");
                            find<QAction>(dialog, "SAVE").trigger();
                            dialog.close();
                        });
        EXPECT_EQ(hub.file(file), "Welcome\r\n");
    }
    EXPECT_FALSE(isDirty(form));
}

TEST_F(MotdForm, NothingSelectedIsNothingDone)
{
    auto& form = openForm();
    find<RowList>(form, "lvwMOTD").clearSelection();
    tool(form, "EDIT").trigger();
    tool(form, "AMEND").trigger();
    EXPECT_FALSE(isDirty(form));
}

} // namespace
} // namespace quillfen
