#pragma once

#include "settings/lines.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace quillfen {

/// A text as a table holds it: `"text"`.
inline std::string inQuotes(std::string_view text)
{
    return std::string(1, '"').append(text).append(1, '"');
}

/// A key that is no name: `[key]`, or `["key"]` of a quoted one.
inline std::string bracketed(std::string_view key)
{
    return std::string(1, '[').append(key).append(1, ']');
}

/// Composes the text of a table file, line by line. Nothing is escaped.
class TableWriter
{
public:
    /// Begins without a line, for a file whose opening line is its own.
    TableWriter() = default;

    /// Opens the file's table.
    explicit TableWriter(std::string_view table) { open(table); }

    /// `key = {`, and what follows stands a tab deeper.
    TableWriter& open(std::string_view key) { return add({key, " = {", lineEnd}).indent(m_tabs + 1); }

    /// `key = value,`
    TableWriter& row(std::string_view key, std::string_view value)
    {
        return add({key, " = ", value, rowEnd});
    }

    /// `key = "text",`
    TableWriter& text(std::string_view key, std::string_view text)
    {
        return add({key, " = \"", text, "\"", rowEnd});
    }

    /// A row without a key: `value,`
    TableWriter& row(std::string_view value) { return add({value, rowEnd}); }

    /// The brace of a nested table: `},`
    TableWriter& close() { return indent(m_tabs - 1).row("}"); }

    /// A line that is none of these, as it stands.
    TableWriter& line(std::string_view line) { return add({line, lineEnd}); }

    /// What follows stands at so many tabs, where that isn't the depth of its table.
    TableWriter& indent(std::size_t tabs)
    {
        m_tabs = tabs;
        return *this;
    }

    /// Makes room for a text of many rows.
    void reserve(std::size_t bytes) { m_text.reserve(bytes); }

    /// Ends the text with the brace of the file's table, without a line end, and gives it away.
    std::string closed() { return std::move(m_text += '}'); }

    /// The text of a file whose table stays open, without the last line end.
    std::string unclosed() const { return m_text.substr(0, m_text.size() - lineEnd.size()); }

private:
    static constexpr std::string_view rowEnd = ",\r\n";

    /// The text grows once a line: a rebuild writes tens of thousands of them.
    TableWriter& add(std::initializer_list<std::string_view> pieces)
    {
        const std::size_t begin = m_text.size() + m_tabs;
        std::size_t end = begin;
        for (const std::string_view piece : pieces)
            end += piece.size();
        m_text.resize(end, '\t');
        char* to = m_text.data() + begin;
        for (const std::string_view piece : pieces)
            to = std::copy(piece.begin(), piece.end(), to);
        return *this;
    }

    std::string m_text;
    std::size_t m_tabs = 0;
};

} // namespace quillfen
