#include "functions/security/securityformtest.h"
#include "support/dialogs.h"

#include <QComboBox>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::sameBytes;
using test::SeenDialog;

class ClientCheckerForm : public test::SecurityForms
{
protected:
    std::string& settings = file("ClientChecker/ClientCheckerSettings.tbl");
    std::string& versions = file("ClientChecker/ClientVersions.tbl");

    static RowList& clients(EditorForm& form) { return find<RowList>(form, "lvwClients"); }
    static QAction& clientButton(EditorForm& form, const char* key)
    {
        return button(form, key, "tlbClients");
    }
};

TEST_F(ClientCheckerForm, SavesBothFiles)
{
    auto& form = open("Security~ClientChecker");
    EXPECT_EQ(form.objectName(), "frmSecurityClientCheckerSettings");
    EXPECT_EQ(form.windowTitle(), "Security ~ ClientChecker");
    EXPECT_EQ(text(form, "lblLabel(0)"), "TimeBan");
    EXPECT_EQ(text(form, "lblLabel(1)"), "Action");
    EXPECT_EQ(text(form, "lblLabel(2)"), "Exempt Profiles");
    EXPECT_EQ(text(form, "lblLabel(3)"), "Blocked Connection Types");
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "60");
    EXPECT_EQ(range(form, "updUpDown"), (std::pair<std::string, std::string>("5", "1440")));
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "TempBan");
    EXPECT_EQ(shown(find<RowList>(form, "lvwBlockedTypes")),
              (QStringList{"Sockets", "Passive", "Active", "Undeclared"}));
    EXPECT_FALSE(clientButton(form, "EDIT").isEnabled());
    EXPECT_FALSE(clientButton(form, "DELETE").isEnabled());
    type(form, "txtUpDown", "7");
    find<QComboBox>(form, "cboComboBox").setCurrentText("Disconnect");
    tick(form, "lvwEnabledProfiles", {2, 3});
    tick(form, "lvwBlockedTypes", {1, 3});
    const auto seen = entering({{{"QuickShare", "0.707", "True"}, "cmdAdd"},
                                {{"OldShare", "1.00", "False"}, "cmdAdd"},
                                {{"AnyShare", "1", "True"}}},
                               [&form] { clientButton(form, "NEW").trigger(); });
    ASSERT_EQ(seen.size(), 3);
    EXPECT_EQ(
        seen[0],
        (SeenDialog{
            "frmGlobalEditTwoTextCombo", "Add Client", {"Client", "Min Version", "Allow"}, {"", "", ""}}));
    clickRow(clients(form), 2);
    entering({{{QString(), ""}}}, [&form] { clientButton(form, "EDIT").trigger(); });
    EXPECT_EQ(shown(clients(form)),
              (QStringList{"QuickShare|0.707|True", "OldShare|1.00|False", "AnyShare||True"}));
    hub.store.log.clear();
    save(form);
    EXPECT_EQ(written(), (std::vector<std::string>{"ClientCheckerSettings.tbl", "ClientVersions.tbl"}));
    EXPECT_TRUE(sameBytes(settings, golden("ClientChecker.save.tbl")));
    EXPECT_TRUE(sameBytes(versions, golden("ClientVersions.save.tbl")));
}

