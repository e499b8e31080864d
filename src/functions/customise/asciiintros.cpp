#include "functions/customise/asciiintros.h"

#include "functions/customise/shared/enabledprofiles.h"
#include "settings/textfolder.h"

namespace quillfen {
namespace {

ListFile usersFile()
{
    return {R"(CustomiseUser\IntroOutro\AsciiIntro.tbl)", "tAsciiIntro", ListFile::Form::Keyed};
}

ListFile indexFile()
{
    return {R"(CustomiseUser\IntroOutro\AsciiIntroIndex.tbl)", "tAsciiIntroIndex"};
}

std::vector<CellRow> loadFiles(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    std::vector<CellRow> rows;
    for (std::string& name : textNames(files, asciiIntroFolder))
        rows.push_back({{std::move(name)}});
    return rows;
}

RowListDeclaration declaredUsers()
{
    RowListDeclaration list;
    list.list = "lvwAscii";
    list.toolbar = "tlbAscii";
    list.toolTips = {"Add new user", "Delete user", "Edit user"};
    list.label = "Ascii Profiles";
    list.explanation = "Each row is a user and the ascii art that announces this user's arrival.";
    list.columns = {"Username", "Filename"};
    list.menu = "mnuFirst";
    list.dialog.form = EditForm::TextCombo;
    list.dialog.addTitle = "Add Ascii Profile for User";
    list.dialog.labels = list.columns;
    list.editTitleOf = [](const CellRow& row) { return "Edit Ascii Intro for " + row.cells[0]; };
    list.deletion = deletionOf("Intro", "intro");
    list.load = loadOf(usersFile());
    list.save = saveOf(usersFile());
    list.restored = noRows;
    return list;
}

RowListDeclaration declaredFiles()
{
    RowListDeclaration list;
    list.list = "lvwFiles";
    list.toolbar = "tlbFiles";
    list.toolTips = {"Add new file", "Delete file", "Edit file"};
    list.label = "Ascii Files";
    list.explanation = "Each row is a piece of ascii art that can be given to users as their intro.";
    list.columns = {"Filename"};
    list.menu = "mnuSecond";
    list.dialog.addTitle = "Enter filename";
    list.dialog.labels = {"Enter filename for new Ascii Intro"};
    list.deletion = deletionOf("Ascii Intro", "Ascii Intro");
    list.load = loadFiles;
    list.save = saveOf(indexFile());
    return list;
}

} // namespace

const TableFile& asciiIntroSettings()
{
    static const TableFile file = {
        R"(CustomiseUser\IntroOutro\AsciiIntroSettings.tbl)",
        "tAsciiIntroSettings",
        {setting::flag("bNotifyOps", "chkNotifyOps", "Notify Ops", true),
         enabledProfiles("Ascii Enabled Profiles", "Turns ascii intros on for the ticked profiles.")}};
    return file;
}

const RowListDeclaration& asciiIntroUsers()
{
    static const RowListDeclaration list = declaredUsers();
    return list;
}

const RowListDeclaration& asciiIntroFiles()
{
    static const RowListDeclaration list = declaredFiles();
    return list;
}

FunctionDeclaration asciiIntrosFunction()
{
    const OwnPart part = {.kind = OwnPartKind::AsciiIntros,
                          .lists =
                              [] {
                                  return std::vector{asciiIntroUsers(), asciiIntroFiles()};
                              },
                          .paths = {indexFile().path, R"(CustomiseUser\IntroOutro\Ascii\)"}};
    return {.nodes = {{"CustomiseUser~IntroOutro~Ascii",
                       "Ascii",
                       {{{"frmCustomiseUserAsciiIntro", "Customise User ~ Intros & Outros ~ Ascii"},
                         {DeclaredSettings{asciiIntroSettings}, part}}},
                       "IntroOutro ~ Ascii"}},
            .build = {RebuiltSettings{asciiIntroSettings}, emptyTable(usersFile()), emptyTable(indexFile())}};
}

} // namespace quillfen
