#pragma once

#include <QString>

#include <string>

class QWidget;

namespace quillfen {

/// Asks for a text of one line in the code page; empty after Cancel.
std::string askText(QWidget* parent, const QString& title, const QString& prompt);

} // namespace quillfen
