#include "shell/kit/editdialog.h"
#include "shell/kit/messages.h"
#include "support/formtest.h"

#include <QWindow>

namespace quillfen {
namespace {

/// What the window system is given to show above a window.
QString shownTitle(const QWidget& window)
{
    return window.windowHandle()->title();
}

TEST(WindowTitle, OfADialogShowsTheMarkOfWhatIsUnsavedAsItIsTyped)
{
    for (const char* title : {"[*]", "a [*][*] b", "[*] [", "[[*]]", "plain"}) {
        EditDialog dialog({EditForm::OneFields, title, EditResult::Edit, 0, {"Word"}});
        dialog.show();
        EXPECT_EQ(shownTitle(dialog), title);
    }
}

TEST(WindowTitle, OfABoxShowsTheMarkOfWhatIsUnsavedAsItIs)
{
    QString seen;
    test::answering(QMessageBox::Ok, [&seen] {
        QTimer::singleShot(0, [&seen] { seen = shownTitle(*QApplication::activeModalWidget()); });
        notify(nullptr, "2026 - Sale [*] today", "", QMessageBox::NoIcon);
    });
    EXPECT_EQ(seen, "2026 - Sale [*] today");
}

} // namespace
} // namespace quillfen
