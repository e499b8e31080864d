// What a form has saved loads and saves into the same bytes: of the functions that have a way of their own to
// do both.
#include "declarations/declaration.h"
#include "functions/archive/archive.h"
#include "functions/communication/massmessage.h"
#include "functions/communication/motd.h"
#include "functions/customise/asciiintros.h"
#include "functions/customise/descriptiontags.h"
#include "functions/customise/introsoutros.h"
#include "functions/security/profilerules.h"
#include "functions/security/spies.h"
#include "functions/useractions/ascii.h"
#include "support/golden.h"
#include "support/hub.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::golden;
using test::sameBytes;

struct SavedFile
{
    const char* golden;
    const char* path;
    std::function<void(const SettingsFiles&, const HubProfiles&)> loadAndSave;
};

std::function<void(const SettingsFiles&, const HubProfiles&)> again(const RowListDeclaration& list)
{
    return [list](const SettingsFiles& files, const HubProfiles& profiles) {
        list.save(files, profiles, list.load(files, profiles));
    };
}

std::function<void(const SettingsFiles&, const HubProfiles&)> again(const RowListGroup& group)
{
    return [group](const SettingsFiles& files, const HubProfiles& profiles) {
        std::vector<std::vector<CellRow>> rows;
        for (const RowListDeclaration& list : group.lists)
            rows.push_back(list.load(files, profiles));
        group.save(files, rows);
    };
}

std::function<void(const SettingsFiles&, const HubProfiles&)> again(const GridSource& grid)
{
    return [grid](const SettingsFiles& files, const HubProfiles& profiles) {
        grid.save(grid.load(files, profiles), files, profiles);
    };
}

std::vector<SavedFile> savedFiles()
{
    return {
        {"communication/MassMessageSettings.save.tbl", "Communication/MassMessage/MassMessageSettings.tbl",
         [](const SettingsFiles& files, const HubProfiles& profiles) {
             saveMassMessage(loadMassMessage(files, profiles), files, profiles);
         }},
        {"communication/MOTDSettings.save.tbl", "Communication/MOTD/MOTDSettings.tbl",
         [](const SettingsFiles& files, const HubProfiles& profiles) {
             saveMotds(files, loadMotds(files, profiles));
         }},
        {"customise/DescriptionTagSettings.save.tbl",
         "CustomiseUser/DescriptionTags/DescriptionTagSettings.tbl",
         [](const SettingsFiles& files, const HubProfiles& profiles) {
             const auto tagged = loaded(taggedProfiles(), files.index(taggedProfiles().path), profiles);
             saveDescriptionTags(tagged, descriptionTags().load(files, profiles), files, profiles);
         }},
        {"customise/AsciiIntro.save.tbl", "CustomiseUser/IntroOutro/AsciiIntro.tbl",
         again(asciiIntroUsers())},
        {"customise/CustomIntro.save.tbl", "CustomiseUser/IntroOutro/CustomIntro.tbl",
         again(customIntrosOutros().lines)},
        {"security/ProfileRules.save.tbl", "Security/ProfileRules/ProfileRules.tbl", again(profileRules())},
        {"security/SearchSpyFiles.save.tbl", "Security/SearchSpy/SearchSpyFiles.tbl",
         again(forbiddenFiles())},
        {"useractions/AsciiIndex.save.tbl", "UserActions/Ascii/AsciiIndex.tbl", again(asciiPictures())},
        {"archive/ArcadeEnableDelete.save.tbl", "TheArchive/Arcade/ArcadeEnableDelete.tbl",
         again(archivePermissions(archiveMembers()[4]))},
        {"archive/HyperlinkRCEnableItem.save.tbl", "TheArchive/Hyperlink/HyperlinkRCEnableItem.tbl",
         again(hyperlinkRightClicks())},
    };
}

class SavedAgain : public testing::TestWithParam<SavedFile>
{
protected:
    SavedAgain()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    test::Hub hub{"Communication/MassMessage", "Communication/MOTD",    "CustomiseUser/DescriptionTags",
                  "CustomiseUser/IntroOutro",  "Security/ProfileRules", "Security/SearchSpy",
                  "UserActions/Ascii",         "TheArchive/Arcade",     "TheArchive/Hyperlink"};
};

TEST_P(SavedAgain, HasTheSameBytes)
{
    hub.file(GetParam().path) = golden(GetParam().golden);
    GetParam().loadAndSave(hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(hub.file(GetParam().path), golden(GetParam().golden)));
}

INSTANTIATE_TEST_SUITE_P(Files, SavedAgain, testing::ValuesIn(savedFiles()), [](const auto& each) {
    std::string name = each.param.golden;
    std::erase_if(name, [](char letter) { return letter == '/' || letter == '.'; });
    return name;
});

} // namespace
} // namespace quillfen
