#include "shell/window/windowmenu.h"

#include "shell/window/changedicon.h"
#include "shell/window/openwindows.h"

namespace quillfen {
namespace {

/// "&1" to "&9", then "1&0".
QString numbered(int place)
{
    return place < 10 ? QStringLiteral("&%1").arg(place) : QStringLiteral("1&0");
}

} // namespace

WindowMenu::WindowMenu(QWidget* parent) : QMenu(QStringLiteral("&Window"), parent)
{
    setObjectName("mnuWindows");
    for (int place = 1; place <= 10; ++place) {
        auto* entry = addAction(QStringLiteral("Windows Menu ") + numbered(place));
        entry->setObjectName(QStringLiteral("mnuWindows%1").arg(place));
        connect(entry, &QAction::triggered, this,
                [this, entry] { emit formChosen(entry->data().toString()); });
        m_entries.append(entry);
    }
    m_splitter = addSeparator();
    m_splitter->setObjectName("mnuWindowsSplitter");
    m_showAll = addAction("&Show All Windows");
    m_showAll->setObjectName("mnuWindowsShowAll");
    connect(m_showAll, &QAction::triggered, this, &WindowMenu::showAllChosen);
    m_close = addAction("&Close All Windows"); // does nothing when chosen, and stays so
    m_close->setObjectName("mnuWindowsClose");
    RebuildWindowMenu({});
}

void WindowMenu::RebuildWindowMenu(const COpenWindows& windows)
{
    for (auto* action : actions())
        action->setVisible(false);
    int place = 0;
    for (const COpenWindow& window : windows) {
        if (++place > m_entries.size()) {
            m_showAll->setVisible(true);
            return;
        }
        auto* entry = m_entries.at(place - 1);
        entry->setText(numbered(place) + QStringLiteral(". ") + window.Caption());
        entry->setData(window.Key());
        entry->setIcon(m_changed.contains(window.Key()) ? changedDot() : QIcon());
        entry->setVisible(true);
        m_splitter->setVisible(true);
        m_close->setVisible(true);
    }
}

void WindowMenu::markChanged(const QString& key, bool isChanged)
{
    if (isChanged)
        m_changed.insert(key);
    else
        m_changed.remove(key);
    for (auto* entry : m_entries) {
        if (entry->data().toString() == key)
            entry->setIcon(isChanged ? changedDot() : QIcon());
    }
}

} // namespace quillfen
