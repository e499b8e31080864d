#include "settings/tableindex.h"

#include "settings/tabletrim.h"

#include <algorithm>

namespace quillfen {

TableIndex::TableIndex(std::string bytes, std::size_t lines)
    : m_bytes(std::make_unique<const std::string>(std::move(bytes)))
{
    LineCursor cursor(*m_bytes);
    std::size_t place = 0;
    for (std::size_t number = 1; number <= lines; ++number) {
        const auto line = cursor.next();
        if (!line)
            break;
        const auto [left, right, found] = splitOnce(*line, '=');
        const auto key = trimmedTableKey(trimBlanks(left));
        if (line->empty() || key == "}")
            continue;
        place = placeOf(key, place);
        const auto value = trimmedTableValue(right);
        if (value != "{")
            m_keys[place].rows.push_back({number, value});
        else if (m_keys[place].opening == 0)
            m_keys[place].opening = number;
    }
}

/// The place of a key, behind that of the line before: in a grid the same keys follow each other in each
/// table, so that there is nothing to search.
std::size_t TableIndex::placeOf(std::string_view key, std::size_t before)
{
    if (before < m_keys.size()) {
        const std::size_t follower = m_keys[before].follower;
        if (m_keys[follower].text == key)
            return follower;
    }
    const auto [found, isNew] = m_places.try_emplace(key, m_keys.size());
    if (isNew)
        m_keys.push_back({key});
    m_keys[before].follower = found->second;
    return found->second;
}

const TableIndex::Key* TableIndex::find(std::string_view key) const
{
    const auto place = m_places.find(key);
    return place == m_places.end() ? nullptr : &m_keys[place->second];
}

/// The row that answers; null if there is none.
const TableIndex::Row* TableIndex::rowOf(std::string_view key, std::string_view table) const
{
    const Key* const found = find(key);
    if (!found)
        return nullptr;
    std::size_t from = 0;
    if (!table.empty()) {
        const Key* const opening = find(table);
        if (!opening || opening->opening == 0)
            return nullptr;
        from = opening->opening;
    }
    const auto row = std::partition_point(found->rows.begin(), found->rows.end(),
                                          [from](const Row& candidate) { return candidate.line < from; });
    return row == found->rows.end() ? nullptr : &*row;
}

std::string TableIndex::value(std::string_view key, std::string_view table) const
{
    const Row* const row = rowOf(key, table);
    return row ? std::string(row->value) : std::string();
}

std::size_t TableIndex::line(std::string_view key, std::string_view table) const
{
    const Row* const row = rowOf(key, table);
    return row ? row->line : 0;
}

TableCells::TableCells(const TableIndex& index, const std::vector<std::string>& keys) : m_index(index)
{
    for (const std::string& key : keys)
        m_columns.push_back({index.find(key)});
}

void TableCells::enter(std::string_view table)
{
    const auto* const opening = m_index.find(table);
    m_from = opening ? opening->opening : 0;
}

std::string_view TableCells::at(std::size_t place)
{
    Column& column = m_columns[place];
    if (m_from == 0 || !column.key)
        return {};
    const auto& rows = column.key->rows;
    if (column.next > 0 && rows[column.next - 1].line >= m_from)
        column.next = 0; // this table opens above the one before
    while (column.next < rows.size() && rows[column.next].line < m_from)
        ++column.next;
    return column.next < rows.size() ? rows[column.next].value : std::string_view();
}

SubTableIndex::SubTableIndex(std::string bytes)
    : m_bytes(std::make_unique<const std::string>(std::move(bytes)))
{
    LineCursor cursor(*m_bytes);
    for (std::size_t number = 1; const auto line = cursor.next(); ++number) {
        const auto [left, right, found] = splitInPieces(*line, '=');
        if (found)
            m_rows[trimmedTableKey(left)].push_back({number, trimmedTableValue(right)});
    }
}

std::string SubTableIndex::value(std::string_view table, std::string_view key) const
{
    const auto opening = m_rows.find(trimBlanks(table));
    const auto rows = m_rows.find(key);
    if (opening == m_rows.end() || rows == m_rows.end())
        return {};
    const std::size_t from = opening->second.front().line;
    const auto row = std::partition_point(rows->second.begin(), rows->second.end(),
                                          [from](const Row& candidate) { return candidate.line < from; });
    return row == rows->second.end() ? std::string() : std::string(row->value);
}

} // namespace quillfen
