#include "shell/window/formplaces.h"

#include "shell/kit/editorform.h"

#include <QEvent>
#include <QMdiSubWindow>

namespace quillfen {

void FormPlaces::putBack(QMdiSubWindow& window) const
{
    auto* form = qobject_cast<EditorForm*>(window.widget());
    const auto place = m_places.constFind(form->objectName());
    if (place == m_places.constEnd())
        return;
    window.setGeometry(place->geometry);
    giveLook(*form, place->look);
}

void FormPlaces::follow(QMdiSubWindow& window)
{
    const auto* form = qobject_cast<EditorForm*>(window.widget());
    note(window);
    window.installEventFilter(this);
    connect(form, &EditorForm::closed, this, [this, form, &window] {
        Place& place = m_places[form->objectName()];
        place.maximised = window.isMaximized();
        place.look = lookOf(*form);
    });
}

void FormPlaces::note(const QMdiSubWindow& window)
{
    if (window.widget() && !window.isMaximized() && !window.isMinimized() && !window.isShaded())
        m_places[window.widget()->objectName()].geometry = window.geometry();
}

bool FormPlaces::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        note(*static_cast<QMdiSubWindow*>(watched));
    return false;
}

} // namespace quillfen
