#pragma once

#include "shell/kit/formpart.h"
#include "shell/kit/toolbars.h"

#include <QWidget>

#include <initializer_list>
#include <utility>
#include <vector>

class QHBoxLayout;

namespace quillfen {

class ListView;

/// What a list with a toolbar is called.
struct ToolbarListNames
{
    QString toolbar;            ///< tlb...
    QString accessibleName;     ///< what the list holds
    QString label{};            ///< above both; may be empty
    QString menu{};             ///< the borrowed right-click menu, mnu...; empty: none
    QString activates = "EDIT"; ///< the button that a double click or Enter presses; empty: none
};

/// A list below its toolbar. Its keys (F2 edits, Insert adds), its double clicks and its borrowed menu press
/// the buttons, so that they do no more than those.
class ToolbarList : public QWidget
{
    Q_OBJECT

public:
    /// The builders put the buttons in, one behind the other.
    ToolbarList(ListView* list, const ToolbarListNames& names, const std::vector<ToolbarBuilder>& builders,
                const FormContext& context);

    QToolBar& toolbar() const { return *m_toolbar; }

    /// A button of the toolbar, which has one of that key.
    QAction& tool(const QString& key) const;

    /// Calls members of `part` at a press of the buttons of those keys.
    template <typename Part>
    void connectButtons(Part* part, std::initializer_list<std::pair<QString, void (Part::*)()>> members)
    {
        for (const auto& [key, member] : members)
            connectButton(*m_toolbar, key, part, member);
    }

    /// From now on DELETE, EDIT and AMEND are lit while there are rows.
    void letRowsLightButtons();

    /// Puts a second toolbar behind the list's own.
    void addToolbar(QToolBar* toolbar);

    /// Tells something below the list.
    void addRemark(const QString& text);

    /// What the buttons serve to the borrowed menu.
    RoutineTable routines() const;

private:
    void press(const QString& key);
    void addKey(Qt::Key pressed, const QString& key);
    void followRows();

    ListView* m_list;
    QToolBar* m_toolbar;
    QHBoxLayout* m_toolbars;
    QString m_menu;
};

} // namespace quillfen
