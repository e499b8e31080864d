#include "functions/general/bots.h"

#include "settings/bottables.h"
#include "settings/tablewriter.h"

namespace quillfen {
namespace {

constexpr std::string_view email = "quillfen@example.com"; // one address for every bot

/// The bot that speaks for a group of functions unless the owner gives one of them another.
struct DefaultBot
{
    std::string_view group;
    std::string_view name;
    std::string_view description;
};

constexpr DefaultBot defaultBots[] = {
    {"Main", "\x95Quillfen\x95",
     "\x95"
     "Book Of Magic\x95"},
    {"Communication",
     "\x95"
     "CommunicationBot\x95",
     "\x95"
     "Communication Bot\x95"},
    {"CustomiseUser",
     "\x95"
     "CustomiseUserBot\x95",
     "\x95"
     "CustomiseUser Bot\x95"},
    {"Games", "\x95GamesBot\x95", "\x95Games Bot\x95"},
    {"Security", "\x95SecurityBot\x95", "\x95Security Bot\x95"},
    {"UserAction", "\x95UserActionBot\x95", "\x95UserAction Bot\x95"},
    {"TheArchive", "\x95UserActionBot\x95", "\x95TheArchive Bot\x95"}, // the nick is UserAction's
};

/// The cells of a row.
enum BotCell
{
    Function,
    Name,
    Description,
    Email,
    Group
};

CellRow defaultRow(const DefaultBot& bot, std::string_view function)
{
    return {{std::string(function), std::string(bot.name), std::string(bot.description), std::string(email),
             std::string(bot.group)}};
}

std::vector<CellRow> defaultRows(const HubProfiles& /*profiles*/)
{
    std::vector<CellRow> rows;
    for (const DefaultBot& bot : defaultBots) {
        for (const auto function : botFunctions(bot.group))
            rows.push_back(defaultRow(bot, function));
    }
    return rows;
}

/// A function that has no block keeps its defaults.
std::vector<CellRow> loadBots(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto index = files.index(botFile);
    auto rows = defaultRows(profiles);
    for (CellRow& row : rows) {
        const std::string table = botTable(row.cells[Function]);
        const CellRow stored{{row.cells[Function], index.value("sName", table), index.value("sDesc", table),
                              index.value("sEmail", table), index.value("sFunction", table)}};
        const bool hasBlock =
            stored != CellRow{{row.cells[Function], "", "", "", ""}} || !index.value("bIsReg", table).empty();
        if (hasBlock)
            row = stored;
    }
    return rows;
}

void saveBots(const SettingsFiles& files, const HubProfiles& /*profiles*/, const std::vector<CellRow>& rows)
{
    TableWriter table("tBots");
    for (const CellRow& row : rows) {
        table.open(botTable(row.cells[Function]));
        table.text("sName", row.cells[Name]);
        table.text("sDesc", row.cells[Description]);
        table.text("sEmail", row.cells[Email]);
        table.row("bIsReg", "0"); // nothing sets it
        table.text("sFunction", row.cells[Group]);
        table.close();
    }
    files.WriteSettingsFile(botFile, table.closed());
}

RowListDeclaration declaredBots()
{
    RowListDeclaration list;
    list.list = "lvwBots";
    list.toolbar = "tlbBots";
    list.explanation = "Each row is a function and the bot through which it talks to users.";
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

void makeFirstBots(const SettingsFiles& files, const HubProfiles& profiles)
{
    if (!files.store().exists(files.paths().inSettings(botFile)))
        saveBots(files, profiles, defaultRows(profiles));
}

} // namespace

const TableFile& botSettings()
{
    static const TableFile file = {
        R"(General\Bots\BotSettings.tbl)",
        "tBotSettings",
        {
            setting::flag("bNotifyOps", "chkNotifyOps", "Notify Ops of change", false),
            setting::profileFlags("tEnabledProfiles", "lvwAllowedProfiles", "Enabled Profiles")
                .explained("Lets the ticked profiles use this function."),
        },
    };
    return file;
}

const RowListDeclaration& bots()
{
    static const RowListDeclaration list = declaredBots();
    return list;
}

FunctionDeclaration botsFunction()
{
    return {.nodes = {{"General~Bots", "Bots",
                       settingsAndListForm({"frmGeneralBots", "General ~ Bots"}, botSettings, bots)}},
            .folders = {R"(General\Bots)"},
            .build = {RebuiltSettings{botSettings}, makeFirstBots}};
}

} // namespace quillfen
