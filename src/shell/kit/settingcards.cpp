#include "shell/kit/settingcards.h"

#include "shell/kit/changemarks.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/controlvalue.h"
#include "shell/kit/listview.h"
#include "shell/kit/longtext.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

namespace quillfen {

SettingCards::SettingCards(QWidget& frame, const ChangeMarks& marks)
    : QObject(&frame),
      m_frame(frame),
      m_marks(marks)
{
}

QWidget* SettingCards::add(const SettingCard& card)
{
    auto* control = controlNamed(m_frame, fromBytes(card.control));
    if (!control)
        return nullptr;
    m_cards[control] = card;
    control->setWhatsThis(textOf(*control));
    if (auto* list = qobject_cast<ListView*>(control)) {
        list->header()->viewport()->installEventFilter(this); // its rows have tips of their own
        return control;
    }
    control->installEventFilter(this);
    if (auto* line = control->findChild<QLineEdit*>())
        line->installEventFilter(this);
    return control;
}

QString SettingCards::textOf(const QWidget& control) const
{
    for (const QObject* each = &control; each && each != &m_frame; each = each->parent()) {
        const auto card = m_cards.find(each);
        if (card == m_cards.end())
            continue;
        const auto stored = m_marks.storedOf(*static_cast<const QWidget*>(each));
        QStringList lines;
        for (const std::string& line :
             linesOf(card->second, stored ? std::optional(toBytes(*stored)) : std::nullopt))
            lines.append(fromBytes(line));
        return lines.join('\n');
    }
    return {};
}

bool SettingCards::show()
{
    auto* control = QApplication::focusWidget();
    if (!control || !m_frame.isAncestorOf(control))
        return false;
    const QString text = textOf(*control);
    if (text.isEmpty())
        return false;
    m_shown = toolTipOf(text);
    QToolTip::showText(control->mapToGlobal(QPoint(0, control->height())), m_shown, control);
    return true;
}

bool SettingCards::isShown() const
{
    return QToolTip::isVisible() && !m_shown.isEmpty() && QToolTip::text() == m_shown;
}

/// A tool tip of the control's own comes first.
bool SettingCards::eventFilter(QObject* object, QEvent* event)
{
    auto* widget = event->type() == QEvent::ToolTip ? qobject_cast<QWidget*>(object) : nullptr;
    if (!widget || !widget->toolTip().isEmpty() || !boxAround(widget)->toolTip().isEmpty())
        return QObject::eventFilter(object, event);
    const QString text = textOf(*widget);
    if (text.isEmpty())
        return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipOf(text), widget);
    return true;
}

} // namespace quillfen
