// Whatever stands in a file: where the reader of table files says that it loads, or that it doesn't, the real
// Luas say the same. An eighth of the inputs is read as it is. The others choose what a table file is made of
// and, in half of them, what becomes of its bytes then, so that most texts are nearly right.
#include "check.h"
#include "lua/tablereader.h"
#include "support/realluas/refusal.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using quillfen::lua::Verdict;
using quillfen::lua::Version;

/// How many texts each verdict was given, to be told at the end of the run.
struct Counts
{
    long verdicts[2][3] = {};

    ~Counts()
    {
        for (const int version : {0, 1}) {
            const long* of = verdicts[version];
            std::printf("Lua 5.%d: %ld load, %ld fail, %ld go beyond table files\n", version == 0 ? 1 : 3,
                        of[0], of[1], of[2]);
        }
    }
};

/// An input as a row of choices; the first one for ever when it has run out.
class Choices
{
public:
    Choices(const std::uint8_t* data, std::size_t size) : m_bytes(reinterpret_cast<const char*>(data), size)
    {
    }

    std::size_t below(std::size_t count)
    {
        if (m_bytes.empty())
            return 0;
        const auto chosen = static_cast<unsigned char>(m_bytes.front()) % count;
        m_bytes.remove_prefix(1);
        return chosen;
    }

    template <std::size_t count>
    std::string_view of(const std::string_view (&words)[count])
    {
        return words[below(count)];
    }

    std::string rest() const { return std::string(m_bytes); }
    bool ended() const { return m_bytes.empty(); }

private:
    std::string_view m_bytes;
};

constexpr std::string_view blanks[] = {" ",    "",   "\t",    "\r\n",    "\n",         "\r",
                                       "\n\r", "\v", "--x\n", "--[[x]]", "--[=[]]]=]", "--[x\r"};
constexpr std::string_view names[] = {"tTable", "sText", "i", "_1", "self", "B", "x9", "goto", "_ENV", "end"};
constexpr std::string_view plain[] = {"1",         "0",    "-1",    "12.5",  "1e5", "0x1F", "- 3",
                                      "nil",       "true", "false", "abc",   ".5",  "3.",   "[[long]]",
                                      "[=[a]]]=]", "{}",   "'it'",  "0x1p4", "1",   "0",    "[[\n]]"};
constexpr std::string_view odd[] = {"1a",       "1x",    "0x.8", "1.2.3",  "",      "3e",  "0x",
                                    "[[a[[b]]", "--",    "1 2",  "a.b",    "...",   "f()", "1+1",
                                    "#a",       "not 1", "goto", "1 // 2", "0x1.8", "-"};
constexpr std::string_view letters[] = {"a", " ", "\\n", "\\\"", "'",  "\xBB", "\\065", ",", "*",
                                        "=", "{", "}",   "--",   "]]", "\\0",  "\\\\",  "[["};
constexpr std::string_view oddLetters[] = {"\\",          "\"",   "\\300", "\\x41",  "\\x4", "\\u{41}",
                                           "\\u{110000}", "\\z ", "\\q",   "\\\r\n", "\r"};
constexpr std::string_view pieces[] = {"\"", "\\",           ",",     "{", "}",  "[", "]", "=", "\n",
                                       "--", "[[",           "]]",    "'", "1",  "e", ".", ";", "return ",
                                       "#",  "\xEF\xBB\xBF", "goto ", "~", "nil"};

/// Writes a table file as a person or the editor would.
class Writer
{
public:
    explicit Writer(Choices& choices) : m_choices(choices) {}

    std::string file()
    {
        const auto statements = m_choices.below(4);
        for (std::size_t count = 0; count <= statements; ++count) {
            add(m_choices.of(names)).blank().add("=").blank();
            value(3);
            add(m_choices.below(3) == 0 ? ";" : "\r\n");
        }
        if (m_choices.below(4) == 0) {
            add("return ");
            value(1);
        }
        return m_text;
    }

private:
    Writer& add(std::string_view piece)
    {
        m_text += piece;
        return *this;
    }

    Writer& blank() { return add(m_choices.of(blanks)); }

    void text()
    {
        add("\"");
        for (auto length = m_choices.below(5); length > 0; --length)
            add(m_choices.below(12) == 0 ? m_choices.of(oddLetters) : m_choices.of(letters));
        add("\"");
    }

    void value(int depth)
    {
        const auto kind = m_choices.below(4);
        if (kind == 0 || depth == 0)
            add(m_choices.below(24) == 0 ? m_choices.of(odd) : m_choices.of(plain));
        else if (kind == 1)
            text();
        else
            table(depth);
    }

    void table(int depth)
    {
        add("{").blank();
        for (auto rows = m_choices.below(6); rows > 0 && !m_choices.ended(); --rows) {
            key();
            value(depth - 1);
            blank().add(m_choices.below(10) == 0 ? ";" : ",").blank();
        }
        add("}");
    }

    void key()
    {
        switch (m_choices.below(4)) {
        case 0:
            return;
        case 1:
            add("[").add(m_choices.of(plain)).add("]");
            break;
        case 2:
            add("[");
            text();
            add("]");
            break;
        default:
            add(m_choices.of(names));
        }
        blank().add("= ");
    }

    Choices& m_choices;
    std::string m_text;
};

void damage(std::string& text, Choices& choices)
{
    for (auto times = choices.below(4); times > 0 && !text.empty(); --times) {
        const std::size_t at = choices.below(256) * 256 + choices.below(256);
        const std::size_t place = at % text.size();
        if (choices.below(2) == 0)
            text.erase(place, 1 + choices.below(3));
        else
            text.insert(place, choices.of(pieces));
    }
}

std::string fileOf(Choices& choices)
{
    const auto kind = choices.below(8);
    if (kind == 0)
        return choices.rest();
    std::string text = Writer(choices).file();
    if (kind % 2 == 0)
        damage(text, choices);
    return text;
}

void check(const std::string& text, Version version)
{
    static Counts counts;
    const auto verdict = quillfen::lua::readTables(text, version).verdict;
    ++counts.verdicts[version == Version::Lua53][static_cast<int>(verdict)];
    if (verdict == Verdict::Unknown)
        return;
    const auto refusal =
        version == Version::Lua51 ? quillfen::test::lua51Refusal(text) : quillfen::test::lua53Refusal(text);
    const bool same = (verdict == Verdict::Loads) == !refusal;
    if (!same) {
        std::fwrite(text.data(), 1, text.size(), stderr);
        std::fprintf(stderr, "\n-- Lua 5.%d: %s\n", version == Version::Lua51 ? 1 : 3,
                     refusal.value_or("loads").c_str());
    }
    quillfen::fuzz::require(same, "the reader says what Lua says");
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Choices choices(data, size);
    const std::string text = fileOf(choices);
    check(text, Version::Lua51);
    check(text, Version::Lua53);
    return 0;
}
