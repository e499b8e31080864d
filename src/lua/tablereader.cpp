#include "lua/tablereader.h"

#include "lua/lexer.h"

#include <algorithm>

namespace quillfen::lua {
namespace {

/// What a value is, as far as it matters where it stands.
enum class Value
{
    Nil,
    Number,
    Word,
    Other
};

/// Lua has 250 places for what is unfinished at one time. A table takes one, its key another, and up to fifty
/// of its values wait in places of their own. The limit keeps well away from that, and from the 200 levels
/// that Lua goes down.
constexpr std::size_t placeLimit = 180;
constexpr std::size_t placesOfALevel = 2;
constexpr std::size_t waitingValues = 50;

/// Lua 5.1 keeps no more than 262,143 different values in a file.
constexpr std::size_t valueLimit = 250'000;

class TableReader
{
public:
    TableReader(std::string_view text, Version version) : m_lexer(text, version), m_version(version) {}

    /// Reads all of the file. Throws a Reading where it stops.
    void read();

    std::vector<Note> notes{};

private:
    struct Word
    {
        std::string_view name;
        std::size_t line;
    };

    bool is53() const { return m_version == Version::Lua53; }
    bool is(Token token) const { return m_lexer.token() == token; }
    bool take(Token token);
    void takePlaces(std::size_t count);
    void countValue();

    [[noreturn]] void fail(Fault fault) const { Lexer::stop(Verdict::Fails, fault, m_lexer.line()); }
    [[noreturn]] void giveUp(Fault fault) const { Lexer::stop(Verdict::Unknown, fault, m_lexer.line()); }
    bool isBehindTextOfLine() const;

    void statement();
    void assignment();
    void result();
    void values();
    Value value();
    Value plainValue();
    Word word();
    Value namedValue();
    Value wordAsValue(const Word& word) const;
    Value negative();
    Value table();
    bool field();
    void keyedField();
    void endOfField(std::size_t openingLine);
    void refuseOperator() const;
    void refuseMoreThanName() const;
    void refuseOtherEnvironment(std::string_view name) const;

