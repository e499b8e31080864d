#pragma once

#include "settings/filestore.h"
#include "settings/lines.h"
#include "settings/paths.h"
#include "settings/tableindex.h"
#include "settings/tabletrim.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// One row of a list, as the list readers fill it.
struct ListRow
{
    std::string text;
    std::string second{};
    bool checked = false;

    bool operator==(const ListRow&) const = default;
};

/// Whether ReadTableToList ticks its rows or fills their second column, and whether a line without the
/// delimiter is a row too.
enum class Rows
{
    Plain,
    Checked,
    Undivided
};

/// The readers and the writer of the settings tree. Readers are silent: what can't be read is empty. File
/// names are told paths (see SettingsPaths).
class SettingsFiles
{
public:
    SettingsFiles(FileStore& store, SettingsPaths paths);

    FileStore& store() const { return m_store; }
    const SettingsPaths& paths() const { return m_paths; }

    /// The file, indexed for many calls of TableIndex::value; an empty index if it can't be read.
    TableIndex index(std::string_view file, bool bAppRelative = false) const;

    /// The same for many calls of ReadTableSubValue on a file below the settings root.
    SubTableIndex subIndex(std::string_view file) const;

    /// One value: the index's answer, for callers that need no second one of the same file.
    std::string ReadTableValue(std::string_view file, std::string_view key, std::string_view table = {},
                               bool bAppRelative = false) const;

    /// One value of a nested table, cut at a second `=`. The table's end doesn't end it. With bAsFlag the
    /// result is "1" when the value is the number 1, else "0".
    std::string ReadTableSubValue(std::string_view file, std::string_view table, std::string_view key,
                                  bool bAsFlag = false) const;

    /// Adds the rows of a table, or of the whole file if no table is named. An empty delimiter takes whole
    /// lines; "=" takes key rows and "*" the rows of list files, each with its first two pieces only.
    void ReadTableToList(std::string_view file, std::vector<ListRow>& list, std::string_view delimiter,
                         std::string_view table = {}, Rows rows = Rows::Plain,
                         bool bAppRelative = false) const;

    /// Puts each value of the file into the second column of the first row that bears its key.
    void ReadListColumn(std::string_view file, std::string_view table, std::vector<ListRow>& list) const;

    /// Adds the names of a table of files, without their ".lst", ".tbl" or ".txt". At most 5000 lines are
    /// read.
    void ReadFileList(std::string_view file, std::vector<ListRow>& list, std::string_view table) const;

    /// A whole file, each line followed by CR LF, so one line end longer than what was composed and written;
    /// empty if it has more than 5000 lines.
    std::string ReadTextFile(std::string_view file) const;

    /// Replaces a file by a text and one line end. Makes no folder. Throws StoreError.
    void WriteSettingsFile(std::string_view file, std::string_view text, bool bAppRelative = false) const;

    /// The names of a folder's files that a told path can hold: those in the code page's characters. Sorted;
    /// none if the folder can't be read.
    std::vector<std::string> fileNames(std::string_view folder) const;

    /// The names of the others, as the platform has them in UTF-8. Sorted.
    std::vector<std::string> untoldFileNames(std::string_view folder) const;

    /// The path under which a file is on a disk that tells case apart: `file` itself if it is there, else the
    /// one of its folder that differs in case alone, its extension's before its name's. `file` if there is
    /// none.
    std::string realFile(std::string_view file) const;

    /// Deletes a file; one that is gone already is no failure. Throws StoreError.
    void removeFile(std::string_view file) const;

private:
    std::string bytesOf(const std::string& path) const;

    FileStore& m_store;
    SettingsPaths m_paths;
};

} // namespace quillfen
