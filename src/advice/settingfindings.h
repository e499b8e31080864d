#pragma once

#include "advice/finding.h"
#include "declarations/declaration.h"

namespace quillfen {

/// What is wrong with the values of a declared settings file, beyond what its bytes alone tell: numbers
/// outside their range, clock times that are none, letters and options that nobody can choose, and lines that
/// stand too far down to be read.
std::vector<Finding> settingFindings(const TableFile& file, std::string_view bytes);

/// Whether a function that only ticked profiles may use has none.
std::vector<Finding> useFindings(const TableFile& file, std::string_view bytes);

/// The setting whose row, or whose nested table, a line belongs to; null for none.
const Setting* settingAt(const TableFile& file, std::string_view bytes, std::size_t line);

/// Where a file of settings or of a grid has more lines than its readers look at.
std::vector<Finding> unreadFindings(std::string_view file, std::string_view bytes);

} // namespace quillfen
