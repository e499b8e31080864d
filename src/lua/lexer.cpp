#include "lua/lexer.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillfen::lua {
namespace {

constexpr std::size_t none = std::string_view::npos;

// Lua's own classes of characters, whatever the locale: bytes above 127 are no letters.
bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           character == '_';
}

bool isHexDigit(char character)
{
    return isDigit(character) || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

bool isLineEnd(char character)
{
    return character == '\r' || character == '\n';
}

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\v' || character == '\f';
}

bool isOneOf(char character, std::string_view characters)
{
    return characters.find(character) != std::string_view::npos;
}

unsigned hexValue(char digit)
{
    return static_cast<unsigned>(isDigit(digit) ? digit - '0' : (digit | 0x20) - 'a' + 10);
}

/// Cuts off all digits in front and tells how many there were.
std::size_t cutDigits(std::string_view& text, bool (*isOfTheKind)(char))
{
    const auto end = std::find_if_not(text.begin(), text.end(), isOfTheKind);
    const auto count = static_cast<std::size_t>(end - text.begin());
    text.remove_prefix(count);
    return count;
}

bool cut(std::string_view& text, std::string_view characters)
{
    if (text.empty() || !isOneOf(text.front(), characters))
        return false;
    text.remove_prefix(1);
    return true;
}

/// Whether what Lua takes for a number is one: digits with a point and an exponent, hexadecimal behind `0x`.
bool isNumber(std::string_view text)
{
    const bool isHex = text.starts_with("0x") || text.starts_with("0X");
    if (isHex)
        text.remove_prefix(2);
    const auto isOfTheKind = isHex ? isHexDigit : isDigit;
    std::size_t digits = cutDigits(text, isOfTheKind);
    if (cut(text, "."))
        digits += cutDigits(text, isOfTheKind);
    if (digits == 0)
        return false;
    if (cut(text, isHex ? "Pp" : "Ee")) {
        cut(text, "+-");
        return cutDigits(text, isDigit) > 0 && text.empty();
    }
    return text.empty();
}

Token wordToken(std::string_view word, bool is53)
{
    using Word = std::pair<std::string_view, Token>;
    static constexpr std::array words = {
        Word{"and", Token::Operator},    Word{"break", Token::Statement},  Word{"do", Token::Statement},
        Word{"else", Token::Stray},      Word{"elseif", Token::Stray},     Word{"end", Token::Stray},
        Word{"false", Token::Boolean},   Word{"for", Token::Statement},    Word{"function", Token::Opening},
        Word{"goto", Token::Statement},  Word{"if", Token::Statement},     Word{"in", Token::Stray},
        Word{"local", Token::Statement}, Word{"nil", Token::Nil},          Word{"not", Token::Opening},
        Word{"or", Token::Operator},     Word{"repeat", Token::Statement}, Word{"return", Token::Return},
        Word{"then", Token::Stray},      Word{"true", Token::Boolean},     Word{"until", Token::Stray},
        Word{"while", Token::Statement}};
    const auto found =
        std::lower_bound(words.begin(), words.end(), word,
                         [](const Word& each, std::string_view name) { return each.first < name; });
    if (found == words.end() || found->first != word || (word == "goto" && !is53))
        return Token::Name;
    return found->second;
}

} // namespace

Lexer::Lexer(std::string_view text, Version version) : m_text(text), m_version(version)
{
    skipFileHead();
}

void Lexer::stop(Verdict verdict, Fault fault, std::size_t line)
{
    throw Reading{verdict, fault, line};
}

char Lexer::ahead(std::size_t count) const
{
    return m_at + count < m_text.size() ? m_text[m_at + count] : '\0';
}

bool Lexer::take(std::string_view word)
{
    if (!m_text.substr(m_at).starts_with(word))
        return false;
    m_at += word.size();
    return true;
}

