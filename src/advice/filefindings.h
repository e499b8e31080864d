#pragma once

#include "advice/finding.h"

namespace quillfen {

/// What can be told from a file's bytes alone, in the order of its lines. Its extension says how the hub
/// script reads it. A file that is known never to load has no finding for that.
std::vector<Finding> fileFindings(std::string_view file, std::string_view bytes);

} // namespace quillfen
