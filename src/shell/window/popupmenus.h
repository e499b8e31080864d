#pragma once

#include <QMenu>
#include <QObject>

#include <functional>

namespace quillfen {

class EditorForm;

/// The right-click menus that the child forms borrow. An item calls the routine of its name on the active
/// form, which is looked up at that moment, and is dark while the form's button for it is.
class PopUpMenus : public QObject
{
    Q_OBJECT

public:
    /// `activeForm` answers with the active child form, or null; `parent` owns the menus.
    PopUpMenus(std::function<EditorForm*()> activeForm, QWidget* parent);

    /// The menu of a name such as "mnuFirst", or null.
    QMenu* menu(const QString& name) const;

signals:
    /// The active form has no such routine, or there is no active form.
    void routineMissing(const QString& routine);

private:
    QMenu* addMenu(const QString& name);
    void addItem(QMenu& menu, const QString& name, const QString& caption, const QString& routine);
    void call(const QString& routine);
    void darken(const QMenu& menu); ///< the items whose buttons are dark on the active form
    void lightAgain();              ///< the next form borrows the menu as it was

    std::function<EditorForm*()> m_activeForm;
    QWidget* m_owner;
    QList<QAction*> m_darkened;
};

} // namespace quillfen
