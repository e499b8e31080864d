#include "functions/security/flood.h"
#include "functions/security/kicks.h"
#include "functions/security/registration.h"
#include "functions/security/securityformtest.h"
#include "support/dialogs.h"
#include "support/lua.h"

#include <QComboBox>
#include <QPlainTextEdit>

#include <ostream>
#include <set>
#include <tuple>

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;

/// A profile list of a form and the nested table that holds its ticks.
struct ProfileList
{
    const char* list;
    const char* table; ///< with the table around it: "tReportSettings.tEnabledProfiles"
};

/// A security form and its profile lists, which one file holds.
struct SecurityForm
{
    const char* key;
    const char* file;
    std::vector<ProfileList> lists;
};

// Test runners name a case by its form.
void PrintTo(const SecurityForm& form, std::ostream* stream)
{
    *stream << form.key;
}

const std::vector<SecurityForm> formsWithLists = {
    {"Security~AntiAdvertise~Settings",
     "AntiAdvertise/AntiAdvertiseSettings.tbl",
     {{"lvwBlockedProfiles", "tAntiAdvertiseSettings.tBlockedProfiles"}}},
    {"Security~BadNickBlocker",
     "BadNickBlocker/BadNickBlockerSettings.tbl",
     {{"lvwExemptProfiles", "tBadNickBlockerSettings.tExemptProfiles"}}},
    {"Security~ClientChecker",
     "ClientChecker/ClientCheckerSettings.tbl",
     {{"lvwEnabledProfiles", "tClientCheckerSettings.tEnabledProfiles"}}},
    {"Security~CloneBlocker",
     "CloneBlocker/CloneBlockerSettings.tbl",
     {{"lvwEnabledProfiles", "tCloneBlockerSettings.tEnabledProfiles"},
      {"lvwExemptProfiles", "tCloneBlockerSettings.tExemptProfiles"}}},
    {"Security~CommandSpy",
     "CommandSpy/CommandSpySettings.tbl",
     {{"lvwEnabledProfiles", "tCommandSpySettings.tEnabledProfiles"}}},
    {"Security~MainBlock",
     "MainBlock/MainBlockSettings.tbl",
     {{"lvwEnabledProfiles", "tMainBlockSettings.tEnabledProfiles"},
      {"lvwExemptProfiles", "tMainBlockSettings.tExemptProfiles"}}},
    {"Security~MainCleaner",
     "MainCleaner/MainCleanerSettings.tbl",
     {{"lvwEnabledProfiles", "tMainCleanerSettings.tEnabledProfiles"}}},
    {"Security~MainLock",
     "MainLock/MainLockSettings.tbl",
     {{"lvwEnabledProfiles", "tMainLockSettings.tEnabledProfiles"},
      {"lvwExemptProfiles", "tMainLockSettings.tExemptProfiles"}}},
    {"Security~PtokaXSettings",
     "PtokaX/PtokaXSettings.tbl",
     {{"lvwEnabledGetProfiles", "tPtokaXSettings.tEnabledGetProfiles"},
      {"lvwEnabledSetProfiles", "tPtokaXSettings.tEnabledSetProfiles"}}},
    {"Security~PrivateHub",
     "PrivateHub/PrivateHubSettings.tbl",
     {{"lvwDisabledDownloads", "tPrivateHubSettings.tDisabled.tDownloads"},
      {"lvwDisabledMain", "tPrivateHubSettings.tDisabled.tMain"},
      {"lvwDisabledPMs", "tPrivateHubSettings.tDisabled.tPMs"},
      {"lvwDisabledProfiles", "tPrivateHubSettings.tDisabled.tProfiles"},
      {"lvwDisabledSearches", "tPrivateHubSettings.tDisabled.tSearches"}}},
    {"Security~ProfileRules~Settings",
     "ProfileRules/ProfileRuleSettings.tbl",
     {{"lvwEnabledGetProfiles", "tProfileRuleSettings.tEnabledGetProfiles"},
      {"lvwEnabledSetProfiles", "tProfileRuleSettings.tEnabledSetProfiles"}}},
    {"Security~Report",
     "Report/ReportSettings.tbl",
     {{"lvwEnabledProfiles", "tReportSettings.tEnabledProfiles"}}},
    {"Security~SearchSpy",
     "SearchSpy/SearchSpySettings.tbl",
     {{"lvwAllowedProfiles", "tSearchSpySettings.tAllowedProfiles"},
      {"lvwImmuneProfiles", "tSearchSpySettings.tImmuneProfiles"}}},
    {"Security~UserLog",
     "UserLog/UserLogSettings.tbl",
     {{"lvwEnabledProfiles", "tUserLogSettings.tEnabledProfiles"},
      {"lvwEnabledLogProfiles", "tUserLogSettings.tEnabledLogProfiles"}}},
};

/// A form with a square of profiles for each of its commands.
struct GridForm
{
    const char* key;
    const char* list;
    const PermissionGrid& (*grid)();
};

void PrintTo(const GridForm& form, std::ostream* stream)
{
    *stream << form.key;
}

