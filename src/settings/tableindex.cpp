#include "settings/tableindex.h"

#include "settings/tablefile.h"

#include <algorithm>

namespace quillfen {

TableIndex::TableIndex(std::string bytes, std::size_t lines)
    : m_bytes(std::make_unique<const std::string>(std::move(bytes)))
{
    LineCursor cursor(*m_bytes);
    for (std::size_t number = 1; number <= lines; ++number) {
        const auto line = cursor.next();
        if (!line)
            break;
        const auto [left, right, found] = splitOnce(*line, '=');
        const auto key = trimmedTableKey(trimBlanks(left));
        if (line->empty() || key == "}")
            continue;
        const auto value = trimmedTableValue(right);
        if (value == "{")
            m_openings.try_emplace(key, number);
        else
            m_rows[key].push_back({number, value});
    }
}

std::string TableIndex::value(std::string_view key, std::string_view table) const
{
    const auto rows = m_rows.find(key);
    if (rows == m_rows.end())
        return {};
    std::size_t from = 0;
    if (!table.empty()) {
        const auto opening = m_openings.find(table);
        if (opening == m_openings.end())
            return {};
        from = opening->second;
    }
    const auto row = std::partition_point(rows->second.begin(), rows->second.end(),
                                          [from](const Row& candidate) { return candidate.line < from; });
    return row == rows->second.end() ? std::string() : std::string(row->value);
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
