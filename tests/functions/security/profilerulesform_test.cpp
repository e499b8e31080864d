#include "functions/security/securityformtest.h"
#include "support/dialogs.h"

#include <QAbstractSpinBox>
#include <QCheckBox>

#include <array>

namespace quillfen {
namespace {

using test::entering;
using test::sameBytes;
using test::SeenDialog;

class ProfileRuleForms : public test::SecurityForms
{
protected:
    std::string& settings = file("ProfileRules/ProfileRuleSettings.tbl");
    std::string& rules = file("ProfileRules/ProfileRules.tbl");

    static RowList& permissions(EditorForm& form) { return find<RowList>(form, "lvwPermissions"); }

    static QStringList captions(const RowList& list)
    {
        QStringList all;
        for (int column = 0; column < list.model()->columnCount(); ++column)
            all.append(list.model()->headerData(column, Qt::Horizontal).toString());
        return all;
    }

    /// Edits a row of a list by its button and returns what the dialog showed.
    static SeenDialog edit(EditorForm& form, const char* word, int row, const QStringList& fields)
    {
        clickRow(find<RowList>(form, QStringLiteral("lvw") + word), row);
        const auto seen = entering({{fields}}, [&form, word] {
            find<QAction>(find<QToolBar>(form, QStringLiteral("tlb") + word), "EDIT").trigger();
        });
        return seen.value(0);
    }
};

TEST_F(ProfileRuleForms, SettingsAreShownSavedAndRestored)
{
    auto& form = open("Security~ProfileRules~Settings");
    EXPECT_EQ(form.objectName(), "frmSecurityProfileRuleSettings");
    EXPECT_EQ(form.windowTitle(), "Security ~ ProfileRules ~ Settings");
    auto& log = find<QCheckBox>(form, "chkCheckBox");
    EXPECT_EQ(log.text(), "Log Redirects");
    EXPECT_TRUE(log.isChecked()) << "a rebuild writes 1";
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "0");
    EXPECT_EQ(text(form, "lblLabel(0)"), "Automatic Check Delay");
    EXPECT_EQ(boxesOf(form, "Days"), QStringList{"updUpDown"});
    EXPECT_EQ(text(form, "lblLabel(1)"), "Enabled Get Profiles");
    EXPECT_EQ(text(form, "lblLabel(2)"), "Enabled Set Profiles");
    for (const char* list : {"lvwEnabledGetProfiles", "lvwEnabledSetProfiles"})
        EXPECT_EQ(find<RowList>(form, list).model()->headerData(0, Qt::Horizontal), "Enabled Profiles");
    EXPECT_EQ(range(form, "updUpDown"), (std::pair<std::string, std::string>("1", "365")));
    log.click();
    type(form, "txtUpDown", "366");
    tick(form, "lvwEnabledGetProfiles", {1, 2});
    tick(form, "lvwEnabledSetProfiles", {1});
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("ProfileRuleSettings.save.tbl")));
    log.click();
    restore(form);
    EXPECT_FALSE(log.isChecked()) << "RESTORE knows no default of that name";
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "5");
    EXPECT_EQ(ticks(form, "lvwEnabledGetProfiles"), "0000");
    EXPECT_EQ(ticks(form, "lvwEnabledSetProfiles"), "0000");
    EXPECT_TRUE(sameBytes(settings, golden("ProfileRuleSettings.save.tbl")));
    discard(form);
    EXPECT_EQ(ticks(form, "lvwEnabledGetProfiles"), "0110");
    EXPECT_EQ(ticks(form, "lvwEnabledSetProfiles"), "0100");
}

TEST_F(ProfileRuleForms, RulesShowSixRowsForEachProfile)
{
    auto& form = open("Security~ProfileRules~Rules");
    EXPECT_EQ(form.objectName(), "frmSecurityProfileRuleRules");
    EXPECT_EQ(form.windowTitle(), "Security ~ ProfileRules ~ Rules");
    const auto rows = shown(permissions(form));
    ASSERT_EQ(rows.size(), 24);
    EXPECT_EQ(rows.mid(0, 7),
              (QStringList{"Unregistered|MinShare|0 KB", "|MaxShare|0 KB", "|MinSlots|0", "|MaxSlots|0",
                           "|MaxHubs|0", "|HubSlotRatio|0/0", "Master|MinShare|0 KB"}));
    EXPECT_TRUE(permissions(form).isColumnHidden(3));
    EXPECT_EQ(captions(permissions(form)), (QStringList{"Profile", "Setting", "Data", "iProfile"}));
    EXPECT_EQ(permissions(form).model()->index(0, 3).data(), "-1");
    for (const char* list : {"lvwMessages", "lvwRedirects"}) {
        EXPECT_EQ(captions(find<RowList>(form, list)), (QStringList{"Setting", "Data"}));
        EXPECT_EQ(shown(find<RowList>(form, list)), (QStringList{"MinShare|", "MaxShare|", "MinSlots|",
                                                                 "MaxSlots|", "MaxHubs|", "HubSlotRatio|"}));
    }
    auto* toolbar = form.findChild<QToolBar*>("tlbFormToolbar");
    EXPECT_FALSE(toolbar->findChild<QAction*>("RESTORE"));
    for (const char* name : {"tlbPermissions", "tlbMessages", "tlbRedirects"})
        EXPECT_EQ(form.findChild<QToolBar*>(name)->actions().size(), 1);
}

