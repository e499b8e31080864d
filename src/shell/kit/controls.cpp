#include "shell/kit/controls.h"

#include "settings/lines.h"
#include "settings/profiles.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/combobox.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

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
    if (setting.onlyArrows)
        box->setOnlyArrows();
    box->setStep(setting.step);
    box->setText(QStringLiteral("0")); // what a load that stops half-way leaves
    QObject::connect(box, &NumberBox::textChanged, box, changed);
    return {box,
            [box, key = setting.key](const SettingValues& values) {
                const auto& value = values.at(key);
                box->setText(value.empty() ? QStringLiteral("0") : fromBytes(value));
            },
            [box, key = setting.key, asTyped = setting.savedAsTyped](SettingValues& values) {
                const bool isEmptied = box->text().trimmed().isEmpty();
                values[key] = isEmptied && !asTyped ? "0" : toBytes(box->text());
            }};
}

/// Keeps so many characters of a text. A limit on typing would keep out what is typed in front of the last
/// one.
void keepFirst(QLineEdit& box, int limit)
{
    QObject::connect(&box, &QLineEdit::textChanged, &box, [&box, limit](const QString& text) {
        if (text.size() > limit)
            box.setText(text.left(limit));
    });
}

Control textBox(const Setting& setting, const std::function<void()>& changed)
{
    auto* box = new QLineEdit;
    box->setObjectName(fromBytes(setting.control));
    limitToOneLine(*box);
    if (setting.limit > 0)
        keepFirst(*box, setting.limit);
    QObject::connect(box, &QLineEdit::textChanged, box, changed);
    return {box,
            [box, key = setting.key](const SettingValues& values) {
                box->setText(fromBytes(values.at(key)));
                box->home(false); // a long text shows its beginning
            },
            [box, key = setting.key](SettingValues& values) { values[key] = toBytes(box->text()); }};
}

Control comboBox(const Setting& setting, const std::function<void()>& changed)
{
    auto* box = new ComboBox;
    box->setObjectName(fromBytes(setting.control));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr); // it would turn a typed text into an entry of another case
    limitToOneLine(*box->lineEdit());
    for (const auto& each : setting.entries)
        box->addItem(fromBytes(each));
    QObject::connect(box, &QComboBox::editTextChanged, box, changed);
    return {box,
            [box, key = setting.key](const SettingValues& values) {
                box->setEditText(fromBytes(values.at(key)));
            },
            [box, key = setting.key](SettingValues& values) { values[key] = toBytes(box->currentText()); }};
}

Control letterBox(const Setting& setting, const std::function<void()>& changed)
{
    auto* box = new ComboBox;
    box->setObjectName(fromBytes(setting.control));
    for (const auto& each : setting.entries)
        box->addItem(fromBytes(each), fromBytes(each.substr(0, 1)));
    QObject::connect(box, &QComboBox::currentIndexChanged, box, changed);
    return {box,
            [box, key = setting.key](const SettingValues& values) {
                box->setCurrentIndex(box->findData(fromBytes(values.at(key)), Qt::UserRole,
                                                   Qt::MatchExactly | Qt::MatchCaseSensitive));
            },
            [box, key = setting.key](SettingValues& values) {
                values[key] = toBytes(box->currentData().toString());
            }};
}

