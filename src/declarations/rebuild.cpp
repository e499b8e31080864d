#include "declarations/rebuild.h"

#include "settings/codepage.h"
#include "settings/profiles.h"
#include "settings/tablefile.h"
#include "settings/tablewriter.h"

namespace quillfen {
namespace {

constexpr std::string_view versionFile = R"(General\Globals\Version.tbl)";
constexpr std::string_view savedProfileFile = R"(General\PtokaX\Profiles.xml)";

void makeNewsFolders(const SettingsFiles& files)
try {
    for (const auto* folder : {"Morvaleth's Scripts", R"(Morvaleth's Scripts\News)"})
        makeFolderIfMissing(files.store(), files.paths().inProgramFolder(folder));
} catch (const StoreError& error) {
    throw NoNewsFolder(error.path(), error.reason());
}

/// The name of a rebuild among the earlier versions.
Cause rebuildCause(const SettingsFiles& files, bool forVersion)
{
    if (!forVersion)
        return {"Rebuild for more profiles", Cause::Kind::Rebuild};
    const auto version = codepage::toUtf8(files.ReadTableValue(versionFile, "sVersion"));
    return {version.empty() ? "Rebuild" : "Rebuild from " + version, Cause::Kind::Rebuild};
}

/// File by file in the order of the catalogue. The version comes last: a rebuild that stopped is asked for
/// again.
void buildTree(const Reconciliation& start, const HubProfiles& profiles, const Cause& cause)
{
    Draft draft(start.files.store(), cause);
    makeFolderIfMissing(start.files.store(), start.files.paths().settingsRoot());
    for (const FunctionDeclaration& function : start.catalogue)
        buildFunction(function, start.files, profiles);
    start.files.WriteSettingsFile(versionFile,
                                  TableWriter("tVersion").text("sVersion", start.version).closed());
    draft.commit();
}

/// The script's folder comes with the hub script. Without it the program stands in the wrong place, and
/// nothing must be made there.
void requireScriptFolder(const SettingsFiles& files)
{
    const auto folder = files.paths().scriptFolder();
    if (!files.store().exists(folder))
        throw NoScriptFolder(folder, "The hub script's folder is missing");
}

} // namespace

StartResult CheckSettingsRebuild(const Reconciliation& start, RebuildCase rebuildCase,
                                 const HubProfiles& profiles)
{
    const bool forVersion = rebuildCase == RebuildCase::Version;
    if (forVersion && start.files.ReadTableValue(versionFile, "sVersion") == start.version)
        return StartResult::Current;
    if (!start.confirm(forVersion ? versionQuestion : profileQuestion))
        return StartResult::Refused;
    buildTree(start, profiles, rebuildCause(start.files, forVersion));
    return StartResult::Rebuilt;
}

StartResult reconcileSettings(const Reconciliation& start, HubProfiles& profiles)
{
    const auto& files = start.files;
    requireScriptFolder(files);
    const HubProfileFile hub = readHubProfiles(files.store(), files.paths());
    profiles = hub.profiles;
    const HubProfiles oldProfiles = readSavedProfiles(files.store(), files.paths());
    makeNewsFolders(files);

    auto result = CheckSettingsRebuild(start, RebuildCase::Version, profiles);
    // Only a rise counts: a profile that went, or got another name, asks for nothing.
    if (result == StartResult::Current && profiles.count() > oldProfiles.count())
        result = CheckSettingsRebuild(start, RebuildCase::Profiles, profiles);
    if (result == StartResult::Rebuilt && !hub.text.empty())
        files.WriteSettingsFile(savedProfileFile, hub.text);
    return result;
}

} // namespace quillfen