TEST_F(ProfileRuleForms, EachRowHasItsDialogAndAllIsSaved)
{
    auto& form = open("Security~ProfileRules~Rules");
    for (const int share : {0, 1}) {
        clickRow(permissions(form), share);
        EXPECT_EQ(offered([&form] { button(form, "EDIT", "tlbPermissions").trigger(); }),
                  (QStringList{"KB", "MB", "GB", "TB"}));
    }
    EXPECT_EQ(edit(form, "Permissions", 0, {"2048", "KB"}),
              (SeenDialog{"frmGlobalEditUpDownCombo", "Edit File", {"Min Share", "Units"}, {"0", "KB"}}));
    EXPECT_EQ(edit(form, "Permissions", 5, {"3", "1"}),
              (SeenDialog{"frmGlobalEditTwoUpDowns", "Edit Hub Slot Ratio", {"Hubs", "Slots"}, {"0", "0"}}));
    EXPECT_EQ(edit(form, "Permissions", 7, {"1024", "TB"}),
              (SeenDialog{"frmGlobalEditUpDownCombo", "Edit File", {"Max Share", "Units"}, {"0", "KB"}}));
    EXPECT_EQ(edit(form, "Permissions", 14, {"2"}),
              (SeenDialog{"frmGlobalEditOneUpDown", "Edit Min Slots", {"Min Slots"}, {"0"}}));
    EXPECT_EQ(edit(form, "Permissions", 15, {"30"}),
              (SeenDialog{"frmGlobalEditOneUpDown", "Edit Max Slots", {"Max Slots"}, {"0"}}));
    EXPECT_EQ(edit(form, "Permissions", 16, {"12"}),
              (SeenDialog{"frmGlobalEditOneUpDown", "Edit Max Hubs", {"Max Hubs"}, {"0"}}));
    EXPECT_EQ(edit(form, "Messages", 0, {"Share more"}),
              (SeenDialog{"frmGlobalEditOneFields", "Edit MinShare Message", {"MinShare"}, {""}}));
    EXPECT_EQ(
        edit(form, "Redirects", 5, {"other.example.com"}),
        (SeenDialog{"frmGlobalEditOneFields", "Edit HubSlotRatio Redirect Address", {"HubSlotRatio"}, {""}}));
    EXPECT_EQ(shown(permissions(form))[0], "Unregistered|MinShare|2048 KB");
    save(form);
    EXPECT_TRUE(sameBytes(rules, golden("ProfileRules.save.tbl")));
    EXPECT_EQ(shown(permissions(form))[0], "Unregistered|MinShare|2 MB") << "the list is loaded again";
    EXPECT_EQ(shown(permissions(form))[7], "|MaxShare|1024 TB");
}

TEST_F(ProfileRuleForms, ADoubleClickAndTheMenusEditAndACancelTakesNothing)
{
    rules = golden("ProfileRules.save.tbl");
    auto& form = open("Security~ProfileRules~Rules");
    clickRow(permissions(form), 5);
    auto seen = entering({{{"9", "9"}, "cmdCancel"}}, [&form] { doubleClickRow(permissions(form), 5); });
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen[0].values, (QStringList{"3", "1"}));
    EXPECT_FALSE(isDirty(form));
    clickRow(find<RowList>(form, "lvwMessages"), 0);
    seen = entering({{{"Share"}}}, form.routine("gMenuEditTwoClick"));
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen[0].values, QStringList{"Share more"});
    EXPECT_TRUE(isDirty(form));
    discard(form);
    EXPECT_EQ(shown(find<RowList>(form, "lvwMessages"))[0], "MinShare|Share more");
    clickRow(find<RowList>(form, "lvwRedirects"), 5);
    EXPECT_EQ(entering({{{"x"}}}, form.routine("gMenuEditThreeClick")).size(), 1);
    clickRow(permissions(form), 1);
    EXPECT_EQ(entering({{{"1"}}}, form.routine("gMenuEditClick")).size(), 1);
    for (const char* name : {"lvwMessages", "lvwRedirects"}) {
        auto& list = find<RowList>(form, name);
        EXPECT_EQ(entering({{{"due"}}}, [&list] { doubleClickRow(list, 3); }).size(), 1);
        EXPECT_EQ(shown(list)[3], "MaxSlots|due");
    }
}

/// The saved rules with other values of the first profile's least share and of another's least slots.
std::string rulesWith(const std::string& saved, const std::string& minShare, const char* minSlots)
{
    QByteArray text = QByteArray::fromStdString(saved);
    text.replace("iMinShare = 2097152,", QByteArray::fromStdString("iMinShare = " + minShare + ','));
    return text.replace("iMinSlots = 2,", QByteArray("iMinSlots = ") + minSlots + ',').toStdString();
}

