#include "settings/textfolder.h"

#include "settings/tablefile.h"

#include <algorithm>

namespace quillfen {

std::string textFile(std::string_view folder, std::string_view name)
{
    return std::string(folder).append("\\").append(name).append(".asc");
}

std::string textFileOnDisk(const SettingsFiles& files, std::string_view folder, std::string_view name)
{
    return files.realFile(textFile(folder, name));
}

std::vector<std::string> textNames(const SettingsFiles& files, std::string_view folder)
{
    auto names = files.fileNames(folder);
    for (std::string& name : names)
        name.resize(name.size() - std::min<std::size_t>(name.size(), 4));
    return names;
}

} // namespace quillfen
