#include "advice/notloading.h"

namespace quillfen {

const NotLoading& notLoading()
{
    static const NotLoading files = {
        {"Security/ProfileRules/ProfileRuleSettings.tbl",
         {lua::Fault::NoValue, "the check delay has no value until it is saved"}},
    };
    return files;
}

const NotLoading& notLoadingOnceSaved()
{
    static const NotLoading files = [] {
        const KnownFault brace = {lua::Fault::BraceWithoutTable,
                                  "a brace closes a table that was never opened"};
        NotLoading all = {{"Communication/Portal/PortalSettings.tbl",
                           {lua::Fault::OpenTable, "its outer table is never closed"}}};
        for (const std::string member :
             {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"}) {
            const std::string base = "TheArchive/" + member + "/" + member;
            all[base + "ItemOfTheWeek.tbl"] = {lua::Fault::Stray, "the time of the change stands bare"};
            for (const std::string command : {"Clear", "Delete", "Modify", "NewItems"})
                all[base + "Enable" + command + ".tbl"] = brace;
        }
        for (const std::string command : {"Category", "Item", "Pending"})
            all["TheArchive/Hyperlink/HyperlinkRCEnable" + command + ".tbl"] = brace;
        return all;
    }();
    return files;
}

} // namespace quillfen
