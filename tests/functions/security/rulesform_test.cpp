#include "functions/security/securityformtest.h"

#include <QMenu>
#include <QPlainTextEdit>

namespace quillfen {
namespace {

using test::withModal;

class RulesForm : public test::SecurityForms
{
protected:
    static RowList& list(EditorForm& form) { return find<RowList>(form, "lvwRules"); }

    /// Types a text into the text editor that an action opens, and saves it. Returns what the editor showed
    /// first.
    static QString writing(const QString& text, const std::function<void()>& action)
    {
        QString before = "no editor";
        withModal(action, [&](QWidget& modal) {
            EXPECT_EQ(modal.objectName(), "frmGlobalTextEdit");
            auto* edit = modal.findChild<QPlainTextEdit*>("txtTextBox");
            before = edit->toPlainText();
            edit->selectAll();
            QTest::keyClicks(edit, text);
            modal.findChild<QToolBar*>("tlbFormToolbar")->findChild<QAction*>("SAVE")->trigger();
            modal.close();
        });
        return before;
    }
};

TEST_F(RulesForm, EditsTheTextOfTheSelectedProfile)
{
    file("Rules/Ascii/2.asc") = "Be kind\r\nto bots\r\n";
    auto& form = open("Security~Rules");
    EXPECT_EQ(form.objectName(), "frmSecurityRules");
    EXPECT_EQ(form.windowTitle(), "Security ~ Rules");
    EXPECT_EQ(list(form).model()->headerData(0, Qt::Horizontal), "Profiles");
    EXPECT_EQ(shown(list(form)), (QStringList{"Unregistered", "Master", "Operator", "VIP"}));
    clickRow(list(form), 0);
    EXPECT_EQ(writing("Register", [&form] { button(form, "EDIT", "tlbListview").trigger(); }), "");
    EXPECT_EQ(file("Rules/Ascii/-1.asc"), "Register\r\n");
    clickRow(list(form), 3);
    EXPECT_EQ(writing("Welcome", [&form] { doubleClickRow(list(form), 3); }), "Be kind\nto bots");
    EXPECT_EQ(file("Rules/Ascii/2.asc"), "Welcome\r\n");
    clickRow(list(form), 1);
    EXPECT_EQ(writing("Rule", form.routine("gMenuEditClick")), "");
    EXPECT_EQ(file("Rules/Ascii/0.asc"), "Rule\r\n");
    EXPECT_FALSE(isDirty(form)) << "the texts are saved by their own editor";
}

TEST_F(RulesForm, ItsOwnSaveWritesNothingAndMakesItClean)
{
    auto& form = open("Security~Rules");
    restore(form);
    hub.store.log.clear();
    save(form);
    EXPECT_TRUE(hub.store.log.empty());
}

TEST_F(RulesForm, ADiscardMakesItCleanAlthoughItHoldsNoSettings)
{
    auto& form = open("Security~Rules");
    restore(form);
    discard(form, QMessageBox::Cancel);
    discard(form);
    EXPECT_EQ(shown(list(form)), (QStringList{"Unregistered", "Master", "Operator", "VIP"}));
}

} // namespace
} // namespace quillfen
