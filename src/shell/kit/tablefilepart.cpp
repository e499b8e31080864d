#include "shell/kit/tablefilepart.h"

#include "settings/overloaded.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/labels.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>

#include <algorithm>

namespace quillfen {
namespace {

/// The most characters of a text that a field has room for.
constexpr int longText = 64;

QLabel* numberedLabel(const Control& control, int number)
{
    auto* label = labelFor(control.label, control.widget);
    label->setObjectName(QStringLiteral("lblLabel(%1)").arg(number));
    return label;
}

/// The field as wide as its content may be, and its unit behind it if it has one: a number doesn't stretch
/// across the window, and neither does a choice.
QWidget* sized(const Control& control)
{
    QWidget* field = control.widget;
    const bool takesText = control.place == ControlPlace::Text;
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins({});
    if (takesText)
        field->setMaximumWidth(longText * field->fontMetrics().averageCharWidth());
    else
        field->setSizePolicy(QSizePolicy::Fixed, field->sizePolicy().verticalPolicy());
    layout->addWidget(field, takesText ? 1 : 0);
    if (!control.unit.isEmpty()) {
        auto* unit = new QLabel(control.unit);
        unit->setTextFormat(Qt::PlainText);
        layout->addWidget(unit);
    }
    layout->addStretch();
    return widget;
}

bool isList(const Control& control)
{
    return control.place == ControlPlace::List;
}

/// The layout of the frame around a flag: the one that the column ends with, or a new one.
QLayout* frameOf(const QString& caption, QFormLayout& column)
{
    if (const auto* last = column.itemAt(column.rowCount() - 1, QFormLayout::SpanningRole)) {
        const auto* frame = qobject_cast<QGroupBox*>(last->widget());
        if (frame && frame->title() == caption)
            return frame->layout();
    }
    auto* frame = new QGroupBox(caption);
    column.addRow(frame);
    return new QVBoxLayout(frame);
}

/// The check lists of a form: one or two stand below each other beside the fields, more below the fields,
/// side by side. A last row of fewer lists is as wide as the others.
class CheckLists
{
public:
    explicit CheckLists(int count) : m_count(count), m_perRow(count <= 2 ? 1 : count == 4 ? 2 : 3) {}

    bool areMany() const { return m_perRow > 1; }

    void add(QGridLayout& grid, QLabel* label, QWidget* list)
    {
        const int row = m_place / m_perRow;
        const int span = columns / std::min(m_perRow, m_count - row * m_perRow);
        const int column = m_place % m_perRow * span;
        grid.setVerticalSpacing(2); // a label stands close to its list
        label->setContentsMargins(0, row > 0 ? 6 : 0, 0, 0);
        grid.addWidget(label, 2 * row, column, 1, span);
        grid.addWidget(list, 2 * row + 1, column, 1, span);
        for (int each = column; each < column + span; ++each)
            grid.setColumnStretch(each, 1);
        ++m_place;
    }

private:
    static constexpr int columns = 6; ///< one, two and three lists share them evenly

    int m_count;
    int m_perRow;
    int m_place = 0;
};

} // namespace

TableFilePart::TableFilePart(TableFile file, const FormContext& context, const OwnControl& own)
    : m_file(std::move(file)),
      m_context(context)
{
    for (const Setting& each : m_file.settings)
        addControl(each, own);
    m_widget = placed();
}

void TableFilePart::addControl(const Setting& setting, const OwnControl& own)
{
    const auto report = [this] { emit changed(); };
    const Overloaded adders = {
        [&](const setting::Field& field) {
            m_controls.push_back(makeControl(field, m_context.profiles, report));
        },
        [&](const setting::Idle& idle) {
            m_controls.push_back(makeIdleControl(idle, m_context.profiles, report));
        },
        [&](const setting::NamedTexts& texts) {
            m_controls.push_back(own(texts));
            m_controls.back().label = fromBytes(texts.label);
        },
        [](const auto& /*without a control*/) {},
    };
    std::visit(adders, setting);
}

QWidget* TableFilePart::placed() const
{
    const auto count = std::count_if(m_controls.begin(), m_controls.end(), isList);
    CheckLists lists(static_cast<int>(count));
    const auto beside = static_cast<std::ptrdiff_t>(m_controls.size()) - count;
    const bool crowded = beside > 12; // then check boxes and options get a column of their own
    auto* choices = new QFormLayout;
    auto* fields = new QFormLayout;
    auto* grid = new QGridLayout;
    int labels = 0;
    for (const Control& control : m_controls) {
        if (control.place == ControlPlace::Choice) {
            QFormLayout* column = crowded ? choices : fields;
            if (control.frame.isEmpty())
                column->addRow(control.widget);
            else
                frameOf(control.frame, *column)->addWidget(control.widget);
        } else if (isList(control)) {
            lists.add(*grid, numberedLabel(control, labels++), control.widget);
        } else if (control.label.isEmpty()) {
            fields->addRow(sized(control));
        } else {
            fields->addRow(numberedLabel(control, labels++), sized(control));
        }
    }
    auto* widget = new QWidget;
    auto* layout =
        new QBoxLayout(lists.areMany() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, widget);
    layout->setContentsMargins({});
    layout->setSpacing(12);
    for (auto* column : {choices, fields}) {
        if (column->rowCount() > 0)
            layout->addLayout(column, lists.areMany() ? 0 : 1);
        else
            delete column;
    }
    if (count > 0)
        layout->addLayout(grid, 1);
    else
        delete grid;
    return widget;
}

void TableFilePart::load()
{
    const SettingValues values = loaded(m_file, m_context.files.index(m_file.path), m_context.profiles);
    for (const Control& control : m_controls)
        control.show(values);
}

void TableFilePart::restore()
{
    const SettingValues values = restored(m_file, m_context.profiles);
    for (const Control& control : m_controls) {
        if (!control.keptByRestore)
            control.show(values);
    }
}

void TableFilePart::save()
{
    SettingValues values;
    for (const Control& control : m_controls)
        control.collect(values);
    saveTableFile(m_file, values, m_context.files, m_context.profiles);
}

} // namespace quillfen