/// What is passed over where a file is loaded: a first line behind `#`, and for Lua 5.3 a UTF-8 mark.
void Lexer::skipFileHead()
{
    if (take("\xEF\xBB\xBF") && !is53())
        fail(Fault::MarkedAsUtf8);
    if (take("#")) {
        m_at = std::min(m_text.find('\n', m_at), m_text.size() - 1) + 1;
        ++m_line;
    }
    if (ahead() == '\x1B')
        stop(Verdict::Unknown, Fault::Computes, m_line); // a compiled program
}

void Lexer::skipLineEnd()
{
    const char first = m_text[m_at++];
    if (isLineEnd(ahead()) && ahead() != first)
        ++m_at;
    ++m_line;
}

void Lexer::skipBlanks()
{
    for (;;) {
        if (isLineEnd(ahead()))
            skipLineEnd();
        else if (isBlank(ahead()))
            ++m_at;
        else
            return;
    }
}

void Lexer::skipSpace()
{
    skipBlanks();
    while (take("--")) {
        skipComment();
        skipBlanks();
    }
}

void Lexer::skipComment()
{
    const std::size_t level = longBracket();
    if (level != none)
        skipLong(level, Fault::OpenComment);
    else
        m_at = std::min(m_text.find_first_of("\r\n", m_at), m_text.size());
}

/// How many `=` stand between the two brackets that open a long text here; none if none opens.
std::size_t Lexer::longBracket() const
{
    if (ahead() != '[')
        return none;
    std::size_t level = 0;
    while (ahead(level + 1) == '=')
        ++level;
    return ahead(level + 1) == '[' ? level : none;
}

void Lexer::skipLong(std::size_t level, Fault unfinished)
{
    m_at += level + 2;
    const std::string close = ']' + std::string(level, '=') + ']';
    while (!take(close)) {
        if (atEnd())
            fail(unfinished);
        if (level == 0 && !is53() && take("[["))
            fail(Fault::NestedLongText);
        if (isLineEnd(m_text[m_at]))
            skipLineEnd();
        else
            ++m_at;
    }
}

Token Lexer::next()
{
    m_lineBefore = m_line;
    m_before = m_token;
    m_hasBackslash = false;
    skipSpace();
    m_begin = m_at;
    m_beginLine = m_line;
    m_token = read();
    return m_token;
}

Token Lexer::read()
{
    if (atEnd())
        return Token::End;
    const char first = m_text[m_at];
    if (isLetter(first))
        return readName();
    if (isDigit(first) || (first == '.' && isDigit(ahead(1))))
        return readNumber();
    if (first == '"' || first == '\'')
        return readText();
    const std::size_t level = longBracket();
    if (level == none)
        return readSign();
    skipLong(level, Fault::OpenLongText);
    return Token::Text;
}

Token Lexer::readName()
{
    while (isLetter(ahead()) || isDigit(ahead()))
        ++m_at;
    return wordToken(spelling(), is53());
}

Token Lexer::readNumber()
{
    if (is53())
        takeNumber53();
    else
        takeNumber51();
    if (!isNumber(spelling()))
        fail(Fault::NotANumber);
    return Token::Number;
}

void Lexer::takeExponent(std::string_view letters)
{
    if (!isOneOf(ahead(), letters))
        return;
    ++m_at;
    if (isOneOf(ahead(), "+-"))
        ++m_at;
}

/// Lua 5.1 takes a zero byte for any sign that may follow a number or a point.
void Lexer::giveUpAtZero() const
{
    if (!is53() && !atEnd() && ahead() == '\0')
        stop(Verdict::Unknown, Fault::Stray, m_line);
}

/// Lua 5.1 takes every letter that follows into the number.
void Lexer::takeNumber51()
{
    while (isDigit(ahead()) || ahead() == '.')
        ++m_at;
    giveUpAtZero();
    takeExponent("Ee");
    while (isLetter(ahead()) || isDigit(ahead()))
        ++m_at;
}

