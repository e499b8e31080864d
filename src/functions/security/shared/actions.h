#pragma once

#include "declarations/declaration.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// What is done to an offender, as the forms word it. A file holds an action as its word's first letter.
const std::vector<std::string>& actionWords();

/// The word of a stored letter among these words; empty if it is none of theirs.
std::string actionWord(const std::vector<std::string>& words, std::string_view letter);

/// The setting `sAction` with its combo box; its default as a word.
Setting actionSetting(const std::string& defaultWord);

/// How long a ban for a time lasts. Its box is live for every action.
Setting banTimeSetting(const std::string& key);

} // namespace quillfen
