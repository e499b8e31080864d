#pragma once

#include <map>
#include <string>

namespace quillfen::test {

/// The files below the settings root that Lua can't load, each with the reason. The forms' own readers,
/// which look at single lines, take them.
using NotLoading = std::map<std::string, std::string>;

/// Those of a fresh tree.
inline const NotLoading& notLoading()
{
    static const NotLoading files = {
        {"Security/ProfileRules/ProfileRuleSettings.tbl", "the check delay has no value until it is saved"},
    };
    return files;
}

/// Those of a tree that every form has saved.
inline const NotLoading& notLoadingOnceSaved()
{
    static const NotLoading files = [] {
        NotLoading all = {{"Communication/Portal/PortalSettings.tbl", "its outer table is never closed"}};
        for (const std::string member :
             {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"}) {
            const std::string base = "TheArchive/" + member + "/" + member;
            all[base + "ItemOfTheWeek.tbl"] = "the time of the change stands bare";
            for (const std::string command : {"Clear", "Delete", "Modify", "NewItems"})
                all[base + "Enable" + command + ".tbl"] = "a brace closes a table that was never opened";
        }
        for (const std::string command : {"Category", "Item", "Pending"})
            all["TheArchive/Hyperlink/HyperlinkRCEnable" + command + ".tbl"] =
                "a brace closes a table that was never opened";
        return all;
    }();
    return files;
}

} // namespace quillfen::test
