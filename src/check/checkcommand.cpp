#include "check/checkcommand.h"

#include "check/treecheck.h"
#include "settings/codepage.h"
#include "settings/tablefile.h"

#include <algorithm>
#include <ostream>

namespace quillfen {
namespace {

/// A line for a terminal: what could drive it becomes a question mark.
std::string lineOf(const SettingsFiles& files, const Finding& finding)
{
    std::string line = files.paths().inSettings(finding.file) + ':' + std::to_string(finding.line) + ": " +
                       codepage::toUtf8(finding.words);
    std::replace_if(
        line.begin(), line.end(), [](char each) { return each >= 0 && each < ' '; }, '?');
    return line;
}

} // namespace

CheckResult runCheck(FileStore& store, const std::string& programFolder,
                     const std::vector<std::string>& arguments, std::ostream& out, std::ostream& problems)
{
    const SettingsFiles files(store, arguments.empty() ? SettingsPaths(programFolder)
                                                       : SettingsPaths::ofSettings(arguments.front()));
    if (arguments.size() > 1 || !hasTree(files)) {
        problems << (arguments.size() > 1 ? "One settings folder at a time, please."
                                          : "There is no settings tree in " + files.paths().settingsRoot())
                 << '\n';
        return NoTree;
    }
    const auto findings = checkTree(files);
    for (const Finding& finding : findings)
        out << lineOf(files, finding) << '\n';
    return findings.empty() ? AllLoads : HasFindings;
}

} // namespace quillfen
