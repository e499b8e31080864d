#include "functions/security/shared/actions.h"

#include <algorithm>

namespace quillfen {
const std::vector<std::string>& actionWords()
{
    static const std::vector<std::string> words = {"Disconnect", "Warn",    "Notify Ops",
                                                   "Kick",       "TempBan", "Ban"};
    return words;
}

std::string actionWord(const std::vector<std::string>& words, std::string_view letter)
{
    const auto found = std::find_if(words.begin(), words.end(), [letter](const std::string& word) {
        return setting::letterOf(word) == letter;
    });
    return found == words.end() ? std::string() : *found;
}

Setting actionSetting(const std::string& defaultWord)
{
    // Where a file holds no action the combo box stands at "Kick", as it does before a load.
    return setting::letter("sAction", "cboComboBox", "Action", defaultWord, actionWords(), "Kick")
        .explained("Sets what is done to an offender.");
}

Setting banTimeSetting(const std::string& key)
{
    return setting::number(key, "txtUpDown", "TimeBan", 60, 5, 1440)
        .explained("Sets how long a ban by the action TempBan lasts.");
}

} // namespace quillfen
