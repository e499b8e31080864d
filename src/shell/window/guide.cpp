#include "shell/window/guide.h"

#include "shell/kit/messages.h"
#include "shell/window/navigatortable.h"
#include "shell/window/programinfo.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace quillfen {

QString guidePage(const NavigatorTable& table, const QString& key)
{
    QString group = key;
    while (!table.parentKey(group).isEmpty())
        group = table.parentKey(group);
    const QString section = isFunctionGroup(group) ? table.caption(group) : QStringLiteral("The Archive");
    return "sections/" + section.toLower().replace(' ', '-') + ".html";
}

void openGuide(const ProgramInfo& program, const QString& page, QWidget* parent)
{
    const QString path = program.guideFolder + '/' + page;
    if (!QFileInfo::exists(path) || !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        notify(parent, program.product,
               "The guide's page can't be opened:\n" + path +
                   "\n\nIt comes with the program, in the folder quillfen-docs.",
               QMessageBox::Information);
}

} // namespace quillfen
