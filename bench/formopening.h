#pragma once

#include "functions/catalogue.h"
#include "functions/ownparts.h"
#include "shell/kit/editorform.h"
#include "shell/window/mainwindow.h"
#include "shell/window/navigatortable.h"

#include <QApplication>
#include <QEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <stdexcept>

namespace quillfen::bench {

/// Notes that its widget is painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(object, event);
    }

    bool painted() const { return m_painted; }

private:
    bool m_painted = false;
};

/// The keys of all forms.
inline QStringList formKeys()
{
    return NavigatorTable(functionNodes()).formKeys();
}

/// Opens a form as a click in the tree does, up to its first paint.
inline EditorForm& openForm(MainWindow& window, const QString& key)
{
    window.OpenFunctionForm(key);
    const auto* place = window.findChild<QMdiArea*>()->currentSubWindow();
    auto* form = place ? qobject_cast<EditorForm*>(place->widget()) : nullptr;
    if (!form)
        throw std::runtime_error("no form: " + key.toStdString());
    const PaintWatch watch(*form);
    QApplication::processEvents();
    if (!watch.painted())
        throw std::runtime_error("the form was not painted: " + key.toStdString());
    return *form;
}

/// Closes all forms, up to their destruction.
inline void closeForms(MainWindow& window)
{
    window.findChild<QMdiArea*>()->closeAllSubWindows();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

} // namespace quillfen::bench
