#include "functions/communication/rotatingmessages.h"

#include <algorithm>
#include <unordered_map>

namespace quillfen {
namespace {

RotatingMessages declared(const std::string& name, std::vector<Setting> profileTables,
                          std::vector<std::string> rebuildOrder)
{
    const std::string folder = "Communication\\" + name + "\\";
    TableFile settings = {
        folder + name + "Settings.tbl",
        "t" + name + "Settings",
        {
            flag("bRandomise", "chkRandomise", "Randomise", "1"),
            number("iDelay", "txtUpDown", "Delay", "120", 10, 720),
        },
        std::move(rebuildOrder),
    };
    for (Setting& table : profileTables)
        settings.settings.push_back(std::move(table));
    return {settings, {folder + name + "Files.tbl", "t" + name + "Files"}, folder + "Files"};
}

void build(const RotatingMessages& messages, const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(messages.settings, files, profiles);
    writeEmptyTableIfMissing(files, messages.names.path, messages.names.table);
}

} // namespace

const RotatingMessages& rotatingMainMessages()
{
    static const RotatingMessages messages =
        declared("RotatingMainMessage",
                 {profileFlags("tEnabledAdProfiles", "lvwEnabledProfiles", "Enabled Ad Profiles")}, {});
    return messages;
}

const RotatingMessages& rotatingPrivateMessages()
{
    static const RotatingMessages messages = declared(
        "RotatingPrivateMessage",
        {profileFlags("tEnabledAdProfiles", "lvwEnabledAdProfiles", "Enabled Ad Profiles"),
         profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles"),
         profileFlags("tEnabledMaintainProfiles", "lvwEnabledMaintainProfiles", "Enabled Maintain Profiles")},
        {"bRandomise", "iDelay", "tEnabledProfiles", "tEnabledAdProfiles", "tEnabledMaintainProfiles"});
    return messages;
}

std::string rotatingTextFile(const RotatingMessages& messages, const std::string& name)
{
    return messages.folder + "\\" + name + ".asc";
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
    for (const std::string& file : files.fileNames(messages.folder)) {
        // Whatever the extension is, four characters go.
        std::string name = file.substr(0, file.size() - std::min<std::size_t>(file.size(), 4));
        const auto [place, isNew] = places.try_emplace(name, rows.size());
        if (isNew)
            rows.push_back({{std::move(name)}});
        else if (place->second < names.size())
            rows[place->second].checked = true;
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

void buildRotatingMainMessages(const SettingsFiles& files, const HubProfiles& profiles)
{
    build(rotatingMainMessages(), files, profiles);
}

void buildRotatingPrivateMessages(const SettingsFiles& files, const HubProfiles& profiles)
{
    build(rotatingPrivateMessages(), files, profiles);
    writeEmptyTableIfMissing(files,
                             R"(Communication\RotatingPrivateMessage\RotatingPrivateMessageImmuneUsers.tbl)",
                             "tRotatingPrivateMessageImmuneUsers");
}

} // namespace quillfen
