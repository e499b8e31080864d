#include "shell/kit/editdialog.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/combobox.h"
#include "shell/kit/labels.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/windowtitle.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace quillfen {
namespace {

constexpr int widestLabel = 40; ///< in characters; a label may hold an owner's text of any length

/// What a mode asks of a dialog: the places of the fields that must not be empty, and whether Add may ever
/// light.
struct Mode
{
    const char* required;
    bool bNoAdd = false;
};

/// A dialog: its name and its modes from 0.
struct Kind
{
    const char* name;
    std::vector<Mode> modes;
};

const Kind& kindOf(EditForm form)
{
    static const std::vector<Mode> one = {{"0", true}, {"0"}};
    static const std::vector<Mode> three = {{"0", true}, {"1"}, {"02"}, {"12"}, {"012"}, {"012", true}};
    static const Kind kinds[] = {
        {"frmGlobalEditOneFields", one},
        {"frmGlobalEditTwoFields", {{""}, {"01"}, {"01", true}}},
        {"frmGlobalEditThreeFields", three},
        {"frmGlobalEditFourFields", {{"0", true}, {"1"}, {"02"}, {"12"}, {"012"}, {"0123", true}, {"0123"}}},
        {"frmGlobalEditOneUpDown", one},
        {"frmGlobalEditTwoUpDowns", {{"0", true}, {"01", true}, {"1"}}},
        {"frmGlobalEditTextCombo", {{"", true}, {"0"}, {"1"}}},
        {"frmGlobalEditTwoTextCombo", {{"", true}, {"0"}, {"2"}, {"02"}, {"012"}}},
        {"frmGlobalEditOneTextTwoCombo", {{"", true}, {"0"}, {"1"}, {"01"}, {"012"}}},
        {"frmGlobalEditUpDownCombo", {{"0", true}, {"01", true}}},
        {"frmGlobalEditThreeCombos", three},
        {"frmGlobalEditFourCombos",
         {{"0", true}, {"1"}, {"02"}, {"12"}, {"012"}, {"012", true}, {"0123"}, {"0123", true}}},
    };
    return kinds[static_cast<std::size_t>(form)];
}

/// Modes outside a dialog's own colour nothing.
Mode modeOf(const EditRequest& request)
{
    const auto& modes = kindOf(request.form).modes;
    const auto mode = static_cast<std::size_t>(request.gEditMode);
    return mode < modes.size() ? modes[mode] : Mode{""};
}

bool isRequired(const EditRequest& request, std::size_t number)
{
    const std::string_view required = modeOf(request).required;
    return required.find(static_cast<char>('0' + number)) != std::string_view::npos;
}

template <typename Value>
Value valueAt(const std::vector<Value>& values, std::size_t at, const Value& otherwise = {})
{
    return at < values.size() ? values[at] : otherwise;
}

/// The colour is the message of a required field: a light red, with a text that can be read on it in every
/// theme.
void colourAsRequired(QWidget& input)
{
    const QColor lightRed(0xFF, 0x80, 0x80);
    QPalette palette = input.palette();
    palette.setColor(QPalette::Base, lightRed);
    palette.setColor(QPalette::Text, Qt::black);
    input.setPalette(palette);
    if (auto* box = qobject_cast<ComboBox*>(&input)) {
        box->setFlatField(true);
        QPalette entries = box->view()->palette(); // those that drop down aren't asked for
        for (const auto role : {QPalette::Base, QPalette::Text})
            entries.setColor(role, QApplication::palette().color(role));
        box->view()->setPalette(entries);
    }
}

} // namespace

EditDialog::EditDialog(const EditRequest& request, QWidget* parent)
    : QDialog(parent),
      m_mayAdd(request.gEditResult == EditResult::Add && !modeOf(request).bNoAdd)
{
    setObjectName(kindOf(request.form).name);
    setWindowTitle(windowTitleOf(fromBytes(request.title)));
    auto* frame = new QFrame;
    frame->setObjectName("fraFrame");
    frame->setLayout(new QFormLayout);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame, 1);
    std::size_t number = 0;
    for (const char input : inputsOf(request.form))
        addField(request, number++, input);
    addButtons();
    setMinimumWidth(420);
    fitTexts();
    follow();
    m_fields.front().input->setFocus();
}

void EditDialog::addField(const EditRequest& request, std::size_t number, char kind)
{
    const auto value = valueAt(request.values, number);
    Field field = kind == 'T'   ? textField(value)
                  : kind == 'N' ? numberField(request, value)
                                : comboField(request, value);
    field.required = isRequired(request, number);
    if (field.required)
        colourAsRequired(*field.input);

    const QString caption = fromBytes(valueAt(request.labels, number));
    auto* label = labelFor(caption, field.input);
    label->setObjectName(QStringLiteral("lblLabel(%1)").arg(number));
    elide(*label, caption, widestLabel);
    field.input->setAccessibleName(caption);
    qobject_cast<QFormLayout*>(findChild<QFrame*>("fraFrame")->layout())->addRow(label, field.input);
    m_fields.push_back(std::move(field));
}

