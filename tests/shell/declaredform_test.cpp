#include "declarations/declaration.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/tablefilepart.h"
#include "support/formtest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace quillfen {
namespace {

/// A form of one declared file with a control of each kind.
class DeclaredForm : public test::FormTest
{
protected:
    DeclaredForm()
    {
        standIn(DeclaredSettings{[this] { return file; }});
        hub.file("A.tbl") =
            "tSample = {\r\n\tbFlag = 1,\r\n\tiNumber = 77,\r\n\tsText = \"t\x80\",\r\n\tsEntry = \"%\",\r\n"
            "\ttEnabledProfiles = {\r\n\t\t[0] = 1,\r\n\t},\r\n}\r\n";
    }

    const TableFile file = {
        "A.tbl",
        "tSample",
        {setting::flag("bFlag", "chkCheckBox(0)", "Flag", false),
         setting::number("iNumber", "txtUpDown(0)", "Number", 5, 1, 50),
         setting::text("sText", "txtTextBox(0)", "Text", "x"),
         setting::entry("sEntry", "cboComboBox", "Entry", "+", {"+", "-"}),
         setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles")}};
};

TEST_F(DeclaredForm, LoadsEachControlFromOneReadingOfTheFile)
{
    hub.store.readings.clear();
    auto& form = open("Games~Anagrams");
    EXPECT_EQ(hub.store.readings[hub.root + "/A.tbl"], 1);
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown(0)").text(), "77");
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox(0)").text(), QStringLiteral(u"t\u20AC"));
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "%");
    EXPECT_EQ(find<RowList>(form, "lvwEnabledProfiles").rows(),
              (std::vector<CellRow>{{{"Unregistered"}}, {{"Master"}, true}, {{"Operator"}}, {{"VIP"}}}));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(DeclaredForm, EachChangeMakesItDirty)
{
    const auto dirtyAfter = [this](const std::function<void(EditorForm&)>& change) {
        auto& form = open("Games~Anagrams");
        EXPECT_FALSE(isDirty(form));
        change(form);
        const bool dirty = isDirty(form);
        test::answering(QMessageBox::Ok, [&form] { form.parentWidget()->close(); });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return dirty;
    };
    EXPECT_TRUE(dirtyAfter([](EditorForm& form) { find<QCheckBox>(form, "chkCheckBox(0)").click(); }));
    EXPECT_TRUE(
        dirtyAfter([](EditorForm& form) { QTest::keyClicks(&find<QLineEdit>(form, "txtUpDown(0)"), "1"); }));
    EXPECT_TRUE(dirtyAfter(
        [](EditorForm& form) { QTest::keyClick(&find<NumberBox>(form, "updUpDown(0)"), Qt::Key_Down); }));
    EXPECT_TRUE(
        dirtyAfter([](EditorForm& form) { QTest::keyClicks(&find<QLineEdit>(form, "txtTextBox(0)"), "y"); }));
    EXPECT_TRUE(
        dirtyAfter([](EditorForm& form) { find<QComboBox>(form, "cboComboBox").setCurrentIndex(1); }));
    EXPECT_TRUE(
        dirtyAfter([](EditorForm& form) { clickTick(find<RowList>(form, "lvwEnabledProfiles"), 0); }));
}

TEST_F(DeclaredForm, SavesWhatTheControlsHoldOutOfRangeNumbersIncluded)
{
    auto& form = open("Games~Anagrams");
    clickTick(find<RowList>(form, "lvwEnabledProfiles"), 3);
    button(form, "SAVE").trigger();
    EXPECT_EQ(
        hub.file("A.tbl"),
        "tSample = {\r\n\tbFlag = 1,\r\n\tiNumber = 77,\r\n\tsText = \"t\x80\",\r\n\tsEntry = \"%\",\r\n"
        "\ttEnabledProfiles = {\r\n\t\t[-1] = 0,\r\n\t\t[0] = 1,\r\n\t\t[1] = 0,\r\n\t\t[2] = "
        "1,\r\n\t},\r\n}\r\n");
    EXPECT_FALSE(isDirty(form));
    const std::string once = hub.file("A.tbl");
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    button(form, "SAVE").trigger();
    EXPECT_EQ(hub.file("A.tbl"), once);
}

TEST_F(DeclaredForm, AMissingFileLoadsAsEmptyWithANumberOfZero)
{
    hub.store.files.erase(hub.root + "/A.tbl");
    auto& form = open("Games~Anagrams");
    EXPECT_FALSE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown(0)").text(), "0");
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox(0)").text(), "");
}

TEST_F(DeclaredForm, EveryControlHasItsLabelAndAccessibleName)
{
    auto& form = open("Games~Anagrams");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(0)").text(), "Flag");
    const QList<QPair<const char*, const char*>> labels = {{"lblLabel(0)", "Number"},
                                                           {"lblLabel(1)", "Text"},
                                                           {"lblLabel(2)", "Entry"},
                                                           {"lblLabel(3)", "Enabled Profiles"}};
    for (const auto& [name, text] : labels) {
        auto& label = find<QLabel>(form, name);
        EXPECT_EQ(label.text(), text);
        ASSERT_TRUE(label.buddy());
        EXPECT_EQ(label.buddy()->accessibleName(), text);
    }
}

} // namespace
} // namespace quillfen
