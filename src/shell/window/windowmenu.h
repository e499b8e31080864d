#pragma once

#include <QList>
#include <QMenu>

namespace quillfen {

class COpenWindows;

/// The Window menu: the first ten open forms, and the way to the list of all.
class WindowMenu : public QMenu
{
    Q_OBJECT

public:
    explicit WindowMenu(QWidget* parent = nullptr);

    void RebuildWindowMenu(const COpenWindows& windows);

signals:
    void formChosen(const QString& key);
    void showAllChosen();

private:
    QList<QAction*> m_entries;
    QAction* m_splitter;
    QAction* m_showAll;
    QAction* m_close;
};

} // namespace quillfen
