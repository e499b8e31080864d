#include "functions/general/bots.h"

#include "settings/listfile.h"

namespace quillfen {
namespace {

constexpr std::string_view botsFile = R"(General\Bots\Bots.tbl)";
constexpr std::string_view email = "quillfen@example.com"; // one address for every bot

constexpr std::string_view mainFunctions[] = {"Main"};
constexpr std::string_view communication[] = {"ChatRooms", "MassMessage",         "MOTD",
                                              "Mute",      "RotatingMainMessage", "RotatingPrivateMessage",
                                              "Talk",      "WelcomeInfo",         "Whisper"};
constexpr std::string_view customiseUser[] = {"DescriptionTags", "IntroOutro"};
constexpr std::string_view games[] = {"Anagrams",    "CodeBreaker",    "GuessTheNumber",
                                      "Hangman",     "Numbers",        "RussianRoulette",
                                      "SlotMachine", "ThreeCardMonty", "Trivia"};
// The groups are as the hub script has them, odd cases included: HideShare under Security, and AutoCorrect,
// Clock and ProfileRules under UserAction.
constexpr std::string_view security[] = {
    "AntiAdvertise", "AntiVirus",      "BadNickBlocker", "ClientChecker", "CloneBlocker", "CommandSpy",
    "Flood",         "HideShare",      "Kicks",          "MainBlock",     "MainCleaner",  "MainLock",
    "PrivateHub",    "PtokaXSettings", "Registration",   "Rules",         "SearchSpy",    "UserLog"};
constexpr std::string_view userAction[] = {"Ascii",        "Attacks",  "AutoCorrect", "Clock",
                                           "DoAction",     "Insults",  "Jokes",       "Limericks",
                                           "ProfileRules", "Proverbs", "Quotations",  "Spells"};
constexpr std::string_view theArchive[] = {"Bookshelf", "DVDRack", "Jukebox",
                                           "Songbook",  "Arcade",  "Hyperlink"};

constexpr BotGroup groups[] = {
    {"Main", "\x95Quillfen\x95",
     "\x95"
     "Book Of Magic\x95",
     mainFunctions},
    {"Communication",
     "\x95"
     "CommunicationBot\x95",
     "\x95"
     "Communication Bot\x95",
     communication},
    {"CustomiseUser",
     "\x95"
     "CustomiseUserBot\x95",
     "\x95"
     "CustomiseUser Bot\x95",
     customiseUser},
    {"Games", "\x95GamesBot\x95", "\x95Games Bot\x95", games},
    {"Security", "\x95SecurityBot\x95", "\x95Security Bot\x95", security},
    {"UserAction", "\x95UserActionBot\x95", "\x95UserAction Bot\x95", userAction},
    {"TheArchive", "\x95UserActionBot\x95", "\x95TheArchive Bot\x95", theArchive}, // the nick is UserAction's
};

/// The cells of a row.
enum Cell
{
    Function,
    Name,
    Description,
    Email,
    Group
};

CellRow defaultRow(const BotGroup& group, std::string_view function)
{
    return {{std::string(function), std::string(group.name), std::string(group.description),
             std::string(email), std::string(group.word)}};
}

std::vector<CellRow> defaultRows(const HubProfiles& /*profiles*/)
{
    std::vector<CellRow> rows;
    for (const BotGroup& group : groups) {
        for (const auto function : group.functions)
            rows.push_back(defaultRow(group, function));
    }
    return rows;
}

/// A function that has no block keeps its defaults.
std::vector<CellRow> loadBots(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto index = files.index(botsFile);
    auto rows = defaultRows(profiles);
    for (CellRow& row : rows) {
        const std::string table = "t" + row.cells[Function];
        const CellRow stored{{row.cells[Function], index.value("sName", table), index.value("sDesc", table),
                              index.value("sEmail", table), index.value("sFunction", table)}};
        if (stored != CellRow{{row.cells[Function], "", "", "", ""}})
            row = stored;
    }
    return rows;
}

void saveBots(const SettingsFiles& files, const HubProfiles& /*profiles*/, const std::vector<CellRow>& rows)
{
    std::string text = "tBots = {\r\n";
    for (const CellRow& row : rows) {
        text += "\tt" + row.cells[Function] + " = {\r\n";
        text += "\t\tsName = \"" + row.cells[Name] + "\",\r\n";
        text += "\t\tsDesc = \"" + row.cells[Description] + "\",\r\n";
        text += "\t\tsEmail = \"" + row.cells[Email] + "\",\r\n";
        text += "\t\tbIsReg = 0,\r\n"; // nothing sets it: the hub script wants the row
        text += "\t\tsFunction = \"" + row.cells[Group] + "\",\r\n";
        text += "\t},\r\n";
    }
    files.WriteSettingsFile(botsFile, text + "}");
}

RowListDeclaration declaredBots()
{
    RowListDeclaration list;
    list.list = "lvwBots";
    list.toolbar = "tlbBots";
    list.columns = {"Function", "Nick", "Description", "Email"};
    list.menu = "mnuBots";
    list.dialog.form = EditForm::ThreeFields;
    list.dialog.editTitle = "Edit Bot";
    list.dialog.editMode = 0;
    list.labelsOf = [](const CellRow& row) {
        return std::vector<std::string>{row.cells[Function] + " Bot", "Description", "Email"};
    };
    list.fieldsOf = [](const CellRow& row) {
        return std::vector<std::string>{row.cells[Name], row.cells[Description], row.cells[Email]};
    };
    list.take = [](const std::vector<std::string>& fields, CellRow& row) {
        row.cells[Name] = fields[0];
        row.cells[Description] = fields[1];
        row.cells[Email] = fields[2];
    };
    list.load = loadBots;
    list.save = saveBots;
    list.restored = defaultRows;
    return list;
}

} // namespace

std::span<const BotGroup> botGroups()
{
    return groups;
}

const TableFile& botSettings()
{
    static const TableFile file = {
        R"(General\Bots\BotSettings.tbl)",
        "tBotSettings",
        {
            flag("bNotifyOps", "chkNotifyOps", "Notify Ops of change", "0"),
            profileFlags("tEnabledProfiles", "lvwAllowedProfiles", "Enabled Profiles"),
        },
    };
    return file;
}

const RowListDeclaration& bots()
{
    static const RowListDeclaration list = declaredBots();
    return list;
}

void buildBots(const SettingsFiles& files, const HubProfiles& profiles)
{
    rebuildTableFile(botSettings(), files, profiles);
    if (!files.store().exists(files.paths().inSettings(botsFile)))
        saveBots(files, profiles, defaultRows(profiles));
}

} // namespace quillfen
