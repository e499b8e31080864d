#pragma once

#include "memory.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <functional>

namespace quillfen::bench {

/// Says on standard output when its window was first painted, in nanoseconds of the steady clock, which all
/// processes share, and goes on with what it is given.
class FirstPaint : public QObject
{
public:
    FirstPaint(QWidget& window, std::function<void()> then) : m_then(std::move(then))
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !m_painted) {
            m_painted = true;
            QMetaObject::invokeMethod(
                qApp, [this] { painted(); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(object, event);
    }

private:
    void painted() const
    {
        const std::chrono::nanoseconds now = std::chrono::steady_clock::now().time_since_epoch();
        std::printf("painted %lld\n", static_cast<long long>(now.count()));
        m_then();
    }

    std::function<void()> m_then;
    bool m_painted = false;
};

/// Says what the process needed, and ends it.
inline void endProgram()
{
    std::printf("peak %.0f\n", peakKiB());
    QApplication::quit();
}

} // namespace quillfen::bench
