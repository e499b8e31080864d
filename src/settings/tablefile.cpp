#include "settings/tablefile.h"

#include "settings/codepage.h"
#include "settings/lines.h"

#include <algorithm>

namespace quillfen {
namespace {

/// The whole lines of ReadTableToList, those of one table or of the file.
class PlainRows
{
public:
    explicit PlainRows(std::string_view table) : m_table(table) {}

    void take(std::string_view line, std::vector<ListRow>& list)
    {
        if (m_table.empty()) {
            if (line != "}")
                list.push_back({std::string(trimmedTableKey(line))});
            return;
        }
        const auto first = trimmedTableKey(splitOnce(line, '=').left);
        if (first == "}") {
            m_inTable = false;
            return;
        }
        if (m_inTable && !line.ends_with('t')) // keeps out a closing "return t"
            list.push_back({std::string(trimmedTableKey(line))});
        if (first == m_table)
            m_inTable = true;
    }

private:
    std::string_view m_table;
    bool m_inTable = false;
};

/// The rows of two pieces of ReadTableToList.
class SplitRows
{
public:
    SplitRows(std::string_view table, char delimiter, Rows rows)
        : m_table(table),
          m_delimiter(delimiter),
          m_rows(rows),
          m_inTable(table.empty())
    {
    }

