#pragma once

#include <QString>

class QWidget;

namespace quillfen {

class NavigatorTable;
struct ProgramInfo;

/// The page of the guide's section on a function, below the guide's folder.
QString guidePage(const NavigatorTable& table, const QString& key);

/// Opens that page in the browser; a box says so if it isn't there or can't be opened.
void openGuide(const ProgramInfo& program, const QString& page, QWidget* parent);

} // namespace quillfen
