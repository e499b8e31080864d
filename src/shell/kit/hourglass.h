#pragma once

#include <QApplication>

namespace quillfen {

/// Shows the hourglass for as long as it lives.
class Hourglass
{
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
};

} // namespace quillfen
