#pragma once

#include "settings/declaration.h"

#include <string>

namespace quillfen {

/// The games that share the pattern of quiz settings.
enum class QuizGame
{
    Trivia,
    Numbers,
    Hangman,
    Anagrams,
    CodeBreaker,
    GuessTheNumber
};

/// A key of the pattern with the caption, default and range that it has in this game, in the control of that
/// name. Numbers are changed by their arrows and not typed.
Setting quizSetting(QuizGame game, const std::string& key, const std::string& control);

/// A number of a game's own that behaves like those of the pattern.
Setting arrowNumber(const std::string& key, const std::string& control, const std::string& label,
                    const std::string& standard, int minimum, int maximum);

} // namespace quillfen
