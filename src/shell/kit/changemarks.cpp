#include "shell/kit/changemarks.h"

#include "shell/kit/controlvalue.h"
#include "shell/kit/rowlist.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <map>

namespace quillfen {
namespace {

/// A dot before a label or a control, which follows it. It lies on the form's frame, as the part that the
/// anchor is in has no room at its edge.
class ChangeDot : public QWidget
{
public:
    ChangeDot(QWidget& anchor, QWidget& frame) : QWidget(&frame), m_anchor(anchor), m_frame(frame)
    {
        setObjectName("CHANGED");
        setAttribute(Qt::WA_TransparentForMouseEvents);
        for (QWidget* each = &anchor; each != &frame; each = each->parentWidget())
            each->installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto type = event->type();
        if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show || type == QEvent::Hide)
            follow();
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Link));
        painter.drawEllipse(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }

private:
    void follow()
    {
        constexpr int size = 6;
        const QRect place(m_anchor.mapTo(&m_frame, QPoint()), m_anchor.size());
        const int line = m_anchor.sizeHint().height(); // what is much taller begins with its words
        const int middle = place.top() + (place.height() < 2 * line ? place.height() : line) / 2;
        setGeometry(std::max(0, place.left() - size - 2), middle - size / 2, size, size);
        setVisible(m_anchor.isVisibleTo(&m_frame));
        raise();
    }

    QWidget& m_anchor;
    QWidget& m_frame;
};

/// How many rows of one list are not in another, and how many of that not in the first.
struct RowCounts
{
    int added = 0;
    int changed = 0;
    int deleted = 0;

    void add(const std::vector<CellRow>& before, const std::vector<CellRow>& now)
    {
        if (before == now)
            return;
        std::map<std::vector<std::string>, int> surplus;
        const auto keyOf = [](const CellRow& row) {
            auto key = row.cells;
            key.emplace_back(row.checked ? "1" : "0");
            return key;
        };
        for (const CellRow& row : before)
            --surplus[keyOf(row)];
        for (const CellRow& row : now)
            ++surplus[keyOf(row)];
        int came = 0;
        int went = 0;
        for (const auto& [key, count] : surplus) {
            came += std::max(count, 0);
            went += std::max(-count, 0);
        }
        changed +=
            std::min(came, went); // a row that went where another came is the same one with another text
        added += std::max(came - went, 0);
        deleted += std::max(went - came, 0);
    }
};

QWidget* labelOf(QWidget& frame, const QWidget& control)
{
    for (auto* label : frame.findChildren<QLabel*>()) {
        if (label->buddy() == &control)
            return label;
    }
    return nullptr;
}

} // namespace

ChangeMarks::ChangeMarks(QWidget& frame) : QObject(&frame), m_frame(frame)
{
    for (auto* control : frame.findChildren<QWidget*>()) {
        if (boxAround(control) == control && valueOf(*control))
            watch(*control);
    }
    for (auto* list : frame.findChildren<RowList*>()) {
        if (!list->isSavedByItself())
            m_lists.push_back({list});
    }
}

void ChangeMarks::watch(QWidget& control)
{
    auto* label = labelOf(m_frame, control);
    m_controls.push_back({&control, label ? label : &control});
    control.installEventFilter(this);
    if (auto* line = control.findChild<QLineEdit*>())
        line->installEventFilter(this); // it gets the right clicks of the box around it
}

void ChangeMarks::offerDefault(const QWidget& control, const QString& value)
{
    for (Watched& watched : m_controls) {
        if (watched.control == &control)
            watched.byDefault = value;
    }
}

void ChangeMarks::remember()
{
    for (Watched& watched : m_controls)
        watched.stored = valueOf(*watched.control).value_or(QString());
    for (WatchedRows& watched : m_lists)
        watched.stored = watched.list->rows();
    follow();
}

void ChangeMarks::follow()
{
    for (Watched& watched : m_controls) {
        const bool differs = valueOf(*watched.control) != watched.stored;
        if (differs && !watched.dot)
            watched.dot = new ChangeDot(*watched.anchor, m_frame);
        else if (!differs)
            delete watched.dot;
    }
}

const ChangeMarks::Watched* ChangeMarks::find(const QObject& control) const
{
    const auto found = std::find_if(m_controls.begin(), m_controls.end(), [&control](const Watched& watched) {
        return watched.control == &control || (watched.control && control.parent() == watched.control);
    });
    return found == m_controls.end() ? nullptr : &*found;
}

std::optional<QString> ChangeMarks::storedOf(const QWidget& control) const
{
    const auto* watched = find(control);
    if (!watched || valueOf(*watched->control) == watched->stored)
        return std::nullopt;
    return watched->stored;
}

QString ChangeMarks::rowWords() const
{
    RowCounts counts;
    for (const WatchedRows& watched : m_lists)
        counts.add(watched.stored, watched.list->rows());
    QStringList words;
    const auto tell = [&words](int count, const QString& what) {
        if (count > 0)
            words.append(QString::number(count) + ' ' + what);
    };
    tell(counts.added, "added");
    tell(counts.changed, "changed");
    tell(counts.deleted, "deleted");
    return words.join(", ");
}

bool ChangeMarks::eventFilter(QObject* object, QEvent* event)
{
    const auto* watched = event->type() == QEvent::ContextMenu ? find(*object) : nullptr;
    auto* clicked = qobject_cast<QWidget*>(object);
    if (!watched || !clicked || !clicked->isEnabled())
        return QObject::eventFilter(object, event);
    showMenu(*watched, *clicked, static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
}

/// Behind what a text box offers by itself.
void ChangeMarks::showMenu(const Watched& watched, QWidget& clicked, const QPoint& at)
{
    auto* line = qobject_cast<QLineEdit*>(&clicked);
    auto* menu = line ? line->createStandardContextMenu() : new QMenu(&clicked);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName("mnuSetting");
    menu->addSeparator();
    const auto offer = [&](const char* name, const QString& caption, const std::optional<QString>& value) {
        auto* action = menu->addAction(caption);
        action->setObjectName(name);
        action->setEnabled(value && value != valueOf(*watched.control));
        connect(action, &QAction::triggered, watched.control,
                [control = watched.control, value] { setValue(*control, *value); });
    };
    offer("mnuSettingDefault", "&Default", watched.byDefault);
    offer("mnuSettingStored", "As in the &file", watched.stored);
    menu->popup(at);
}

} // namespace quillfen
