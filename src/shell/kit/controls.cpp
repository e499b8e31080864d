#include "shell/kit/controls.h"

#include "settings/lines.h"
#include "settings/overloaded.h"
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

Control checkBox(const setting::Field& field, const setting::Flag& flag, const std::function<void()>& changed)
{
    auto* box = new QCheckBox(fromBytes(field.label));
    box->setObjectName(fromBytes(field.control));
    QObject::connect(box, &QCheckBox::toggled, box, changed);
    return {box,
            [box, key = field.key](const SettingValues& values) { box->setChecked(isOne(values.at(key))); },
            [box, key = field.key](SettingValues& values) { values[key] = box->isChecked() ? "1" : "0"; },
            ControlPlace::Choice, fromBytes(flag.details.frame)};
}

Control numberBox(const setting::Field& field, const setting::Number& number,
                  const std::function<void()>& changed)
{
    auto* box = new NumberBox(fromBytes(field.control), number.minimum, number.maximum);
    if (number.details.onlyArrows)
        box->setOnlyArrows();
    box->setStep(number.details.step);
    box->setText(QStringLiteral("0")); // what a load that stops half-way leaves
    QObject::connect(box, &NumberBox::textChanged, box, changed);
    return {box,
            [box, key = field.key](const SettingValues& values) {
                const auto& value = values.at(key);
                box->setText(value.empty() ? QStringLiteral("0") : fromBytes(value));
            },
            [box, key = field.key, asTyped = number.details.savedAsTyped](SettingValues& values) {
                const bool isEmptied = box->text().trimmed().isEmpty();
                values[key] = isEmptied && !asTyped ? "0" : toBytes(box->text());
            },
            ControlPlace::Field,
            {},
            fromBytes(number.details.unit)};
}

/// Leaves room for a text.
void widen(QWidget& field)
{
    constexpr int characters = 24;
    field.setMinimumWidth(characters * field.fontMetrics().averageCharWidth());
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

Control textBox(const setting::Field& field, const setting::Text& text, const std::function<void()>& changed)
{
    auto* box = new QLineEdit;
    box->setObjectName(fromBytes(field.control));
    limitToOneLine(*box);
    if (text.limit > 0)
        keepFirst(*box, text.limit);
    else
        widen(*box);
    QObject::connect(box, &QLineEdit::textChanged, box, changed);
    return {box,
            [box, key = field.key](const SettingValues& values) {
                box->setText(fromBytes(values.at(key)));
                box->home(false); // a long text shows its beginning
            },
            [box, key = field.key](SettingValues& values) { values[key] = toBytes(box->text()); },
            ControlPlace::Text};
}

Control comboBox(const setting::Field& field, const setting::Entry& entry,
                 const std::function<void()>& changed)
{
    auto* box = new ComboBox;
    box->setObjectName(fromBytes(field.control));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr); // it would turn a typed text into an entry of another case
    limitToOneLine(*box->lineEdit());
    widen(*box);
    for (const auto& each : entry.entries)
        box->addItem(fromBytes(each));
    QObject::connect(box, &QComboBox::editTextChanged, box, changed);
    return {
        box,
        [box, key = field.key](const SettingValues& values) { box->setEditText(fromBytes(values.at(key))); },
        [box, key = field.key](SettingValues& values) { values[key] = toBytes(box->currentText()); },
        ControlPlace::Text};
}

Control letterBox(const setting::Field& field, const setting::Letter& letter,
                  const std::function<void()>& changed)
{
    auto* box = new ComboBox;
    box->setObjectName(fromBytes(field.control));
    for (const auto& each : letter.words)
        box->addItem(fromBytes(each), fromBytes(setting::letterOf(each)));
    QObject::connect(box, &QComboBox::currentIndexChanged, box, changed);
    return {box,
            [box, key = field.key](const SettingValues& values) {
                box->setCurrentIndex(box->findData(fromBytes(values.at(key)), Qt::UserRole,
                                                   Qt::MatchExactly | Qt::MatchCaseSensitive));
            },
            [box, key = field.key](SettingValues& values) {
                values[key] = toBytes(box->currentData().toString());
            },
            ControlPlace::Field};
}

