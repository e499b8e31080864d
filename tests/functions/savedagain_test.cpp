// What a form has saved loads and saves into the same bytes: files that functions load and save in ways of
// their own, and all declared files of settings.
#include "declarations/declaration.h"
#include "functions/archive/archive.h"
#include "functions/catalogue.h"
#include "functions/communication/massmessage.h"
#include "functions/communication/motd.h"
#include "functions/customise/asciiintros.h"
#include "functions/customise/descriptiontags.h"
#include "functions/customise/introsoutros.h"
#include "functions/security/profilerules.h"
#include "functions/security/spies.h"
#include "functions/useractions/actiontexts.h"
#include "functions/useractions/ascii.h"
#include "store/asidefile.h"
#include "support/freshtree.h"
#include "support/golden.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace quillfen {
namespace {

using test::golden;
using test::sameBytes;

/// Loads from one hub and saves to another.
using LoadAndSave =
    std::function<void(const SettingsFiles& from, const SettingsFiles& to, const HubProfiles& profiles)>;

struct SavedFile
{
    const char* golden;
    const char* path;
    LoadAndSave loadAndSave;
};

LoadAndSave again(const RowListDeclaration& list)
{
    return [list](const SettingsFiles& from, const SettingsFiles& to, const HubProfiles& profiles) {
        list.save(to, profiles, list.load(from, profiles));
    };
}

LoadAndSave again(const RowListGroup& group)
{
    return [group](const SettingsFiles& from, const SettingsFiles& to, const HubProfiles& profiles) {
        std::vector<std::vector<CellRow>> rows;
        for (const RowListDeclaration& list : group.lists)
            rows.push_back(list.load(from, profiles));
        group.save(to, rows);
    };
}

LoadAndSave again(const GridSource& grid)
{
    return [grid](const SettingsFiles& from, const SettingsFiles& to, const HubProfiles& profiles) {
        grid.save(grid.load(from, profiles), to, profiles);
    };
}

std::vector<SavedFile> savedFiles()
{
    return {
        {"communication/MassMessageSettings.save.tbl", "Communication/MassMessage/MassMessageSettings.tbl",
         [](const SettingsFiles& from, const SettingsFiles& to, const HubProfiles& profiles) {
             saveMassMessage(loadMassMessage(from, profiles), to, profiles);
         }},
        {"communication/MOTDSettings.save.tbl", "Communication/MOTD/MOTDSettings.tbl",
         [](const SettingsFiles& from, const SettingsFiles& to, const HubProfiles& profiles) {
             saveMotds(to, loadMotds(from, profiles));
         }},
        {"customise/DescriptionTagSettings.save.tbl",
         "CustomiseUser/DescriptionTags/DescriptionTagSettings.tbl",
         [](const SettingsFiles& from, const SettingsFiles& to, const HubProfiles& profiles) {
             const auto tagged = loaded(taggedProfiles(), from.index(taggedProfiles().path), profiles);
             saveDescriptionTags(tagged, descriptionTags().load(from, profiles), to, profiles);
         }},
        {"customise/AsciiIntro.save.tbl", "CustomiseUser/IntroOutro/AsciiIntro.tbl",
         again(asciiIntroUsers())},
        {"customise/CustomIntro.save.tbl", "CustomiseUser/IntroOutro/CustomIntro.tbl",
         again(customIntrosOutros().lines)},
        {"security/ProfileRules.save.tbl", "Security/ProfileRules/ProfileRules.tbl", again(profileRules())},
        {"security/SearchSpyFiles.save.tbl", "Security/SearchSpy/SearchSpyFiles.tbl",
         again(forbiddenFiles())},
        {"useractions/InsultsMedieval.save.tbl", "UserActions/Insults/InsultsMedieval.tbl",
         again(medievalInsults())},
        {"useractions/InsultsModern.save.tbl", "UserActions/Insults/InsultsModern.tbl",
         again(modernInsults())},
        {"useractions/AsciiIndex.save.tbl", "UserActions/Ascii/AsciiIndex.tbl", again(asciiPictures())},
        {"archive/ArcadeEnableDelete.save.tbl", "TheArchive/Arcade/ArcadeEnableDelete.tbl",
         again(archivePermissions(archiveMembers()[4]))},
        {"archive/HyperlinkRCEnableItem.save.tbl", "TheArchive/Hyperlink/HyperlinkRCEnableItem.tbl",
         again(hyperlinkRightClicks())},
    };
}

class SavedAgain : public testing::Test
{
protected:
    SavedAgain()
    {
        for (const char* name : {"Master", "Operator", "VIP"})
            hub.profiles.add(name);
    }