/// Lua 5.3 takes hexadecimal digits alone, so that `1x` is a number and a name.
void Lexer::takeNumber53()
{
    if (ahead() == '.')
        ++m_at;
    const bool isHex = ahead() == '0' && isOneOf(ahead(1), "xX");
    m_at += isHex ? 2 : 1;
    for (;;) {
        takeExponent(isHex ? "Pp" : "Ee");
        if (!isHexDigit(ahead()) && ahead() != '.')
            return;
        ++m_at;
    }
}

Token Lexer::readText()
{
    const char quote = m_text[m_at++];
    bool quoteTaken = false; // by the backslash in front of it
    for (;;) {
        if (atEnd() || isLineEnd(m_text[m_at]))
            failUnfinished(quoteTaken);
        const char character = m_text[m_at++];
        if (character == quote)
            return Token::Text;
        if (character != '\\')
            continue;
        m_hasBackslash = true;
        quoteTaken = quoteTaken || ahead() == quote;
        readEscape();
    }
}

void Lexer::failUnfinished(bool quoteTaken) const
{
    if (quoteTaken)
        fail(Fault::BackslashAtEnd);
    fail(m_before == Token::Text && m_lineBefore == m_beginLine ? Fault::QuoteInText : Fault::OpenText);
}

void Lexer::readEscape()
{
    if (atEnd())
        return;
    if (isDigit(ahead()))
        readDecimalEscape();
    else if (isLineEnd(ahead()))
        skipLineEnd();
    else if (!is53() || isOneOf(ahead(), "abfnrtv\\\"'"))
        ++m_at;
    else if (take("x"))
        readHexEscape();
    else if (take("u"))
        readUnicodeEscape();
    else if (take("z"))
        skipBlanks();
    else
        fail(Fault::UnknownEscape);
}

void Lexer::readDecimalEscape()
{
    unsigned value = 0;
    for (int digits = 0; digits < 3 && isDigit(ahead()); ++digits)
        value = 10 * value + hexValue(m_text[m_at++]);
    if (value > 255)
        fail(Fault::UnknownEscape);
}

void Lexer::readHexEscape()
{
    if (!isHexDigit(ahead()) || !isHexDigit(ahead(1)))
        fail(Fault::UnknownEscape); // else they are read as any others of the text
}

void Lexer::readUnicodeEscape()
{
    constexpr unsigned last = 0x10FFFF;
    if (!take("{") || !isHexDigit(ahead()))
        fail(Fault::UnknownEscape);
    unsigned value = 0;
    while (isHexDigit(ahead()) && value <= last)
        value = 16 * value + hexValue(m_text[m_at++]);
    if (value > last || !take("}"))
        fail(Fault::UnknownEscape);
}

Token Lexer::readSign()
{
    switch (m_text[m_at++]) {
    case '=':
        return take("=") ? Token::Operator : Token::Equals;
    case ',':
        return Token::Comma;
    case ';':
        return Token::Semicolon;
    case '{':
        return Token::OpenBrace;
    case '}':
        return Token::CloseBrace;
    case '[':
        return ahead() == '=' ? Token::Stray : Token::OpenBracket;
    case ']':
        return Token::CloseBracket;
    case '(':
        return Token::OpenParen;
    case '-':
        return Token::Minus;
    case '#':
        return Token::Opening;
    case '.':
        giveUpAtZero();
        if (take(".."))
            return Token::Opening;
        return take(".") ? Token::Operator : Token::Suffix;
    case ':':
        return is53() && take(":") ? Token::Statement : Token::Suffix;
    default:
        --m_at;
        return readOperator();
    }
}

/// Those that Lua 5.1 doesn't know are two signs for it that no value goes with.
Token Lexer::readOperator()
{
    for (const std::string_view sign : {"<=", ">=", "~="}) {
        if (take(sign))
            return Token::Operator;
    }
    for (const std::string_view sign : {"//", "<<", ">>", "&", "|", "~"}) {
        if (take(sign))
            return is53() ? Token::Operator : Token::Stray;
    }
    return isOneOf(m_text[m_at++], "+*/%^<>") ? Token::Operator : Token::Stray;
}

} // namespace quillfen::lua
