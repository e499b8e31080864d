#include "shell/kit/tablefilepart.h"

#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillfen {
namespace {

QLabel* labelFor(const Setting& setting, QWidget* field, int number)
{
    auto* label = new QLabel(fromBytes(setting.label));
    label->setObjectName(QStringLiteral("lblLabel(%1)").arg(number));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(field);
    return label;
}

} // namespace

TableFilePart::TableFilePart(const TableFile& file, const FormContext& context)
    : m_file(file),
      m_context(context)
{
    for (const Setting& setting : file.settings)
        m_controls.push_back(makeControl(setting, context.profiles, [this] { emit changed(); }));
    m_widget = placed();
}

QWidget* TableFilePart::placed() const
{
    auto* fields = new QFormLayout;
    auto* lists = new QVBoxLayout;
    int labels = 0;
    for (std::size_t at = 0; at < m_controls.size(); ++at) {
        const Setting& setting = m_file.settings[at];
        QWidget* control = m_controls[at].widget;
        if (setting.kind == Setting::Kind::Flag) {
            fields->addRow(control);
        } else if (setting.kind == Setting::Kind::Profiles) {
            lists->addWidget(labelFor(setting, control, labels++));
            lists->addWidget(control, 1);
        } else {
            fields->addRow(labelFor(setting, control, labels++), control);
        }
    }
    auto* widget = new QWidget;
    auto* columns = new QHBoxLayout(widget);
    columns->setContentsMargins({});
    columns->addLayout(fields, 1);
    if (lists->count() > 0)
        columns->addLayout(lists, 1);
    else
        delete lists;
    return widget;
}

void TableFilePart::show(const SettingValues& values)
{
    for (const Control& control : m_controls)
        control.show(values);
}

void TableFilePart::load()
{
    show(loaded(m_file, m_context.files.index(m_file.path), m_context.profiles));
}

void TableFilePart::restore()
{
    show(restored(m_file, m_context.profiles));
}

void TableFilePart::save()
{
    SettingValues values;
    for (const Control& control : m_controls)
        control.collect(values);
    m_context.files.WriteSettingsFile(m_file.path,
                                      composed(m_file, values, RowOrder::Save, m_context.profiles));
}

} // namespace quillfen
