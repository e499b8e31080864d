#pragma once

#include <QList>
#include <QMenu>
#include <QSet>

namespace quillfen {

class COpenWindows;

/// The Window menu: the first ten open forms, and the way to the list of all.
class WindowMenu : public QMenu
{
    Q_OBJECT

public:
    explicit WindowMenu(QWidget* parent = nullptr);

    void RebuildWindowMenu(const COpenWindows& windows);

    /// Shows by a dot at its entry that a form has something to save, or takes the dot away.
    void markChanged(const QString& key, bool isChanged);

signals:
    void formChosen(const QString& key);
    void showAllChosen();

private:
    QList<QAction*> m_entries;
    QSet<QString> m_changed; ///< the keys of forms with something to save
    QAction* m_splitter;
    QAction* m_showAll;
    QAction* m_close;
};

} // namespace quillfen
