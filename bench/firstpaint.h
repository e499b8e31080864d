#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace quillfen::bench {

/// Ends the program once its window has been painted.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget& window) { window.installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(qApp, &QApplication::quit, Qt::QueuedConnection);
        return QObject::eventFilter(object, event);
    }
};

} // namespace quillfen::bench
