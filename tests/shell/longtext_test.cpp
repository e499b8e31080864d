#include "shell/kit/longtext.h"
#include "shell/kit/messages.h"
#include "support/boxes.h"

#include <QPlainTextEdit>
#include <QScreen>

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::withModal;

TEST(LongText, OfALongTextTheFirstThousandCharactersShow)
{
    EXPECT_EQ(shownPart(QString(1000, 'x')), QString(1000, 'x'));
    EXPECT_EQ(shownPart(QString(1001, 'x')), QString(1000, 'x') + QChar(0x2026));
    EXPECT_EQ(shownPart("\x80 " + std::string(999, 'x')),
              QStringLiteral(u"\u20AC ") + QString(998, 'x') + QChar(0x2026));
}

TEST(LongText, ATextIsLongByItsCharactersItsLinesOrOneWord)
{
    const QString words = QString("word ").repeated(200);
    EXPECT_FALSE(isLong(words));
    EXPECT_TRUE(isLong(words + 'x'));
    EXPECT_FALSE(isLong(QString("line\n").repeated(19)));
    EXPECT_TRUE(isLong(QString("line\n").repeated(20)));
    EXPECT_FALSE(isLong("a " + QString(120, 'x')));
    EXPECT_TRUE(isLong("a " + QString(121, 'x')));
}

/// What a box shows in its view, and whether all of the box is on the screen.
struct Shown
{
    QString text;
    bool scrolls = false;
    bool fits = false;
    QMessageBox::StandardButtons buttons;
};

Shown shownOf(const QString& text)
{
    Shown shown;
    withModal([&] { confirm(nullptr, "Title", text); },
              [&](QWidget& modal) {
                  auto* box = qobject_cast<QMessageBox*>(&modal);
                  const auto* view = box->findChild<QPlainTextEdit*>();
                  const QSize screen = box->screen()->availableSize();
                  shown = {view ? view->toPlainText() : QString(), view != nullptr,
                           box->height() <= screen.height() && box->width() <= screen.width(),
                           box->standardButtons()};
                  EXPECT_EQ(box->text(), text);
                  for (const auto* button : box->buttons())
                      EXPECT_TRUE(box->rect().contains(
                          button->geometry().translated(button->parentWidget()->mapTo(box, QPoint(0, 0)))));
                  box->button(QMessageBox::Cancel)->click();
              });
    return shown;
}

TEST(LongText, AShortTextNeedsNoView)
{
    EXPECT_FALSE(shownOf("Do you really want to delete this Joke?").scrolls);
}

TEST(LongText, ABoxWithALongTextScrollsAndKeepsItsButtons)
{
    for (const QString& text :
         {QString("A sentence of some words. ").repeated(400), QString(3000, 'x'),
          QString("line\n").repeated(500), "before " + QString(300, 'x') + " <b>behind</b>"}) {
        const auto shown = shownOf(text);
        EXPECT_TRUE(shown.scrolls);
        EXPECT_TRUE(shown.fits);
        EXPECT_EQ(shown.buttons, QMessageBox::Ok | QMessageBox::Cancel);
        if (text.contains('\n'))
            EXPECT_EQ(shown.text, text);
        else
            EXPECT_EQ(QString(shown.text).remove('\n'), text);
    }
}

TEST(LongText, AnEndlessLineGoesOnBehindABlank)
{
    const QString words = QString("word ").repeated(2000);
    const QStringList lines = shownOf(words).text.split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines.join(""), words);
    EXPECT_EQ(lines[0], QString("word ").repeated(800));
}

TEST(LongText, EnterAnswersALongBoxToo)
{
    bool answer = false;
    withModal([&] { answer = confirm(nullptr, "Title", QString(5000, 'x')); },
              [](QWidget& modal) {
                  QWidget* focused = modal.focusWidget();
                  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
                  QApplication::sendEvent(focused, &enter);
              });
    EXPECT_TRUE(answer);
}

} // namespace
} // namespace quillfen