const GridForm formsWithGrids[] = {
    {"Security~Flooder", "lvwPermissions", floodPermissions},
    {"Security~Kicks~Permissions", "lvwPermissions", kickPermissions},
    {"Security~Registration", "lvwRegistrations", registrationPermissions},
};

template <typename Form>
std::string nameOf(const Form& form)
{
    std::string name = form.key;
    std::erase(name, '~');
    return name;
}

/// The values below a table: those of "t.tSub" are named "t.tSub.-1" in the file.
LuaValues below(const std::string& table, const LuaValues& values)
{
    LuaValues found;
    for (const auto& [name, value] : values) {
        if (name.starts_with(table + '.'))
            found.emplace(name.substr(table.size() + 1), value);
    }
    return found;
}

/// Hubs of the fewest, a usual and the most profiles, "Unregistered" among them.
constexpr int hubSizes[] = {1, 5, 64};

class SecurityFormsAtEachHub : public test::SecurityForms
{
protected:
    /// The tree was built for another hub: what its files have too few of counts as 0.
    void setProfiles(int count)
    {
        hub.profiles = {};
        for (int profile = 1; profile < count; ++profile)
            hub.profiles.add("Profile " + std::to_string(profile));
    }

    /// What a list of ticks holds whose first and last rows are ticked: their flags by profile key.
    static LuaValues firstAndLast(int count)
    {
        LuaValues flags;
        for (int row = 0; row < count; ++row)
            flags[std::to_string(row - 1)] = row == 0 || row == count - 1 ? "1" : "0";
        return flags;
    }

    static void tickFirstAndLast(EditorForm& form, const char* list, int count)
    {
        tick(form, list, {0});
        if (count > 1)
            tick(form, list, {count - 1});
    }
};

class ProfileLists : public SecurityFormsAtEachHub,
                     public testing::WithParamInterface<std::tuple<SecurityForm, int>>
{
};

TEST_P(ProfileLists, HaveARowForEachProfileAndSaveAFlagForEach)
{
    const auto& [described, count] = GetParam();
    setProfiles(count);
    auto& form = open(described.key);
    for (const ProfileList& each : described.lists) {
        const auto names = shown(find<RowList>(form, each.list));
        ASSERT_EQ(names.size(), count);
        EXPECT_EQ(names.first(), "Unregistered");
        EXPECT_EQ(names.last(), count == 1 ? "Unregistered" : QStringLiteral("Profile %1").arg(count - 1));
        EXPECT_EQ(ticks(form, each.list), std::string(static_cast<std::size_t>(count), '0'));
        tickFirstAndLast(form, each.list, count);
    }
    save(form);
    const LuaValues values = luaValues(file(described.file));
    for (const ProfileList& each : described.lists)
        EXPECT_EQ(below(each.table, values), firstAndLast(count));
}

INSTANTIATE_TEST_SUITE_P(Forms, ProfileLists,
                         testing::Combine(testing::ValuesIn(formsWithLists), testing::ValuesIn(hubSizes)),
                         [](const auto& test) {
                             return nameOf(std::get<0>(test.param)) + "At" +
                                    std::to_string(std::get<1>(test.param));
                         });

class ProfileGrids : public SecurityFormsAtEachHub,
                     public testing::WithParamInterface<std::tuple<GridForm, int>>
{
};

