#include "settings/profiles.h"

#include "settings/binaryprofiles.h"
#include "settings/lines.h"
#include "settings/paths.h"
#include "settings/tabletrim.h"
#include "store/filestore.h"

#include <algorithm>
#include <optional>

namespace quillfen {
namespace {

constexpr std::string_view binaryFile = R"(cfg\Profiles.pxb)";
constexpr std::string_view xmlFile = R"(cfg\Profiles.xml)";
constexpr std::string_view savedInHub =
    R"(scripts\Morvaleth's Quillfen\Settings\General\PtokaX\Profiles.xml)";
constexpr std::string_view tag = "<Name>";

/// The name that a line of the XML file holds alone.
std::optional<std::string_view> nameIn(std::string_view line)
{
    const auto trimmed = trimmedTableKey(line);
    if (!trimmed.starts_with(tag))
        return std::nullopt;
    const auto end = trimmed.find('<', tag.size() + 1); // a name has at least one character
    if (end == std::string_view::npos)
        return std::nullopt;
    return trimmed.substr(tag.size(), end - tag.size());
}

/// A name's line as the XML file has it. What would end the name there becomes a blank, so that each profile
/// is found again.
std::string xmlLine(std::string name)
{
    std::replace_if(
        name.begin(), name.end(), [](char each) { return each == '<' || each == '\r' || each == '\n'; }, ' ');
    return std::string(lineEnd).append(tag).append(name).append("</Name>");
}

std::vector<std::string> profileNamesIn(std::string_view text)
{
    std::vector<std::string> names;
    LineCursor cursor(text);
    while (const auto line = cursor.next()) {
        if (const auto name = nameIn(*line))
            names.emplace_back(*name);
    }
    return names;
}

/// For each place whose profile is another by now, or gone, who is there.
std::vector<std::string> movesFrom(const std::vector<std::string>& old, const std::vector<std::string>& now)
{
    std::vector<std::string> moves;
    for (std::size_t place = 0; place < old.size(); ++place) {
        if (place >= now.size())
            moves.push_back(old[place] + " is gone");
        else if (now[place] != old[place])
            moves.push_back(old[place] + " is now " + now[place]);
    }
    return moves;
}

ProfileNotice changeNotice(const std::vector<std::string>& moves)
{
    ProfileNotice notice{"Hub profiles changed: " + moves.front() + (moves.size() > 1 ? " ..." : "") +
                             "; check the permissions",
                         {}};
    for (const std::string& move : moves)
        notice.details += (notice.details.empty() ? "" : "\n") + move;
    return notice;
}

ProfileNotice damageNotice(bool hasXml)
{
    return {"The hub's Profiles.pxb is damaged: let the hub write it anew",
            hasXml ? "The profiles are those of Profiles.xml."
                   : "Unregistered is the only profile until then."};
}

} // namespace

std::string ReadProfileFile(const FileStore& store, const SettingsPaths& paths, std::string_view file,
                            HubProfiles& profiles)
{
    const auto bytes = store.read(paths.inHubFolder(file)).value_or(std::string());
    std::string text;
    LineCursor cursor(bytes);
    while (const auto line = cursor.next()) {
        text.append(lineEnd).append(*line);
        if (const auto name = nameIn(*line))
            profiles.add(*name);
    }
    return text;
}

HubProfileFile readHubProfiles(const FileStore& store, const SettingsPaths& paths)
{
    HubProfileFile hub;
    const auto path = paths.inHubFolder(binaryFile);
    const auto names = binaryProfileNames(store.read(path).value_or(std::string()));
    if (!names) {
        hub.damaged = store.exists(path);
        hub.text = ReadProfileFile(store, paths, xmlFile, hub.profiles);
        return hub;
    }
    for (const std::string& name : *names) {
        hub.profiles.add(name);
        hub.text += xmlLine(name);
    }
    return hub;
}

HubProfiles readSavedProfiles(const FileStore& store, const SettingsPaths& paths)
{
    HubProfiles saved;
    ReadProfileFile(store, paths, savedInHub, saved);
    return saved;
}

std::vector<ProfileNotice> profileNotices(const FileStore& store, const SettingsPaths& paths)
{
    std::vector<ProfileNotice> notices;
    const HubProfileFile hub = readHubProfiles(store, paths);
    if (hub.damaged)
        notices.push_back(damageNotice(!hub.text.empty()));
    if (hub.text.empty()) // no file at all says nothing of any profile
        return notices;
    // Both as the copy bears them, so that a name which the copy can't bear has not changed.
    auto now = profileNamesIn(hub.text);
    now.insert(now.begin(), HubProfiles().names().front());
    const auto moves = movesFrom(readSavedProfiles(store, paths).names(), now);
    if (!moves.empty())
        notices.push_back(changeNotice(moves));
    return notices;
}

} // namespace quillfen
