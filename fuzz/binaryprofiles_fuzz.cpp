// Whatever stands in the profile file of today's hubs: the copy that a rebuild saves bears as many names, and
// a file that is cut within its last item is damaged. Half of the inputs are read as they are, the others
// name the profiles of a file and where a byte of it goes wrong.
#include "check.h"
#include "settings/binaryprofiles.h"
#include "support/binaryprofiles.h"
#include "support/hub.h"

#include <cstdint>

namespace {

using quillfen::fuzz::require;

void checkFile(const std::string& bytes)
{
    quillfen::test::Hub hub{"General", "General/PtokaX"};
    hub.store.files["/hub/cfg/Profiles.pxb"] = bytes;
    const auto file = readHubProfiles(hub.store, hub.files.paths());
    const auto names = quillfen::binaryProfileNames(bytes);
    require(file.damaged != names.has_value(), "a file is read or damaged");
    require(file.profiles.count() == (names ? names->size() : 0) + 1, "the unregistered and each profile");
    hub.files.WriteSettingsFile(R"(General\PtokaX\Profiles.xml)", file.text);
    require(readSavedProfiles(hub.store, hub.files.paths()).count() == file.profiles.count(),
            "the saved copy has as many profiles");
    if (names)
        require(profileNotices(hub.store, hub.files.paths()).empty(), "nothing has moved since the copy");
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    checkFile(input);
    const std::string first = 'n' + input.substr(0, size / 2);
    const std::string last = 'n' + input.substr(size / 2);
    std::string bytes = quillfen::test::binaryProfiles({first, "Operator", last});
    require(quillfen::binaryProfileNames(bytes)->front() == first, "a name is read as it was written");
    const std::size_t cut = 1 + input.find_last_of('|') % last.size();
    require(!quillfen::binaryProfileNames(std::string_view(bytes).substr(0, bytes.size() - cut)),
            "a file that is cut within its last item is damaged");
    for (std::size_t at = 0; at + 1 < size; at += 8)
        bytes[data[at] % bytes.size()] = input[at + 1];
    checkFile(bytes);
    return 0;
}
