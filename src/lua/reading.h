#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The reader of table files that says what the hub script's Lua makes of them.
namespace quillfen::lua {

/// The two versions that hubs run their scripts with.
enum class Version
{
    Lua51,
    Lua53
};

enum class Verdict
{
    Loads,
    Fails,
    Unknown ///< the text goes beyond a table file: it calls or computes something
};

/// What keeps a text from loading.
enum class Fault
{
    None,
    QuoteInText,       ///< a text goes on behind what Lua takes for its end
    BackslashAtEnd,    ///< a backslash takes the closing quote into the text
    OpenText,          ///< no closing quote
    OpenLongText,      ///< no closing brackets
    NestedLongText,    ///< Lua 5.1 wants no `[[` inside `[[ ]]`
    OpenComment,       ///< no closing brackets
    UnknownEscape,     ///< a backslash before a character that it doesn't go with
    NotANumber,        ///< begins with a digit and is no number
    NoValue,           ///< nothing behind a `=`
    NoComma,           ///< two rows without a comma between them
    OpenTable,         ///< no closing brace
    BraceWithoutTable, ///< a brace that closes nothing
    NilKey,            ///< `[nil]`
    MarkedAsUtf8,      ///< three bytes in front that editors of today put there
    Stray,             ///< anything else that doesn't belong where it stands
    Computes,          ///< no plain value: something is computed or called
    TooDeep,           ///< tables in tables in tables
    TooLong            ///< more values than one is sure that Lua takes
};

/// What Lua sees otherwise than it stands in a file that loads.
enum class Oddity
{
    Backslash, ///< a text with a backslash: it makes another character, or goes
    BareWord   ///< a key's value is a word without quotes, which Lua takes for a variable that nobody has set
};

struct Note
{
    std::size_t line;
    Oddity oddity;

    bool operator==(const Note&) const = default;
};

/// What came of reading a file: whether it loads, else the line and reason of the first fault.
struct Reading
{
    Verdict verdict = Verdict::Loads;
    Fault fault = Fault::None;
    std::size_t line = 0;         ///< counted from 1, 0 for a file that loads
    std::vector<Note> notes = {}; ///< in the order of their lines

    bool loads() const { return verdict == Verdict::Loads; }
};

/// What is wrong and what to do, in an owner's words: a sentence or two without a line number.
std::string_view words(Fault fault);

} // namespace quillfen::lua
