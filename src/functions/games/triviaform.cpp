#include "functions/games/triviaform.h"

#include "functions/games/trivia.h"
#include "settings/codepage.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/combobox.h"
#include "shell/kit/hourglass.h"
#include "shell/kit/labels.h"
#include "shell/kit/listedfilespart.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbarlist.h"

#include <QFormLayout>

#include <algorithm>

namespace quillfen {
namespace {

QWidget* labelledDefault(QComboBox& box)
{
    box.setObjectName("cboQuestionFileDefault");
    box.setAccessibleName("Default Question File");
    auto* widget = new QWidget;
    auto* fields = new QFormLayout(widget);
    fields->setContentsMargins({});
    fields->setRowWrapPolicy(QFormLayout::WrapAllRows);
    fields->addRow(labelFor("Default Question File", &box), &box);
    return widget;
}

/// The question files with the default among them, and the questions of the one that is open.
class QuestionsPart : public ListedFilesPart
{
public:
    explicit QuestionsPart(const FormContext& context);

    void load() override;
    void save() override;
    void saveOpenFile() override;

protected:
    void startFile(const std::string& name) override;
    bool mayJoin(const std::string& name) override;
    void openFile(const std::string& name) override;
    bool mustStay(const std::string& name) override;
    bool asksToGo(const std::string& name) override;
    void followGone(const std::string& name) override;
    void saveFile() override;
    void closeFile() override;
    void addName(const std::string& name) override;

private:
    QuestionsPart(const FormContext& context, QComboBox* preset);

    void allowSave();
    void setQuestionButtons(const std::vector<bool>& enabled);

    QComboBox* m_default;
};

QuestionsPart::QuestionsPart(const FormContext& context) : QuestionsPart(context, new ComboBox) {}

QuestionsPart::QuestionsPart(const FormContext& context, QComboBox* preset)
    : ListedFilesPart(
          triviaQuestionLists(), context,
          {.builders = {BuildFileEditToolbar}, .rowsLightButtons = false, .note = [this] { allowSave(); }},
          labelledDefault(*preset)),
      m_default(preset)
{
    connect(m_default, &QComboBox::currentTextChanged, this, &FormPart::changed);
}

void QuestionsPart::load()
{
    const auto questionFiles = loadTriviaQuestionFiles(context().files);
    std::vector<CellRow> files;
    m_default->clear();
    for (const std::string& name : questionFiles.names) {
        files.push_back({{name}});
        m_default->addItem(fromBytes(name));
    }
    m_default->setCurrentText(fromBytes(questionFiles.defaultFile));
    names().setRows(std::move(files));
    rows().list().setRows({});
    setQuestionButtons({false, false, false, false, false});
}

void QuestionsPart::save()
{
    TriviaQuestionFiles questionFiles{toBytes(m_default->currentText()), {}};
    for (const CellRow& row : names().rows())
        questionFiles.names.push_back(row.cells[0]);
    saveTriviaQuestionFiles(context().files, questionFiles);
}

void QuestionsPart::saveOpenFile()
{
    if (!rows().rows().empty() && !selectedName().empty())
        saveTriviaQuestions(context().files, selectedName(), rows().rows());
}

/// In the order of the toolbar: SAVE, CLOSE, NEW, EDIT, DELETE.
void QuestionsPart::setQuestionButtons(const std::vector<bool>& enabled)
{
    const auto buttons = rows().tools().toolbar().actions();
    for (std::size_t at = 0; at < enabled.size(); ++at)
        buttons.at(static_cast<qsizetype>(at))->setEnabled(enabled[at]);
}

void QuestionsPart::allowSave()
{
    rowTool("SAVE").setEnabled(true);
    nameTools().tool("NEW").setEnabled(true);
}

void QuestionsPart::addName(const std::string& name)
{
    m_default->addItem(fromBytes(name));
    ListedFilesPart::addName(name);
    names().select(static_cast<int>(names().rows().size()) - 1);
}

/// The file is made at once; its question isn't shown until it is opened.
void QuestionsPart::startFile(const std::string& name)
{
    const std::string file = codepage::lowered(name);
    if (isListed(file)) {
        // The box bears the language form's title.
        tellRefusal("Cannot create language file", file, " already exists");
        return;
    }
    if (refuseNewFile(widget(), file) ||
        !attempt(widget(), making(fromBytes(file)), [&] { createTriviaQuestions(context().files, file); }))
        return;
    addName(file);
    setQuestionButtons({rowTool("SAVE").isEnabled(), false, true, true, false});
}

/// A name that is the beginning of a listed one is taken for it.
bool QuestionsPart::mayJoin(const std::string& name)
{
    const auto& listed = names().rows();
    return std::none_of(listed.begin(), listed.end(),
                        [&name](const CellRow& row) { return row.cells[0].starts_with(name); });
}

bool QuestionsPart::mustStay(const std::string& /*name*/)
{
    const bool isLast = names().rows().size() == 1;
    if (isLast)
        notify(widget(), "Cannot delete", fromBytes(files().names.deletion.minimum), QMessageBox::Critical);
    return isLast;
}

bool QuestionsPart::asksToGo(const std::string& name)
{
    const DeleteWords& words = files().names.deletion;
    return confirm(widget(), fromBytes(words.title), fromBytes(words.text + name + '?'),
                   QMessageBox::Question, QMessageBox::Cancel);
}

/// The deletion reaches the table with the next save; by itself it leaves the form's state as it is.
void QuestionsPart::followGone(const std::string& name)
{
    const QSignalBlocker quiet(m_default);
    const int entry = m_default->findText(fromBytes(name), Qt::MatchExactly | Qt::MatchCaseSensitive);
    m_default->removeItem(entry);
    // Whichever was the default before, it is the file before the deleted one now.
    m_default->setCurrentIndex(std::max(entry - 1, 0));
    names().select(0);
}

void QuestionsPart::openFile(const std::string& name)
{
    bool bDiscardNow = true;
    if (!rows().rows().empty())
        ConfirmDiscard(rows().list(), rows().tools().toolbar(), bDiscardNow);
    if (!confirm(widget(), "Load file?",
                 "Loading the question file may take some time. Do you wish to proceed?"))
        return;
    const Hourglass hourglass;
    rows().list().setRows(loadTriviaQuestions(context().files, name));
    setQuestionButtons({false, true, true, true, true});
}

/// The file is the one that is selected now, not the one that was opened: so a list can be saved under
/// another name.
void QuestionsPart::saveFile()
{
    const std::string name = selectedName();
    if (names().currentRow() < 0 || refuseListedFile(widget(), "Cannot save file", name) ||
        !attempt(widget(), saving(fromBytes(name)),
                 [&] { saveTriviaQuestions(context().files, name, rows().rows()); }))
        return;
    rowTool("SAVE").setEnabled(false);
    emit changed();
}

void QuestionsPart::closeFile()
{
    bool bDiscardNow = false;
    ConfirmDiscard(rows().list(), rows().tools().toolbar(), bDiscardNow);
    rowTool("SAVE").setEnabled(false); // also after Cancel, until the next change
}

} // namespace

std::unique_ptr<FormPart> makeTriviaQuestionsPart(const FormContext& context)
{
    return std::make_unique<QuestionsPart>(context);
}

} // namespace quillfen