TEST_P(ProfileGrids, HaveARowForEachPairAndSaveItsCell)
{
    const auto& [described, count] = GetParam();
    const PermissionGrid& grid = described.grid();
    const int side = count - static_cast<int>(grid.firstProfile);
    setProfiles(count);
    auto& form = open(described.key);
    auto& list = find<QTreeView>(form, described.list);
    const int rows = static_cast<int>(grid.commands.size()) * side * side;
    ASSERT_EQ(list.model()->rowCount(), rows);
    if (rows == 0)
        return;
    for (const int row : std::set{0, rows - 1}) { // the first command's first pair, the last command's last
        clickRow(list, row);
        button(form, "EDIT", "tlbListview").trigger();
    }
    save(form);
    for (const GridCommand& command : grid.commands) {
        LuaValues expected;
        for (int by = 0; by < side; ++by) {
            for (int on = 0; on < side; ++on) {
                const bool first = &command == &grid.commands.front() && by == 0 && on == 0;
                const bool last = &command == &grid.commands.back() && by == side - 1 && on == side - 1;
                const auto key = [&grid](int place) {
                    return HubProfiles::key(grid.firstProfile + static_cast<std::size_t>(place));
                };
                expected[key(by) + '.' + key(on)] = first || last ? "1" : "0";
            }
        }
        const LuaValues values = luaValues(hub.store.files.at(hub.files.paths().inSettings(command.path)));
        EXPECT_EQ(below(command.table, values), expected) << command.word;
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, ProfileGrids,
                         testing::Combine(testing::ValuesIn(formsWithGrids), testing::ValuesIn(hubSizes)),
                         [](const auto& test) {
                             return nameOf(std::get<0>(test.param)) + "At" +
                                    std::to_string(std::get<1>(test.param));
                         });

class SecurityFormsAtHub : public SecurityFormsAtEachHub, public testing::WithParamInterface<int>
{
};

TEST_P(SecurityFormsAtHub, TheProfileRulesSaveSixRulesForEachProfile)
{
    const int count = GetParam();
    setProfiles(count);
    auto& form = open("Security~ProfileRules~Rules");
    auto& list = find<RowList>(form, "lvwPermissions");
    ASSERT_EQ(list.model()->rowCount(), 6 * count);
    clickRow(list, 6 * count - 2);
    test::entering({{{"7"}}}, [&form] { button(form, "EDIT", "tlbPermissions").trigger(); });
    save(form);
    const LuaValues values = luaValues(file("ProfileRules/ProfileRules.tbl"));
    for (int row = 0; row < count; ++row) {
        const std::string profile = "tProfileRules." + std::to_string(row - 1);
        // A profile that the file didn't have yet has no ratio before the next rebuild.
        const LuaValues expected = {{"iMinShare", "0"},
                                    {"iMaxShare", "0"},
                                    {"iMinSlots", "0"},
                                    {"iMaxSlots", "0"},
                                    {"iMaxHubs", row == count - 1 ? "7" : "0"},
                                    {"sHubSlotRatio", row < 4 ? "0/0" : ""}};
        EXPECT_EQ(below(profile, values), expected);
    }
    EXPECT_EQ(values.size(), 12 + 6 * static_cast<std::size_t>(count));
}

TEST_P(SecurityFormsAtHub, TheRegistrationOffersEachProfileButUnregistered)
{
    setProfiles(GetParam());
    auto& form = open("Security~Registration");
    auto& box = find<QComboBox>(form, "cboComboBox");
    ASSERT_EQ(box.count(), GetParam() - 1);
    if (box.count() == 0)
        return;
    QTest::keyClick(&box, Qt::Key_End);
    EXPECT_EQ(box.currentText(), QStringLiteral("Profile %1").arg(box.count()));
    save(form);
    EXPECT_EQ(
        luaValues(file("Registration/RegistrationSettings.tbl")).at("tRegistrationSettings.iRegProfile"),
        std::to_string(box.count() - 1));
}

TEST_P(SecurityFormsAtHub, TheRulesOfTheLastProfileAreItsOwn)
{
    const int count = GetParam();
    setProfiles(count);
    auto& form = open("Security~Rules");
    auto& list = find<RowList>(form, "lvwRules");
    ASSERT_EQ(list.model()->rowCount(), count);
    clickRow(list, count - 1);
    test::withModal([&form] { button(form, "EDIT", "tlbListview").trigger(); },
                    [](QWidget& modal) {
                        QTest::keyClicks(modal.findChild<QPlainTextEdit*>("txtTextBox"), "Be kind");
                        modal.findChild<QToolBar*>("tlbFormToolbar")->findChild<QAction*>("SAVE")->trigger();
                        modal.close();
                    });
    EXPECT_EQ(file("Rules/Ascii/" + std::to_string(count - 2) + ".asc"), "Be kind\r\n");
}

INSTANTIATE_TEST_SUITE_P(Hubs, SecurityFormsAtHub, testing::ValuesIn(hubSizes));

/// A form and the list of it that a test changes: ticks, or a grid's rows.
struct DiscardedForm
{
    const char* key;
    const char* list;
    bool grid = false;
};

void PrintTo(const DiscardedForm& form, std::ostream* stream)
{
    *stream << form.key;
}

std::vector<DiscardedForm> discardedForms()
{
    std::vector<DiscardedForm> forms;
    for (const SecurityForm& form : formsWithLists)
        forms.push_back({form.key, form.lists.front().list});
    for (const GridForm& form : formsWithGrids)
        forms.push_back({form.key, form.list, true});
    return forms;
}

class Discard : public test::SecurityForms, public testing::WithParamInterface<DiscardedForm>
{
protected:
    static void change(EditorForm& form)
    {
        clickRow(find<ListView>(form, GetParam().list), 1);
        if (GetParam().grid)
            button(form, "EDIT", "tlbListview").trigger();
        else
            tick(form, GetParam().list, {1});
    }

    /// What the list shows, ticks and all.
    static QStringList state(EditorForm& form)
    {
        auto& list = find<ListView>(form, GetParam().list);
        QStringList rows = shown(list);
        for (int row = 0; row < rows.size(); ++row)
            rows[row] += list.model()->index(row, 0).data(Qt::CheckStateRole).toString();
        return rows;
    }
};

TEST_P(Discard, LoadsTheFilesAgainOnlyIfConfirmed)
{
    auto& form = open(GetParam().key);
    const QStringList loaded = state(form);
    change(form);
    const QStringList changed = state(form);
    ASSERT_NE(changed, loaded);
    hub.store.log.clear();
    discard(form, QMessageBox::Cancel);
    EXPECT_EQ(state(form), changed);
    discard(form);
    EXPECT_EQ(state(form), loaded);
    EXPECT_TRUE(hub.store.log.empty()) << "nothing is written";
}

INSTANTIATE_TEST_SUITE_P(Forms, Discard, testing::ValuesIn(discardedForms()),
                         [](const auto& test) { return nameOf(test.param); });

} // namespace
} // namespace quillfen
