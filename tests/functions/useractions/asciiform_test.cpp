#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QCheckBox>
#include <QPlainTextEdit>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::sameBytes;
using test::SeenDialog;

const QStringList pictureLabels = {"Filename", "Display Name", "Right Click Menu"};

class AsciiForm : public test::FormTest
{
protected:
    std::string& settings = hub.file("UserActions/Ascii/AsciiSettings.tbl");
    std::string& index = hub.file("UserActions/Ascii/AsciiIndex.tbl");

    static RowList& pictures(EditorForm& form) { return find<RowList>(form, "lvwAscii"); }

    /// Presses a button of the list, fills the dialog and draws the picture; a null drawing leaves the
    /// picture's editor without a save.
    QStringList drawing(EditorForm& form, const char* key, const QStringList& fields, const QString& drawing)
    {
        QStringList seen;
        test::withModal([&] { button(form, key, "tlbFiles").trigger(); },
                        [&](QWidget& modal) {
                            seen.append(modal.objectName() + '|' + modal.windowTitle());
                            if (modal.objectName() == "frmGlobalTextEdit") {
                                seen.append(find<QLineEdit>(modal, "txtPath").text());
                                draw(modal, drawing);
                            } else if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                                seen.append(box->text());
                                box->close();
                            } else {
                                for (int field = 0; field < fields.size(); ++field)
                                    test::fillField(test::fieldOf(modal, field), fields[field]);
                                find<QPushButton>(modal, "cmdOK").click();
                            }
                        });
        return seen;
    }

    static void draw(QWidget& editor, const QString& drawing)
    {
        if (!drawing.isNull()) {
            find<QPlainTextEdit>(editor, "txtTextBox").setPlainText(drawing);
            find<QAction>(find<QToolBar>(editor, "tlbFormToolbar"), "SAVE").trigger();
        }
        editor.close();
    }
};

TEST_F(AsciiForm, ShowsItsFiles)
{
    settings = golden("useractions/AsciiSettings.save.tbl");
    index = golden("useractions/AsciiIndex.save.tbl");
    auto& form = open("UserActions~Ascii");
    EXPECT_EQ(form.objectName(), "frmUserActionsAscii");
    EXPECT_EQ(form.windowTitle(), "User Actions ~ Ascii");
    const QList<QPair<const char*, bool>> flags = {
        {"Show In Main", false}, {"Show In Main To All", true}, {"Enable No Command", false}};
    for (int at = 0; at < 3; ++at) {
        auto& box = find<QCheckBox>(form, QStringLiteral("chkCheckBox(%1)").arg(at));
        EXPECT_EQ(box.text(), flags[at].first);
        EXPECT_EQ(box.isChecked(), flags[at].second);
    }
    EXPECT_EQ(find<RowList>(form, "lvwEnabledProfiles").rows(),
              (std::vector<CellRow>{{{"Unregistered"}}, {{"Master"}, true}, {{"Operator"}}, {{"VIP"}}}));
    EXPECT_EQ(
        find<RowList>(form, "lvwEnabledRCs").rows(),
        (std::vector<CellRow>{{{"Unregistered"}, true}, {{"Master"}}, {{"Operator"}}, {{"VIP"}, true}}));
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Enabled Profiles");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(1)").text(), "Enabled Right Clicks");
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(pictures(form).model()->headerData(column, Qt::Horizontal), pictureLabels[column]);
    EXPECT_EQ(shown(pictures(form)), (QStringList{"owl|Old Owl|Birds", "cat|Cat|Beasts"}));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(AsciiForm, ANewPictureIsDrawnAndSavedWithItsRow)
{
    auto& form = open("UserActions~Ascii");
    EXPECT_EQ(drawing(form, "NEW", {"owl", "Old Owl", "Birds"}, "(o,o)"),
              (QStringList{"frmGlobalEditThreeFields|Add Ascii", "frmGlobalTextEdit|Global Text Edit",
                           R"(UserActions\Ascii\Ascii\owl.asc)"}));
    EXPECT_EQ(hub.file("UserActions/Ascii/Ascii/owl.asc"), "(o,o)\r\n");
    EXPECT_TRUE(isDirty(form));
    drawing(form, "NEW", {"cat", "Cat", "Beasts"}, "=^.^=");
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    find<QCheckBox>(form, "chkCheckBox(2)").click();
    clickTick(find<RowList>(form, "lvwEnabledProfiles"), 1);
    clickTick(find<RowList>(form, "lvwEnabledRCs"), 0);
    clickTick(find<RowList>(form, "lvwEnabledRCs"), 3);
    hub.store.log.clear();
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("useractions/AsciiSettings.save.tbl")));
    EXPECT_TRUE(sameBytes(index, golden("useractions/AsciiIndex.save.tbl")));
    const std::string folder = "write " + hub.root + "/UserActions/Ascii/";
    EXPECT_EQ(hub.store.log,
              (std::vector<std::string>{folder + "AsciiSettings.tbl", folder + "AsciiIndex.tbl"}));
}

