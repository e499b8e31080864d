#pragma once

#include "advice/finding.h"

namespace quillfen {

/// What can be told from a file's bytes alone, in the order of its lines. Its extension says how the hub
/// script reads it. A file that is known never to load has no finding for that.
std::vector<Finding> fileFindings(std::string_view file, std::string_view bytes);

/// Adds what is found in lines of which nothing is told yet, and keeps the order of the lines.
void addToOtherLines(std::vector<Finding>& findings, const std::vector<Finding>& others);

/// A file that should be there and is missing, or is there and can't be read.
Finding missingFile(std::string_view file);
Finding unreadableFile(std::string_view file);

/// What is told of a function that is switched off.
Finding switchedOff(std::string_view name);

} // namespace quillfen
