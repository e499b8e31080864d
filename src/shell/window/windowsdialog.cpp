#include "shell/window/windowsdialog.h"

#include "shell/kit/listview.h"
#include "shell/window/openwindows.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace quillfen {

WindowsDialog::WindowsDialog(const COpenWindows& windows, QWidget* parent)
    : QDialog(parent),
      m_list(new QTreeWidget)
{
    setObjectName("frmContainerWindows");
    setWindowTitle("Windows");
    m_list->setObjectName("lvwWindows");
    m_list->setAccessibleName("Open windows");
    m_list->setHeaderLabels({"window"});
    m_list->setRootIsDecorated(false);
    m_list->setItemDelegate(new RowDelegate(m_list));
    for (const COpenWindow& window : windows) {
        auto* row = new QTreeWidgetItem(m_list, {window.Caption()});
        row->setData(0, Qt::UserRole, window.Key());
    }
    m_list->setCurrentItem(m_list->topLevelItem(0));

    auto* buttons = new QDialogButtonBox;
    auto* ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName("cmdOK");
    auto* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName("cmdCancel");
    cancel->setText("Cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    resize(360, 420);
}

QString WindowsDialog::selectedKey() const
{
    const auto selected = m_list->selectedItems();
    return selected.isEmpty() ? QString() : selected.constFirst()->data(0, Qt::UserRole).toString();
}

} // namespace quillfen