    test::Hub hub;
};

class SavedFiles : public SavedAgain, public testing::WithParamInterface<SavedFile>
{
};

TEST_P(SavedFiles, HaveTheSameBytes)
{
    hub.file(GetParam().path) = golden(GetParam().golden);
    test::Hub saved;
    makeFolderAndThoseAbove(saved.store, saved.root + '/' + folderOf(GetParam().path));
    GetParam().loadAndSave(hub.files, saved.files, hub.profiles);
    EXPECT_TRUE(sameBytes(saved.file(GetParam().path), golden(GetParam().golden)));
}

INSTANTIATE_TEST_SUITE_P(Files, SavedFiles, testing::ValuesIn(savedFiles()), [](const auto& each) {
    std::string name = each.param.golden;
    std::erase_if(name, [](char letter) { return letter == '/' || letter == '.'; });
    return name;
});

/// All files of settings that forms save by their declarations alone, each once.
std::map<std::string, TableFile> settingsFiles()
{
    std::map<std::string, TableFile> files;
    const auto add = [&files](const TableFile& file) { files.insert_or_assign(file.table, file); };
    for (const FormDeclaration& form : formCatalogue()) {
        for (const PartDeclaration& part : form.parts) {
            if (const auto* declared = std::get_if<DeclaredSettings>(&part))
                add(declared->file());
        }
    }
    return files;
}

TEST_F(SavedAgain, SettingsHaveTheSameBytesToo)
{
    const auto files = settingsFiles();
    std::set<std::string> held;
    for (const std::string& name : test::goldenNames()) {
        const std::string bytes = golden(name);
        const auto file = files.find(bytes.substr(0, bytes.find(' ')));
        if (!name.ends_with(".save.tbl") || file == files.end())
            continue;
        hub.file("A.tbl") = bytes;
        const auto values = loaded(file->second, TableIndex(bytes), hub.profiles);
        hub.files.WriteSettingsFile("A.tbl", composed(file->second, values, RowOrder::Save, hub.profiles));
        EXPECT_TRUE(sameBytes(hub.file("A.tbl"), bytes)) << name;
        held.insert(file->first);
    }
    for (const char* table : {"tBookshelfNewItems", "tBotSettings", "tDVDRackNewItems", "tHubEmailSettings",
                              "tHyperlinkNewItems", "tJukeboxNewItems", "tKickBarChangerSettings",
                              "tSongbookNewItems", "tTopicChangerSettings", "tWhisperSettings"})
        EXPECT_TRUE(held.insert(table).second) << table << " has a golden file by now";
    for (const auto& [table, file] : files)
        EXPECT_EQ(held.count(table), 1U) << "no golden file of a save has " << table;
}

std::vector<CellRow> changed(const RowListDeclaration& list, std::vector<CellRow> rows)
{
    if (rows.empty())
        rows.push_back({std::vector<std::string>(list.columns.size(), "new"), true});
    else
        rows.erase(rows.begin());
    return rows;
}

/// What each part of a form saves by its declaration alone, with a row more or less than a fresh tree has.
std::map<std::string, std::function<void(test::Hub&)>> changedSaves()
{
    std::map<std::string, std::function<void(test::Hub&)>> saves;
    const test::Hub profiles;
    for (const FormDeclaration& form : formCatalogue()) {
        for (const PartDeclaration& part : form.parts) {
            for (const RowListDeclaration& list : listsOf(part, profiles.profiles)) {
                if (list.load && list.save)
                    saves[form.form.name + ' ' + list.list] = [list](test::Hub& hub) {
                        list.save(hub.files, hub.profiles, changed(list, list.load(hub.files, hub.profiles)));
                    };
            }
            if (const auto* group = std::get_if<DeclaredLists>(&part))
                saves[form.form.name] = [lists = group->lists()](test::Hub& hub) {
                    std::vector<std::vector<CellRow>> rows;
                    for (const RowListDeclaration& list : lists.lists)
                        rows.push_back(changed(list, list.load(hub.files, hub.profiles)));
                    lists.save(hub.files, rows);
                };
        }
    }
    return saves;
}

TEST_F(SavedAgain, ChangedRowsOfAListChangeItsFile)
{
    hub.store.files["/hub/cfg/Profiles.xml"] = "<Name>Master</Name>\r\n<Name>VIP</Name>\r\n";
    test::buildTree(hub);
    const auto saves = changedSaves();
    EXPECT_EQ(saves.size(), 41U);
    for (const auto& [name, save] : saves) {
        const auto before = hub.store.files;
        save(hub);
        EXPECT_TRUE(hub.store.files != before) << name;
    }
}

} // namespace
} // namespace quillfen
