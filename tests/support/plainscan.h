#pragma once

#include <string>
#include <string_view>

namespace quillfen::test {

/// One value of a table file by a scan from its start, step by step as the readers' rules tell it: what the
/// index's answers are held against.
std::string plainScan(const std::string& bytes, const std::string& key, const std::string& table);

} // namespace quillfen::test
