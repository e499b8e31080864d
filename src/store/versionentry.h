#pragma once

#include "store/versionstore.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillfen {

/// The text of an entry's file.
std::string composedEntry(const VersionEntry& entry);

/// What an entry's file tells, as far as it can be read; nothing if it is none of ours.
std::optional<VersionEntry> parsedEntry(unsigned number, std::string_view text);

/// The name under which bytes are kept; bytes that differ, but would have the same, have another count.
std::string blobName(std::string_view bytes, unsigned count = 0);

/// How many bytes a kept file of this name has; nothing if no file is kept under such a name.
std::optional<std::uintmax_t> blobSize(std::string_view name);

/// Whether bytes are those that were kept under a name.
bool isBlobOf(std::string_view bytes, std::string_view name);

/// A time as entries tell it.
std::string utcText(std::time_t time);

} // namespace quillfen
