#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

class FileStore;
class SettingsPaths;

/// The hub's profiles in the order of its own file, behind the pseudo profile of users without a
/// registration.
class HubProfiles
{
public:
    HubProfiles() : m_names{"Unregistered"} {}

    void add(std::string_view name) { m_names.emplace_back(name); }

    std::size_t count() const { return m_names.size(); }
    const std::vector<std::string>& names() const { return m_names; }

    /// The profile key of a row counted from 0, as the settings bear it: "-1" for "Unregistered", "0" for the
    /// hub's first profile. A key is a place in the list and never a name.
    static std::string key(std::size_t row) { return std::to_string(static_cast<long long>(row) - 1); }

    /// The keys of all rows from the first one that takes part.
    std::vector<std::string> keys(std::size_t firstRow = 0) const
    {
        std::vector<std::string> all;
        for (std::size_t row = firstRow; row < count(); ++row)
            all.push_back(key(row));
        return all;
    }

private:
    std::vector<std::string> m_names;
};

/// Adds the profiles of a hub file, told relative to the hub folder. The file is read as lines, not as XML: a
/// name must stand alone on its line. Returns the lines as read, a CR LF before each; empty if the file can't
/// be read.
std::string ReadProfileFile(const FileStore& store, const SettingsPaths& paths, std::string_view file,
                            HubProfiles& profiles);

/// What the hub's profile files say at this moment.
struct HubProfileFile
{
    HubProfiles profiles;
    std::string text;     ///< what a rebuild saves as the copy; empty if no file can be read
    bool damaged = false; ///< the file of today's hubs is there and can't be read
};

/// The hub's profiles as the hub itself reads them: from `cfg\Profiles.pxb`, which hubs of today write, else
/// from `cfg\Profiles.xml`. The text of the former is composed as lines of the latter, a name each.
HubProfileFile readHubProfiles(const FileStore& store, const SettingsPaths& paths);

/// The names in the copy that the last rebuild saved.
HubProfiles readSavedProfiles(const FileStore& store, const SettingsPaths& paths);

/// A sentence about the hub's profiles for the main status bar, and all that there is to tell.
struct ProfileNotice
{
    std::string sentence;
    std::string details;
};

/// What an owner has to know of the hub's profiles: that their file is damaged, and which places in it belong
/// to other profiles than in the saved copy. Settings know a profile by its place, so those of the old one
/// are the new one's by now.
std::vector<ProfileNotice> profileNotices(const FileStore& store, const SettingsPaths& paths);

} // namespace quillfen
