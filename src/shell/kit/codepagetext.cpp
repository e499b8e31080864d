#include "shell/kit/codepagetext.h"

#include "settings/codepage.h"

#include <QLineEdit>

#include <limits>

namespace quillfen {
namespace {

/// What a value on one line keeps of a text; `inRun` tells whether a line end stands in front of it.
QString oneLine(QStringView text, bool inRun = false)
{
    QString kept;
    kept.reserve(text.size());
    for (const QChar character : text) {
        if (isLineEnd(character)) {
            if (!inRun)
                kept += u' ';
        } else if (character != QChar::Null && codepage::fromUnicode(character.unicode())) {
            kept += character;
        }
        inRun = isLineEnd(character);
    }
    return kept;
}

} // namespace

bool isLineEnd(QChar character)
{
    return character == u'\r' || character == u'\n';
}

QString fromBytes(std::string_view bytes)
{
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    for (const char byte : bytes)
        text += QChar(static_cast<char16_t>(codepage::toUnicode(static_cast<unsigned char>(byte))));
    return text;
}

std::string toBytes(const QString& text)
{
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar character : text)
        bytes += static_cast<char>(codepage::fromUnicode(character.unicode()).value_or('?'));
    return bytes;
}

QValidator::State OneLineValidator::validate(QString& text, int& cursor) const
{
    const qsizetype behind = text.size() - cursor;
    QString kept = oneLine(QStringView(text).first(cursor));
    const bool goesOn = cursor > 0 && isLineEnd(text.at(cursor - 1)); // a run of line ends around the cursor
    cursor = static_cast<int>(kept.size());
    kept += oneLine(QStringView(text).last(behind), goesOn);
    text = kept;
    return Acceptable;
}

void limitToOneLine(QLineEdit& edit)
{
    edit.setValidator(new OneLineValidator(&edit));
    edit.setMaxLength(std::numeric_limits<int>::max());
}

} // namespace quillfen
