#include "advice/notloading.h"

namespace quillfen {

const NotLoading& notLoading()
{
    static const NotLoading files = {
        // The check delay has no value until it is saved.
        {"Security/ProfileRules/ProfileRuleSettings.tbl", lua::Fault::NoValue},
    };
    return files;
}

const NotLoading& notLoadingOnceSaved()
{
    static const NotLoading files = [] {
        NotLoading all = {{"Communication/Portal/PortalSettings.tbl", lua::Fault::OpenTable}};
        for (const std::string member :
             {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"}) {
            const std::string base = "TheArchive/" + member + "/" + member;
            all[base + "ItemOfTheWeek.tbl"] = lua::Fault::Stray; // the time of the change stands bare
            for (const std::string command : {"Clear", "Delete", "Modify", "NewItems"})
                all[base + "Enable" + command + ".tbl"] = lua::Fault::BraceWithoutTable;
        }
        for (const std::string command : {"Category", "Item", "Pending"})
            all["TheArchive/Hyperlink/HyperlinkRCEnable" + command + ".tbl"] = lua::Fault::BraceWithoutTable;
        return all;
    }();
    return files;
}

} // namespace quillfen
