#include "shell/window/checkdialog.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/listview.h"
#include "shell/kit/longtext.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

namespace quillfen {
namespace {

QString summaryOf(std::size_t findings)
{
    if (findings == 0)
        return QStringLiteral("All settings load, and the editor shows them as they are.");
    return findings == 1
               ? QStringLiteral("1 finding. Enter or a double click opens its form.")
               : QStringLiteral("%1 findings. Enter or a double click opens a finding's form.").arg(findings);
}

} // namespace

CheckDialog::CheckDialog(SettingsCheck check, QWidget* parent)
    : QDialog(parent),
      m_check(std::move(check)),
      m_summary(new QLabel),
      m_list(new QTreeWidget)
{
    setObjectName("frmCheck");
    setWindowTitle("Check the settings");
    m_list->setObjectName("lvwFindings");
    m_list->setAccessibleName("Findings");
    m_list->setHeaderLabels({"File", "Line", "What is wrong, and what to do"});
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setItemDelegate(new RowDelegate(m_list));
    m_summary->setTextFormat(Qt::PlainText);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* again = buttons->addButton("Check &again", QDialogButtonBox::ActionRole);
    again->setObjectName("cmdAgain");
    for (auto* button : buttons->buttons())
        static_cast<QPushButton*>(button)->setAutoDefault(false); // Enter in the list chooses a row
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    resize(860, 260);
    // At the lower edge, where it hides least of the forms that its rows open.
    if (parent)
        move(parent->mapToGlobal(QPoint(parent->width() - width(), parent->height() - height())));
    connect(again, &QPushButton::clicked, this, &CheckDialog::look);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemActivated, this, &CheckDialog::choose);
    look();
}

void CheckDialog::look()
{
    m_findings = m_check.findings();
    m_summary->setText(summaryOf(m_findings.size()));
    m_list->clear();
    for (const Finding& finding : m_findings) {
        const QString line = finding.line > 0 ? QString::number(finding.line) : QString();
        auto* row = new QTreeWidgetItem(m_list, {fromBytes(finding.file), line, fromBytes(finding.words)});
        row->setToolTip(2, toolTipOf(fromBytes(finding.words)));
    }
    m_list->resizeColumnToContents(0);
    m_list->resizeColumnToContents(1);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_list->setFocus();
}

void CheckDialog::choose()
{
    const auto row = static_cast<std::size_t>(m_list->indexOfTopLevelItem(m_list->currentItem()));
    if (row >= m_findings.size())
        return;
    const Finding& finding = m_findings[row];
    if (const std::string node = m_check.nodeOf(finding.file); !node.empty())
        emit chosen(fromBytes(node), finding);
}

} // namespace quillfen
