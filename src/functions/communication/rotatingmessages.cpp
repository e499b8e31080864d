#include "functions/communication/rotatingmessages.h"

#include "settings/textfolder.h"

#include <unordered_map>

namespace quillfen {
namespace {

RotatingMessages declaredMessages(const std::string& name, std::vector<Setting> profileTables,
                                  std::vector<std::string> rebuildOrder)
{
    const std::string folder = "Communication\\" + name + "\\";
    TableFile settings = {
        folder + name + "Settings.tbl",
        "t" + name + "Settings",
        {
            setting::flag("bRandomise", "chkRandomise", "Randomise", true),
            setting::number("iDelay", "txtUpDown", "Delay", 120, 10, 720)
                .explained("Sets how often a message is shown."),
        },
        std::move(rebuildOrder),
    };
    for (Setting& table : profileTables)
        settings.settings.push_back(std::move(table));
    return {settings, {folder + name + "Files.tbl", "t" + name + "Files"}, folder + "Files"};
}

FormDeclaration rotatingForm(const FormDescription& form, const RotatingMessages& (*messages)())
{
    return {form,
            {DeclaredSettings{[messages] { return messages().settings; }},
             DeclaredTexts{[messages] { return rotatingFiles(messages()); }, messages().folder}}};
}

/// The folders and the build of messages of a name.
FunctionDeclaration rotatingFunction(const std::string& name, const RotatingMessages& (*messages)())
{
    return {
        .folders = {"Communication\\" + name, messages().folder},
        .build = {RebuiltSettings{[messages] { return messages().settings; }}, emptyTable(messages().names)}};
}

} // namespace

const RotatingMessages& rotatingMainMessages()
{
    static const RotatingMessages messages = declaredMessages(
        "RotatingMainMessage",
        {setting::profileFlags("tEnabledAdProfiles", "lvwEnabledProfiles", "Enabled Ad Profiles")
             .explained("Shows the messages for the ticked profiles.")},
        {});
    return messages;
}

const RotatingMessages& rotatingPrivateMessages()
{
    static const RotatingMessages messages = declaredMessages(
        "RotatingPrivateMessage",
        {setting::profileFlags("tEnabledAdProfiles", "lvwEnabledAdProfiles", "Enabled Ad Profiles"),
         setting::enabledProfiles(),
         setting::profileFlags("tEnabledMaintainProfiles", "lvwEnabledMaintainProfiles",
                               "Enabled Maintain Profiles")},
        {"bRandomise", "iDelay", "tEnabledProfiles", "tEnabledAdProfiles", "tEnabledMaintainProfiles"});
    return messages;
}

RowListDeclaration rotatingFiles(const RotatingMessages& messages)
{
    RowListDeclaration list;
    list.list = "lvwFiles";
    list.toolbar = "tlbFiles";
    list.explanation = "Each row is a text that is shown in turn with the others while it is ticked.";
    list.columns = {"Filename"};
    list.ticks = true;
    list.menu = "mnuFirst";
    list.dialog.addTitle = "Enter filename";
    // The private messages' form asks in the words of the main messages' too.
    list.dialog.labels = {"Enter filename for new Rotating Main Message"};
    list.deletion = deletionOf("File", "File");
    list.load = [&messages](const SettingsFiles& files, const HubProfiles&) {
        return loadRotatingNames(messages, files);
    };
    list.save = [&messages](const SettingsFiles& files, const HubProfiles&,
                            const std::vector<CellRow>& rows) { saveRotatingNames(messages, rows, files); };
    return list;
}

std::vector<CellRow> loadRotatingNames(const RotatingMessages& messages, const SettingsFiles& files)
{
    // A table of numbered rows is read by its keys: its rows then bear the numbers.
    const bool numbered = !files.ReadTableValue(messages.names.path, "1").empty();
    std::vector<ListRow> names;
    files.ReadTableToList(messages.names.path, names, numbered ? "=" : "", messages.names.table);
    std::vector<CellRow> rows;
    std::unordered_map<std::string, std::size_t> places;
    for (ListRow& name : names) {
        places.try_emplace(name.text, rows.size());
        rows.push_back({{std::move(name.text)}});
    }
    for (std::string& name : textNames(files, messages.folder)) {
        const auto [place, isNew] = places.try_emplace(name, rows.size());
        if (isNew)
            rows.push_back({{std::move(name)}});
        else
            rows[place->second].checked = true; // also where two files differ in their extension alone
    }
    return rows;
}

void saveRotatingNames(const RotatingMessages& messages, const std::vector<CellRow>& rows,
                       const SettingsFiles& files)
{
    std::vector<ListRow> ticked;
    for (const CellRow& row : rows) {
        if (row.checked)
            ticked.push_back({row.cells.at(0)});
    }
    saveList(files, messages.names, ticked);
}

FunctionDeclaration rotatingMainMessagesFunction()
{
    FunctionDeclaration function = rotatingFunction("RotatingMainMessage", rotatingMainMessages);
    function.nodes = {
        {"Communication~RotatingMainMessage", "Rotating Main Message",
         rotatingForm({"frmCommunicationRotatingMainMessage", "Communication ~ RotatingMainMessage"},
                      rotatingMainMessages)}};
    return function;
}

FunctionDeclaration rotatingPrivateMessagesFunction()
{
    FunctionDeclaration function = rotatingFunction("RotatingPrivateMessage", rotatingPrivateMessages);
    function.nodes = {
        {"Communication~RotatingPrivateMessage", "Rotating Private Message",
         rotatingForm({"frmCommunicationRotatingPrivateMessage", "Communication ~ RotatingPrivateMessage"},
                      rotatingPrivateMessages)}};
    function.build.emplace_back(
        EmptyTable{R"(Communication\RotatingPrivateMessage\RotatingPrivateMessageImmuneUsers.tbl)",
                   "tRotatingPrivateMessageImmuneUsers"});
    return function;
}

} // namespace quillfen
