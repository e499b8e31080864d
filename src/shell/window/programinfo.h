#pragma once

#include <QString>

namespace quillfen {

/// What the program says of itself.
struct ProgramInfo
{
    QString version;   ///< "major.minor.revision"
    QString webBase{}; ///< the maker's web folder, with its last slash; may be empty
    QString product{"Morvaleth's Quillfen"};
    QString word{"Quillfen"}; ///< the product as the maker's web folders name it
    QString newsBase{};       ///< the maker's news folder, with its last slash; may be empty
    QString updatesBase{};    ///< the same of the version texts
    QString guideFolder{};    ///< where the guide's pages lie
};

} // namespace quillfen
