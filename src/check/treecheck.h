#pragma once

#include "advice/finding.h"

namespace quillfen {

class SettingsFiles;

/// Whether there is a settings tree at all.
bool hasTree(const SettingsFiles& files);

/// What is wrong in all files of the settings tree, in the order of its folders, files and lines.
std::vector<Finding> checkTree(const SettingsFiles& files);

} // namespace quillfen
