#pragma once

#include <QIcon>

namespace quillfen {

/// The dot that says that a form has something to save.
QIcon changedDot();

/// An icon with that dot at its corner.
QIcon withChangedDot(const QIcon& icon);

} // namespace quillfen
