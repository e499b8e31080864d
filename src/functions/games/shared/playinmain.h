#pragma once

#include <string_view>

namespace quillfen {

/// What the box of that name does in each game, whatever its key is there.
inline constexpr std::string_view playsInMainChat = "Plays the game in main chat.";

} // namespace quillfen
