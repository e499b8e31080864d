#include "shell/kit/tablefilepart.h"

#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/labels.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace quillfen {
namespace {

QLabel* numberedLabel(const Setting& setting, QWidget* field, int number)
{
    auto* label = labelFor(fromBytes(setting.label), field);
    label->setObjectName(QStringLiteral("lblLabel(%1)").arg(number));
    return label;
}

bool isCheckList(const Setting& setting)
{
    return setting.kind == Setting::Kind::Profiles || setting.kind == Setting::Kind::Flags;
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
    const auto beside = std::count_if(m_file.settings.begin(), m_file.settings.end(),
                                      [](const Setting& setting) { return !isCheckList(setting); });
    const bool crowded = beside > 12; // then check boxes and options get a column of their own
    auto* choices = new QFormLayout;
    auto* fields = new QFormLayout;
    auto* lists = new QVBoxLayout;
    int labels = 0;
    for (std::size_t at = 0; at < m_controls.size(); ++at) {
        const Setting& setting = m_file.settings[at];
        QWidget* control = m_controls[at].widget;
        if (setting.kind == Setting::Kind::Flag || setting.kind == Setting::Kind::Options) {
            (crowded ? choices : fields)->addRow(control);
        } else if (isCheckList(setting)) {
            lists->addWidget(numberedLabel(setting, control, labels++));
            lists->addWidget(control, 1);
        } else {
            fields->addRow(numberedLabel(setting, control, labels++), control);
        }
    }
    auto* widget = new QWidget;
    auto* columns = new QHBoxLayout(widget);
    columns->setContentsMargins({});
    for (auto* column : {choices, fields}) {
        if (column->rowCount() > 0)
            columns->addLayout(column, 1);
        else
            delete column;
    }
    if (lists->count() > 0)
        columns->addLayout(lists, 1);
    else
        delete lists;
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
        if (!m_file.settings[at].keptByRestore)
            m_controls[at].show(values);
    }
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
