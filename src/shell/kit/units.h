#pragma once

#include <QSize>

namespace quillfen {

/// Window sizes are told in twips, 15 to a pixel.
constexpr int twips(int count)
{
    return count / 15;
}

constexpr QSize twips(int width, int height)
{
    return {twips(width), twips(height)};
}

} // namespace quillfen
