#include "functions/security/securityformtest.h"

#include <QCheckBox>

namespace quillfen {
namespace {

using test::sameBytes;

class PrivateHubForm : public test::SecurityForms
{
protected:
    std::string& settings = file("PrivateHub/PrivateHubSettings.tbl");

    struct List
    {
        const char* name;
        const char* label;
        const char* column;
    };

    const List lists[5] = {{"lvwDisabledDownloads", "Disabled Downloads", "Enabled Downloads"},
                           {"lvwDisabledMain", "Disabled Main", "Enabled Main"},
                           {"lvwDisabledPMs", "Disabled PM", "Enabled PMs"},
                           {"lvwDisabledProfiles", "Disabled Profiles", "Enabled Profiles"},
                           {"lvwDisabledSearches", "Disabled Searches", "Enabled Searches"}};
};

TEST_F(PrivateHubForm, ShowsItsLabelsAndHeadings)
{
    auto& form = open("Security~PrivateHub");
    EXPECT_EQ(form.objectName(), "frmSecurityPrivateHub");
    EXPECT_EQ(form.windowTitle(), "Security~ PrivateHub") << "the blank stands behind the tilde only";
    EXPECT_EQ(text(form, "lblLabel(0)"), "Redirect Address");
    EXPECT_EQ(text(form, "lblLabel(1)"), "Delay Before PM");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox").text(), "Reg Before PM");
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox").isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "5");
    EXPECT_EQ(range(form, "updUpDown"), (std::pair<std::string, std::string>("1", "720")));
    int label = 2;
    for (const List& list : lists) {
        EXPECT_EQ(text(form, QStringLiteral("lblLabel(%1)").arg(label++).toLatin1().constData()), list.label);
        auto& view = find<RowList>(form, list.name);
        EXPECT_EQ(view.model()->headerData(0, Qt::Horizontal), list.column);
        EXPECT_EQ(shown(view), (QStringList{"Unregistered", "Master", "Operator", "VIP"}));
    }
}

TEST_F(PrivateHubForm, SavesEveryControl)
{
    auto& form = open("Security~PrivateHub");
    type(form, "txtTextBox", "dc.example.com:411");
    type(form, "txtUpDown", "90");
    find<QCheckBox>(form, "chkCheckBox").click();
    tick(form, "lvwDisabledDownloads", {0});
    tick(form, "lvwDisabledMain", {1});
    tick(form, "lvwDisabledPMs", {2});
    tick(form, "lvwDisabledProfiles", {3});
    tick(form, "lvwDisabledSearches", {0, 1, 2, 3});
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("PrivateHub.save.tbl")));
    discard(form);
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox").text(), "dc.example.com:411");
    EXPECT_EQ(ticks(form, "lvwDisabledMain"), "0100");
}

TEST_F(PrivateHubForm, EachControlMakesItDirty)
{
    settings = golden("PrivateHub.save.tbl");
    auto& form = open("Security~PrivateHub");
    const auto isDirtyAfter = [&form](const std::function<void()>& change) {
        change();
        const bool dirty = isDirty(form);
        discard(form);
        return dirty;
    };
    EXPECT_TRUE(isDirtyAfter([&form] { find<QCheckBox>(form, "chkCheckBox").click(); }));
    EXPECT_TRUE(isDirtyAfter([&form] { type(form, "txtTextBox", "x"); }));
    EXPECT_TRUE(isDirtyAfter([&form] { QTest::keyClick(&find<NumberBox>(form, "updUpDown"), Qt::Key_Up); }));
    for (const List& list : lists)
        EXPECT_TRUE(isDirtyAfter([&] { tick(form, list.name, {2}); })) << list.name;
}

TEST_F(PrivateHubForm, ARestoreSetsTheThreeValuesAndUnticksAllAndWritesNothing)
{
    settings = golden("PrivateHub.save.tbl");
    auto& form = open("Security~PrivateHub");
    restore(form);
    EXPECT_EQ(find<QLineEdit>(form, "txtTextBox").text(), "");
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "5");
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox").isChecked());
    for (const List& list : lists)
        EXPECT_EQ(ticks(form, list.name), "0000");
    EXPECT_TRUE(sameBytes(settings, golden("PrivateHub.save.tbl")));
}

TEST_F(PrivateHubForm, TheCheckBoxIsTickedByAnyNumberAboveZero)
{
    for (const auto& [stored, ticked] :
         {std::pair("2", true), {"0.5", true}, {"1", true}, {"0", false}, {"-1", false}, {"yes", false}}) {
        settings = std::string("tPrivateHubSettings = {\r\n\ttRestrictPMs = {\r\n\t\tbRegBeforePM = ") +
                   stored + ",\r\n\t},\r\n}\r\n";
        auto& form = open("Security~PrivateHub");
        EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox").isChecked(), ticked) << stored;
        form.parentWidget()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace
} // namespace quillfen
