#include "functions/security/shared/actions.h"

#include <algorithm>

namespace quillfen {
namespace {

/// Where a file holds no action the combo box stands at "Kick", as it does before a load.
std::string kickWhereNone(const std::string& stored)
{
    return stored.empty() ? actionLetter("Kick") : stored;
}

} // namespace

const std::vector<std::string>& actionWords()
{
    static const std::vector<std::string> words = {"Disconnect", "Warn",    "Notify Ops",
                                                   "Kick",       "TempBan", "Ban"};
    return words;
}

std::string actionWord(const std::vector<std::string>& words, std::string_view letter)
{
    const auto found = std::find_if(words.begin(), words.end(), [letter](const std::string& word) {
        return actionLetter(word) == letter;
    });
    return found == words.end() ? std::string() : *found;
}

std::string actionLetter(std::string_view word)
{
    return std::string(word.substr(0, 1));
}

Setting actionSetting(std::string_view standard)
{
    Setting setting = letter("sAction", "cboComboBox", "Action", actionLetter(standard), actionWords());
    setting.shown = kickWhereNone;
    return setting;
}

Setting banTimeSetting(const std::string& key)
{
    return number(key, "txtUpDown", "TimeBan", "60", 5, 1440);
}

} // namespace quillfen
