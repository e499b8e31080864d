#pragma once

#include "declarations/listdeclaration.h"
#include "settings/listfile.h"

#include <string>
#include <string_view>

namespace quillfen {

/// A list of what the hub says when a game ends well or badly: "Win" or "Lose", as its boxes call it.
struct CommentList
{
    ListFile file;
    std::string list; ///< lvw...
    std::string toolbar;
    std::string label;
    std::string menu;
    std::string word;             ///< "Win" or "Lose"
    std::string_view explanation; ///< what its rows are for, in a sentence
};

RowListDeclaration commentList(const CommentList& comments);

} // namespace quillfen
