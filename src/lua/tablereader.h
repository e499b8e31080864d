#pragma once

#include "lua/reading.h"

namespace quillfen::lua {

/// Reads a file as a version of Lua loads it, as far as it is a table file: `name = value`, one or more, and
/// `return value` at the end. Values are nil, true, false, numbers, texts, words, and tables of values with
/// names, bracketed keys or no key. Commas and semicolons, comments, long texts and escapes are read as that
/// version reads them. Where a file calls or computes anything, the answer is Unknown.
Reading readTables(std::string_view text, Version version);

} // namespace quillfen::lua
