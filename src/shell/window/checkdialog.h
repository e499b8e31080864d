#pragma once

#include "advice/finding.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <string>
#include <vector>

class QLabel;
class QTreeWidget;

namespace quillfen {

/// What the window knows of the check of all settings.
struct SettingsCheck
{
    /// What is wrong in all files as they are on the disk.
    std::function<std::vector<Finding>()> findings;

    /// The key of the node whose form shows a file, a told path; empty if none does.
    std::function<std::string(const std::string& file)> nodeOf;
};

/// What is wrong in the whole settings tree, a row for each finding. It stays while its rows are gone
/// through.
class CheckDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CheckDialog(SettingsCheck check, QWidget* parent = nullptr);

    /// Looks at all files anew.
    void look();

signals:
    /// A row was chosen whose file a form shows.
    void chosen(const QString& node, const Finding& finding);

private:
    void choose();

    SettingsCheck m_check;
    std::vector<Finding> m_findings;
    QLabel* m_summary;
    QTreeWidget* m_list;
};

} // namespace quillfen
