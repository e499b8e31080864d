#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// A stretch of a text.
struct FindMark
{
    std::size_t at;
    std::size_t length;

    bool operator==(const FindMark&) const = default;
};

/// The words that are looked for, in any order and any case. All texts are code page bytes.
class FindQuery
{
public:
    /// Blanks part what was typed into words. Those behind the sixteenth don't count.
    explicit FindQuery(std::string_view typed);

    /// In lower case, as all that they are compared with has to be.
    const std::vector<std::string>& words() const { return m_words; }

    /// Where the words stand in each of several texts that belong together. A word that stands in none of
    /// them as it was typed is marked where it stands but for one letter. Marks don't touch each other.
    std::vector<std::vector<FindMark>> marksIn(const std::vector<std::string>& texts) const;

private:
    std::vector<std::string> m_words;
};

/// Whether a word of a text may begin at this place of it.
bool beginsWord(std::string_view lowered, std::size_t at);

/// Where the word stands as it is, at the earliest from a place on.
std::optional<FindMark> exactPlace(std::string_view lowered, std::string_view word, std::size_t from = 0);

/// Where a word of the text begins as the sought one but for one letter: a wrong, a missing or an odd one, or
/// two that changed places. Numbers and words of fewer than four letters are no misspellings of anything.
std::optional<FindMark> nearPlace(std::string_view lowered, std::string_view word, std::size_t from = 0);

} // namespace quillfen
