#pragma once

#include "declarations/formdeclaration.h"
#include "shell/kit/formpart.h"

#include <QSize>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class QFrame;
class QStatusBar;
class QToolBar;

namespace quillfen {

/// An editor form: its toolbar, its parts in a frame that scrolls where there is too little room for them,
/// its status bar, and the cycle of load, change, save, discard, restore and close. It alone knows whether
/// the controls differ from the files.
class EditorForm : public QWidget
{
    Q_OBJECT

public:
    explicit EditorForm(const FormDescription& description);

    /// Places the part behind the ones before.
    void add(std::unique_ptr<FormPart> part);

    /// Loads every part; the form is clean.
    void open();

    /// What it opens with where there is room: all of its parts, and no less than its own least size.
    QSize sizeHint() const override;

    /// The routine that the form serves to a borrowed right-click menu under this name; empty if it has none.
    std::function<void()> routine(const QString& name) const { return m_routines.value(name).serve; }

    /// Whether a borrowed menu shows that routine's item as lit: not while its button is dark.
    bool isLit(const QString& name) const;

    bool isDirty() const { return bDirty; }
    QString caption() const { return windowTitle(); }

    /// The caption under which the open-window registry knows the form, where it isn't the form's own.
    QString tag() const { return m_tag; }
    void setTag(const QString& tag) { m_tag = tag; }

signals:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QSize leastSize() const;
    void focusFirstControl();
    void load();
    bool maySave();
    void save();
    void discard();
    void restore();
    void markDirty();
    void showNote(const QString& text);
    bool confirmDiscard();

    FormDescription m_description;
    QString m_tag;
    QToolBar* m_toolbar;
    QFrame* m_frame;
    QStatusBar* m_statusBar;
    std::vector<FormPart*> m_parts;
    RoutineTable m_routines;
    bool bDirty = false;
    bool m_loading = false;
    QString m_notLoaded; ///< why the last load stopped; empty after one that went through
};

} // namespace quillfen
