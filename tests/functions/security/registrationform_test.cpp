#include "functions/security/securityformtest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>

namespace quillfen {
namespace {

using test::sameBytes;

class RegistrationForm : public test::SecurityForms
{
protected:
    std::string& named(const std::string& name) { return file("Registration/Registration" + name + ".tbl"); }
    static QTreeView& list(EditorForm& form) { return find<QTreeView>(form, "lvwRegistrations"); }
    static QComboBox& profile(EditorForm& form) { return find<QComboBox>(form, "cboComboBox"); }

    /// The entries of the menu that a right click on a row opens: the one that makes it true, and the other.
    QList<QAction*> menuOf(EditorForm& form, int row)
    {
        const QPoint place = placeOf(list(form), row).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, list(form).viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(list(form).viewport(), &event);
        auto* menu = window().findChild<QMenu*>("mnuTrueFalse");
        menu->close();
        return menu->actions();
    }
};

TEST_F(RegistrationForm, ShowsEachCommandOfEachPairOfProfiles)
{
    named("GetPassword") = golden("RegistrationGetPassword.save.tbl");
    auto& form = open("Security~Registration");
    EXPECT_EQ(form.objectName(), "frmSecurityRegistration");
    EXPECT_EQ(form.windowTitle(), "Security ~ Registration");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(0)").text(), "Enable Regme");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(1)").text(), "Keep Log");
    EXPECT_EQ(text(form, "lblLabel(0)"), "Prefix");
    EXPECT_EQ(text(form, "lblLabel(1)"), "Registration Profile");
    const auto rows = shown(list(form));
    ASSERT_EQ(rows.size(), 36);
    EXPECT_EQ(rows[0], "Add Registration|Master|Master|False");
    EXPECT_EQ(rows[1], "||Operator|False");
    EXPECT_EQ(rows[3], "|Operator|Master|False");
    EXPECT_EQ(rows[9], "Delete Registration|Master|Master|False");
    EXPECT_EQ(rows[18], "Get Password|Master|Master|False");
    EXPECT_EQ(rows[23], "||VIP|True");
    EXPECT_EQ(rows[27], "Change Password|Master|Master|False");
    QStringList captions;
    for (int column = 0; column < 6; ++column)
        captions.append(list(form).model()->headerData(column, Qt::Horizontal).toString());
    EXPECT_EQ(captions,
              (QStringList{"Command", "By Profile", "On Profile", "Allow", "iProfileBy", "iProfileOn"}));
    EXPECT_EQ(list(form).model()->index(5, 4).data(), "1");
    EXPECT_EQ(list(form).model()->index(5, 5).data(), "2");
}

TEST_F(RegistrationForm, SavesTheSettingsAndFourTables)
{
    auto& form = open("Security~Registration");
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    type(form, "txtTextBox(0)", "[REG]");
    profile(form).setCurrentText("VIP");
    clickRow(list(form), 1);
    button(form, "EDIT", "tlbListview").trigger();
    clickRow(list(form), 9);
    doubleClickRow(list(form), 9);
    for (const int row : {23, 35}) {
        const auto entries = menuOf(form, row);
        EXPECT_TRUE(entries[0]->isEnabled());
        EXPECT_FALSE(entries[1]->isEnabled());
        entries[0]->trigger();
    }
    hub.store.log.clear();
    save(form);
    EXPECT_TRUE(sameBytes(named("Settings"), golden("Registration.save.tbl")));
    for (const char* table : {"Add", "Delete", "GetPassword", "ChangePassword"})
        EXPECT_TRUE(sameBytes(named(table), golden(std::string("Registration") + table + ".save.tbl")));
    EXPECT_EQ(written(), (std::vector<std::string>{"RegistrationSettings.tbl", "RegistrationAdd.tbl",
                                                   "RegistrationDelete.tbl", "RegistrationGetPassword.tbl",
                                                   "RegistrationChangePassword.tbl"}));
    EXPECT_EQ(shown(list(form)).size(), 36) << "the form reloads";
}

TEST_F(RegistrationForm, ASaveShowsThePrefixAsItIsReadAgain)
{
    auto& form = open("Security~Registration");
    type(form, "txtTextBox(0)", "[REG] ");
    save(form);
    EXPECT_NE(named("Settings").find("\tsPrefix = \"[REG] \",\r\n"), std::string::npos);
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox(0)").text(), "[REG]");
}

TEST_F(RegistrationForm, TheMenuOfATrueRowOffersFalseAndBothItsRoutinesToggle)
{
    named("GetPassword") = golden("RegistrationGetPassword.save.tbl");
    auto& form = open("Security~Registration");
    const auto entries = menuOf(form, 23);
    EXPECT_FALSE(entries[0]->isEnabled());
    EXPECT_TRUE(entries[1]->isEnabled());
    form.routine("gMenuTrueFalseTrueClick")();
    EXPECT_EQ(shown(list(form))[23], "||VIP|False");
    EXPECT_TRUE(isDirty(form));
    form.routine("gMenuTrueFalseFalseClick")();
    EXPECT_EQ(shown(list(form))[23], "||VIP|True");
}

TEST_F(RegistrationForm, AfterARebuildTheFirstProfileShowsAndASaveWritesTheRightKey)
{
    auto& form = open("Security~Registration");
    EXPECT_EQ(profile(form).currentText(), "Master");
    EXPECT_EQ(profile(form).count(), 3) << "Unregistered is not offered";
    find<QCheckBox>(form, "chkCheckBox(1)").click();
    save(form);
    EXPECT_EQ(named("Settings"), "tRegistrationSettings = {\r\n\tbAllowRegme = 1,\r\n\tbKeepLog = 0,\r\n"
                                 "\tsPrefix = \"\",\r\n\tiRegProfile = 0,\r\n}\r\n");
}

TEST_F(RegistrationForm, ARestoreLeavesTheProfileAndTheGrid)
{
    named("Settings") = golden("Registration.save.tbl");
    named("Add") = golden("RegistrationAdd.save.tbl");
    auto& form = open("Security~Registration");
    restore(form);
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(1)").isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox(0)").text(), "");
    EXPECT_EQ(profile(form).currentText(), "VIP");
    EXPECT_EQ(shown(list(form))[1], "||Operator|True");
}

TEST_F(RegistrationForm, ThreeProfileRowsGiveSixteenRows)
{
    hub.profiles = {};
    hub.profiles.add("Master");
    hub.profiles.add("Reg");
    auto& form = open("Security~Registration");
    EXPECT_EQ(shown(list(form)).size(), 16);
}

TEST_F(RegistrationForm, EachRowNamesItsTargetWithOneProfile)
{
    hub.profiles = {};
    hub.profiles.add("Master");
    auto& form = open("Security~Registration");
    EXPECT_EQ(shown(list(form)),
              (QStringList{"Add Registration|Master|Master|False", "Delete Registration|Master|Master|False",
                           "Get Password|Master|Master|False", "Change Password|Master|Master|False"}));
}

TEST_F(RegistrationForm, UnregisteredAloneHasAnEmptyGridAndSavesEmptyTables)
{
    hub.profiles = {};
    auto& form = open("Security~Registration");
    EXPECT_TRUE(shown(list(form)).isEmpty());
    EXPECT_EQ(profile(form).count(), 0);
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    save(form);
    for (const std::string table : {"Add", "Delete", "GetPassword", "ChangePassword"})
        EXPECT_EQ(named(table), "tRegistration" + table + " = {\r\n}\r\n");
}

} // namespace
} // namespace quillfen
