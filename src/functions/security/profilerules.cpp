#include "functions/security/profilerules.h"

#include "settings/lines.h"
#include "settings/profiles.h"
#include "settings/tablewriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace quillfen {
namespace {

ListFile profileRulesFile()
{
    return {R"(Security\ProfileRules\ProfileRules.tbl)", "tProfileRules"};
}

/// A rule, named without the letter of its key.
struct Rule
{
    std::string_view name;
    char letter; ///< of its key in a profile's block
    std::string_view defaultText;
    EditForm form;
    std::string_view title;
    std::vector<std::string> labels;
    bool isShare = false;
};

const std::vector<Rule>& rules()
{
    static const std::vector<Rule> all = {
        // The title of the shares is that of a file's dialog.
        {"MinShare", 'i', "0", EditForm::UpDownCombo, "Edit File", {"Min Share", "Units"}, true},
        {"MaxShare", 'i', "0", EditForm::UpDownCombo, "Edit File", {"Max Share", "Units"}, true},
        {"MinSlots", 'i', "0", EditForm::OneUpDown, "Edit Min Slots", {"Min Slots"}},
        {"MaxSlots", 'i', "0", EditForm::OneUpDown, "Edit Max Slots", {"Max Slots"}},
        {"MaxHubs", 'i', "0", EditForm::OneUpDown, "Edit Max Hubs", {"Max Hubs"}},
        {"HubSlotRatio", 's', "0/0", EditForm::TwoUpDowns, "Edit Hub Slot Ratio", {"Hubs", "Slots"}},
    };
    return all;
}

std::string keyOf(const Rule& rule)
{
    return rule.letter + std::string(rule.name);
}

struct Unit
{
    std::string_view name;
    double bytes;
    std::ptrdiff_t belowDigits; ///< the stored count has fewer digits than this; 0 for any number of them
};

constexpr Unit units[] = {
    {"KB", 1024., 7}, {"MB", 1048576., 10}, {"GB", 1073741824., 13}, {"TB", 1099511627776., 0}};

/// A number with up to 15 significant digits, no matter what the platform's language is.
std::string numberText(double number)
{
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, 15).ptr;
    std::string text(buffer, end);
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

/// The cells of a profile's row; the last two don't show.
enum RuleCell
{
    Profile,
    RuleName,
    Data,
    ProfileKey,
    Stored ///< what the file holds for the data: it stands as it is until the row is edited
};

const Rule& ruleOf(const CellRow& row)
{
    return *std::find_if(rules().begin(), rules().end(),
                         [&row](const Rule& rule) { return rule.name == row.cells[RuleName]; });
}

/// Whether a share is stored the way that a count of bytes is written, so that its text can stay; any other
/// is saved as the number that it shows.
bool isCount(std::string_view share)
{
    return share == "0" ||
           (share.find_first_not_of("0123456789") == std::string_view::npos && !share.starts_with('0'));
}

std::vector<CellRow> loadPermissions(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto index = files.index(profileRulesFile().path);
    std::vector<CellRow> rows;
    for (std::size_t profile = 0; profile < profiles.count(); ++profile) {
        const std::string key = HubProfiles::key(profile);
        for (const Rule& rule : rules()) {
            const bool first = &rule == &rules().front();
            const std::string value = index.value(keyOf(rule), key);
            const std::string data = rule.isShare ? shownShare(value) : value;
            const bool stays = !rule.isShare || value.empty() || isCount(value);
            rows.push_back({{first ? profiles.names()[profile] : "", std::string(rule.name), data, key,
                             stays ? value : storedShare(data)}});
        }
    }
    return rows;
}

void writeRule(TableWriter& table, const Rule& rule, const std::string& stored)
{
    if (rule.letter == 's')
        table.text(keyOf(rule), stored);
    else // what was never set is a rule of 0, and so is one of blanks, which loads as that
        table.row(keyOf(rule), trimBlanks(stored).empty() ? "0" : stored);
}

void writeTexts(TableWriter& table, std::string_view key, const std::vector<CellRow>& rows)
{
    table.open(key);
    for (const CellRow& row : rows)
        table.text("s" + row.cells[0], row.cells[1]);
    table.close();
}

void saveRules(const SettingsFiles& files, const std::vector<std::vector<CellRow>>& lists)
{
    TableWriter table(profileRulesFile().table);
    writeTexts(table, "tMessages", lists.at(1));
    writeTexts(table, "tRedirects", lists.at(2));
    std::size_t place = 0;
    for (const CellRow& row : lists.at(0)) {
        const Rule& rule = rules()[place];
        if (place == 0)
            table.open(bracketed(row.cells[ProfileKey]));
        writeRule(table, rule, row.cells[Stored]);
        place = (place + 1) % rules().size();
        if (place == 0)
            table.close();
    }
    files.WriteSettingsFile(profileRulesFile().path, table.closed());
}

RowDialog dialogOf(const CellRow& row)
{
    const Rule& rule = ruleOf(row);
    RowDialog dialog;
    dialog.form = rule.form;
    dialog.editTitle = rule.title;
    dialog.labels = rule.labels;
    if (rule.isShare)
        dialog.editMode = 1; // number and unit; the habit's mode is none of this dialog's
    if (rule.isShare) {
        dialog.entries.emplace_back();
        for (const Unit& unit : units)
            dialog.entries.back().emplace_back(unit.name);
    }
    return dialog;
}

/// What stands between the two fields of a row's data; nothing for a row of one field.
std::string separatorOf(const Rule& rule)
{
    return rule.isShare ? " " : rule.letter == 's' ? "/" : "";
}

std::vector<std::string> ruleFields(const CellRow& row)
{
    const std::string separator = separatorOf(ruleOf(row));
    if (separator.empty())
        return {row.cells[Data]};
    const auto [left, right, found] = splitOnce(row.cells[Data], separator.front());
    return {std::string(left), std::string(right)};
}

void take(const std::vector<std::string>& fields, CellRow& row)
{
    const Rule& rule = ruleOf(row);
    std::string data = fields[0];
    if (fields.size() > 1)
        data += separatorOf(rule) + fields[1];
    if (data == row.cells[Data])
        return;
    row.cells[Stored] = rule.isShare ? storedShare(data) : data;
    row.cells[Data] = std::move(data);
}

RowListDeclaration permissions()
{
    RowListDeclaration list;
    list.list = "lvwPermissions";
    list.toolbar = "tlbPermissions";
    list.label = "Permissions";
    list.explanation = "Each row is a limit that the hub script checks on each user of the profile.";
    list.columns = {"Profile", "Setting", "Data", "iProfile"};
    list.hiddenColumns = 1;
    list.menu = "mnuOnlyEdit";
    list.load = loadPermissions;
    list.dialogOf = dialogOf;
    list.fieldsOf = ruleFields;
    list.take = take;
    return list;
}

RowListDeclaration textList(const std::string& word, const std::string& menu, const std::string& titleEnd,
                            std::string_view explanation)
{
    RowListDeclaration list;
    list.list = "lvw" + word;
    list.toolbar = "tlb" + word;
    list.label = word;
    list.explanation = explanation;
    list.columns = {"Setting", "Data"};
    list.menu = menu;
    list.load = [table = "t" + word](const SettingsFiles& files, const HubProfiles&) {
        std::vector<ListRow> texts;
        files.ReadTableToList(profileRulesFile().path, texts, "=", table);
        std::vector<CellRow> rows;
        rows.reserve(texts.size());
        for (const ListRow& text : texts)
            rows.push_back({{text.text.substr(std::min<std::size_t>(1, text.text.size())), text.second}});
        return rows;
    };
    list.editTitleOf = [titleEnd](const CellRow& row) { return "Edit " + row.cells[0] + titleEnd; };
    list.labelsOf = [](const CellRow& row) { return std::vector<std::string>{row.cells[0]}; };
    list.fieldsOf = [](const CellRow& row) { return std::vector<std::string>{row.cells[1]}; };
    list.take = [](const std::vector<std::string>& fields, CellRow& row) { row.cells[1] = fields[0]; };
    return list;
}

Setting enabled(const std::string& word)
{
    return setting::profileFlags("tEnabled" + word + "Profiles", "lvwEnabled" + word + "Profiles",
                                 "Enabled " + word + " Profiles", "Enabled Profiles");
}

TableFile declaredRuleSettings()
{
    auto log = setting::flag("bEnableRedirectLog", "chkCheckBox", "Log Redirects", false);
    // A rebuild asks for the defaults of both under other names: it finds the flag's to be 1, and none for
    // the delay, whose row then stands without a value.
    log.rebuild.defaultText = "1";
    // The file knows the delay without a value, so an emptied one is saved so.
    auto delay = setting::number("iCheckDelay", "txtUpDown", "Automatic Check Delay", 5, 1, 365,
                                 {.unit = "Days", .savedAsTyped = true});
    delay.rebuild.defaultText = "";
    return {
        R"(Security\ProfileRules\ProfileRuleSettings.tbl)",
        "tProfileRuleSettings",
        {log, delay, enabled("Get"), enabled("Set")},
        {"iCheckDelay", "bEnableRedirectLog", "tEnabledGetProfiles", "tEnabledSetProfiles"},
    };
}

void rebuildRules(const SettingsFiles& files, const HubProfiles& profiles)
{
    const auto index = files.index(profileRulesFile().path);
    TableWriter table(profileRulesFile().table);
    for (const char* texts : {"tMessages", "tRedirects"}) {
        table.open(texts);
        for (const Rule& rule : rules()) {
            const std::string key = "s" + std::string(rule.name);
            table.text(key, index.value(key, texts));
        }
        table.close();
    }
    for (const std::string& block : profiles.keys()) {
        table.open(bracketed(block));
        for (const Rule& rule : rules()) {
            const std::string value = index.value(keyOf(rule), block);
            writeRule(table, rule, value.empty() ? std::string(rule.defaultText) : value);
        }
        table.close();
    }
    files.WriteSettingsFile(profileRulesFile().path, table.closed());
}

/// Each rebuild starts the counters anew, and the ratio's key has another letter here than in the rules.
void resetCounters(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    TableWriter table("tProfileRulesRedirectCounter");
    for (const Rule& rule : rules())
        table.row("i" + std::string(rule.name), "0");
    files.WriteSettingsFile(R"(Security\ProfileRules\ProfileRulesRedirectCounter.tbl)", table.closed());
}

} // namespace

