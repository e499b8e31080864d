#pragma once

#include <cstddef>
#include <string>

namespace quillfen {

class HubProfiles;
class SettingsFiles;

/// The rules that a profile is shown; its row is counted from 0, "Unregistered" first.
std::string rulesFile(std::size_t row);

void buildRules(const SettingsFiles& files, const HubProfiles& profiles);

} // namespace quillfen
