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
    bool showsBesides(const DeclaredList& part) const { return liesIn(part.folder, m_file); }
    bool showsBesides(const DeclaredTexts& part) const { return liesIn(part.folder, m_file); }
    bool showsBesides(const DeclaredTicks& part) const { return part.ticks().file.path == m_file; }
    bool showsBesides(const DeclaredText& part) const { return part.path == m_file; }

    bool showsBesides(const OwnPart& part) const
    {
        return std::any_of(part.paths.begin(), part.paths.end(), [this](const std::string& path) {
            return path == m_file ||
                   (path.ends_with('\\') && liesIn(path.substr(0, path.size() - 1), m_file));
        });
    }

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
    return {};
}

} // namespace quillfen
