#include "functions/archive/archive.h"

#include "settings/lines.h"
#include "settings/tablewriter.h"

#include <algorithm>
#include <array>
#include <map>

namespace quillfen {
namespace {

constexpr const char* itemOfTheWeek = "ItemOfTheWeek";

struct Day
{
    const char* word;
    const char* name;
};

constexpr std::array<Day, 7> days = {{{"SUN", "Sunday"},
                                      {"MON", "Monday"},
                                      {"TUE", "Tuesday"},
                                      {"WED", "Wednesday"},
                                      {"THU", "Thursday"},
                                      {"FRI", "Friday"},
                                      {"SAT", "Saturday"}}};

/// The name of a day's short word; any other word has none.
std::string dayName(std::string_view word)
{
    const auto* const day =
        std::find_if(days.begin(), days.end(), [word](const Day& each) { return each.word == word; });
    return day == days.end() ? std::string() : day->name;
}

std::string memberPath(const ArchiveMember& member, const std::string& file)
{
    return "TheArchive\\" + member.word + "\\" + member.word + file + ".tbl";
}

std::string memberTable(const ArchiveMember& member, const std::string& file)
{
    return "t" + member.word + file;
}

std::vector<std::string> twoDigits(int count)
{
    std::vector<std::string> numbers;
    numbers.reserve(static_cast<std::size_t>(count));
    for (int number = 0; number < count; ++number)
        numbers.push_back((number < 10 ? "0" : "") + std::to_string(number));
    return numbers;
}

void writeAnnouncement(TableWriter& table, int number, std::string_view time, std::string_view bInMain)
{
    table.open(bracketed(std::to_string(number))).text("sTime", time).row("bInMain", bInMain).close();
}

enum AnnouncementCell
{
    Date,
    Time,
    Location
};

CellRow announcementOf(const std::vector<std::string>& fields)
{
    return {{fields.at(0), fields.at(1) + ":" + fields.at(2), fields.at(3) == "Main Chat" ? "Main" : "PM"}};
}

std::vector<std::string> announcementFields(const CellRow& row)
{
    const std::string& time = row.cells.at(Time);
    return {row.cells.at(Date), time.substr(0, 2), time.size() > 3 ? time.substr(3, 2) : "",
            row.cells.at(Location) == "PM" ? "Private Message" : "Main Chat"};
}

/// The one member that a rebuild makes files for, and the last of them.
const ArchiveMember& hyperlink()
{
    return archiveMembers().back();
}

/// The file and the table of a command, and of Hyperlink's right clicks the two of the form.
GridCommand commandOf(const ArchiveMember& member, const std::string& command)
{
    return {command, memberPath(member, "Enable" + command), memberTable(member, "Enable" + command)};
}

GridCommand rightClickOf(const std::string& word)
{
    // The form's tables lack the "RC" that their files have: the form finds each value by its profile's key
    // alone.
    return {word, memberPath(hyperlink(), "RCEnable" + word), memberTable(hyperlink(), "Enable" + word)};
}

std::vector<PermissionCell> loadCells(const std::vector<GridCommand>& commands, const SettingsFiles& files,
                                      const HubProfiles& profiles)
{
    std::vector<PermissionCell> cells;
    for (std::size_t command = 0; command < commands.size(); ++command) {
        const auto index = files.index(commands[command].path);
        for (std::size_t row = 0; row < profiles.count(); ++row)
            cells.push_back({command, row, row, isOne(index.value(HubProfiles::key(row)))});
    }
    return cells;
}

/// A command's file is written when the walk comes to the next command, so the last command's never is: a
/// change of it is lost.
void saveCells(const std::vector<GridCommand>& commands, const std::vector<PermissionCell>& cells,
               const SettingsFiles& files)
{
    TableWriter table;
    const PermissionCell* previous = nullptr;
    for (const PermissionCell& cell : cells) {
        if (!previous || previous->command != cell.command) {
            if (previous)
                files.WriteSettingsFile(commands[previous->command].path, table.close().closed());
            table = TableWriter(commands[cell.command].table);
            table.indent(2); // as in a nested table, whose brace follows, though none is opened
        }
        table.row(bracketed(HubProfiles::key(cell.by)), cell.allowed ? "1" : "0");
        previous = &cell;
    }
}

GridSource gridOf(const std::vector<GridCommand>& commands)
{
    GridSource source;
    for (const GridCommand& command : commands)
        source.commands.push_back(command.word);
    source.load = [commands](const SettingsFiles& files, const HubProfiles& profiles) {
        return loadCells(commands, files, profiles);
    };
    source.save = [commands](const std::vector<PermissionCell>& cells, const SettingsFiles& files,
                             const HubProfiles&) { saveCells(commands, cells, files); };
    return source;
}

void rebuildLinkOfTheWeek(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    const std::string table = memberTable(hyperlink(), itemOfTheWeek);
    const auto index = files.index(memberPath(hyperlink(), itemOfTheWeek));
    const auto kept = [&](const std::string& key, const std::string& nested, const std::string& defaultText) {
        const auto value = index.value(key, nested);
        return value.empty() ? defaultText : value;
    };
    TableWriter lines(table);
    lines.row("bEnabled", kept("bEnabled", table, "1"));
    lines.text("sChangeTime", kept("sChangeTime", table, "SUN 17:59"));
    if (index.value("sTime", "1").empty())
        writeAnnouncement(lines, 1, "SUN 18:00", "0");
    for (int number = 1; number <= 50; ++number) {
        const std::string nested = std::to_string(number);
        const auto time = index.value("sTime", nested);
        if (time.empty())
            break;
        writeAnnouncement(lines, number, time, kept("bInMain", nested, "0"));
    }
    files.WriteSettingsFile(memberPath(hyperlink(), itemOfTheWeek), lines.closed());
}

/// Each table's text goes to the file of the next table in the ring. So a table finds its own file
/// overwritten by the one before when its turn comes, and starts with no permission; only the first keeps its
/// values, which then stand in the second's file: there the form finds them by their profiles' keys alone.
void rebuildPermissionRing(const SettingsFiles& files, const HubProfiles& profiles)
{
    static const std::vector<std::string> ring = {"EnableClear",    "EnableDelete",    "EnableModify",
                                                  "EnableNewItems", "EnableSubmit",    "RCEnableCategory",
                                                  "RCEnableItem",   "RCEnablePending", "RCEnableVoting"};
    for (std::size_t place = 0; place < ring.size(); ++place) {
        const std::string table = memberTable(hyperlink(), ring[place]);
        const auto index = files.index(memberPath(hyperlink(), ring[place]));
        TableWriter lines(table);
        for (const std::string& key : profiles.keys()) {
            const auto value = index.value(key, table);
            lines.text(bracketed(key), value.empty() ? "0" : value);
        }
        files.WriteSettingsFile(memberPath(hyperlink(), ring[(place + 1) % ring.size()]), lines.closed());
    }
}

constexpr Twips gridSize = {7500, 6000};

/// One value for each command and profile, which a click turns.
GridWords permissionWords()
{
    GridWords words;
    words.columns = {"Command", "Profile", "Setting"};
    words.targets = false;
    words.clickToggles = true;
    words.explanation = "Lets the profile use the command on this collection.";
    return words;
}

GridWords rightClickWords()
{
    GridWords words = permissionWords();
    // A press of this button doesn't take its filter off: only a button of the key COMMAND does so.
    words.commandFilter = "RIGHTCLICK";
    words.commandFilterTip = "View By Right Click";
    words.explanation = "Gives the profile the right clicks of this kind.";
    return words;
}

std::vector<PlacedText> placedLinkOfTheWeek(const ArchiveMember& member, const SettingsFiles& files)
{
    const std::string path = memberPath(member, itemOfTheWeek);
    const LinkOfTheWeek link = loadLinkOfTheWeek(member, files);
    std::vector<PlacedText> texts = {
        {path, "chkCheckBox(0)", -1, "Enable Link of Week", link.enabled == "1" ? "on" : "off"},
        {path, "txtChangeTime", -1, "Change Time", link.changeTime}};
    for (std::size_t row = 0; row < link.announcements.size(); ++row) {
        const auto& cells = link.announcements[row].cells;
        texts.push_back({path, "lvwWeek", static_cast<int>(row), "Date",
                         cells[Date] + " | " + cells[Time] + " | " + cells[Location]});
    }
    return texts;
}

/// Who voted is forgotten by each rebuild.
void forgetVoters(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    const std::string table = memberTable(hyperlink(), "VoteNick");
    files.WriteSettingsFile(memberPath(hyperlink(), "VoteNick"), TableWriter(table).closed());
}

} // namespace

const std::vector<ArchiveMember>& archiveMembers()
{
    static const std::vector<ArchiveMember> members = {
        {"Bookshelf", "Items"}, {"DVDRack", "Items"}, {"Jukebox", "Items"},
        {"Songbook", "Items"},  {"Arcade", "Items"},  {"Hyperlink", "Links"},
    };
    return members;
}

LinkOfTheWeek loadLinkOfTheWeek(const ArchiveMember& member, const SettingsFiles& files)
{
    constexpr int mostAnnouncements = 500;
    const auto index = files.index(memberPath(member, itemOfTheWeek));
    // The form's own save leaves the day's full name, which no short word equals: so it shows without its
    // day.
    const auto change = index.value("sChangeTime");
    const auto [changeDay, changeTime, hasTime] = splitInPieces(change, ' ');
    LinkOfTheWeek link{isOne(index.value("bEnabled")) ? "1" : "0",
                       dayName(changeDay) + " " + std::string(changeTime)};
    for (int number = 1; number <= mostAnnouncements; ++number) {
        const std::string nested = std::to_string(number);
        const auto announced = index.value("sTime", nested);
        const auto [day, time, found] = splitInPieces(announced, ' ');
        if (day.empty())
            break;
        link.announcements.push_back(
            {{dayName(day), std::string(time), isOne(index.value("bInMain", nested)) ? "Main" : "PM"}});
    }
    return link;
}

void saveLinkOfTheWeek(const ArchiveMember& member, const LinkOfTheWeek& link, const SettingsFiles& files)
{
    TableWriter table(memberTable(member, itemOfTheWeek));
    table.row("bEnabled", link.enabled);
    // Without quotes and with the day's full name, unlike the build's: Lua can't load it, and the form itself
    // reads it back without its day.
    table.row("sChangeTime", link.changeTime);
    int number = 0;
    std::string word; // a text that is no day's name keeps the word of the row before
    for (const CellRow& row : link.announcements) {
        for (const Day& day : days) {
            if (day.name == row.cells.at(Date))
                word = day.word;
        }
        writeAnnouncement(table, ++number, word + " " + row.cells.at(Time),
                          row.cells.at(Location) == "Main" ? "1" : "0");
    }
    files.WriteSettingsFile(memberPath(member, itemOfTheWeek), table.closed());
}

LinkOfTheWeek restoredLinkOfTheWeek()
{
    return {"1", "Sunday 17:59", {{{"Sunday", "18:00", "PM"}}}};
}

RowListDeclaration announcements()
{
    RowListDeclaration list = listOf("Announcement", Fewest::None);
    list.list = "lvwWeek";
    list.toolbar = "tlbWeek";
    list.explanation =
        "Each row is a time at which the link of the week is announced, in main chat or by private message.";
    list.columns = {"Date", "Time", "Location"};
    list.menu = "mnuFirst";
    list.dialog.form = EditForm::FourCombos;
    list.dialog.editTitle = " Announcement"; // shown with its leading blank
    list.dialog.labels = {"Day", "Hour", "Minute", "Location"};
    list.dialog.entries = {dayNames(), hours(), minutes(), {"Main Chat", "Private Message"}};
    list.dialog.addMode = 6;  // a row without one of its parts could not be read back
    list.dialog.editMode = 7; // the same, without another round
    list.deletion = deletionOf("Announcement Time", "Announcement Time");
    list.fieldsOf = announcementFields;
    list.take = [](const std::vector<std::string>& fields, CellRow& row) { row = announcementOf(fields); };
    return list;
}

const std::vector<std::string>& dayNames()
{
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        all.reserve(days.size());
        for (const Day& day : days)
            all.emplace_back(day.name);
        return all;
    }();
    return names;
}

