#pragma once

#include <QString>
#include <QValidator>

#include <string>
#include <string_view>

class QLineEdit;

namespace quillfen {

/// The one place where code page bytes become screen text, and back, without a loss.
QString fromBytes(std::string_view bytes);

/// A character that the code page does not have becomes a question mark; OneLineValidator keeps such out of
/// fields.
std::string toBytes(const QString& text);

bool isLineEnd(QChar character); ///< CR or LF

/// Keeps a value on one line and within the code page, however a text gets into its box: each run of line
/// ends becomes a blank, and NUL and what the code page does not have are dropped. What the user sees is what
/// is stored.
class OneLineValidator : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;

    State validate(QString& text, int& cursor) const override;
};

/// Gives a text box that validator, and room for a text of any length.
void limitToOneLine(QLineEdit& edit);

} // namespace quillfen
