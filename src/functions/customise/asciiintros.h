#pragma once

#include "declarations/function.h"

#include <string_view>

namespace quillfen {

/// Pictures that are shown when a user comes: who may have one, whose is which, and the pictures themselves.
const TableFile& asciiIntroSettings();

/// A row for each user; the dialog's combo box wants the names of the pictures.
const RowListDeclaration& asciiIntroUsers();

/// The pictures of the folder. Their names are saved into an index that only the hub script reads.
const RowListDeclaration& asciiIntroFiles();

/// The told path of the pictures' folder.
inline constexpr std::string_view asciiIntroFolder = R"(CustomiseUser\IntroOutro\Ascii)";

FunctionDeclaration asciiIntrosFunction();

} // namespace quillfen
