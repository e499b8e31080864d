#pragma once

#include <string>

namespace quillfen {

class HubProfiles;
class SettingsFiles;

/// The key of the node whose form shows a file, a told path; empty if none does. What the forms' lists read
/// is found by letting them read it.
std::string nodeOfFile(const SettingsFiles& files, const HubProfiles& profiles, const std::string& file);

} // namespace quillfen
