#pragma once

#include "declarations/function.h"

#include <string_view>

namespace quillfen {

/// Where pictures are shown, and who may show them.
const TableFile& asciiSettings();

/// The pictures: file, display name and right-click menu of each.
const RowListDeclaration& asciiPictures();

/// The told folder of the pictures' files.
inline constexpr std::string_view asciiFolder = R"(UserActions\Ascii\Ascii)";

FunctionDeclaration asciiFunction();

} // namespace quillfen