TEST_F(ClientCheckerForm, ADoubleClickEditsAClient)
{
    versions = golden("ClientVersions.save.tbl");
    auto& form = open("Security~ClientChecker");
    EXPECT_TRUE(clientButton(form, "EDIT").isEnabled());
    const char* headings[] = {"Client", "Min Version", "Allow"};
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(clients(form).model()->headerData(column, Qt::Horizontal), headings[column]);
    clickRow(clients(form), 1);
    const auto seen =
        entering({{{QString(), QString(), "True"}}}, [&form] { doubleClickRow(clients(form), 1); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen[0], (SeenDialog{"frmGlobalEditTwoTextCombo",
                                   "Edit File",
                                   {"OldShare Client", "Min Version", "Allow"},
                                   {"OldShare", "1.00", "False"}}));
    EXPECT_EQ(shown(clients(form))[1], "OldShare|1.00|True");
    save(form);
    EXPECT_NE(settings.find("\tsAction = \"T\",\r\n"), std::string::npos)
        << "the action comes back as it was";
}

TEST_F(ClientCheckerForm, AnEditTrimsWhatItShowsAndWhatItTakes)
{
    versions = "tClientVersions = {\r\n\t[\"a\"] = \"1^ 2\",\r\n}\r\n";
    auto& form = open("Security~ClientChecker");
    clickRow(clients(form), 0);
    const auto seen = entering({{{QString(), " 3 "}}}, [&form] { clientButton(form, "EDIT").trigger(); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen[0].values, (QStringList{"a", "2", "True"}));
    EXPECT_EQ(shown(clients(form)), QStringList{"a|3|True"});
}

TEST_F(ClientCheckerForm, ANewClientKeepsItsBlanksAsTyped)
{
    auto& form = open("Security~ClientChecker");
    entering({{{" a ", " 1 ", "True"}}}, [&form] { clientButton(form, "NEW").trigger(); });
    EXPECT_EQ(shown(clients(form)), QStringList{" a | 1 |True"});
    save(form);
    EXPECT_TRUE(sameBytes(versions, "tClientVersions = {\r\n\t[\" a \"] = \"1^ 1 \",\r\n}\r\n"));
}

TEST_F(ClientCheckerForm, ANewClientNeedsAllThreeFields)
{
    auto& form = open("Security~ClientChecker");
    const auto seen = entering({{{"a", "", "True"}, "cmdAdd"},
                                {{QString(), QString()}, "cmdOK"},
                                {{QString(), "1"}, "cmdAdd"},
                                {{"b", "2"}, "cmdOK"},
                                {{QString(), QString(), "False"}, "cmdOK"}},
                               [&form] { clientButton(form, "NEW").trigger(); });
    ASSERT_EQ(seen.size(), 5);
    EXPECT_EQ(seen[1].values, (QStringList{"a", "", "True"})) << "the same dialog stays";
    EXPECT_EQ(seen[2].values, (QStringList{"a", "", "True"}));
    EXPECT_EQ(seen[3].values, (QStringList{"", "", ""}));
    EXPECT_EQ(seen[4].values, (QStringList{"b", "2", ""}));
    EXPECT_EQ(shown(clients(form)), (QStringList{"a|1|True", "b|2|False"}));
}

TEST_F(ClientCheckerForm, ADeleteAsksAndTheLastClientStays)
{
    versions = "tClientVersions = {\r\n\t[\"a\"] = \"1^1\",\r\n\t[\"b\"] = \"0^2\",\r\n}\r\n";
    auto& form = open("Security~ClientChecker");
    clickRow(clients(form), 0);
    auto boxes = answering(QMessageBox::Ok, [&form] { clientButton(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Client?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Client?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    clickRow(clients(form), 0);
    boxes = answering(QMessageBox::Ok, [&form] { clientButton(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_EQ(boxes[0].text, "There must be a minimum of one Client");
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(shown(clients(form)), (QStringList{"b|2|False"}));
}

TEST_F(ClientCheckerForm, ARestoreSetsTimeAndActionAndLeavesTheLists)
{
    settings = golden("ClientChecker.save.tbl");
    versions = golden("ClientVersions.save.tbl");
    auto& form = open("Security~ClientChecker");
    restore(form);
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "60");
    EXPECT_EQ(find<QComboBox>(form, "cboComboBox").currentText(), "TempBan");
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0011");
    EXPECT_EQ(ticks(form, "lvwBlockedTypes"), "0101");
    EXPECT_EQ(clients(form).rows().size(), 3U);
    discard(form);
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "7");
}

} // namespace
} // namespace quillfen
