#include "check/nodeoffile.h"

#include "functions/catalogue.h"
#include "settings/tablefile.h"

#include <algorithm>

namespace quillfen {
namespace {

bool liesIn(const std::string& folder, const std::string& file)
{
    return file.starts_with(folder + '\\') && file.find('\\', folder.size() + 1) == std::string::npos;
}

/// Whether a form's part shows a file.
class PartShows
{
public:
    PartShows(const SettingsFiles& files, const HubProfiles& profiles, const std::string& file)
        : m_files(files),
          m_profiles(profiles),
          m_file(file)
    {
    }

    bool operator()(const PartDeclaration& part) const
    {
        const auto files = settingsFilesOf(part);
        const auto lists = listsOf(part, m_profiles);
        return std::any_of(files.begin(), files.end(),
                           [this](const TableFile& file) { return file.path == m_file; }) ||
               std::any_of(lists.begin(), lists.end(),
                           [this](const RowListDeclaration& list) { return isReadBy(list); }) ||
               std::visit([this](const auto& each) { return showsBesides(each); }, part);
    }

private:
    /// Settings and lists aside.
    bool showsBesides(const auto& /*of those alone*/) const { return false; }
    bool showsBesides(const DeclaredTexts& part) const { return liesIn(part.folder, m_file); }
    bool showsBesides(const DeclaredTicks& part) const { return part.ticks().file.path == m_file; }
    bool showsBesides(const DeclaredText& part) const { return part.path == m_file; }

    bool showsBesides(const DeclaredGrid& part) const
    {
        const ReadRecord record(m_files.store());
        part.grid().load(m_files, m_profiles);
        return wasRead(record);
    }

    bool isReadBy(const RowListDeclaration& list) const
    {
        if (!list.load)
            return false;
        const ReadRecord record(m_files.store());
        list.load(m_files, m_profiles);
        return wasRead(record);
    }

    bool wasRead(const ReadRecord& record) const
    {
        return record.files().count(m_files.paths().inSettings(m_file)) > 0;
    }

    const SettingsFiles& m_files;
    const HubProfiles& m_profiles;
    const std::string& m_file;
};

bool hasOwnPart(const Node& node)
{
    const auto& parts = node.form->parts;
    return std::any_of(parts.begin(), parts.end(),
                       [](const auto& part) { return std::holds_alternative<OwnPart>(part); });
}

/// The files of a part that only its function has lie in the function's folder, or in one that the node is
/// called by.
std::string nodeOfFolder(const std::string& file)
{
    std::string key = file.substr(0, std::min(file.size(), file.rfind('\\')));
    std::replace(key.begin(), key.end(), '\\', '~');
    const std::string last = key.substr(key.rfind('~') + 1) + '~';
    for (const Node& node : functionNodes()) {
        const bool isOurs = node.key == key || node.key.starts_with(key + '~') || node.key.starts_with(last);
        if (isOurs && node.form && hasOwnPart(node))
            return node.key;
    }
    for (const FunctionDeclaration& function : folderCatalogue()) {
        const bool isOurs = std::any_of(function.folders.begin(), function.folders.end(),
                                        [&file](const std::string& folder) { return liesIn(folder, file); });
        for (const Node& node : function.nodes) {
            if (isOurs && node.form && hasOwnPart(node))
                return node.key;
        }
    }
    return {};
}

} // namespace

std::string nodeOfFile(const SettingsFiles& files, const HubProfiles& profiles, const std::string& file)
{
    const PartShows shows(files, profiles, file);
    for (const Node& node : functionNodes()) {
        if (!node.form)
            continue;
        const auto& parts = node.form->parts;
        if (std::any_of(parts.begin(), parts.end(), shows))
            return node.key;
    }
    return nodeOfFolder(file);
}

} // namespace quillfen