std::vector<std::string> hours()
{
    return twoDigits(24);
}

std::vector<std::string> minutes()
{
    return twoDigits(60);
}

const TableFile& newItems(const ArchiveMember& member)
{
    static const std::map<std::string, TableFile> files = [] {
        std::map<std::string, TableFile> all;
        for (const ArchiveMember& each : archiveMembers()) {
            all[each.word] = {
                memberPath(each, "NewItems"),
                memberTable(each, "NewItems"),
                {setting::flag("bEnableNewItems", "chkCheckBox(0)", "Enable New " + each.items, true),
                 setting::number("iNumberOfNewItems", "txtUpDown(0)", "Max Number Of New " + each.items, 5, 1,
                                 50)}};
        }
        return all;
    }();
    return files.at(member.word);
}

GridSource archivePermissions(const ArchiveMember& member)
{
    std::vector<GridCommand> commands;
    for (const char* word : {"Clear", "Delete", "Modify", "NewItems", "Submit"})
        commands.push_back(commandOf(member, word));
    return gridOf(commands);
}

GridSource hyperlinkRightClicks()
{
    std::vector<GridCommand> words;
    for (const char* word : {"Category", "Item", "Pending", "Voting"})
        words.push_back(rightClickOf(word));
    return gridOf(words);
}

