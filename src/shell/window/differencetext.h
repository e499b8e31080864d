#pragma once

#include <optional>
#include <string>

class QPlainTextEdit;

namespace quillfen {

/// Shows in a read-only view what differs between a file's earlier bytes and today's: lines of the earlier
/// one alone with a minus, lines of today's alone with a plus, both coloured, and a few lines around them.
/// Either is nothing where there is no such file.
void showDifference(QPlainTextEdit& view, const std::optional<std::string>& earlier,
                    const std::optional<std::string>& today);

} // namespace quillfen
