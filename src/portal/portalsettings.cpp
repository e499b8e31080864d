#include "portal/portalsettings.h"

#include "settings/bottables.h"
#include "settings/tablefile.h"

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

/// The lines of a table file, each at its indent.
class TableText
{
public:
    void line(std::size_t indent, std::string_view text)
    {
        m_text.append(indent, '\t').append(text).append(lineEnd);
    }

    void row(std::size_t indent, std::string_view key, std::string_view value)
    {
        line(indent, std::string(key).append(" = \"").append(value).append("\","));
    }

    /// All of it, without the last line end.
    std::string composed() const { return m_text.substr(0, m_text.size() - lineEnd.size()); }

private:
    std::string m_text;
};

std::string numberKey(std::size_t number)
{
    return '[' + std::to_string(number) + ']';
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
    TableText text;
    text.line(0, "tPortalSettings = {");
    text.line(1, "tUser = {");
    for (std::size_t at = 0; at < settings.user.size(); ++at)
        text.row(2, userKeys[at], settings.user[at]);
    text.line(1, "},");
    text.line(1, "tHubs = {");
    for (std::size_t at = 0; at < settings.hubs.size(); ++at) {
        text.line(2, numberKey(at + 1) + " = {");
        text.row(3, "sHubAddress", settings.hubs[at].address);
        text.row(3, "sClientPassword", settings.hubs[at].password);
        text.row(3, "sClientPort", settings.hubs[at].port);
        text.line(2, "},");
    }
    text.line(1, "},");
    text.line(1, "tIgnoreNicks = {");
    for (std::size_t at = 0; at < settings.ignoreNicks.size(); ++at)
        text.row(2, numberKey(at + 1), settings.ignoreNicks[at]);
    text.line(1, "},");
    return text.composed();
}

void savePortalSettings(const SettingsFiles& files, const PortalSettings& settings)
{
    for (const auto folder : folders) {
        const auto path = files.paths().inSettings(folder);
        if (!files.store().exists(path))
            files.store().makeFolder(path);
    }
    files.WriteSettingsFile(file, composedPortalSettings(settings));
}

} // namespace quillfen