TEST_F(AsciiForm, APictureThatIsNotSavedGetsNoRow)
{
    auto& form = open("UserActions~Ascii");
    drawing(form, "NEW", {"owl", "Old Owl", "Birds"}, QString());
    EXPECT_TRUE(pictures(form).isEmpty());
    EXPECT_FALSE(isDirty(form));
    EXPECT_FALSE(hub.has("UserActions/Ascii/Ascii/owl.asc"));
}

TEST_F(AsciiForm, AnEditChangesTheRowOnlyWithItsPicture)
{
    index = golden("useractions/AsciiIndex.save.tbl");
    hub.file("UserActions/Ascii/Ascii/owl.asc") = "(o,o)\r\n";
    auto& form = open("UserActions~Ascii");
    pictures(form).select(0);
    drawing(form, "EDIT", {"owl", "Young Owl", "Birds"}, QString());
    EXPECT_EQ(shown(pictures(form)).value(0), "owl|Old Owl|Birds");
    EXPECT_FALSE(isDirty(form));
    EXPECT_EQ(drawing(form, "EDIT", {"owl", "Young Owl", "Birds"}, "(O,O)").value(0),
              "frmGlobalEditThreeFields|Edit Ascii");
    EXPECT_EQ(shown(pictures(form)).value(0), "owl|Young Owl|Birds");
    EXPECT_EQ(hub.file("UserActions/Ascii/Ascii/owl.asc"), "(O,O)\r\n");
    EXPECT_TRUE(isDirty(form));
}

TEST_F(AsciiForm, TheDialogAsksForThreeFields)
{
    auto& form = open("UserActions~Ascii");
    const auto dialogs =
        test::entering({{{}, "cmdCancel"}}, [&] { button(form, "NEW", "tlbFiles").trigger(); });
    EXPECT_EQ(dialogs,
              (QList<SeenDialog>{{"frmGlobalEditThreeFields", "Add Ascii", pictureLabels, {"", "", ""}}}));
}

TEST_F(AsciiForm, ANameThatLeavesTheFolderIsRefusedBeforeAnythingIsWritten)
{
    auto& form = open("UserActions~Ascii");
    hub.store.log.clear();
    for (const char* name : {R"(..\owl)", "a/b", "owl?", "con"}) {
        const auto seen = drawing(form, "NEW", {name, "Old Owl", "Birds"}, "(o,o)");
        ASSERT_EQ(seen.size(), 3) << name;
        EXPECT_EQ(seen[1].section('|', 1), "Cannot create file") << name;
    }
    EXPECT_TRUE(pictures(form).isEmpty());
    EXPECT_TRUE(hub.store.log.empty());
}

