#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillfen {

class FileStore;

/// What the check of a tree ends with.
enum CheckResult
{
    AllLoads = 0,
    HasFindings = 1,
    NoTree = 2
};

/// Looks at a whole settings tree and tells each finding on a line of its own: "path:line: what and what to
/// do". The arguments are the settings folder, or nothing: then it is the one beside the program.
CheckResult runCheck(FileStore& store, const std::string& programFolder,
                     const std::vector<std::string>& arguments, std::ostream& out, std::ostream& problems);

} // namespace quillfen
