#pragma once

#include "declarations/listdeclaration.h"
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

} // namespace quillfen