Control profileBox(const Setting& setting, const HubProfiles& profiles, const std::function<void()>& changed)
{
    auto* box = new ComboBox;
    box->setObjectName(fromBytes(setting.control));
    for (std::size_t row = 1; row < profiles.count(); ++row)
        box->addItem(fromBytes(profiles.names()[row]));
    QObject::connect(box, &QComboBox::currentIndexChanged, box, changed);
    // Without a choice the stored key stays: none but the user gives new users the rights of another profile.
    const auto stored = std::make_shared<std::string>();
    return {box,
            [box, stored, key = setting.key](const SettingValues& values) {
                *stored = values.at(key).empty() ? "0" : values.at(key);
                bool isNumber = false;
                const int place = fromBytes(*stored).toInt(&isNumber);
                box->setCurrentIndex(isNumber && place < box->count() ? place : -1);
            },
            [box, stored, key = setting.key](SettingValues& values) {
                const int place =
                    box->findText(box->currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
                values[key] = place < 0 ? *stored : std::to_string(place);
            }};
}

/// Tab leads to the chosen option, as Qt does it itself only once the group has had the focus.
void letTabReachChosen(const std::vector<QRadioButton*>& buttons)
{
    auto chosen = std::find_if(buttons.begin(), buttons.end(),
                               [](const QRadioButton* button) { return button->isChecked(); });
    if (chosen == buttons.end())
        chosen = buttons.begin();
    for (auto* button : buttons)
        button->setFocusPolicy(button == *chosen ? Qt::StrongFocus : Qt::ClickFocus);
}

Control optionGroup(const Setting& setting, const std::function<void()>& changed)
{
    auto* group = new QGroupBox(fromBytes(setting.label));
    auto* layout = new QVBoxLayout(group);
    std::vector<QRadioButton*> buttons;
    for (const auto& each : setting.entries) {
        auto* button = new QRadioButton(fromBytes(each));
        const int place = setting.firstOption + static_cast<int>(buttons.size());
        button->setObjectName(QStringLiteral("%1(%2)").arg(fromBytes(setting.control)).arg(place));
        QObject::connect(button, &QRadioButton::toggled, button, changed);
        layout->addWidget(button);
        buttons.push_back(button);
    }
    return {group,
            [buttons, key = setting.key](const SettingValues& values) {
                const std::string chosen = values.at(key).empty() ? "0" : values.at(key);
                for (std::size_t place = 0; place < buttons.size(); ++place) {
                    buttons[place]->setAutoExclusive(false); // else the last choice can't be taken back
                    buttons[place]->setChecked(chosen == std::to_string(place));
                    buttons[place]->setAutoExclusive(true);
                }
                letTabReachChosen(buttons);
            },
            [buttons, key = setting.key](SettingValues& values) {
                const auto chosen =
                    std::find_if(buttons.begin(), buttons.end(),
                                 [](const QRadioButton* button) { return button->isChecked(); });
                values[key] = std::to_string(chosen == buttons.end() ? 0 : chosen - buttons.begin());
            }};
}

/// A check list: the texts of its rows and their names among the values.
Control checkList(const Setting& setting, const std::vector<std::pair<std::string, std::string>>& flags,
                  const std::function<void()>& changed)
{
    auto* list =
        new RowList(fromBytes(setting.control),
                    setting.column.empty() ? QStringList() : QStringList(fromBytes(setting.column)), true);
    QObject::connect(list, &RowList::tickChanged, list, changed);
    return {list,
            [list, flags](const SettingValues& values) {
                std::vector<CellRow> rows;
                rows.reserve(flags.size());
                for (const auto& [text, name] : flags)
                    rows.push_back({{text}, isOne(values.at(name))});
                list->setRows(std::move(rows));
            },
            [list, flags](SettingValues& values) {
                std::size_t place = 0;
                for (const CellRow& row : list->rows())
                    values[flags.at(place++).second] = row.checked ? "1" : "0";
            }};
}

Control profileList(const Setting& setting, const HubProfiles& profiles, const std::function<void()>& changed)
{
    std::vector<std::pair<std::string, std::string>> flags;
    for (std::size_t row = setting.firstProfile; row < profiles.count(); ++row)
        flags.emplace_back(profiles.names()[row], profileRow(setting, row));
    return checkList(setting, flags, changed);
}

Control flagList(const Setting& setting, const std::function<void()>& changed)
{
    std::vector<std::pair<std::string, std::string>> flags;
    for (const std::string& each : setting.entries)
        flags.emplace_back(each, flagRow(setting, each));
    return checkList(setting, flags, changed);
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
    case Setting::Kind::Options:
        return optionGroup(setting, changed);
    case Setting::Kind::Profiles:
        return profileList(setting, profiles, changed);
    case Setting::Kind::Flags:
        return flagList(setting, changed);
    case Setting::Kind::Profile:
        return profileBox(setting, profiles, changed);
    case Setting::Kind::Letter:
        return letterBox(setting, changed);
    case Setting::Kind::Texts:
    case Setting::Kind::Rows:
        break;
    }
    return {};
}

} // namespace

Control makeControl(const Setting& setting, const HubProfiles& profiles, const std::function<void()>& changed)
{
    Control control = controlOfKind(setting, profiles, changed);
    control.widget->setAccessibleName(fromBytes(setting.label.empty() ? setting.toolTip : setting.label));
    if (!setting.toolTip.empty()) // else the control's own stays, if it has one
        control.widget->setToolTip(fromBytes(setting.toolTip));
    return control;
}

} // namespace quillfen
