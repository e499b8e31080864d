#include "functions/security/securityformtest.h"

#include <QCheckBox>

namespace quillfen {
namespace {

using test::sameBytes;

class UserLogForm : public test::SecurityForms
{
protected:
    std::string& settings = file("UserLog/UserLogSettings.tbl");

    static QCheckBox& check(EditorForm& form, int number)
    {
        return find<QCheckBox>(form, QStringLiteral("chkCheckBox(%1)").arg(number));
    }

    static std::vector<std::string> numbers(EditorForm& form)
    {
        std::vector<std::string> all;
        for (int number = 0; number < 4; ++number)
            all.push_back(
                find<QLineEdit>(form, QStringLiteral("txtUpDown(%1)").arg(number)).text().toStdString());
        return all;
    }
};

TEST_F(UserLogForm, ShowsTheDefaultsWithTheirLabelsAndRanges)
{
    auto& form = open("Security~UserLog");
    EXPECT_EQ(form.objectName(), "frmSecurityUserLogSettings");
    EXPECT_EQ(form.windowTitle(), "Security ~ UserLog");
    const char* captions[] = {"Enable Cleaner", "Enable Save On Timer", "Enable Log To File"};
    for (int number = 0; number < 3; ++number) {
        EXPECT_EQ(check(form, number).text(), captions[number]);
        EXPECT_TRUE(check(form, number).isChecked());
    }
    const char* labels[] = {"Clean Older Than",          "Cleaner Active Time",
                            "Save Timer Interval",       "Number Of Top Hubbers to Show",
                            "Enabled View Log Profiles", "Enabled Log Profiles"};
    for (int number = 0; number < 6; ++number)
        EXPECT_EQ(text(form, QStringLiteral("lblLabel(%1)").arg(number).toLatin1().constData()),
                  labels[number]);
    EXPECT_EQ(numbers(form), (std::vector<std::string>{"28", "2355", "60", "25"}));
    using Range = std::pair<std::string, std::string>;
    EXPECT_EQ(range(form, "updUpDown(0)"), Range("1", "365"));
    EXPECT_EQ(range(form, "updUpDown(1)"), Range("5", "2355"))
        << "the default, and not the last minute of a day";
    EXPECT_EQ(range(form, "updUpDown(2)"), Range("1", "86400"));
    EXPECT_EQ(range(form, "updUpDown(3)"), Range("1", "150"));
    EXPECT_EQ(boxesOf(form, "Days"), QStringList{"updUpDown(0)"});
}

TEST_F(UserLogForm, SavesAndRestoresEveryControl)
{
    auto& form = open("Security~UserLog");
    check(form, 0).click();
    check(form, 2).click();
    type(form, "txtUpDown(0)", "400");
    type(form, "txtUpDown(1)", "2359");
    type(form, "txtUpDown(2)", "5");
    type(form, "txtUpDown(3)", "7");
    tick(form, "lvwEnabledProfiles", {1});
    tick(form, "lvwEnabledLogProfiles", {0, 2, 3});
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("UserLog.save.tbl")));
    restore(form);
    EXPECT_TRUE(check(form, 0).isChecked());
    EXPECT_EQ(numbers(form), (std::vector<std::string>{"28", "2355", "60", "25"}));
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
    EXPECT_EQ(ticks(form, "lvwEnabledLogProfiles"), "0000");
    discard(form);
    EXPECT_EQ(numbers(form), (std::vector<std::string>{"400", "2359", "5", "7"}));
}

} // namespace
} // namespace quillfen
