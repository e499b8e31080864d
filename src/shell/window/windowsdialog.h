#pragma once

#include <QDialog>

class QTreeWidget;

namespace quillfen {

class COpenWindows;

/// All open forms in one list, to pick one.
class WindowsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit WindowsDialog(const COpenWindows& windows, QWidget* parent = nullptr);

    /// The key of the row that was picked; empty if none is selected.
    QString selectedKey() const;

private:
    QTreeWidget* m_list;
};

} // namespace quillfen