    void take(std::string_view line, std::vector<ListRow>& list)
    {
        if (!m_table.empty() && trimmedTableKey(splitOnce(line, '=').left) == "}") {
            m_inTable = false;
            return;
        }
        const auto [left, right, found] = splitInPieces(line, m_delimiter);
        if (!found) {
            if (m_rows == Rows::Undivided && m_inTable)
                list.push_back({std::string(trimmedTableKey(left))});
            return;
        }
        const auto first = trimmedTableKey(left);
        const auto second = trimmedTableValue(right);
        // The opening line counts as row 1, so that a list whose table is empty shows the rows of the table
        // behind it.
        if (!m_table.empty() && (first == m_table || m_count == 1))
            m_inTable = true;
        if (second == "}" || !m_inTable)
            return;
        ++m_count;
        if (second == "{" || line.ends_with('t'))
            return;
        if (m_rows == Rows::Checked)
            list.push_back({std::string(first), {}, isOne(second)});
        else
            list.push_back({std::string(first), std::string(second)});
    }

private:
    std::string_view m_table;
    char m_delimiter;
    Rows m_rows;
    bool m_inTable;
    int m_count = 0;
};

/// The name of a file in the code page; nothing if a told path can't hold it.
std::optional<std::string> toldName(const std::string& name)
{
    auto told = codepage::fromUtf8(name);
    return told && told->find('\\') == std::string::npos ? told : std::nullopt;
}

std::string_view stemOf(std::string_view name)
{
    return name.substr(0, name.rfind('.'));
}

template <typename Taker>
void takeLines(std::string_view bytes, std::vector<ListRow>& list, Taker taker)
{
    LineCursor cursor(bytes);
    while (const auto line = cursor.next()) {
        if (!line->empty())
            taker.take(*line, list);
    }
}

std::string_view withoutListedExtension(std::string_view name)
{
    const bool listed = name.ends_with(".lst") || name.ends_with(".tbl") || name.ends_with(".txt");
    return listed ? name.substr(0, name.size() - 4) : name;
}

} // namespace

SettingsFiles::SettingsFiles(FileStore& store, SettingsPaths paths)
    : m_store(store),
      m_paths(std::move(paths))
{
}

std::string SettingsFiles::bytesOf(const std::string& path) const
{
    return m_store.read(path).value_or(std::string());
}

TableIndex SettingsFiles::index(std::string_view file, bool bAppRelative) const
{
    return TableIndex(bytesOf(m_paths.resolve(file, bAppRelative)));
}

std::string SettingsFiles::ReadTableValue(std::string_view file, std::string_view key, std::string_view table,
                                          bool bAppRelative) const
{
    return index(file, bAppRelative).value(key, table);
}

SubTableIndex SettingsFiles::subIndex(std::string_view file) const
{
    return SubTableIndex(bytesOf(m_paths.inSettings(file)));
}

std::string SettingsFiles::ReadTableSubValue(std::string_view file, std::string_view table,
                                             std::string_view key, bool bAsFlag) const
{
    auto value = subIndex(file).value(table, key);
    if (bAsFlag)
        return isOne(value) ? "1" : "0";
    return value;
}

void SettingsFiles::ReadTableToList(std::string_view file, std::vector<ListRow>& list,
                                    std::string_view delimiter, std::string_view table, Rows rows,
                                    bool bAppRelative) const
{
    // This reader alone has no test for an absolute path.
    const auto bytes = bytesOf(bAppRelative ? m_paths.inProgramFolder(file) : m_paths.inSettings(file));
    if (delimiter.empty())
        takeLines(bytes, list, PlainRows(table));
    else
        takeLines(bytes, list, SplitRows(table, delimiter.front(), rows));
}

void SettingsFiles::ReadListColumn(std::string_view file, std::string_view table,
                                   std::vector<ListRow>& list) const
{
    const auto bytes = bytesOf(m_paths.inSettings(file));
    std::unordered_map<std::string_view, ListRow*> firstOfText;
    for (ListRow& row : list)
        firstOfText.try_emplace(row.text, &row);
    LineCursor cursor(bytes);
    while (const auto line = cursor.next()) {
        const auto [left, right, found] = splitInPieces(*line, '=');
        const auto key = trimmedTableKey(left);
        if (!found || key == "}" || key == table)
            continue;
        if (const auto row = firstOfText.find(key); row != firstOfText.end())
            row->second->second = trimmedTableValue(right);
    }
}

void SettingsFiles::ReadFileList(std::string_view file, std::vector<ListRow>& list,
                                 std::string_view table) const
{
    const auto bytes = bytesOf(m_paths.resolve(file));
    LineCursor cursor(bytes);
    for (std::size_t number = 1; number <= lineLimit; ++number) {
        const auto line = cursor.next();
        if (!line)
            return;
        const auto name = trimmedTableKey(trimBlanks(splitOnce(*line, '=').left));
        if (!line->empty() && name != "}" && name != table)
            list.push_back({std::string(withoutListedExtension(name))});
    }
}

std::string SettingsFiles::ReadTextFile(std::string_view file) const
{
    const auto bytes = bytesOf(m_paths.resolve(file));
    std::string text;
    text.reserve(bytes.size() + lineEnd.size());
    LineCursor cursor(bytes);
    std::size_t count = 0;
    while (const auto line = cursor.next()) {
        if (++count > lineLimit)
            return {};
        text.append(*line).append(lineEnd);
    }
    return text;
}

void SettingsFiles::WriteSettingsFile(std::string_view file, std::string_view text, bool bAppRelative) const
{
    std::string bytes;
    bytes.reserve(text.size() + lineEnd.size());
    bytes.append(text).append(lineEnd);
    m_store.write(m_paths.resolve(file, bAppRelative), bytes);
}

std::vector<std::string> SettingsFiles::fileNames(std::string_view folder) const
{
    std::vector<std::string> names;
    for (const std::string& name : m_store.list(m_paths.resolve(folder))) {
        if (auto told = toldName(name))
            names.push_back(std::move(*told));
    }
    return names;
}

std::vector<std::string> SettingsFiles::untoldFileNames(std::string_view folder) const
{
    auto names = m_store.list(m_paths.resolve(folder));
    std::erase_if(names, [](const std::string& name) { return toldName(name).has_value(); });
    return names;
}

std::string SettingsFiles::realFile(std::string_view file) const
{
    if (m_store.exists(m_paths.resolve(file)))
        return std::string(file);
    const auto separator = file.rfind('\\');
    const auto name = file.substr(separator + 1); // all of it without a folder
    const auto folder = file.substr(0, file.size() - name.size());
    std::string found(name);
    for (const std::string& each : fileNames(folder.substr(0, separator))) {
        if (codepage::lowered(each) != codepage::lowered(name))
            continue;
        if (found == name || stemOf(each) == stemOf(name))
            found = each;
    }
    return std::string(folder).append(found);
}

void SettingsFiles::removeFile(std::string_view file) const
{
    m_store.remove(m_paths.resolve(file));
}

} // namespace quillfen
