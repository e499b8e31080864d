#pragma once

#include <string>
#include <vector>

namespace quillfen {

/// How this program was called.
struct ProgramCall
{
    std::string folder;                 ///< where the program lies
    std::vector<std::string> arguments; ///< UTF-8, without the program's name
};

/// The call behind `main`'s words. Where the platform knows more it is asked: on Windows the words lack what
/// its code page lacks.
ProgramCall programCall(int count, const char* const* words);

} // namespace quillfen
