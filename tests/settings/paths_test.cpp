#include "settings/codepage.h"
#include "settings/paths.h"

#include <gtest/gtest.h>
#include <set>

namespace quillfen {
namespace {

const SettingsPaths hubPaths("/hub/scripts");

TEST(Paths, ARelativePathLiesBelowTheSettingsRoot)
{
    EXPECT_EQ(hubPaths.resolve(R"(General\Globals\Version.tbl)"),
              "/hub/scripts/Morvaleth's Quillfen/Settings/General/Globals/Version.tbl");
}

TEST(Paths, AnAppRelativePathLiesInTheProgramFolder)
{
    EXPECT_EQ(hubPaths.resolve(R"(Morvaleth's Scripts\News\News.tbl)", true),
              "/hub/scripts/Morvaleth's Scripts/News/News.tbl");
}

TEST(Paths, ADriveBypassesTheSettingsRoot)
{
    EXPECT_EQ(hubPaths.resolve(R"(D:\x.tbl)"), "D:/x.tbl");
    EXPECT_EQ(hubPaths.resolve(R"(D:\x.tbl)", true), "D:/x.tbl");
}

TEST(Paths, AColonElsewhereDoesNot)
{
    EXPECT_EQ(hubPaths.resolve(R"(ab:\x.tbl)"), "/hub/scripts/Morvaleth's Quillfen/Settings/ab:/x.tbl");
    EXPECT_EQ(hubPaths.resolve("D:x.tbl"), "/hub/scripts/Morvaleth's Quillfen/Settings/D:x.tbl");
    EXPECT_EQ(hubPaths.resolve(":"), "/hub/scripts/Morvaleth's Quillfen/Settings/:");
    EXPECT_EQ(hubPaths.resolve(""), "/hub/scripts/Morvaleth's Quillfen/Settings/");
}

#ifdef _WIN32
TEST(Paths, ARootWithoutADriveIsNotAbsolute)
{
    EXPECT_EQ(hubPaths.resolve("/elsewhere/x.tbl"),
              "/hub/scripts/Morvaleth's Quillfen/Settings//elsewhere/x.tbl");
}
#else
TEST(Paths, ThePlatformsRootIsAbsolute)
{
    EXPECT_EQ(hubPaths.resolve("/elsewhere/x.tbl"), "/elsewhere/x.tbl");
}
#endif

TEST(Paths, TheHubFolderIsCutBehindTheLastSeparator)
{
    EXPECT_EQ(hubPaths.inHubFolder(R"(cfg\Profiles.xml)"), "/hub/cfg/Profiles.xml");
    EXPECT_EQ(SettingsPaths("scripts").inHubFolder(R"(cfg\Profiles.xml)"), "cfg/Profiles.xml");
}

TEST(Paths, ANameInTheCodePageIsUtf8OnTheDisk)
{
    EXPECT_EQ(hubPaths.inProgramFolder("caf\xE9\x80"), "/hub/scripts/caf\xC3\xA9\xE2\x82\xAC");
}

TEST(CodePage, EachByteHasItsOwnCharacterAndComesBack)
{
    std::set<char32_t> seen;
    for (int byte = 0; byte < 256; ++byte) {
        const char32_t character = codepage::toUnicode(static_cast<unsigned char>(byte));
        EXPECT_TRUE(seen.insert(character).second) << byte;
        EXPECT_EQ(codepage::fromUnicode(character), static_cast<unsigned char>(byte));
    }
}

TEST(CodePage, KnowsItsSpecialCharacters)
{
    EXPECT_EQ(codepage::toUnicode(0x80), U'\u20AC');
    EXPECT_EQ(codepage::toUnicode(0x95), U'\u2022');
    EXPECT_EQ(codepage::toUnicode(0x9F), U'\u0178');
    EXPECT_EQ(codepage::toUnicode(0xBB), U'\u00BB');
    EXPECT_EQ(codepage::toUnicode(0x81), static_cast<char32_t>(0x81)); // undefined there: stands for itself
}

TEST(CodePage, DoesNotHaveOtherCharacters)
{
    EXPECT_FALSE(codepage::fromUnicode(U'\u0416'));
    EXPECT_FALSE(
        codepage::fromUnicode(static_cast<char32_t>(0x80))); // a control character whose byte is the euro's
    EXPECT_FALSE(codepage::fromUnicode(U'\U0001F600'));
}

TEST(Paths, TheProgramFolderIsTwoAboveTheSettings)
{
    const auto paths = SettingsPaths::ofSettings("/hub/scripts/s/Settings");
    EXPECT_EQ(paths.settingsRoot(), "/hub/scripts/s/Settings");
    EXPECT_EQ(paths.inProgramFolder("a.txt"), "/hub/scripts/s/Settings/../../a.txt");
}

TEST(Paths, AFileBelowTheSettingsRootIsToldAsTheScriptTellsIt)
{
    const std::string root = hubPaths.settingsRoot();
    EXPECT_EQ(hubPaths.toldInSettings(root + "/General/Globals/Version.tbl"),
              R"(General\Globals\Version.tbl)");
    EXPECT_EQ(hubPaths.toldInSettings(root + "/caf\xC3\xA9"), "caf\xE9");
    EXPECT_EQ(hubPaths.toldInSettings(root + "/\xE4\xB8\xAD"), std::nullopt) << "the code page lacks it";
    EXPECT_EQ(hubPaths.toldInSettings("/hub/cfg/Profiles.xml"), std::nullopt);
    EXPECT_EQ(hubPaths.toldInSettings(root + "2/a"), std::nullopt);
}

} // namespace
} // namespace quillfen
