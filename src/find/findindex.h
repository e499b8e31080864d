#pragma once

#include "find/findquery.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// What stands in the index, from a function down to a cell of its grid: each below one of those before it.
enum class FindKind
{
    Function,
    File,
    Control, ///< a setting, a list, a grid, a text
    Row,
    Cell ///< found only by words that find its row too, as a grid has the same ones in each row
};

/// Where something that was found stands.
struct FindPlace
{
    std::string key{};     ///< the navigator's
    std::string control{}; ///< empty for the form as a whole
    int row = -1;          ///< of the control's list

    bool operator==(const FindPlace&) const = default;
};

/// A text with the stretches that were looked for.
struct FindText
{
    std::string text;
    std::vector<FindMark> marks;
};

/// Something that was found, as a user is told of it. What doesn't apply is empty.
struct FindHit
{
    FindKind kind;
    FindPlace place;
    FindText function;
    FindText setting;
    FindText value;
    FindText detail; ///< what was found beside those: a key, a file, a sentence, another entry of a drop-down
};

/// The first of what was found, and how much that was in all. What was found only but for a letter counts
/// where there is room for it.
struct FindResult
{
    std::vector<FindHit> hits;
    std::size_t count = 0;
};

/// What an entry is made of. A row's label may be empty: then it is that of the setting that it belongs to.
struct FindEntry
{
    FindKind kind;
    FindPlace place; ///< of a function the key, of others the control and the row
    std::string_view label{};
    std::string_view value{};
    std::vector<std::string_view> details{};
};

/// The texts that can be found, and where each stands. All texts are code page bytes.
class FindIndex
{
public:
    /// What stands below no other.
    static constexpr std::size_t top = static_cast<std::size_t>(-1);

    /// Adds an entry below one of those before, and returns its own place in the index.
    std::size_t add(std::size_t parent, const FindEntry& entry);

    /// What holds all words, by itself or together with what it stands below: functions first, then the
    /// others, those with the words in their labels before those with them in values and in what they are
    /// only explained by; at last those that are found but for a letter.
    FindResult find(const FindQuery& query, std::size_t most) const;

    /// How many entries there are.
    std::size_t size() const { return m_entries.size(); }

private:
    struct Entry
    {
        FindKind kind;
        int row;
        std::uint32_t parent;
        std::uint32_t name; ///< of its key or control
        std::uint32_t begin;
    };

    struct Match;
    class Search;

    void append(std::string_view field);
    std::size_t endOf(std::size_t entry) const;
    std::vector<std::string_view> fieldsOf(std::size_t entry) const;
    const Entry* above(const Entry& entry) const;
    std::string settingOf(std::size_t entry) const;
    std::string detailOf(std::size_t entry, const FindQuery& query,
                         const std::vector<std::string>& shown) const;
    FindHit hitOf(std::size_t entry, const FindQuery& query) const;

    std::vector<Entry> m_entries;
    std::vector<std::string> m_names;
    std::string m_text;    ///< of all entries: their fields, each with its end
    std::string m_lowered; ///< the same in lower case
};

} // namespace quillfen
