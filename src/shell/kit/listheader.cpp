#include "shell/kit/listheader.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace quillfen {

ListHeader::ListHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    // What a tree view gives a header of its own.
    setSectionsMovable(true);
    setStretchLastSection(true);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void ListHeader::makeLine()
{
    m_line = new QLineEdit(this);
    m_line->setObjectName("txtFilter");
    m_line->setPlaceholderText("Show the rows that hold...");
    m_line->setAccessibleName("Filter of " + parentWidget()->accessibleName());
    m_line->setClearButtonEnabled(true);
    m_line->hide();
    m_line->installEventFilter(this);
    QWidget::setTabOrder(parentWidget(), m_line);
    connect(m_line, &QLineEdit::textChanged, this, &ListHeader::filterChanged);
}

bool ListHeader::isFiltering() const
{
    return m_line && !m_line->isHidden();
}

QString ListHeader::filter() const
{
    return isFiltering() ? m_line->text() : QString();
}

void ListHeader::showLine()
{
    if (!m_line)
        makeLine();
    if (isFiltering())
        return;
    m_hasCaptions = !isHidden();
    m_line->show();
    show();
    emit geometriesChanged(); // the list makes room
}

void ListHeader::setFilter(const QString& text)
{
    showLine();
    m_line->setText(text);
}

void ListHeader::openFilter()
{
    showLine();
    m_line->setFocus(Qt::ShortcutFocusReason);
    m_line->selectAll();
}

void ListHeader::closeFilter()
{
    if (!isFiltering())
        return;
    m_line->hide();
    m_line->clear();
    setVisible(m_hasCaptions);
    emit geometriesChanged();
    emit filterLeft();
}

QSize ListHeader::sizeHint() const
{
    const QSize captions = QHeaderView::sizeHint();
    if (!isFiltering())
        return captions;
    return {captions.width(), (m_hasCaptions ? captions.height() : 0) + m_line->sizeHint().height()};
}

void ListHeader::updateGeometries()
{
    const int height = isFiltering() ? m_line->sizeHint().height() : 0;
    setViewportMargins(0, 0, 0, height);
    QHeaderView::updateGeometries();
    if (height > 0)
        m_line->setGeometry(0, this->height() - height, width(), height);
}

bool ListHeader::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_line && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            closeFilter();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Down:
            emit filterLeft();
            return true;
        default:
            break;
        }
    }
    return QHeaderView::eventFilter(watched, event);
}

} // namespace quillfen
