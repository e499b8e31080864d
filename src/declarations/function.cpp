#include "declarations/function.h"

namespace quillfen {
namespace {

/// Runs each kind of step.
struct StepRunner
{
    const SettingsFiles& files;
    const HubProfiles& profiles;

    void operator()(const RebuiltSettings& settings) const
    {
        rebuildTableFile(settings.file(), files, profiles);
    }

    void operator()(const RebuiltGrid& grid) const
    {
        rebuildGridFile(grid.command, grid.firstProfile, files, profiles);
    }

    void operator()(const EmptyTable& empty) const
    {
        writeEmptyTableIfMissing(files, empty.path, empty.table);
    }

    void operator()(const FirstText& first) const { writeIfMissing(files, first.path, first.text); }

    void operator()(BuildRoutine routine) const { routine(files, profiles); }
};

struct PathOf
{
    std::string operator()(const RebuiltSettings& step) const { return step.file().path; }
    std::string operator()(const RebuiltGrid& step) const { return step.command.path; }
    std::string operator()(const EmptyTable& step) const { return step.path; }
    std::string operator()(const FirstText& step) const { return step.path; }
    std::string operator()(BuildRoutine /*step*/) const { return {}; }
};

} // namespace

std::string builtFile(const BuildStep& step)
{
    return std::visit(PathOf(), step);
}

EmptyTable emptyTable(const ListFile& file)
{
    return {file.path, file.table};
}

FirstText firstRows(const ListFile& file, const std::vector<ListRow>& rows)
{
    return {file.path, composedList(file, rows)};
}

void buildFunction(const FunctionDeclaration& function, const SettingsFiles& files,
                   const HubProfiles& profiles)
{
    for (const std::string& folder : function.folders)
        makeFolderIfMissing(files.store(), files.paths().inSettings(folder));
    for (const BuildStep& step : function.build)
        std::visit(StepRunner{files, profiles}, step);
}

} // namespace quillfen
