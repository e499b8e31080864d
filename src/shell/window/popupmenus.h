#pragma once

#include <QMenu>
#include <QObject>

#include <functional>

namespace quillfen {

class EditorForm;

/// The right-click menus that the child forms borrow. An item calls the routine of its name on the active
/// form, which is looked up at that moment.
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

    std::function<EditorForm*()> m_activeForm;
    QWidget* m_owner;
};

} // namespace quillfen
