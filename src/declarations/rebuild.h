#pragma once

#include "declarations/function.h"
#include "settings/filestore.h"

#include <functional>
#include <string>
#include <string_view>

namespace quillfen {

class HubProfiles;
class SettingsFiles;

/// The question that comes before a rebuild.
struct RebuildQuestion
{
    std::string_view title;
    std::string_view text;
};

inline constexpr RebuildQuestion versionQuestion = {
    "Morvaleth's Quillfen: Version Change Detected",
    "New version detected. Settings must be rebuilt; continue?"};
inline constexpr RebuildQuestion profileQuestion = {
    "Morvaleth's Quillfen: PtokaX Profile Change Detected",
    "PtokaX Profile change detected. Settings must be rebuilt; continue?"};

/// All that a start needs to bring the settings tree up to date.
struct Reconciliation
{
    const SettingsFiles& files;
    const FolderCatalogue& catalogue;
    std::string version;                                 ///< the program's own, "major.minor.revision"
    std::function<bool(const RebuildQuestion&)> confirm; ///< true for OK
};

/// The hub script's own folder isn't there: the program stands in the wrong place. Nothing was made yet.
class NoScriptFolder : public StoreError
{
public:
    using StoreError::StoreError;
};

/// The folders of the news, which every start looks after, could not be made.
class NoNewsFolder : public StoreError
{
public:
    using StoreError::StoreError;
};

enum class StartResult
{
    Current,
    Rebuilt,
    Refused
};

/// Why a start may have to rebuild.
enum class RebuildCase : char
{
    Version = 'V', ///< the tree's version is another than the program's
    Profiles = 'P' ///< the hub has more profiles than the tree was built for, as the caller found
};

/// Rebuilds if the case is given. It asks first, and a refusal changes nothing. Throws StoreError.
StartResult CheckSettingsRebuild(const Reconciliation& start, RebuildCase rebuildCase,
                                 const HubProfiles& profiles);

/// The start in its whole order: hub profiles, saved profiles, news folders, rebuild for the version or for
/// more profiles, saved copy of the hub's profile file. Fills `profiles`. Throws StoreError, and the two
/// kinds of it above.
StartResult reconcileSettings(const Reconciliation& start, HubProfiles& profiles);

} // namespace quillfen
