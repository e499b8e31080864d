#include "shell/kit/rowtext.h"

#include "shell/kit/codepagetext.h"

#include <algorithm>

namespace quillfen {
namespace {

bool partsCells(QChar character)
{
    return character == u'\t' || isLineEnd(character);
}

QString quotedIfNeeded(QString cell)
{
    if (std::none_of(cell.begin(), cell.end(), partsCells))
        return cell;
    return u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

/// Where the quotation ends that begins at `from`; -1 if it doesn't, or if it was none: one that holds
/// nothing that parts cells, or has more text behind it, is a cell whose own text begins so.
qsizetype endOfQuotation(const QString& text, qsizetype from)
{
    bool isNeeded = false;
    for (qsizetype at = from + 1; at < text.size(); ++at) {
        if (text[at] != u'"') {
            isNeeded = isNeeded || partsCells(text[at]);
        } else if (at + 1 < text.size() && text[at + 1] == u'"') {
            ++at;
        } else {
            const bool endsCell = at + 1 == text.size() || partsCells(text[at + 1]);
            return isNeeded && endsCell ? at : -1;
        }
    }
    return -1;
}

/// Takes the cell that begins at `at`, and moves on behind it.
QString takenCell(const QString& text, qsizetype& at)
{
    const qsizetype begin = at;
    const qsizetype quotationEnd =
        begin < text.size() && text[begin] == u'"' ? endOfQuotation(text, begin) : -1;
    if (quotationEnd > 0) {
        at = quotationEnd + 1;
        return text.mid(begin + 1, quotationEnd - begin - 1).replace("\"\"", "\"");
    }
    while (at < text.size() && !partsCells(text[at]))
        ++at;
    return text.mid(begin, at - begin);
}

} // namespace

QString textOfRows(const QList<QStringList>& rows)
{
    QString text;
    for (QStringList cells : rows) {
        std::transform(cells.begin(), cells.end(), cells.begin(), quotedIfNeeded);
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}

QList<QStringList> rowsOfText(const QString& text)
{
    QList<QStringList> rows;
    for (qsizetype at = 0; at < text.size();
         ++at) { // on behind the line's end; the second half of one is blank
        QStringList cells(takenCell(text, at));
        while (at < text.size() && text[at] == u'\t')
            cells.append(takenCell(text, ++at));
        if (cells != QStringList(QString()))
            rows.append(cells);
    }
    return rows;
}

} // namespace quillfen
