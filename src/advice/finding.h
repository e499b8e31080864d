#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// Something that the hub script, or the next load, takes otherwise than it stands in a file. All texts are
/// code page bytes.
struct Finding
{
    std::string file;     ///< a told path below the settings root
    std::size_t line = 0; ///< counted from 1; 0 for the file as a whole
    std::string words;    ///< what is wrong, and what to do

    bool operator==(const Finding&) const = default;
};

} // namespace quillfen
