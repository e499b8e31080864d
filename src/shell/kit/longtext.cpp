#include "shell/kit/longtext.h"

#include "shell/kit/codepagetext.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QTextDocument>

#include <algorithm>

namespace quillfen {
namespace {

constexpr qsizetype mostShown = 1000;
constexpr qsizetype mostLines = 20;
constexpr int charactersInLine = 80;

/// A view lays out a line as a whole, and its work grows with the square of an endless one. So the line goes
/// on in the next one after so many characters, behind a blank if there is one.
constexpr qsizetype pieceSize = 4000;

qsizetype endOfPiece(const QString& line, qsizetype start)
{
    const qsizetype end = start + pieceSize;
    if (end >= line.size())
        return line.size();
    const qsizetype blank = QStringView(line).sliced(start, pieceSize).lastIndexOf(' ');
    return blank < 0 ? end : start + blank + 1;
}

QString inPieces(const QString& text)
{
    QStringList pieces;
    for (const QString& line : text.split('\n')) {
        qsizetype start = 0;
        do {
            const qsizetype end = endOfPiece(line, start);
            pieces.append(line.sliced(start, end - start));
            start = end;
        } while (start < line.size());
    }
    return pieces.join('\n');
}

QSize roomFor(const QString& text, const QFontMetrics& metrics, const QSize& screen)
{
    const auto lines = text.size() / charactersInLine + text.count('\n') + 3;
    return QSize(charactersInLine * metrics.averageCharWidth(),
                 static_cast<int>(std::min(lines, mostLines)) * metrics.lineSpacing())
        .boundedTo(screen * 2 / 3);
}

} // namespace

QString shownPart(const QString& text)
{
    return text.size() > mostShown ? text.first(mostShown) + QChar(0x2026) : text;
}

QString shownPart(std::string_view bytes)
{
    return shownPart(fromBytes(bytes.substr(0, mostShown + 1)));
}

QString toolTipOf(const QString& text)
{
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

bool isLong(const QString& text)
{
    static const QRegularExpression longWord(R"(\S{121})"); // it isn't wrapped
    return text.size() > mostShown || text.count('\n') >= mostLines || text.contains(longWord);
}

void letTextScroll(QMessageBox& box)
{
    auto* label = box.findChild<QLabel*>("qt_msgbox_label");
    auto* layout = qobject_cast<QGridLayout*>(box.layout());
    if (!label || !layout)
        return; // a box of another making shows its text as it does
    auto* view = new QPlainTextEdit(inPieces(box.text()));
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setAccessibleName(box.windowTitle());
    view->setMinimumSize(roomFor(box.text(), view->fontMetrics(), box.screen()->availableSize()));
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    layout->getItemPosition(layout->indexOf(label), &row, &column, &rows, &columns);
    layout->addWidget(view, row, column);
    label->hide(); // the box still knows its text by it
    view->setFocus();
}

} // namespace quillfen
