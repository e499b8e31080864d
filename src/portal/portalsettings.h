#pragma once

#include "declarations/function.h"

#include <array>
#include <string>
#include <vector>

namespace quillfen {

class SettingsFiles;

/// What the form calls the texts that a user has.
inline constexpr const char* portalLabels[] = {"Username", "Description", "Email", "IP"};

/// A row of the hub list.
struct HubRow
{
    std::string address; ///< host:port
    std::string password;
    std::string port;      ///< the client port
    std::string hubName{}; ///< the address once more on a row out of the file, empty on one that was added

    bool operator==(const HubRow&) const = default;
};

/// What the Portal's file holds. Nothing builds it: it comes from the form's save alone.
struct PortalSettings
{
    std::array<std::string, 4> user{}; ///< username, description, email, client IP
    std::vector<HubRow> hubs{};
    std::vector<std::string> ignoreNicks{};
};

/// Reads the file; what is missing is empty, and only the first two hubs are read.
PortalSettings loadPortalSettings(const SettingsFiles& files);

/// The names of the system's own bots, sorted, each once: what an empty ignore list is filled with, so that
/// two of them don't echo each other.
std::vector<std::string> defaultIgnoreNicks(const SettingsFiles& files);

/// The text of the whole file, without the writer's last line end. Its outer table is never closed: the hub
/// script's authors wrote it so.
std::string composedPortalSettings(const PortalSettings& settings);

FunctionDeclaration portalFunction();

/// Writes the file, and makes its folder if it is missing: the rebuild knows nothing of it. Throws
/// StoreError.
void savePortalSettings(const SettingsFiles& files, const PortalSettings& settings);

} // namespace quillfen
