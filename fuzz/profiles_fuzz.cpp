// Whatever stands in the hub's profile file: the copy that a rebuild saves names the same profiles.
#include "check.h"
#include "support/hub.h"

#include <cstdint>

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using quillfen::fuzz::require;
    quillfen::test::Hub hub{"General", "General/PtokaX"};
    hub.store.files["/hub/cfg/Profiles.xml"] = std::string(data, data + size);
    const auto text = ReadProfileFile(hub.store, hub.files.paths(), R"(cfg\Profiles.xml)", hub.profiles);
    hub.files.WriteSettingsFile(R"(General\PtokaX\Profiles.xml)", text);
    quillfen::HubProfiles saved;
    ReadProfileFile(hub.store, hub.files.paths(),
                    R"(scripts\Morvaleth's Quillfen\Settings\General\PtokaX\Profiles.xml)", saved);
    require(saved.names() == hub.profiles.names(), "the saved copy names the same profiles");
    require(saved.names().front() == "Unregistered", "the unregistered come first");
    return 0;
}