TEST_F(AsciiForm, ADeleteTakesTheRowAndExactlyItsFile)
{
    index = golden("useractions/AsciiIndex.save.tbl");
    hub.file("UserActions/Ascii/Ascii/owl.asc") = "(o,o)\r\n";
    hub.file("UserActions/Ascii/Ascii/cat.asc") = "=^.^=\r\n";
    auto& form = open("UserActions~Ascii");
    pictures(form).select(0);
    hub.store.log.clear();
    const auto boxes = answering(QMessageBox::Cancel, [&] { button(form, "DELETE", "tlbFiles").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Ascii?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Ascii?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_TRUE(hub.store.log.empty());
    answering(QMessageBox::Ok, [&] { button(form, "DELETE", "tlbFiles").trigger(); });
    EXPECT_EQ(shown(pictures(form)), QStringList{"cat|Cat|Beasts"});
    EXPECT_EQ(hub.store.log,
              std::vector<std::string>{"remove " + hub.root + "/UserActions/Ascii/Ascii/owl.asc"});
    EXPECT_TRUE(hub.has("UserActions/Ascii/Ascii/cat.asc"));
    EXPECT_TRUE(isDirty(form));
}

TEST_F(AsciiForm, TheLastRowCanGoAlsoWhenItsFileIsGoneAlready)
{
    index = golden("useractions/AsciiIndex.save.tbl");
    auto& form = open("UserActions~Ascii");
    for (int row = 0; row < 2; ++row) {
        pictures(form).select(0);
        EXPECT_EQ(answering(QMessageBox::Ok, [&] { button(form, "DELETE", "tlbFiles").trigger(); }).size(),
                  1);
    }
    EXPECT_TRUE(pictures(form).isEmpty());
    EXPECT_FALSE(button(form, "DELETE", "tlbFiles").isEnabled());
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(index, golden("useractions/AsciiIndex.build.tbl")));
}

TEST_F(AsciiForm, ARowWhoseNameLeavesTheFolderIsNotDeleted)
{
    index = "tAsciiIndex = {\r\n\t[1] = {\r\n\t\tsFilename = \"..\\..\\x\",\r\n\t},\r\n}\r\n";
    auto& form = open("UserActions~Ascii");
    pictures(form).select(0);
    hub.store.log.clear();
    const auto boxes = answering(QMessageBox::Ok, [&] { button(form, "DELETE", "tlbFiles").trigger(); });
    ASSERT_EQ(boxes.size(), 1) << "and nothing was asked before";
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_TRUE(hub.store.log.empty());
    EXPECT_EQ(pictures(form).rows().size(), 1U);
    EXPECT_EQ(drawing(form, "EDIT", {R"(..\..\x)", "x", "y"}, "(O,O)").value(1).section('|', 1),
              "Cannot open file");
    EXPECT_TRUE(hub.store.log.empty());
}

TEST_F(AsciiForm, APictureThatIsListedOrThereKeepsANameThatWeWouldNotGive)
{
    index = "tAsciiIndex = {\r\n\t[1] = {\r\n\t\tsFilename = \"con\",\r\n\t},\r\n}\r\n";
    hub.file("UserActions/Ascii/Ascii/owl?.asc") = "(o,o)\r\n";
    auto& form = open("UserActions~Ascii");
    pictures(form).select(0);
    EXPECT_EQ(drawing(form, "EDIT", {"con", "Con", "Men"}, "(!)").value(2),
              R"(UserActions\Ascii\Ascii\con.asc)");
    EXPECT_EQ(drawing(form, "NEW", {"owl?", "Owl", "Birds"}, "(O,O)").value(2),
              R"(UserActions\Ascii\Ascii\owl?.asc)");
    EXPECT_EQ(shown(pictures(form)), (QStringList{"con|Con|Men", "owl?|Owl|Birds"}));
    for (int row = 0; row < 2; ++row) {
        pictures(form).select(0);
        answering(QMessageBox::Ok, [&] { button(form, "DELETE", "tlbFiles").trigger(); });
    }
    EXPECT_FALSE(hub.has("UserActions/Ascii/Ascii/con.asc"));
    EXPECT_FALSE(hub.has("UserActions/Ascii/Ascii/owl?.asc"));
}

TEST_F(AsciiForm, ARowOpensAndDeletesThePictureThatDiffersInCaseAlone)
{
    index = golden("useractions/AsciiIndex.save.tbl");
    hub.file("UserActions/Ascii/Ascii/OWL.ASC") = "(o,o)\r\n";
    auto& form = open("UserActions~Ascii");
    pictures(form).select(0);
    EXPECT_EQ(drawing(form, "EDIT", {"owl", "Old Owl", "Birds"}, "(O,O)").value(2),
              R"(UserActions\Ascii\Ascii\OWL.ASC)");
    answering(QMessageBox::Ok, [&] { button(form, "DELETE", "tlbFiles").trigger(); });
    EXPECT_FALSE(hub.has("UserActions/Ascii/Ascii/OWL.ASC"));
}

TEST_F(AsciiForm, AFailedDeleteIsToldAndKeepsTheRow)
{
    index = golden("useractions/AsciiIndex.save.tbl");
    auto& form = open("UserActions~Ascii");
    pictures(form).select(0);
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const auto boxes = answering(QMessageBox::Ok, [&] { button(form, "DELETE", "tlbFiles").trigger(); });
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_EQ(boxes[1].icon, QMessageBox::Critical);
    EXPECT_TRUE(boxes[1].text.contains("owl.asc"));
    EXPECT_EQ(pictures(form).rows().size(), 2U);
}

TEST_F(AsciiForm, ARestoreSetsTheFlagsAndLeavesProfilesAndPicturesAlone)
{
    settings = golden("useractions/AsciiSettings.save.tbl");
    index = golden("useractions/AsciiIndex.save.tbl");
    auto& form = open("UserActions~Ascii");
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    for (int at = 0; at < 3; ++at)
        EXPECT_TRUE(find<QCheckBox>(form, QStringLiteral("chkCheckBox(%1)").arg(at)).isChecked());
    EXPECT_TRUE(find<RowList>(form, "lvwEnabledProfiles").rows()[1].checked);
    EXPECT_TRUE(find<RowList>(form, "lvwEnabledRCs").rows()[3].checked);
    EXPECT_EQ(pictures(form).rows().size(), 2U);
    EXPECT_TRUE(isDirty(form));
}

TEST_F(AsciiForm, TheCalculatorHasItsProfilesOnly)
{
    auto& calculator = hub.file("UserActions/Calculator/CalculatorSettings.tbl");
    auto& form = open("UserActions~Calculator");
    EXPECT_EQ(form.objectName(), "frmUserActionsCalculator");
    EXPECT_EQ(form.windowTitle(), "UserActions ~ Calculator");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Enabled Profiles");
    auto& list = find<RowList>(form, "lvwEnabledProfiles");
    clickTick(list, 1);
    clickTick(list, 3);
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(calculator, golden("useractions/CalculatorSettings.save.tbl")));
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(isDirty(form));
    EXPECT_FALSE(list.rows()[1].checked);
    button(form, "SAVE").trigger(); // every profile unticked is written as 0
    EXPECT_TRUE(sameBytes(calculator, golden("useractions/CalculatorSettings.build.tbl")));
}

} // namespace
} // namespace quillfen
