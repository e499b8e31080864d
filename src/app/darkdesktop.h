#pragma once

namespace quillfen {

/// Windows' own style is light at any time, and Qt leaves dark colours to programs that ask for them. Where
/// the owner has Windows dark, this asks for them, for the style that takes them. To be called before there
/// is a QApplication; tells whether the desktop is dark.
bool askForDarkWindows();

/// Mends those of Qt's dark colours that can't be read or belong to another style. For a QApplication that
/// got them.
void mendDarkColours();

} // namespace quillfen