    Lexer m_lexer;
    Version m_version;
    std::vector<std::string_view> m_names{}; ///< that have a value by now
    std::size_t m_places = 0;
    std::size_t m_values = 0;
};

bool TableReader::take(Token token)
{
    const bool taken = is(token);
    if (taken)
        m_lexer.next();
    return taken;
}

void TableReader::takePlaces(std::size_t count)
{
    m_places += count;
    if (m_places > placeLimit)
        giveUp(Fault::TooDeep);
}

void TableReader::countValue()
{
    if (++m_values > valueLimit)
        giveUp(Fault::TooLong);
}

bool TableReader::isBehindTextOfLine() const
{
    return m_lexer.before() == Token::Text && m_lexer.lineBefore() == m_lexer.line();
}

void TableReader::read()
{
    m_lexer.next();
    while (!is(Token::End) && !is(Token::Return)) {
        statement();
        take(Token::Semicolon);
    }
    if (take(Token::Return))
        result();
}

void TableReader::statement()
{
    switch (m_lexer.token()) {
    case Token::Name:
        return assignment();
    case Token::Semicolon: // an empty statement; the first one was taken with the statement before it
        if (!is53())
            fail(Fault::Stray);
        return;
    case Token::Statement:
        if (m_lexer.spelling() == "goto" && m_lexer.next() != Token::Name)
            fail(Fault::Stray);
        giveUp(Fault::Computes);
    case Token::Opening:
    case Token::OpenParen:
        giveUp(Fault::Computes);
    case Token::CloseBrace:
        fail(Fault::BraceWithoutTable);
    default:
        fail(isBehindTextOfLine() ? Fault::QuoteInText : Fault::Stray);
    }
}

/// In Lua 5.3 this name stands for where all the others are.
void TableReader::refuseOtherEnvironment(std::string_view name) const
{
    if (is53() && name == "_ENV")
        giveUp(Fault::Computes);
}

void TableReader::assignment()
{
    const Word target = word();
    refuseOtherEnvironment(target.name);
    refuseMoreThanName();
    if (is(Token::Comma)) // several names at once
        giveUp(Fault::Computes);
    if (!take(Token::Equals))
        fail(Fault::Stray);
    values();
    m_names.push_back(target.name);
}

/// Behind a name these call it, or look something up in it.
void TableReader::refuseMoreThanName() const
{
    for (const Token token :
         {Token::Suffix, Token::OpenParen, Token::OpenBracket, Token::OpenBrace, Token::Text}) {
        if (is(token))
            giveUp(Fault::Computes);
    }
}

void TableReader::result()
{
    if (!is(Token::End) && !is(Token::Semicolon))
        values();
    take(Token::Semicolon);
    if (!is(Token::End))
        fail(is(Token::CloseBrace) ? Fault::BraceWithoutTable : Fault::Stray);
}

void TableReader::values()
{
    value();
    const std::size_t places = m_places;
    while (take(Token::Comma)) {
        if (is(Token::CloseBrace)) // the comma was that of a nested table's brace
            fail(Fault::BraceWithoutTable);
        takePlaces(1);
        value();
    }
    m_places = places;
}

Value TableReader::value()
{
    const Value value = plainValue();
    refuseOperator();
    return value;
}

void TableReader::refuseOperator() const
{
    if (is(Token::Operator) || is(Token::Minus))
        giveUp(isBehindTextOfLine() ? Fault::QuoteInText : Fault::Computes);
}

Value TableReader::plainValue()
{
    countValue();
    switch (m_lexer.token()) {
    case Token::Nil:
        m_lexer.next();
        return Value::Nil;
    case Token::Number:
        m_lexer.next();
        return Value::Number;
    case Token::Text:
        if (m_lexer.hasBackslash())
            notes.push_back({m_lexer.line(), Oddity::Backslash});
        m_lexer.next();
        return Value::Other;
    case Token::Boolean:
        m_lexer.next();
        return Value::Other;
    case Token::Name:
        return namedValue();
    case Token::Minus:
        return negative();
    case Token::OpenBrace:
        return table();
    case Token::Opening:
    case Token::OpenParen:
        giveUp(Fault::Computes);
    case Token::Operator:
        if (m_lexer.spelling() == "~")
            giveUp(Fault::Computes);
        fail(Fault::Stray);
    case Token::Comma:
    case Token::Semicolon:
    case Token::CloseBrace:
    case Token::CloseBracket:
    case Token::End:
        Lexer::stop(Verdict::Fails, Fault::NoValue, m_lexer.lineBefore());
    default:
        fail(Fault::Stray);
    }
}

TableReader::Word TableReader::word()
{
    const Word word{m_lexer.spelling(), m_lexer.line()};
    m_lexer.next();
    return word;
}

Value TableReader::wordAsValue(const Word& word) const
{
    refuseOtherEnvironment(word.name);
    refuseMoreThanName();
    return Value::Word;
}

Value TableReader::namedValue()
{
    const Word named = word();
    if (std::find(m_names.begin(), m_names.end(), named.name) == m_names.end())
        notes.push_back({named.line, Oddity::BareWord});
    return wordAsValue(named);
}

Value TableReader::negative()
{
    m_lexer.next();
    takePlaces(placesOfALevel);
    if (plainValue() != Value::Number)
        giveUp(Fault::Computes);
    m_places -= placesOfALevel;
    return Value::Number;
}

Value TableReader::table()
{
    const std::size_t openingLine = m_lexer.line();
    const std::size_t places = m_places;
    takePlaces(placesOfALevel);
    std::size_t waiting = 0;
    m_lexer.next();
    while (!is(Token::CloseBrace)) {
        if (is(Token::End))
            Lexer::stop(Verdict::Fails, Fault::OpenTable, openingLine);
        if (field()) {
            waiting = waiting == waitingValues ? 1 : waiting + 1;
            m_places = places + placesOfALevel;
            takePlaces(waiting);
        }
        endOfField(openingLine);
    }
    m_lexer.next();
    m_places = places;
    return Value::Other;
}

/// A value without a key, if it returns true.
bool TableReader::field()
{
    if (is(Token::OpenBracket)) {
        keyedField();
        return false;
    }
    if (!is(Token::Name)) {
        value();
        return true;
    }
    const Word name = word();
    if (take(Token::Equals)) {
        countValue();
        value();
        return false;
    }
    wordAsValue(name);
    refuseOperator();
    return true;
}

void TableReader::keyedField()
{
    m_lexer.next();
    const Value key = value();
    if (!take(Token::CloseBracket) || !take(Token::Equals))
        fail(isBehindTextOfLine() ? Fault::QuoteInText : Fault::Stray);
    if (key == Value::Nil)
        fail(Fault::NilKey);
    if (key == Value::Word) // nil, or not
        giveUp(Fault::Computes);
    value();
}

/// Looks for what parts two fields, or for the closing brace.
void TableReader::endOfField(std::size_t openingLine)
{
    if (take(Token::Comma) || take(Token::Semicolon) || is(Token::CloseBrace))
        return;
    if (is(Token::End))
        Lexer::stop(Verdict::Fails, Fault::OpenTable, openingLine);
    if (m_lexer.lineBefore() < m_lexer.line())
        Lexer::stop(Verdict::Fails, Fault::NoComma, m_lexer.lineBefore());
    fail(isBehindTextOfLine() ? Fault::QuoteInText : Fault::Stray);
}

} // namespace

Reading readTables(std::string_view text, Version version)
try {
    TableReader reader(text, version);
    reader.read();
    return {.notes = std::move(reader.notes)};
} catch (const Reading& stopped) {
    return stopped;
}

} // namespace quillfen::lua
