#pragma once

#include "lua/reading.h"

#include <cstddef>
#include <string_view>

namespace quillfen::lua {

/// What a table file's text is made of. What only programs need is told apart as far as it says whether Lua
/// could go on from there.
enum class Token
{
    End,
    Name,
    Nil,
    Boolean,
    Number,
    Text,
    Equals,
    Comma,
    Semicolon,
    OpenBrace,
    CloseBrace,
    OpenBracket,
    CloseBracket,
    Return,
    Minus,
    Operator,  ///< stands between two values
    Suffix,    ///< goes on behind a name
    OpenParen, ///< goes on behind a name, or begins a value that is computed
    Opening,   ///< begins a value that is computed
    Statement, ///< begins a statement of a program
    Stray      ///< nothing that a value or a row could begin with or go on with
};

/// Cuts a file's text into tokens as one version of Lua does. Throws a Reading where that version stops.
class Lexer
{
public:
    Lexer(std::string_view text, Version version);

    /// Goes on to the next token.
    Token next();

    Token token() const { return m_token; }
    Token before() const { return m_before; }
    std::string_view spelling() const { return m_text.substr(m_begin, m_at - m_begin); }

    /// The line where the token begins, and the one where the token before it ended.
    std::size_t line() const { return m_beginLine; }
    std::size_t lineBefore() const { return m_lineBefore; }

    /// Whether the token is a text with a backslash.
    bool hasBackslash() const { return m_hasBackslash; }

    [[noreturn]] static void stop(Verdict verdict, Fault fault, std::size_t line);

private:
    bool is53() const { return m_version == Version::Lua53; }
    bool atEnd() const { return m_at == m_text.size(); }
    char ahead(std::size_t count = 0) const;
    bool take(std::string_view word);

    void skipFileHead();
    void skipBlanks();
    void skipSpace();
    void skipComment();
    void skipLineEnd();
    std::size_t longBracket() const;
    void skipLong(std::size_t level, Fault unfinished);

    Token read();
    Token readName();
    Token readNumber();
    void takeNumber51();
    void takeNumber53();
    void giveUpAtZero() const;
    void takeExponent(std::string_view letters);
    Token readText();
    [[noreturn]] void failUnfinished(bool quoteTaken) const;
    void readEscape();
    void readDecimalEscape();
    void readHexEscape();
    void readUnicodeEscape();
    Token readSign();
    Token readOperator();
    [[noreturn]] void fail(Fault fault) const { stop(Verdict::Fails, fault, m_line); }

    std::string_view m_text;
    Version m_version;
    std::size_t m_at = 0;
    std::size_t m_begin = 0;
    std::size_t m_line = 1;
    std::size_t m_beginLine = 1;
    std::size_t m_lineBefore = 1;
    bool m_hasBackslash = false;
    Token m_token = Token::End;
    Token m_before = Token::End;
};

} // namespace quillfen::lua
