#include "app/darkdesktop.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>

namespace quillfen {

bool askForDarkWindows()
{
    const QSettings desktop(
        R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)",
        QSettings::NativeFormat);
    if (desktop.value("AppsUseLightTheme", 1).toInt() != 0 || qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return false;
    qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
    QApplication::setStyle("fusion");
    return true;
}

void mendDarkColours()
{
    QPalette colours = QApplication::palette();
    colours.setColor(QPalette::Link, QColor(0x6c, 0xb6, 0xff)); // Qt's is that of white pages
    colours.setColor(QPalette::AlternateBase, colours.color(QPalette::Base).lighter(115));
    colours.setColor(QPalette::ToolTipBase, colours.color(QPalette::Button));
    colours.setColor(QPalette::ToolTipText, colours.color(QPalette::ButtonText));
    QApplication::setPalette(colours);
    for (const char* kind : {"QCheckBox", "QRadioButton"}) // which Windows' style fills with its accent
        QApplication::setPalette(colours, kind);
}

} // namespace quillfen
