#pragma once

#include <string_view>
#include <vector>

namespace quillfen {

/// A line of two texts that are set beside each other.
struct DiffLine
{
    enum class Kind
    {
        Same,
        Old, ///< stands in the old text alone
        New  ///< stands in the new text alone
    };

    Kind kind;
    std::string_view text; ///< without its line end

    bool operator==(const DiffLine&) const = default;
};

/// The lines of two texts in their order, with the fewest that differ; where thousands differ, all between
/// the first and the last of them count as different. The lines are views into the texts.
std::vector<DiffLine> lineDifference(std::string_view oldText, std::string_view newText);

} // namespace quillfen
