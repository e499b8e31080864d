#include "settings/profiles.h"

#include "settings/lines.h"
#include "settings/paths.h"
#include "settings/tabletrim.h"
#include "store/filestore.h"

namespace quillfen {

std::string ReadProfileFile(const FileStore& store, const SettingsPaths& paths, std::string_view file,
                            HubProfiles& profiles)
{
    constexpr std::string_view tag = "<Name>";
    const auto bytes = store.read(paths.inHubFolder(file)).value_or(std::string());
    std::string text;
    LineCursor cursor(bytes);
    while (const auto line = cursor.next()) {
        text.append(lineEnd).append(*line);
        const auto trimmed = trimmedTableKey(*line);
        if (!trimmed.starts_with(tag))
            continue;
        const auto end = trimmed.find('<', tag.size() + 1); // a name has at least one character
        if (end != std::string_view::npos)
            profiles.add(trimmed.substr(tag.size(), end - tag.size()));
    }
    return text;
}

} // namespace quillfen
