#pragma once

#include "shell/kit/formlook.h"

#include <QHash>
#include <QObject>
#include <QRect>

class QMdiSubWindow;

namespace quillfen {

/// Where each form stood when it was closed, and how it looked, so that it opens so again. Nothing of it
/// outlasts the run.
class FormPlaces : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Puts a form's window, which shows the form as it was loaded, where the form stood. One that opens for
    /// the first time stays where it is.
    void putBack(QMdiSubWindow& window) const;

    /// From now on notes where that window stands.
    void follow(QMdiSubWindow& window);

    /// Whether a form was maximised when it was closed.
    bool wasMaximised(const QString& form) const { return m_places.value(form).maximised; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Place
    {
        QRect geometry{}; ///< while neither maximised nor minimised
        bool maximised = false;
        FormLook look{};
    };

    void note(const QMdiSubWindow& window);

    QHash<QString, Place> m_places; ///< by the form's name
};

} // namespace quillfen
