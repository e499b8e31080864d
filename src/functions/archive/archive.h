#pragma once

#include "declarations/function.h"

#include <string>
#include <vector>

namespace quillfen {

/// A collection that the hub script keeps for the hub's users. Its items are the script's business.
struct ArchiveMember
{
    std::string word;  ///< "Bookshelf", of forms, folder, files and tables
    std::string items; ///< what its new items form calls them
};

const std::vector<ArchiveMember>& archiveMembers();

/// When a member's link of the week changes, and when and where it is announced.
struct LinkOfTheWeek
{
    std::string enabled;                  ///< "1" or "0"
    std::string changeTime;               ///< as the form shows it, "Sunday 17:59"
    std::vector<CellRow> announcements{}; ///< day, time, and "Main" or "PM"
};

LinkOfTheWeek loadLinkOfTheWeek(const ArchiveMember& member, const SettingsFiles& files);

/// Throws StoreError.
void saveLinkOfTheWeek(const ArchiveMember& member, const LinkOfTheWeek& link, const SettingsFiles& files);

/// The defaults, as RESTORE shows them.
LinkOfTheWeek restoredLinkOfTheWeek();

/// The list of announcements with its dialog and its words; the file is the link's.
RowListDeclaration announcements();

/// "Sunday" to "Saturday", "00" to "23" and "00" to "59".
const std::vector<std::string>& dayNames();
std::vector<std::string> hours();
std::vector<std::string> minutes();

const TableFile& newItems(const ArchiveMember& member);

/// Which profile may use which command.
GridSource archivePermissions(const ArchiveMember& member);

/// Which profile has which of Hyperlink's right clicks.
GridSource hyperlinkRightClicks();

/// The nodes and forms of a member, by its place.
FunctionDeclaration archiveFunction(std::size_t member);
/// The folders of all members, and the files of the one that a rebuild fills.
FunctionDeclaration archiveFolders();

} // namespace quillfen
