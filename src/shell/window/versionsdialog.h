#pragma once

#include "store/history.h"

#include <QDialog>

#include <functional>
#include <string>
#include <vector>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace quillfen {

class DraftStore;

/// What bringing back must know of the open forms. Paths are the disk's.
struct OpenForms
{
    /// The captions of those with unsaved changes that show one of these files.
    std::function<QStringList(const std::vector<std::string>& paths)> dirty;

    /// Lets those without load anew.
    std::function<void(const std::vector<std::string>& paths)> reload;
};

/// The earlier versions of the settings: each save or rebuild with the files that it replaced, what differs
/// in a file from today's, and the buttons that bring a file, all files of an entry, or the whole tree back.
class VersionsDialog : public QDialog
{
    Q_OBJECT

public:
    /// What is brought back is written to the store as any save is.
    VersionsDialog(History& history, DraftStore& store, OpenForms forms, QWidget* parent = nullptr);

private:
    void place();
    QPushButton* addBringBack(const char* name, const QString& caption, void (VersionsDialog::*pressed)());
    void showEntries();
    void showFiles(QTreeWidgetItem& row) const;
    void showDifference();
    void bringBackFile();
    void bringBackEntry();
    void bringBackTree();
    void bringBack(const QString& what, const std::vector<KeptFile>& files);
    const VersionEntry* entryOf(const QTreeWidgetItem* row) const;
    const KeptFile* fileOf(const QTreeWidgetItem* row) const;

    History& m_history;
    DraftStore& m_store;
    OpenForms m_forms;
    VersionList m_list;
    QTreeWidget* m_entries;
    QLabel* m_skipped;
    QPlainTextEdit* m_difference;
    QPushButton* m_file;
    QPushButton* m_entry;
    QPushButton* m_tree;
};

} // namespace quillfen
