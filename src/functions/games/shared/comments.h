#pragma once

#include "settings/listdeclaration.h"
#include "settings/listfile.h"

#include <string>

namespace quillfen {

/// A list of what the hub says when a game ends well or badly: "Win" or "Lose", as its boxes call it.
struct CommentList
{
    ListFile file;
    std::string list; ///< lvw...
    std::string toolbar;
    std::string label;
    std::string menu;
    std::string word; ///< "Win" or "Lose"
};

RowListDeclaration commentList(const CommentList& comments);

/// The rebuild's way: a list that is missing is made with one row. Throws StoreError.
void makeComments(const SettingsFiles& files, const CommentList& comments, const std::string& row);

} // namespace quillfen