FunctionDeclaration archiveFunction(std::size_t member)
{
    const ArchiveMember& each = archiveMembers()[member];
    const auto node = [&each](const std::string& function, const std::string& caption,
                              std::optional<FormDeclaration> form) {
        return Node{each.word + '~' + function, caption, std::move(form)};
    };
    const auto form = [&each](const std::string& name, const std::string& caption, Twips size = gridSize) {
        return FormDescription{"frm" + each.word + name, each.word + " ~ " + caption, size};
    };
    const OwnPart week = {
        .kind = OwnPartKind::LinkOfTheWeek,
        .which = member,
        .lists = [] { return std::vector{announcements()}; },
        .explanations = {{"chkCheckBox(0)", {}, memberPath(each, itemOfTheWeek), "bEnabled"},
                         {"txtChangeTime", "Sets the day and time at which the link of the week changes.",
                          memberPath(each, itemOfTheWeek), "sChangeTime"}},
        .texts = [&each](const SettingsFiles& files,
                         const HubProfiles&) { return placedLinkOfTheWeek(each, files); },
        .paths = {memberPath(each, itemOfTheWeek)}};
    return {
        .nodes = {
            {each.word, each.word},
            node("LinkOfTheWeek", "Link Of The Week", {{form("Week", "Link Of The Week"), {week}}}),
            node("NewLinks", "New Links",
                 settingsForm(form("NewItems", "New " + each.items, {}), [&each] { return newItems(each); })),
            node("Permissions", "Permissions",
                 gridForm(
                     form("Permissions", "Permissions"), [&each] { return archivePermissions(each); },
                     permissionWords())),
            // Of the six, only Hyperlink's right clicks have a form.
            node("RightClicks", "RightClicks",
                 &each == &hyperlink() ? std::optional(gridForm(form("RightClicks", "Right Clicks"),
                                                                hyperlinkRightClicks, rightClickWords()))
                                       : std::nullopt),
        }};
}

FunctionDeclaration archiveFolders()
{
    FunctionDeclaration function = {
        .folders = {R"(TheArchive\Bookshelf)", R"(TheArchive\DVDRack)", R"(TheArchive\Jukebox)",
                    R"(TheArchive\Songbook)", R"(TheArchive\Arcade)", R"(TheArchive\Hyperlink)"},
        .build = {rebuildLinkOfTheWeek, RebuiltSettings{[] { return newItems(hyperlink()); }},
                  rebuildPermissionRing}};
    for (const char* name : {"CategoryIndex", "Index", "Items", "PendingIndex", "PendingItems", "VoteIP"})
        function.build.emplace_back(
            EmptyTable{memberPath(hyperlink(), name), memberTable(hyperlink(), name)});
    function.build.emplace_back(forgetVoters);
    return function;
}

} // namespace quillfen
