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

/// The numbers of the pattern as they are in one game.
struct QuizPattern
{
    QuizGame game;

    /// The number of that key with this game's caption, default and range, in the control of that name. It is
    /// changed by its arrows and not typed.
    setting::Field operator()(const std::string& key, const std::string& control) const;
};

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
