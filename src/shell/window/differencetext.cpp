#include "shell/window/differencetext.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/longtext.h"
#include "store/linediff.h"

#include <QPlainTextEdit>
#include <QTextBlock>

#include <algorithm>

namespace quillfen {
namespace {

/// Colours that let the text stand out on a light and on a dark background.
const QColor goneColor(210, 60, 60, 70);
const QColor newColor(40, 160, 70, 70);

/// For each line whether it differs or stands near one that does.
std::vector<bool> nearDifferences(const std::vector<DiffLine>& lines)
{
    constexpr std::size_t around = 3;
    std::vector<bool> isNear(lines.size());
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (lines[at].kind == DiffLine::Kind::Same)
            continue;
        const auto first = at - std::min(at, around);
        const auto last = std::min(lines.size() - 1, at + around);
        std::fill(isNear.begin() + static_cast<std::ptrdiff_t>(first),
                  isNear.begin() + static_cast<std::ptrdiff_t>(last) + 1, true);
    }
    return isNear;
}

QString signedLine(const DiffLine& line)
{
    const QString sign = line.kind == DiffLine::Kind::Old   ? "- "
                         : line.kind == DiffLine::Kind::New ? "+ "
                                                            : "  ";
    return sign + shownPart(line.text);
}

/// Where lines are left out.
QString gap()
{
    return QStringLiteral("  ") + QChar(0x22ee);
}

QStringList shownLines(const std::vector<DiffLine>& lines)
{
    const auto isNear = nearDifferences(lines);
    QStringList shown;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (isNear[at])
            shown.append(signedLine(lines[at]));
        else if (shown.isEmpty() || shown.constLast() != gap())
            shown.append(gap());
    }
    return shown;
}

void colour(QPlainTextEdit& view)
{
    QList<QTextEdit::ExtraSelection> selections;
    for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
        const QString line = block.text();
        if (!line.startsWith("- ") && !line.startsWith("+ "))
            continue;
        QTextEdit::ExtraSelection selection;
        selection.cursor = QTextCursor(block);
        selection.format.setBackground(line.startsWith('-') ? goneColor : newColor);
        selection.format.setProperty(QTextFormat::FullWidthSelection, true);
        selections.append(selection);
    }
    view.setExtraSelections(selections);
}

} // namespace

void showDifference(QPlainTextEdit& view, const std::optional<std::string>& earlier,
                    const std::optional<std::string>& today)
{
    view.setExtraSelections({});
    if (earlier == today) {
        view.setPlainText(today ? QStringLiteral("The file stands so today.")
                                : QStringLiteral("There is no such file today either."));
        return;
    }
    QStringList shown;
    if (!earlier)
        shown.append("There was no such file; today's:");
    if (!today)
        shown.append("There is no such file today; the earlier one:");
    const std::string old = earlier.value_or(std::string());
    const std::string now = today.value_or(std::string());
    view.setPlainText((shown + shownLines(lineDifference(old, now))).join('\n'));
    colour(view);
}

} // namespace quillfen
