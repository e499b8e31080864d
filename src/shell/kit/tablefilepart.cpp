#include "shell/kit/tablefilepart.h"

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

QLabel* numberedLabel(const Setting& setting, QWidget* field, int number)
{
    auto* label = labelFor(fromBytes(setting.label), field);
    label->setObjectName(QStringLiteral("lblLabel(%1)").arg(number));
    return label;
}

/// The field, and its unit behind it if it has one.
QWidget* withUnit(const Setting& setting, QWidget* field)
{
    if (setting.unit.empty())
        return field;
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins({});
    layout->addWidget(field, 1);
    auto* unit = new QLabel(fromBytes(setting.unit));
    unit->setTextFormat(Qt::PlainText);
    layout->addWidget(unit);
    return widget;
}

bool isList(const Setting& setting)
{
    return setting.kind == Setting::Kind::Profiles || setting.kind == Setting::Kind::Flags ||
           setting.kind == Setting::Kind::Texts;
}

/// The layout of the frame around a flag: the one that the column ends with, or a new one.
QLayout* frameOf(const Setting& setting, QFormLayout& column)
{
    const QString caption = fromBytes(setting.frame);
    if (const auto* last = column.itemAt(column.rowCount() - 1, QFormLayout::SpanningRole)) {
        const auto* frame = qobject_cast<QGroupBox*>(last->widget());
        if (frame && frame->title() == caption)
            return frame->layout();
    }
    auto* frame = new QGroupBox(caption);
    column.addRow(frame);
    return new QVBoxLayout(frame);
}

} // namespace

TableFilePart::TableFilePart(const TableFile& file, const FormContext& context, const OwnControl& own)
    : m_file(file),
      m_context(context)
{
    for (const Setting& setting : file.settings) {
        if (!hasControl(setting))
            continue;
        m_settings.push_back(&setting);
        m_controls.push_back(controlOf(setting, own));
    }
    m_widget = placed();
}

Control TableFilePart::controlOf(const Setting& setting, const OwnControl& own)
{
    if (setting.kind == Setting::Kind::Texts)
        return own(setting);
    Control control = makeControl(setting, m_context.profiles, [this] { emit changed(); });
    if (setting.idle) {
        control.show({{setting.key, setting.standard}});
        control.show = [](const SettingValues&) {};
        control.collect = [](SettingValues&) {};
    }
    return control;
}

QWidget* TableFilePart::placed() const
{
    const auto lists = std::count_if(m_settings.begin(), m_settings.end(),
                                     [](const Setting* setting) { return isList(*setting); });
    const auto beside = static_cast<std::ptrdiff_t>(m_settings.size()) - lists;
    const bool crowded = beside > 12; // then check boxes and options get a column of their own
    const bool manyLists = lists > 3; // then they stand below the fields, side by side
    auto* choices = new QFormLayout;
    auto* fields = new QFormLayout;
    auto* grid = new QGridLayout;
    int labels = 0;
    int place = 0;
    for (std::size_t at = 0; at < m_controls.size(); ++at) {
        const Setting& setting = *m_settings[at];
        QWidget* control = m_controls[at].widget;
        if (setting.kind == Setting::Kind::Flag || setting.kind == Setting::Kind::Options) {
            QFormLayout* column = crowded ? choices : fields;
            if (setting.frame.empty())
                column->addRow(control);
            else
                frameOf(setting, *column)->addWidget(control);
        } else if (isList(setting)) {
            const int row = manyLists ? place / 3 : place;
            const int column = manyLists ? place % 3 : 0;
            grid->addWidget(numberedLabel(setting, control, labels++), 2 * row, column);
            grid->addWidget(control, 2 * row + 1, column);
            ++place;
        } else if (setting.label.empty()) {
            fields->addRow(withUnit(setting, control));
        } else {
            fields->addRow(numberedLabel(setting, control, labels++), withUnit(setting, control));
        }
    }
    auto* widget = new QWidget;
    auto* layout = new QBoxLayout(manyLists ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, widget);
    layout->setContentsMargins({});
    for (auto* column : {choices, fields}) {
        if (column->rowCount() > 0)
            layout->addLayout(column, manyLists ? 0 : 1);
        else
            delete column;
    }
    if (lists > 0)
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
    for (std::size_t at = 0; at < m_controls.size(); ++at) {
        if (!m_settings[at]->keptByRestore)
            m_controls[at].show(values);
    }
}

void TableFilePart::save()
{
    SettingValues values;
    for (const Control& control : m_controls)
        control.collect(values);
    saveTableFile(m_file, values, m_context.files, m_context.profiles);
}

FormMaker settingsForm(const FormDescription& description, const TableFile& file)
{
    return {description.name, [description, &file](const FormContext& context) {
                auto* form = new EditorForm(description);
                form->add(new TableFilePart(file, context));
                return form;
            }};
}

} // namespace quillfen
