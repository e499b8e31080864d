#include "shell/kit/controls.h"

#include "settings/lines.h"
#include "settings/profiles.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/ticklist.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <limits>

namespace quillfen {
namespace {

Control checkBox(const Setting& setting, const std::function<void()>& changed)
{
    auto* box = new QCheckBox(fromBytes(setting.label));
    box->setObjectName(fromBytes(setting.control));
    QObject::connect(box, &QCheckBox::toggled, box, changed);
    return {box,
            [box, key = setting.key](const SettingValues& values) { box->setChecked(isOne(values.at(key))); },
            [box, key = setting.key](SettingValues& values) { values[key] = box->isChecked() ? "1" : "0"; }};
}

Control numberBox(const Setting& setting, const std::function<void()>& changed)
{
    auto* box = new NumberBox(fromBytes(setting.control), setting.minimum, setting.maximum);
    QObject::connect(box, &NumberBox::textChanged, box, changed);
    return {box,
            [box, key = setting.key](const SettingValues& values) {
                const auto& value = values.at(key);
                box->setText(value.empty() ? QStringLiteral("0") : fromBytes(value));
            },
            [box, key = setting.key](SettingValues& values) { values[key] = toBytes(box->text()); }};
}

void limitToCodePage(QLineEdit& edit)
{
    edit.setValidator(new CodePageValidator(&edit));
    edit.setMaxLength(std::numeric_limits<int>::max());
}

Control textBox(const Setting& setting, const std::function<void()>& changed)
{
    auto* box = new QLineEdit;
    box->setObjectName(fromBytes(setting.control));
    limitToCodePage(*box);
    QObject::connect(box, &QLineEdit::textChanged, box, changed);
    return {
        box,
        [box, key = setting.key](const SettingValues& values) { box->setText(fromBytes(values.at(key))); },
        [box, key = setting.key](SettingValues& values) { values[key] = toBytes(box->text()); }};
}

Control comboBox(const Setting& setting, const std::function<void()>& changed)
{
    auto* box = new QComboBox;
    box->setObjectName(fromBytes(setting.control));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr); // it would turn a typed text into an entry of another case
    limitToCodePage(*box->lineEdit());
    for (const auto& each : setting.entries)
        box->addItem(fromBytes(each));
    QObject::connect(box, &QComboBox::editTextChanged, box, changed);
    return {box,
            [box, key = setting.key](const SettingValues& values) {
                box->setEditText(fromBytes(values.at(key)));
            },
            [box, key = setting.key](SettingValues& values) { values[key] = toBytes(box->currentText()); }};
}

Control profileList(const Setting& setting, const HubProfiles& profiles, const std::function<void()>& changed)
{
    auto* list = new TickList(fromBytes(setting.control), QString());
    QObject::connect(list, &TickList::tickChanged, list, changed);
    return {list,
            [list, setting, &profiles](const SettingValues& values) {
                std::vector<ListRow> rows;
                for (std::size_t row = 0; row < profiles.count(); ++row)
                    rows.push_back({profiles.names()[row], {}, isOne(values.at(profileRow(setting, row)))});
                list->setRows(rows);
            },
            [list, setting](SettingValues& values) {
                const auto rows = list->rows();
                for (std::size_t row = 0; row < rows.size(); ++row)
                    values[profileRow(setting, row)] = rows[row].checked ? "1" : "0";
            }};
}

Control controlOfKind(const Setting& setting, const HubProfiles& profiles,
                      const std::function<void()>& changed)
{
    switch (setting.kind) {
    case Setting::Kind::Flag:
        return checkBox(setting, changed);
    case Setting::Kind::Number:
        return numberBox(setting, changed);
    case Setting::Kind::Text:
        return textBox(setting, changed);
    case Setting::Kind::Entry:
        return comboBox(setting, changed);
    case Setting::Kind::Profiles:
        return profileList(setting, profiles, changed);
    }
    return {};
}

} // namespace

Control makeControl(const Setting& setting, const HubProfiles& profiles, const std::function<void()>& changed)
{
    Control control = controlOfKind(setting, profiles, changed);
    control.widget->setAccessibleName(fromBytes(setting.label));
    return control;
}

} // namespace quillfen
