#pragma once

#include "declarations/function.h"

#include <cstddef>
#include <string>

namespace quillfen {

class HubProfiles;
class SettingsFiles;

/// The rules that a profile is shown; its row is counted from 0, "Unregistered" first.
std::string rulesFile(std::size_t row);

FunctionDeclaration rulesFunction();

} // namespace quillfen
