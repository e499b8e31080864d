#pragma once

#include "support/formtest.h"

namespace quillfen::test {

/// A main window and the area in which its forms lie.
class MainWindowTest : public FormTest
{
protected:
    QMdiArea& area() { return find<QMdiArea>(window(), QString()); }
    static QMdiSubWindow& subWindow(const EditorForm& form)
    {
        return *qobject_cast<QMdiSubWindow*>(form.parentWidget());
    }
};

} // namespace quillfen::test
