#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillfen::test {

/// The bytes of tests/golden/<name>, which were written by hand.
std::string golden(const std::string& name);

/// The names of all golden files.
std::vector<std::string> goldenNames();

/// Equal bytes; a failure shows the first line that differs, with tabs and line ends made visible.
testing::AssertionResult sameBytes(const std::string& actual, const std::string& expected);

} // namespace quillfen::test
