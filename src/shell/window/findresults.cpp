#include "shell/window/findresults.h"

#include "shell/kit/codepagetext.h"

#include <QLabel>
#include <QListView>
#include <QLocale>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillfen {
namespace {

constexpr int margin = 4;

/// Joins texts to one line, with what is put between them, and moves their marks along.
MarkedLine joined(std::initializer_list<const FindText*> texts, const QString& between)
{
    MarkedLine line;
    for (const FindText* each : texts) {
        if (each->text.empty())
            continue;
        if (!line.text.isEmpty())
            line.text += between;
        const auto begin = static_cast<std::size_t>(line.text.size());
        line.text += fromBytes(each->text); // a character for each byte
        for (const FindMark& mark : each->marks)
            line.marks.push_back({begin + mark.at, mark.length});
    }
    return line;
}

FoundRow rowOf(const FindHit& hit)
{
    FoundRow row = {{}, {}, fromBytes(hit.place.key), fromBytes(hit.place.control), hit.place.row};
    if (hit.kind == FindKind::Function) {
        row.title = joined({&hit.function}, {});
        row.below = joined({&hit.detail}, {});
    } else {
        row.title = joined({&hit.setting, &hit.value}, ": ");
        row.below = joined({&hit.function, &hit.detail}, ", ");
    }
    return row;
}

QString headingOf(const FindResult& result)
{
    if (result.count == 0)
        return QStringLiteral("Nothing matches");
    const QLocale locale(QLocale::English);
    const QString all = locale.toString(static_cast<qulonglong>(result.count));
    if (result.count == result.hits.size())
        return all + " found";
    return "The first " + QString::number(result.hits.size()) + " of " + all;
}

/// The line with its beginning left out as far as the first mark would not be seen.
MarkedLine withMarkInSight(MarkedLine line, const QFontMetrics& font, int width)
{
    constexpr std::size_t before = 8; // so many characters in front of it stay
    if (line.marks.empty() || line.marks.front().at <= before)
        return line;
    const FindMark first = line.marks.front();
    const auto end = static_cast<qsizetype>(first.at) + static_cast<qsizetype>(first.length);
    if (font.horizontalAdvance(line.text.left(end)) <= width)
        return line;
    const std::size_t left = first.at - before;
    line.text = QChar(0x2026) + line.text.mid(static_cast<qsizetype>(left));
    for (FindMark& mark : line.marks)
        mark.at -= left - 1;
    return line;
}

/// Draws the two lines of a row, the marked stretches bold on a ground of their own.
class FoundDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool hasTwo = !rowAt(index).below.text.isEmpty();
        return {0, option.fontMetrics.height() * (hasTwo ? 2 : 1) + 2 * margin};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const override
    {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        option.text.clear();                              // the style draws the row, and we the text
        if ((option.state & QStyle::State_Selected) != 0) // on its own ground; a style may have a paler one
            painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
        else
            option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
        const QRect place = option.rect.adjusted(margin, margin, -margin, -margin);
        painter->save();
        painter->setClipRect(place);
        const FoundRow& row = rowAt(index);
        drawLine(*painter, option, row.title, place.topLeft(), place.width(), 1);
        drawLine(*painter, option, row.below, place.topLeft() + QPoint(0, option.fontMetrics.height()),
                 place.width(), lessImportant);
        painter->restore();
    }

private:
    static constexpr float lessImportant = 0.75F;
    static constexpr float markStrength = 0.4F;

    static const FoundRow& rowAt(const QModelIndex& index)
    {
        return static_cast<const FoundModel*>(index.model())->at(index.row());
    }

    static void drawLine(QPainter& painter, const QStyleOptionViewItem& option, const MarkedLine& whole,
                         const QPoint& at, int width, float strength)
    {
        const bool isSelected = (option.state & QStyle::State_Selected) != 0;
        QColor colour = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
        QColor ground = isSelected ? colour : option.palette.color(QPalette::Highlight);
        ground.setAlphaF(markStrength);
        colour.setAlphaF(strength);
        const MarkedLine line = withMarkInSight(whole, option.fontMetrics, width);
        QTextCharFormat found;
        found.setFontWeight(QFont::Bold);
        found.setBackground(ground);
        QList<QTextLayout::FormatRange> ranges;
        for (const FindMark& mark : line.marks)
            ranges.append({static_cast<int>(mark.at), static_cast<int>(mark.length), found});
        QTextLayout layout(line.text, option.font);
        QTextOption noWrap;
        noWrap.setWrapMode(QTextOption::NoWrap);
        layout.setTextOption(noWrap);
        layout.setFormats(ranges);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        painter.setPen(colour);
        layout.draw(&painter, at);
    }
};

} // namespace

void FoundModel::setRows(std::vector<FoundRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int FoundModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FoundModel::data(const QModelIndex& index, int role) const
{
    const FoundRow& row = at(index.row());
    const QString text = row.title.text + (row.below.text.isEmpty() ? "" : "\n" + row.below.text);
    switch (role) {
    case Qt::DisplayRole:
        return text;
    case Qt::ToolTipRole:
        return Qt::convertFromPlainText(text);
    default:
        return {};
    }
}

FindResults::FindResults(QWidget* parent)
    : QWidget(parent),
      m_heading(new QLabel),
      m_list(new QListView),
      m_model(new FoundModel(this))
{
    m_heading->setObjectName("lblFound");
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setContentsMargins(margin, margin, margin, margin);
    m_list->setObjectName("lvwFound");
    m_list->setEditTriggers(QListView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setItemDelegate(new FoundDelegate(m_list));
    m_list->setModel(m_model);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_heading);
    layout->addWidget(m_list, 1);
    connect(m_list, &QListView::clicked, this, &FindResults::choose);
    connect(m_list, &QListView::activated, this, &FindResults::choose);
}

void FindResults::show(const FindResult& result)
{
    std::vector<FoundRow> rows;
    rows.reserve(result.hits.size());
    std::transform(result.hits.begin(), result.hits.end(), std::back_inserter(rows), rowOf);
    setRows(headingOf(result), std::move(rows));
}

void FindResults::showOpened(const QStringList& keys, const std::function<QString(const QString&)>& captionOf)
{
    std::vector<FoundRow> rows;
    for (const QString& key : keys)
        rows.push_back({{captionOf(key), {}}, {}, key, {}});
    setRows(QStringLiteral("Opened last"), std::move(rows));
}

void FindResults::setRows(const QString& heading, std::vector<FoundRow> rows)
{
    m_heading->setText(heading);
    m_list->setAccessibleName(heading);
    m_model->setRows(std::move(rows));
    m_list->setCurrentIndex(m_model->index(0, 0));
    m_list->scrollToTop();
}

void FindResults::choose()
{
    const QModelIndex current = m_list->currentIndex();
    if (!current.isValid())
        return;
    const FoundRow row = m_model->at(current.row()); // what it opens may change the rows
    emit chosen(row.key, row.control, row.row);
}

} // namespace quillfen