EditDialog::Field EditDialog::textField(const std::string& value)
{
    auto* box = new QLineEdit(fromBytes(value));
    box->setObjectName(QStringLiteral("txtTextBox(%1)").arg(m_texts++));
    limitToOneLine(*box);
    box->home(false); // a long text shows its beginning
    connect(box, &QLineEdit::textChanged, this, &EditDialog::follow);
    return {box, [box] { return toBytes(box->text()); }, false};
}

EditDialog::Field EditDialog::numberField(const EditRequest& request, const std::string& value)
{
    const auto range =
        valueAt(request.ranges, static_cast<std::size_t>(m_numbers), {0, std::numeric_limits<int>::max()});
    auto* box = new NumberBox(QStringLiteral("txtTextBox(%1)").arg(m_texts++), range.first, range.second);
    box->setObjectName(QStringLiteral("updUpDown(%1)").arg(m_numbers++));
    box->setText(fromBytes(value));
    connect(box, &NumberBox::textChanged, this, &EditDialog::follow);
    return {box, [box] { return toBytes(box->text()); }, false};
}

EditDialog::Field EditDialog::comboField(const EditRequest& request, const std::string& value)
{
    auto* box = new ComboBox;
    box->setObjectName(QStringLiteral("cboComboBox(%1)").arg(m_combos));
    for (const auto& entry : valueAt(request.entries, static_cast<std::size_t>(m_combos++)))
        box->addItem(fromBytes(entry));
    box->setCurrentIndex(box->findText(fromBytes(value), Qt::MatchExactly | Qt::MatchCaseSensitive));
    connect(box, &QComboBox::currentTextChanged, this, &EditDialog::follow);
    return {box, [box] { return toBytes(box->currentText()); }, false};
}

/// As wide as the texts need, where the window behind has that room.
void EditDialog::fitTexts()
{
    int wanted = minimumWidth();
    for (const auto* box : findChildren<QLineEdit*>()) {
        const int text =
            box->fontMetrics().horizontalAdvance(box->text()) + 4 * box->fontMetrics().averageCharWidth();
        wanted = std::max(wanted, sizeHint().width() - box->sizeHint().width() + text);
    }
    const int room = parentWidget() ? parentWidget()->window()->width() : minimumWidth();
    resize(std::clamp(wanted, minimumWidth(), std::max(room, minimumWidth())), sizeHint().height());
}

void EditDialog::addButtons()
{
    auto* buttons = new QDialogButtonBox;
    m_ok = buttons->addButton(QDialogButtonBox::Ok);
    m_ok->setObjectName("cmdOK");
    m_add = buttons->addButton("Add", QDialogButtonBox::ActionRole);
    m_add->setObjectName("cmdAdd");
    auto* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName("cmdCancel");
    cancel->setText("Cancel");
    m_ok->setDefault(true);
    connect(m_ok, &QPushButton::clicked, this, [this] { finish(EditResult::Ok); });
    connect(m_add, &QPushButton::clicked, this, [this] { finish(EditResult::Add); });
    connect(cancel, &QPushButton::clicked, this, [this] {
        m_answer.byCancel = true;
        reject();
    });
    layout()->addWidget(buttons);
}

void EditDialog::follow()
{
    if (!m_ok) // the fields are still being made
        return;
    const bool filled = !m_fields.front().text().empty();
    m_ok->setEnabled(filled);
    m_add->setEnabled(filled && m_mayAdd);
}

void EditDialog::finish(EditResult result)
{
    for (const Field& field : m_fields) {
        if (field.required && field.text().empty()) {
            field.input->setFocus();
            return;
        }
    }
    m_answer.gEditResult = result;
    for (const Field& field : m_fields)
        m_answer.gEditValues.push_back(field.text());
    accept();
}

EditAnswer showEditDialog(QWidget* parent, const EditRequest& request)
{
    EditDialog dialog(request, parent);
    dialog.exec();
    return dialog.answer();
}

void addRows(QWidget* parent, const EditRequest& request,
             const std::function<void(const std::vector<std::string>&)>& take)
{
    EditAnswer answer{EditResult::Add};
    while (answer.gEditResult == EditResult::Add) {
        answer = showEditDialog(parent, request);
        if (answer.gEditResult != EditResult::None)
            take(answer.gEditValues);
    }
}

std::string fieldsFault(const EditRequest& request, const std::vector<std::string>& values)
{
    const std::string_view inputs = inputsOf(request.form);
    if (values.size() > inputs.size())
        return "there are more cells than fields, which are " + std::to_string(inputs.size());
    std::size_t combos = 0;
    for (std::size_t number = 0; number < inputs.size(); ++number) {
        const std::string value = valueAt(values, number);
        const std::string label = valueAt(request.labels, number);
        if (value.empty() && (number == 0 || isRequired(request, number)))
            return label + " is missing";
        if (inputs[number] != 'C')
            continue;
        const auto entries = valueAt(request.entries, combos++);
        if (!value.empty() && std::find(entries.begin(), entries.end(), value) == entries.end())
            return label + " can't be \"" + value + '"';
    }
    return {};
}

int habitualAddMode(EditForm form)
{
    return inputsOf(form).size() < 3 ? 1 : 4;
}

int habitualEditMode(EditForm form)
{
    constexpr int modes[] = {0, 2, 5, 5};
    return modes[inputsOf(form).size() - 1];
}

} // namespace quillfen