const TableFile& profileRuleSettings()
{
    static const TableFile file = declaredRuleSettings();
    return file;
}

const RowListGroup& profileRules()
{
    static const RowListGroup group = {
        {permissions(),
         textList("Messages", "mnuOnlyEditTwo", " Message", "Each row is a rule and its message to a user."),
         textList("Redirects", "mnuOnlyEditThree", " Redirect Address",
                  "Each row is a rule and the address that it redirects a user to.")},
        saveRules};
    return group;
}

std::string shownShare(std::string_view bytes)
{
    if (bytes.empty())
        return {};
    const auto digits =
        std::count_if(bytes.begin(), bytes.end(), [](char c) { return c >= '0' && c <= '9'; });
    const auto* unit = std::find_if(std::begin(units), std::end(units), [digits](const Unit& each) {
        return each.belowDigits == 0 || digits < each.belowDigits;
    });
    return numberText(leadingNumber(bytes) / unit->bytes) + " " + std::string(unit->name);
}

std::string storedShare(std::string_view shown)
{
    const auto [number, name, found] = splitOnce(shown, ' ');
    const auto* unit = std::find_if(std::begin(units), std::end(units) - 1,
                                    [&name = name](const Unit& each) { return each.name == name; });
    const double bytes = leadingNumber(number) * unit->bytes;
    // The 15 digits that were shown may miss the whole count by a hair: that hair isn't the user's.
    const double whole = std::round(bytes);
    return numberText(std::abs(bytes - whole) <= whole * 1e-14 ? whole : bytes);
}

FunctionDeclaration profileRulesFunction()
{
    const FormDescription rules = {.name = "frmSecurityProfileRuleRules",
                                   .caption = "Security ~ ProfileRules ~ Rules",
                                   .hasRestore = false,
                                   .reloadsAfterSave = true};
    return {.nodes = {{"Security~ProfileRules", "Profile Rules"},
                      {"Security~ProfileRules~Settings", "Settings",
                       settingsForm({"frmSecurityProfileRuleSettings", "Security ~ ProfileRules ~ Settings"},
                                    profileRuleSettings),
                       "Profile Rules ~ Settings"},
                      {"Security~ProfileRules~Rules", "Rules", listsForm(rules, profileRules),
                       "Profile Rules ~ Rules"}},
            .folders = {R"(Security\ProfileRules)", R"(Security\ProfileRules\Logs)"},
            .build = {RebuiltSettings{profileRuleSettings}, rebuildRules,
                      EmptyTable{R"(Security\ProfileRules\ProfileRulesExemptUsers.tbl)",
                                 "tProfileRulesExemptUsers"},
                      resetCounters}};
}

} // namespace quillfen