Control profileBox(const setting::Field& field, const HubProfiles& profiles,
                   const std::function<void()>& changed)
{
    auto* box = new ComboBox;
    box->setObjectName(fromBytes(field.control));
    for (std::size_t row = 1; row < profiles.count(); ++row)
        box->addItem(fromBytes(profiles.names()[row]));
    QObject::connect(box, &QComboBox::currentIndexChanged, box, changed);
    // Without a choice the stored key stays: none but the user gives new users the rights of another profile.
    const auto stored = std::make_shared<std::string>();
    return {box,
            [box, stored, key = field.key](const SettingValues& values) {
                *stored = values.at(key).empty() ? "0" : values.at(key);
                bool isNumber = false;
                const int place = fromBytes(*stored).toInt(&isNumber);
                box->setCurrentIndex(isNumber && place < box->count() ? place : -1);
            },
            [box, stored, key = field.key](SettingValues& values) {
                const int place =
                    box->findText(box->currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
                values[key] = place < 0 ? *stored : std::to_string(place);
            },
            ControlPlace::Field};
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

Control optionGroup(const setting::Field& field, const setting::Options& options,
                    const std::function<void()>& changed)
{
    auto* group = new QGroupBox(fromBytes(field.label));
    auto* layout = new QVBoxLayout(group);
    std::vector<QRadioButton*> buttons;
    for (const auto& each : options.captions) {
        auto* button = new QRadioButton(fromBytes(each));
        const int place = options.firstButton + static_cast<int>(buttons.size());
        button->setObjectName(QStringLiteral("%1(%2)").arg(fromBytes(field.control)).arg(place));
        QObject::connect(button, &QRadioButton::toggled, button, changed);
        layout->addWidget(button);
        buttons.push_back(button);
    }
    return {group,
            [buttons, key = field.key](const SettingValues& values) {
                const std::string chosen = values.at(key).empty() ? "0" : values.at(key);
                for (std::size_t place = 0; place < buttons.size(); ++place) {
                    buttons[place]->setAutoExclusive(false); // else the last choice can't be taken back
                    buttons[place]->setChecked(chosen == std::to_string(place));
                    buttons[place]->setAutoExclusive(true);
                }
                letTabReachChosen(buttons);
            },
            [buttons, key = field.key](SettingValues& values) {
                const auto chosen =
                    std::find_if(buttons.begin(), buttons.end(),
                                 [](const QRadioButton* button) { return button->isChecked(); });
                values[key] = std::to_string(chosen == buttons.end() ? 0 : chosen - buttons.begin());
            },
            ControlPlace::Choice};
}

/// A row of a check list: what it shows, and the name of its flag among the values.
struct ListedFlag
{
    std::string text;
    std::string name;
};

Control checkList(const setting::Field& field, const std::string& heading,
                  const std::vector<ListedFlag>& flags, const std::function<void()>& changed)
{
    const QStringList columns = heading.empty() ? QStringList() : QStringList(fromBytes(heading));
    auto* list = new RowList(fromBytes(field.control), columns, true);
    QObject::connect(list, &RowList::tickChanged, list, changed);
    return {list,
            [list, flags](const SettingValues& values) {
                std::vector<CellRow> rows;
                rows.reserve(flags.size());
                for (const ListedFlag& flag : flags)
                    rows.push_back({{flag.text}, isOne(values.at(flag.name))});
                list->setRows(std::move(rows));
            },
            [list, flags](SettingValues& values) {
                std::size_t place = 0;
                for (const CellRow& row : list->rows())
                    values[flags.at(place++).name] = row.checked ? "1" : "0";
            }};
}

Control profileList(const setting::Field& field, const setting::ProfileFlags& profileFlags,
                    const HubProfiles& profiles, const std::function<void()>& changed)
{
    std::vector<ListedFlag> flags;
    for (std::size_t row = profileFlags.firstProfile; row < profiles.count(); ++row)
        flags.push_back({profiles.names()[row], profileRow(field.key, row)});
    return checkList(field, profileFlags.heading, flags, changed);
}

Control flagList(const setting::Field& field, const setting::NamedFlags& namedFlags,
                 const std::function<void()>& changed)
{
    std::vector<ListedFlag> flags;
    for (const std::string& each : namedFlags.names)
        flags.push_back({each, flagRow(field.key, each)});
    return checkList(field, {}, flags, changed);
}

Control controlOfKind(const setting::Field& field, const HubProfiles& profiles,
                      const std::function<void()>& changed)
{
    const Overloaded makers = {
        [&](const setting::Flag& flag) { return checkBox(field, flag, changed); },
        [&](const setting::Number& number) { return numberBox(field, number, changed); },
        [&](const setting::Text& text) { return textBox(field, text, changed); },
        [&](const setting::Entry& entry) { return comboBox(field, entry, changed); },
        [&](const setting::Options& options) { return optionGroup(field, options, changed); },
        [&](const setting::ProfileFlags& flags) { return profileList(field, flags, profiles, changed); },
        [&](const setting::NamedFlags& flags) { return flagList(field, flags, changed); },
        [&](const setting::ProfileKey&) { return profileBox(field, profiles, changed); },
        [&](const setting::Letter& letter) { return letterBox(field, letter, changed); },
    };
    return std::visit(makers, field.kind);
}

} // namespace

Control makeControl(const setting::Field& field, const HubProfiles& profiles,
                    const std::function<void()>& changed)
{
    Control control = controlOfKind(field, profiles, changed);
    control.label = fromBytes(field.label);
    control.keptByRestore = field.keptByRestore;
    const QString toolTip = fromBytes(field.toolTip);
    control.widget->setAccessibleName(control.label.isEmpty() ? toolTip : control.label);
    if (!toolTip.isEmpty()) // else the control's own stays, if it has one
        control.widget->setToolTip(toolTip);
    return control;
}

Control makeIdleControl(const setting::Idle& idle, const HubProfiles& profiles,
                        const std::function<void()>& changed)
{
    Control control = makeControl(idle.field, profiles, changed);
    control.show({{idle.field.key, setting::defaultText(idle.field.kind)}});
    control.show = [](const SettingValues&) {};
    control.collect = [](SettingValues&) {};
    return control;
}

} // namespace quillfen
