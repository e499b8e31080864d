#pragma once

#include "declarations/function.h"

#include <functional>
#include <string>
#include <vector>

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

/// A number of the pattern with the caption, default and range that it has in this game, in the control of
/// that name. Numbers are changed by their arrows and not typed.
setting::Field quizSetting(QuizGame game, const std::string& key, const std::string& control);

/// The six flags with which every game's settings start, in the check boxes 0 to 5 of that array, and the
/// game's further settings behind them.
std::vector<Setting> withQuizFlags(const std::string& checkBoxes, std::vector<Setting> further);

/// A number of a game's own that behaves like those of the pattern.
setting::Field arrowNumber(const std::string& key, const std::string& control, const std::string& label,
                           int defaultValue, int minimum, int maximum);

/// The bullet that stands for a hidden letter, in the code page.
inline constexpr const char* hintBullet = "\x95";

/// A box of one character, txtTextBox(0) in every game.
setting::Field oneCharacter(const std::string& key, const std::string& label,
                            const std::string& defaultValue);

/// A game's folders and its build: the settings, and its players, scores and archive of scores, with nothing
/// in them.
FunctionDeclaration quizFunction(const std::string& folder, const std::string& game,
                                 std::function<TableFile()> settings);

} // namespace quillfen
