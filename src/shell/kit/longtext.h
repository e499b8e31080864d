#pragma once

#include <QString>

#include <string_view>

class QMessageBox;

namespace quillfen {

/// As much of a text as anybody reads in one line: its first thousand characters. What comes from a server or
/// a file may be of any length, and to measure and draw all of it takes long.
QString shownPart(const QString& text);

/// The same of code page bytes.
QString shownPart(std::string_view bytes);

/// A text for a tool tip: shown to the letter, in lines as wide as tool tips are. Empty for no text.
QString toolTipOf(const QString& text);

/// Whether a message box would grow beyond the screen with this text, or cut it off.
bool isLong(const QString& text);

/// Lets a message box that isn't shown yet show its text in a view that scrolls.
void letTextScroll(QMessageBox& box);

} // namespace quillfen