TEST_F(ProfileRuleForms, AShareOfAnyCountOfDigitsStaysAsItIsUntilItsRowIsEdited)
{
    const std::string saved = golden("ProfileRules.save.tbl");
    for (std::size_t digits = 1; digits <= 17; ++digits) {
        const std::string share = std::string("11320000000000001").substr(0, digits);
        rules = rulesWith(saved, share, "2");
        auto& form = open("Security~ProfileRules~Rules");
        EXPECT_EQ(edit(form, "Permissions", 14, {"3"}).values, QStringList{"2"});
        save(form);
        EXPECT_TRUE(sameBytes(rules, rulesWith(saved, share, "3")));
        edit(form, "Permissions", 0, {}); // OK without a change
        save(form);
        EXPECT_TRUE(sameBytes(rules, rulesWith(saved, share, "3")));
        form.parentWidget()->close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(ProfileRuleForms, AShareThatIsNoCountIsSavedAsTheNumberThatItShows)
{
    const std::string saved = golden("ProfileRules.save.tbl");
    auto& form = open("Security~ProfileRules~Rules");
    const std::vector<std::array<const char*, 3>> shares = {
        {"abc", "0 KB", "0"},        {"0500000", "0.476837158203125 MB", "500000"},
        {"-2048", "-2 KB", "-2048"}, {"2048.5", "2.00048828125 KB", "2048.5"},
        {"0", "0 KB", "0"},          {"1048576", "1 MB", "1048576"}};
    for (const auto& [stored, shows, saves] : shares) {
        rules = rulesWith(saved, stored, "2");
        discard(form);
        EXPECT_EQ(shown(permissions(form))[0], QString("Unregistered|MinShare|") + shows);
        edit(form, "Permissions", 14, {"3"});
        save(form);
        EXPECT_TRUE(sameBytes(rules, rulesWith(saved, saves, "3")));
    }
}

TEST_F(ProfileRuleForms, ARuleOfBlanksIsSavedAsZero)
{
    auto& form = open("Security~ProfileRules~Rules");
    edit(form, "Permissions", 2, {"  "});
    save(form);
    EXPECT_EQ(rules.find("iMinSlots =   ,"), std::string::npos);
    EXPECT_NE(rules.find("\t\tiMinSlots = 0,\r\n"), std::string::npos);
}

TEST_F(ProfileRuleForms, ARatiosDialogAsksForItsSecondNumber)
{
    auto& form = open("Security~ProfileRules~Rules");
    clickRow(permissions(form), 5);
    test::withModal([&form] { button(form, "EDIT", "tlbPermissions").trigger(); },
                    [](QWidget& dialog) {
                        const QColor lightRed(0xFF, 0x80, 0x80);
                        const auto base = [&dialog](const char* name) {
                            return find<QAbstractSpinBox>(dialog, name).palette().color(QPalette::Base);
                        };
                        EXPECT_NE(base("updUpDown(0)"), lightRed);
                        EXPECT_EQ(base("updUpDown(1)"), lightRed);
                        EXPECT_FALSE(find<QPushButton>(dialog, "cmdAdd").isEnabled());
                        dialog.close();
                    });
}

TEST_F(ProfileRuleForms, AnEmptiedCheckDelayIsSavedAsAFreshTreeHoldsIt)
{
    auto& form = open("Security~ProfileRules~Settings");
    find<QLineEdit>(form, "txtUpDown").clear();
    save(form);
    EXPECT_NE(settings.find("\tiCheckDelay = ,\r\n"), std::string::npos);
}

TEST_F(ProfileRuleForms, AnEditedShareIsWrittenWithFifteenDigits)
{
    const std::string saved = golden("ProfileRules.save.tbl");
    rules = rulesWith(saved, "11320000000000001", "2");
    auto& form = open("Security~ProfileRules~Rules");
    edit(form, "Permissions", 0, {"1024"});
    save(form);
    EXPECT_TRUE(sameBytes(rules, rulesWith(saved, "1.12589990684262E+15", "2")));
}

TEST_F(ProfileRuleForms, AMissingFileShowsNothingAndSavesRulesOfZero)
{
    hub.store.files.erase(hub.root + "/Security/ProfileRules/ProfileRules.tbl");
    hub.profiles = {};
    auto& form = open("Security~ProfileRules~Rules");
    EXPECT_EQ(shown(permissions(form)).front(), "Unregistered|MinShare|");
    edit(form, "Permissions", 4, {"7"});
    save(form);
    EXPECT_EQ(file("ProfileRules/ProfileRules.tbl"),
              "tProfileRules = {\r\n\ttMessages = {\r\n\t},\r\n\ttRedirects = {\r\n\t},\r\n\t[-1] = {\r\n"
              "\t\tiMinShare = 0,\r\n\t\tiMaxShare = 0,\r\n\t\tiMinSlots = 0,\r\n\t\tiMaxSlots = 0,\r\n"
              "\t\tiMaxHubs = 7,\r\n\t\tsHubSlotRatio = \"\",\r\n\t},\r\n}\r\n");
}

} // namespace
} // namespace quillfen
