#include "functions/security/registration.h"
#include "functions/security/securitytest.h"

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class Registration : public test::SecurityFiles
{
protected:
    std::string& named(const std::string& name) { return file("Registration/Registration" + name + ".tbl"); }
    void build() { buildFunction(registrationFunction(), hub.files, hub.profiles); }

    const std::vector<std::string> tables = {"Add", "ChangePassword", "Delete", "GetPassword"};
};

TEST_F(Registration, AFreshBuildAllowsNothingAndWritesTheDefaults)
{
    build();
    EXPECT_TRUE(sameBytes(named("Settings"), golden("Registration.build.tbl")));
    for (const std::string& table : tables)
        EXPECT_TRUE(sameBytes(named(table), golden("Registration" + table + ".build.tbl")));
}

TEST_F(Registration, ABuildWritesTheTablesInItsOrderAndThenTheSettings)
{
    build();
    ASSERT_EQ(hub.store.log.size(), 5U);
    for (std::size_t at = 0; at < tables.size(); ++at)
        EXPECT_TRUE(hub.store.log[at].ends_with("/Registration" + tables[at] + ".tbl")) << hub.store.log[at];
    EXPECT_TRUE(hub.store.log[4].ends_with("/RegistrationSettings.tbl"));
}

TEST_F(Registration, ARebuildKeepsTheTablesAndResetsTheSettingsUnderTheWrongKey)
{
    named("Settings") = golden("Registration.save.tbl");
    for (const std::string& table : tables)
        named(table) = golden("Registration" + table + ".save.tbl");
    build();
    EXPECT_TRUE(sameBytes(named("Settings"), golden("Registration.build.tbl")));
    for (const std::string& table : tables)
        EXPECT_TRUE(sameBytes(named(table), golden("Registration" + table + ".save.tbl")));
}

TEST_F(Registration, AHubOfUnregisteredOnlyHasFourEmptyTables)
{
    hub.profiles = {};
    build();
    for (const std::string& table : tables)
        EXPECT_EQ(named(table), "tRegistration" + table + " = {\r\n}\r\n");
}

TEST_F(Registration, AHubOf64ProfilesHasAllButUnregistered)
{
    for (int more = 0; more < 60; ++more)
        hub.profiles.add("Profile " + std::to_string(more));
    build();
    EXPECT_EQ(luaValues(named("Add")).size(), 63U * 63);
}

TEST_F(Registration, TheHubScriptSeesItsValues)
{
    EXPECT_EQ(luaValues(golden("Registration.build.tbl")),
              (LuaValues{{"tRegistrationSettings.bAllowRegme", "1"},
                         {"tRegistrationSettings.bKeepLog", "1"},
                         {"tRegistrationSettings.sPrefix", ""},
                         {"tRegistrationSettings.iRegProfiles", "3"}}));
    EXPECT_EQ(luaValues(golden("Registration.save.tbl")),
              (LuaValues{{"tRegistrationSettings.bAllowRegme", "0"},
                         {"tRegistrationSettings.bKeepLog", "1"},
                         {"tRegistrationSettings.sPrefix", "[REG]"},
                         {"tRegistrationSettings.iRegProfile", "2"}}));
    const auto add = luaValues(golden("RegistrationAdd.save.tbl"));
    EXPECT_EQ(add.size(), 9U);
    EXPECT_EQ(add.at("tRegistrationAdd.0.1"), "1");
    EXPECT_EQ(luaValues(golden("RegistrationDelete.save.tbl")).at("tRegistrationDelete.0.0"), "1");
    EXPECT_EQ(luaValues(golden("RegistrationGetPassword.save.tbl")).at("tRegistrationGetPassword.1.2"), "1");
    EXPECT_EQ(luaValues(golden("RegistrationChangePassword.save.tbl")).at("tRegistrationChangePassword.2.2"),
              "1");
}

} // namespace
} // namespace quillfen
