#pragma once

#include <map>
#include <string>

namespace quillfen::test {

/// The files of a tree, below its settings root, that Lua can't load, each with the reason. The hub script's
/// owners know of them.
inline const std::map<std::string, std::string>& notLoading()
{
    static const std::map<std::string, std::string> files = {
        {"Security/ProfileRules/ProfileRuleSettings.tbl", "the check delay has no value after a rebuild"},
    };
    return files;
}

} // namespace quillfen::test
