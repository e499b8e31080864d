#include "portal/portalsettings.h"

#include "settings/bottables.h"
#include "settings/tablefile.h"
#include "settings/tablewriter.h"

#include <algorithm>

namespace quillfen {
namespace {

constexpr std::string_view folders[] = {"Communication", R"(Communication\Portal)"};
constexpr std::string_view file = R"(Communication\Portal\PortalSettings.tbl)";
constexpr std::string_view userKeys[] = {"sUsername", "sDescription", "sEmail", "sClientIP"};

std::vector<HubRow> loadHubs(const TableIndex& index)
{
    std::vector<HubRow> hubs;
    for (const char* number : {"1", "2"}) {
        const auto address = index.value("sHubAddress", number);
        if (!address.empty())
            hubs.push_back({address, index.value("sClientPassword", number),
                            index.value("sClientPort", number), address});
    }
    return hubs;
}

std::vector<std::string> loadIgnoreNicks(const SettingsFiles& files)
{
    std::vector<ListRow> rows;
    files.ReadTableToList(file, rows, "=", "tIgnoreNicks");
    std::vector<std::string> nicks;
    nicks.reserve(rows.size());
    for (const ListRow& row : rows)
        nicks.push_back(row.second);
    return nicks;
}

/// All but the passwords, which no other place than the form's own shows.
std::vector<PlacedText> placedPortalSettings(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    const PortalSettings settings = loadPortalSettings(files);
    const std::string path(file);
    std::vector<PlacedText> texts = {{path, "lvwHubs", -1, "Hub Settings", ""},
                                     {path, "lvwNicks", -1, "Nicks To Ignore", ""}};
    const auto add = [&](const std::string& control, std::size_t row, const std::string& label,
                         const std::string& text) {
        texts.push_back({path, control, static_cast<int>(row), label, text});
    };
    for (std::size_t at = 0; at < settings.user.size(); ++at)
        add("txtTextBox(" + std::to_string(at) + ')', 0, portalLabels[at], settings.user[at]);
    for (std::size_t row = 0; row < settings.hubs.size(); ++row)
        add("lvwHubs", row, "Hub Settings", settings.hubs[row].address + " | " + settings.hubs[row].port);
    for (std::size_t row = 0; row < settings.ignoreNicks.size(); ++row)
        add("lvwNicks", row, "Nicks To Ignore", settings.ignoreNicks[row]);
    return texts;
}

bool precedes(std::string_view one, std::string_view other)
{
    const auto lower = [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    };
    return std::lexicographical_compare(
        one.begin(), one.end(), other.begin(), other.end(), [lower](char left, char right) {
            return static_cast<unsigned char>(lower(left)) < static_cast<unsigned char>(lower(right));
        });
}

} // namespace

PortalSettings loadPortalSettings(const SettingsFiles& files)
{
    const auto index = files.index(file);
    PortalSettings settings;
    std::transform(std::begin(userKeys), std::end(userKeys), settings.user.begin(),
                   [&index](std::string_view key) { return index.value(key); });
    settings.hubs = loadHubs(index);
    settings.ignoreNicks = loadIgnoreNicks(files);
    return settings;
}

std::vector<std::string> defaultIgnoreNicks(const SettingsFiles& files)
{
    const auto index = files.index(botFile);
    std::vector<std::string> names;
    for (const auto function : botFunctions()) {
        const auto name = index.value("sName", botTable(function));
        if (std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }
    std::stable_sort(names.begin(), names.end(), precedes);
    return names;
}

std::string composedPortalSettings(const PortalSettings& settings)
{
    TableWriter table("tPortalSettings");
    table.open("tUser");
    for (std::size_t at = 0; at < settings.user.size(); ++at)
        table.text(userKeys[at], settings.user[at]);
    table.close();
    table.open("tHubs");
    for (std::size_t at = 0; at < settings.hubs.size(); ++at) {
        table.open(bracketed(std::to_string(at + 1)));
        table.text("sHubAddress", settings.hubs[at].address);
        table.text("sClientPassword", settings.hubs[at].password);
        table.text("sClientPort", settings.hubs[at].port);
        table.close();
    }
    table.close();
    table.open("tIgnoreNicks");
    for (std::size_t at = 0; at < settings.ignoreNicks.size(); ++at)
        table.text(bracketed(std::to_string(at + 1)), settings.ignoreNicks[at]);
    table.close();
    return table.unclosed();
}

void savePortalSettings(const SettingsFiles& files, const PortalSettings& settings)
{
    for (const auto folder : folders)
        makeFolderIfMissing(files.store(), files.paths().inSettings(folder));
    files.WriteSettingsFile(file, composedPortalSettings(settings));
}

FunctionDeclaration portalFunction()
{
    const OwnPart part = {
        .kind = OwnPartKind::Portal,
        .explanations =
            {
                {"txtTextBox(0)", "Sets the nick that speaks on both hubs.", std::string(file), "sUsername"},
                {"txtTextBox(1)", "Sets the description of that nick on both hubs.", std::string(file),
                 "sDescription"},
                {"txtTextBox(2)", "Sets the email address of that nick on both hubs.", std::string(file),
                 "sEmail"},
                {"txtTextBox(3)", "Is only kept: no hub is told of it.", std::string(file), "sClientIP"},
                {"lvwHubs",
                 "Each row is a hub whose main chat is passed on to the other; a tick logs in to it."},
                {"lvwNicks", "Each row is a nick whose words are not passed on to the other hub."},
            },
        .texts = placedPortalSettings,
        .paths = {std::string(file)}};
    const FormDescription form = {.name = "frmCommunicationPortal",
                                  .caption = "Communication ~ Portal",
                                  .minimumSize = {6000, 6600},
                                  .hasRestore = false,
                                  .isLoadedOnce = true};
    return {.nodes = {{"Communication~Portal", "Portal", {{form, {part}}}}}};
}

} // namespace quillfen
