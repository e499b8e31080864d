#include "shell/window/aboutbox.h"

#include "shell/icons/icons.h"
#include "shell/kit/messages.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>

namespace quillfen {
namespace {

QLabel* plainLabel(const QString& name, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(320); // wrapped text asks for as many lines as it then needs
    return label;
}

#ifdef Q_OS_WIN
std::optional<QStringList> toolOfRegistry(const QString& key, const QString& value, const QString& tail)
{
    const QSettings registry(QStringLiteral("HKEY_LOCAL_MACHINE\\") + key, QSettings::NativeFormat);
    const QString path = registry.value(value).toString();
    if (path.isEmpty() || !QFileInfo::exists(path + tail))
        return std::nullopt;
    return QStringList{path + tail};
}
#endif

} // namespace

std::optional<QStringList> systemInformationTool()
{
#if defined(Q_OS_WIN)
    if (auto tool = toolOfRegistry("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", QString()))
        return tool;
    return toolOfRegistry("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", "\\MSINFO32.EXE");
#elif defined(Q_OS_MACOS)
    return QStringList{"open", "-a", "System Information"};
#else
    static const QStringList tools = {"kinfocenter", "hardinfo2", "hardinfo"};
    for (const QString& tool : tools) {
        const QString path = QStandardPaths::findExecutable(tool);
        if (!path.isEmpty())
            return QStringList{path};
    }
    return std::nullopt;
#endif
}

AboutBox::AboutBox(const ProgramInfo& program, QWidget* parent) : QDialog(parent)
{
    setObjectName("frmHelpAbout");
    setWindowTitle("About " + program.product);
    auto* icon = new QLabel;
    icon->setPixmap(themedIcon("quillfen").pixmap(64));
    auto* title = plainLabel("lblTitle", program.product);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    title->setFont(large);

    auto* buttons = new QDialogButtonBox;
    auto* ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName("cmdOK");
    auto* information = buttons->addButton("&System Info...", QDialogButtonBox::ActionRole);
    information->setObjectName("cmdSysInfo");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(information, &QPushButton::clicked, this, &AboutBox::showSystemInformation);

    auto* layout = new QGridLayout(this);
    layout->setColumnStretch(1, 1);
    layout->setHorizontalSpacing(16);
    layout->addWidget(icon, 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(title, 0, 1);
    layout->addWidget(plainLabel("lblVersion", "Version " + program.version), 1, 1);
    layout->addWidget(plainLabel("lblDescription",
                                 program.product + " is an All-in-One bot for use with the PtokaX hubsoft. "
                                                   "Supplying both Security functions and Games"),
                      2, 1);
    layout->addWidget(buttons, 3, 0, 1, 2);
    layout->setVerticalSpacing(10);
    setMinimumWidth(440);
}

void AboutBox::showSystemInformation()
{
    const auto tool = systemInformationTool();
    if (!tool || !QProcess::startDetached(tool->constFirst(), tool->mid(1)))
        notify(this, windowTitle(), "System Information Is Unavailable At This Time", QMessageBox::NoIcon);
}

} // namespace quillfen
