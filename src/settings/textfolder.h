#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

class SettingsFiles;

/// The told path of a text in a folder of `.asc` files, which lists know by its name without the extension.
std::string textFile(std::string_view folder, std::string_view name);

/// The same as the disk has it, which may be in another case.
std::string textFileOnDisk(const SettingsFiles& files, std::string_view folder, std::string_view name);

/// The names of the texts in a folder, sorted by their files' names; none if the folder can't be read.
/// Whatever a file's extension is, four characters go.
std::vector<std::string> textNames(const SettingsFiles& files, std::string_view folder);

} // namespace quillfen
