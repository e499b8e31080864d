// Whatever stands in a settings file: the index answers as a scan from the file's start would, and what was
// read once reads the same again.
#include "check.h"
#include "settings/tableindex.h"
#include "support/hub.h"
#include "support/plainscan.h"

#include <cstdint>

namespace {

/// Cuts the input's next part off, up to a zero byte.
std::string nextPart(std::string& bytes)
{
    const std::size_t end = std::min(bytes.find('\0'), bytes.size());
    std::string part = bytes.substr(0, end);
    bytes.erase(0, end + 1);
    return part;
}

void checkValue(const std::string& file, const std::string& key, const std::string& table)
{
    using quillfen::fuzz::require;
    const quillfen::TableIndex index(file);
    const std::string value = index.value(key, table);
    require(value == quillfen::test::plainScan(file, key, table), "the index answers as a scan does");
    if (table.empty())
        return;
    quillfen::TableCells cells(index, {key, key});
    for (int turn = 0; turn < 2; ++turn) {
        cells.enter(table);
        require(cells.at(1) == value, "a grid's cell is the index's answer");
    }
}

void checkReaders(const std::string& file, const std::string& key, const std::string& table)
{
    using quillfen::fuzz::require;
    quillfen::test::Hub hub;
    hub.file("A.tbl") = file;
    std::vector<quillfen::ListRow> rows;
    for (const char* delimiter : {"", "=", "*"}) {
        for (const auto mode : {quillfen::Rows::Plain, quillfen::Rows::Checked, quillfen::Rows::Undivided})
            hub.files.ReadTableToList("A.tbl", rows, delimiter, table, mode);
    }
    hub.files.ReadListColumn("A.tbl", table, rows);
    hub.files.ReadFileList("A.tbl", rows, table);
    hub.files.ReadTableSubValue("A.tbl", table, key);
    std::string trimmed = key;
    quillfen::TrimTableKey(trimmed);
    require(quillfen::trimmedTableKey(trimmed) == trimmed, "a trimmed key has nothing left to trim");

    const std::string text = hub.files.ReadTextFile("A.tbl");
    if (text.empty())
        return;
    hub.files.WriteSettingsFile("A.tbl", text.substr(0, text.size() - 2)); // its one line end more
    require(hub.files.ReadTextFile("A.tbl") == text, "a text that was read and written reads the same");
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string bytes(data, data + size);
    const std::string key = nextPart(bytes);
    const std::string table = nextPart(bytes);
    checkValue(bytes, key, table);
    checkValue(bytes, "[", "t");
    checkReaders(bytes, key, table);
    return 0;
}
