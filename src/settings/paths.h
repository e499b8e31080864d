#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillfen {

/// Where the files of the settings tree lie. Told paths are code page text with backslashes, as the hub
/// script's authors write them; results are the platform's paths in UTF-8.
class SettingsPaths
{
public:
    /// The program's own folder, which is the hub's `scripts` folder: UTF-8, without a separator at its end.
    explicit SettingsPaths(std::string programFolder);

    /// A settings root anywhere, in UTF-8. The program folder is taken to lie as usual, two folders above.
    static SettingsPaths ofSettings(std::string settingsRoot);

    /// The path rule: an absolute path stands as it is; with bAppRelative the rest lies in the program
    /// folder, else below the settings root.
    std::string resolve(std::string_view told, bool bAppRelative = false) const;

    std::string inSettings(std::string_view told) const;
    std::string inProgramFolder(std::string_view told) const;
    std::string inHubFolder(std::string_view told) const;

    /// The told path of a file below the settings root; nothing for one that lies elsewhere.
    std::optional<std::string> toldInSettings(std::string_view path) const;

    /// The hub script's own folder, which comes with the script and is never made.
    std::string scriptFolder() const;

    /// The settings root, without a separator at its end.
    std::string settingsRoot() const;

private:
    std::string m_programFolder;
    std::string m_settingsRoot;
};

/// Whether the path rule takes a path as absolute: a drive, or the platform's root.
bool isAbsolutePath(std::string_view told);

} // namespace quillfen
