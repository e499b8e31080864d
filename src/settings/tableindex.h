#pragma once

#include "settings/lines.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillfen {

/// One file of settings, read and indexed once, so that a form's twenty values or a grid's thousands of cells
/// cost one scan. Each answer is what a scan from the start of the file would find.
class TableIndex
{
public:
    /// Indexes the bytes of a table file. Only the first 5000 lines count, unless the caller says otherwise:
    /// a key behind them reads as empty.
    explicit TableIndex(std::string bytes, std::size_t lines = lineLimit);

    /// The value of the first row with this key behind the first line that opens the table, or anywhere if no
    /// table is named; empty if there is none. A closing brace doesn't end a table: the rows behind a nested
    /// one are still the outer one's.
    std::string value(std::string_view key, std::string_view table = {}) const;

    /// The line of the row that gives this answer, counted from 1; 0 if there is none.
    std::size_t line(std::string_view key, std::string_view table = {}) const;

private:
    friend class TableCells;

    struct Row
    {
        std::size_t line;
        std::string_view value;
    };

    struct Key
    {
        std::string_view text;
        std::vector<Row> rows{};
        std::size_t opening = 0;  ///< the first line where a table of this name opens, 0 for none
        std::size_t follower = 0; ///< the place of the key that stood behind it last
    };

    std::size_t placeOf(std::string_view key, std::size_t before);
    const Key* find(std::string_view key) const;
    const Row* rowOf(std::string_view key, std::string_view table) const;

    // The views below point into the text, which must not move with the index.
    std::unique_ptr<const std::string> m_bytes;
    std::vector<Key> m_keys; ///< in the order of their first lines
    std::unordered_map<std::string_view, std::size_t> m_places;
};

/// The same rows of table after table, as grids have them: each answer is that of TableIndex::value, and a
/// quick one where the tables are entered in the order in which they stand in the file.
class TableCells
{
public:
    /// The index must outlive it.
    TableCells(const TableIndex& index, const std::vector<std::string>& keys);

    /// Goes on to the rows behind the opening line of a table, which has a name.
    void enter(std::string_view table);

    /// The value of the entered table's row with the key of this place.
    std::string_view at(std::size_t place);

private:
    struct Column
    {
        const TableIndex::Key* key;
        std::size_t next = 0; ///< the row that answered last
    };

    const TableIndex& m_index;
    std::vector<Column> m_columns;
    std::size_t m_from = 0; ///< the entered table's opening line, 0 if there is none
};

/// The same for ReadTableSubValue, which is of another mind: a table begins at the first line with its name
/// and a `=`, whatever follows there, each line is cut at a second `=`, and every line of the file counts.
class SubTableIndex
{
public:
    explicit SubTableIndex(std::string bytes);

    std::string value(std::string_view table, std::string_view key) const;

private:
    struct Row
    {
        std::size_t line;
        std::string_view value;
    };

    std::unique_ptr<const std::string> m_bytes;
    std::unordered_map<std::string_view, std::vector<Row>> m_rows;
};

} // namespace quillfen
