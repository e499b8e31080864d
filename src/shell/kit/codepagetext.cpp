#include "shell/kit/codepagetext.h"

#include "settings/codepage.h"

#include <QLineEdit>

#include <limits>

namespace quillfen {

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

QValidator::State CodePageValidator::validate(QString& text, int& cursor) const
{
    for (qsizetype at = text.size() - 1; at >= 0; --at) {
        if (codepage::fromUnicode(text.at(at).unicode()))
            continue;
        text.remove(at, 1);
        if (at < cursor)
            --cursor;
    }
    return Acceptable;
}

void limitToCodePage(QLineEdit& edit)
{
    edit.setValidator(new CodePageValidator(&edit));
    edit.setMaxLength(std::numeric_limits<int>::max());
}

} // namespace quillfen
