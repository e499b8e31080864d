#include "functions/games/triviaform.h"

#include "functions/games/shared/questions.h"
#include "functions/games/trivia.h"
#include "settings/codepage.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/combobox.h"
#include "shell/kit/editdialog.h"
#include "shell/kit/hourglass.h"
#include "shell/kit/inputbox.h"
#include "shell/kit/labels.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbars.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHeaderView>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

namespace quillfen {
namespace {

/// The question files and the questions of the one that is open. The table of files is the form's; an open
/// file is saved by a button of its own, and tells the form of it by marking it dirty.
class QuestionsPart : public FormPart
{
public:
    explicit QuestionsPart(const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override {} ///< the form has no RESTORE
    void save() override;
    RoutineTable routines() override;

private:
    QWidget* placed();
    void connectFiles();
    void connectQuestions();
    void setQuestionButtons(const std::vector<bool>& enabled);
    void allowSave();

    void createFile();
    void addExistingFile();
    void deleteFile();
    void openFile();
    void addFile(const std::string& name);
    void forgetDefault(const QString& name);

    void addQuestion();
    void editQuestion();
    void deleteQuestion();
    void saveQuestions();
    void closeFile();

    std::string selectedFile() const;

    FormContext m_context;
    RowList* m_fileList;
    RowList* m_questionList;
    QToolBar* m_fileBar;
    QToolBar* m_questionBar;
    QComboBox* m_default;
    QWidget* m_widget;
};

QuestionsPart::QuestionsPart(const FormContext& context)
    : m_context(context),
      m_fileList(new RowList("lvwQuestionFiles", {"Available Question Files"}, false)),
      m_questionList(new RowList("lvwQuestions", {"Questions", "Answers"}, false)),
      m_fileBar(new QToolBar),
      m_questionBar(new QToolBar),
      m_default(new ComboBox),
      m_widget(placed())
{
    connectFiles();
    connectQuestions();
    connect(m_default, &QComboBox::currentTextChanged, this, &FormPart::changed);
}

QWidget* QuestionsPart::placed()
{
    m_fileBar->setObjectName("tlbQuestionFiles");
    m_questionBar->setObjectName("tlbQuestions");
    m_default->setObjectName("cboQuestionFileDefault");
    m_default->setAccessibleName("Default Question File");
    m_fileList->setAccessibleName("Available Question Files");
    m_questionList->setAccessibleName("Questions");
    m_questionList->header()->resizeSection(0, 340);
    for (auto* toolbar : {m_fileBar, m_questionBar})
        toolbar->setIconSize({16, 16});

    auto* fields = new QFormLayout;
    fields->setRowWrapPolicy(QFormLayout::WrapAllRows);
    fields->addRow(labelFor("Default Question File", m_default), m_default);
    auto* files = new QWidget;
    auto* column = new QVBoxLayout(files);
    column->setContentsMargins({});
    column->addLayout(fields);
    column->addWidget(listWithToolbar(QString(), m_fileBar, m_fileList), 1);
    auto* splitter = new QSplitter;
    splitter->addWidget(files);
    splitter->addWidget(listWithToolbar(QString(), m_questionBar, m_questionList));
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    return splitter;
}

void QuestionsPart::connectFiles()
{
    int index = 0;
    BuildFileListToolbar(*m_fileBar, index);
    connectButton(*m_fileBar, "NEW", this, &QuestionsPart::createFile);
    connectButton(*m_fileBar, "OPEN", this, &QuestionsPart::addExistingFile);
    connectButton(*m_fileBar, "DELETE", this, &QuestionsPart::deleteFile);
    connectButton(*m_fileBar, "EDIT", this, &QuestionsPart::openFile);
    connect(m_fileList, &RowList::editAsked, this, &QuestionsPart::openFile);
    connect(m_fileList, &RowList::deleteAsked, this, &QuestionsPart::deleteFile);
    connect(m_fileList, &RowList::menuAsked, this,
            [this](const QPoint& at) { m_context.showMenu("mnuFirst", at); });
}

void QuestionsPart::connectQuestions()
{
    int index = 0;
    BuildFileEditToolbar(*m_questionBar, index);
    connectButton(*m_questionBar, "SAVE", this, &QuestionsPart::saveQuestions);
    connectButton(*m_questionBar, "CLOSE", this, &QuestionsPart::closeFile);
    connectButton(*m_questionBar, "NEW", this, &QuestionsPart::addQuestion);
    connectButton(*m_questionBar, "EDIT", this, &QuestionsPart::editQuestion);
    connectButton(*m_questionBar, "DELETE", this, &QuestionsPart::deleteQuestion);
    connect(m_questionList, &RowList::editAsked, this, &QuestionsPart::editQuestion);
    connect(m_questionList, &RowList::deleteAsked, button(*m_questionBar, "DELETE"), &QAction::trigger);
    connect(m_questionList, &RowList::menuAsked, this,
            [this](const QPoint& at) { m_context.showMenu("mnuTriviaQuestions", at); });
}

RoutineTable QuestionsPart::routines()
{
    // The menu of the questions has no handlers, but the three operations are there for it.
    RoutineTable all = buttonRoutines("mnuTriviaQuestions", *m_questionBar);
    all.insert(buttonRoutines("mnuFirst", *m_fileBar));
    return all;
}

void QuestionsPart::load()
{
    const auto questionFiles = loadTriviaQuestionFiles(m_context.files);
    std::vector<CellRow> rows;
    m_default->clear();
    for (const std::string& name : questionFiles.names) {
        rows.push_back({{name}});
        m_default->addItem(fromBytes(name));
    }
    m_default->setCurrentText(fromBytes(questionFiles.defaultFile));
    m_fileList->setRows(std::move(rows));
    m_questionList->setRows({});
    m_questionList->setProperty("tag", QString());
    setQuestionButtons({false, false, false, false, false});
}

void QuestionsPart::save()
{
    TriviaQuestionFiles questionFiles{toBytes(m_default->currentText()), {}};
    for (const CellRow& row : m_fileList->rows())
        questionFiles.names.push_back(row.cells[0]);
    saveTriviaQuestionFiles(m_context.files, questionFiles);
}

void QuestionsPart::setQuestionButtons(const std::vector<bool>& enabled)
{
    const auto buttons = m_questionBar->actions();
    for (std::size_t at = 0; at < enabled.size(); ++at)
        buttons.at(static_cast<qsizetype>(at))->setEnabled(enabled[at]);
}

void QuestionsPart::allowSave()
{
    button(*m_questionBar, "SAVE")->setEnabled(true);
    button(*m_fileBar, "NEW")->setEnabled(true);
}

std::string QuestionsPart::selectedFile() const
{
    const int row = m_fileList->currentRow();
    return row < 0 ? std::string() : m_fileList->rows()[static_cast<std::size_t>(row)].cells[0];
}

void QuestionsPart::addFile(const std::string& name)
{
    m_fileList->append({{name}});
    m_default->addItem(fromBytes(name));
    m_fileList->select(static_cast<int>(m_fileList->rows().size()) - 1);
    emit changed();
}

void QuestionsPart::createFile()
{
    const std::string name = codepage::lowered(askText(m_widget, "Enter filename", "Enter filename"));
    if (name.empty())
        return;
    const auto& rows = m_fileList->rows();
    if (std::any_of(rows.begin(), rows.end(),
                    [&name](const CellRow& row) { return codepage::lowered(row.cells[0]) == name; })) {
        // The box bears the language form's title.
        notify(m_widget, "Cannot create language file", fromBytes(name) + " already exists",
               QMessageBox::Warning);
        return;
    }
    if (refuseNewFile(m_widget, name) ||
        !attempt(m_widget, making(fromBytes(name)), [&] { createTriviaQuestions(m_context.files, name); }))
        return;
    addFile(name);
    m_questionList->setProperty("tag", fromBytes(name));
    setQuestionButtons({button(*m_questionBar, "SAVE")->isEnabled(), false, true, true, false});
}

void QuestionsPart::addExistingFile()
{
    const QString path = QFileDialog::getOpenFileName(
        m_widget, "Select Trivia File to open",
        QString::fromStdString(m_context.files.paths().inSettings(R"(Games\Trivia\)")), "(*.lst)");
    if (path.size() < 5)
        return;
    QString file = QFileInfo(path).fileName();
    file.chop(4);
    const std::string name = toBytes(file);
    if (fromBytes(name) != file) {
        notify(m_widget, "Cannot add file", file + " has characters that the hub script can't read",
               QMessageBox::Warning);
        return;
    }
    // A name that is the beginning of a listed one is taken for it.
    const auto& rows = m_fileList->rows();
    if (std::none_of(rows.begin(), rows.end(),
                     [&name](const CellRow& row) { return row.cells[0].starts_with(name); }))
        addFile(name);
}

void QuestionsPart::deleteFile()
{
    if (m_fileList->rows().size() == 1) {
        notify(m_widget, "Cannot delete", "There must be a minimum of one Question File",
               QMessageBox::Critical);
        return;
    }
    if (m_fileList->currentRow() < 0)
        return;
    const std::string name = selectedFile();
    if (!confirm(m_widget, "Delete Question File?", "Do you really want to delete " + fromBytes(name) + '?',
                 QMessageBox::Question, QMessageBox::Cancel))
        return;
    forgetDefault(fromBytes(name));
    m_fileList->remove(m_fileList->currentRow());
    m_fileList->select(0);
}

void QuestionsPart::forgetDefault(const QString& name)
{
    // The deletion reaches the table with the next save; by itself it leaves the form's state as it is.
    const QSignalBlocker quiet(m_default);
    const int entry = m_default->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    m_default->removeItem(entry);
    // Whichever was the default before, it is the file before the deleted one now.
    m_default->setCurrentIndex(std::max(entry - 1, 0));
}

void QuestionsPart::openFile()
{
    if (m_fileList->currentRow() < 0 || refuseListedFile(m_widget, "Cannot open file", selectedFile()))
        return;
    bool bDiscardNow = true;
    if (!m_questionList->isEmpty())
        ConfirmDiscard(*m_questionList, *m_questionBar, bDiscardNow);
    if (!confirm(m_widget, "Load file?",
                 "Loading the question file may take some time. Do you wish to proceed?"))
        return;
    const Hourglass hourglass;
    m_questionList->setRows(loadTriviaQuestions(m_context.files, selectedFile()));
    m_questionList->setProperty("tag", fromBytes(selectedFile()));
    setQuestionButtons({false, true, true, true, true});
}

void QuestionsPart::addQuestion()
{
    const EditRequest request{EditForm::ThreeFields,
                              "Add Trivia Question",
                              "A",
                              habitualAddMode(EditForm::ThreeFields),
                              {"Category", "Question", "Answer"}};
    addRows(m_widget, request, [this](const std::vector<std::string>& fields) {
        m_questionList->append(questionRow(fields));
        allowSave();
    });
}

void QuestionsPart::editQuestion()
{
    const int row = m_questionList->currentRow();
    if (row < 0)
        return;
    EditRequest request{EditForm::ThreeFields,
                        "Edit Trivia Question",
                        "E",
                        habitualEditMode(EditForm::ThreeFields),
                        {"Category", "Question", "Answer"}};
    request.values = questionFields(m_questionList->rows()[static_cast<std::size_t>(row)]);
    const EditAnswer answer = showEditDialog(m_widget, request);
    if (answer.gEditResult != "1")
        return;
    m_questionList->replace(row, questionRow(answer.gEditValues));
    allowSave();
}

void QuestionsPart::deleteQuestion()
{
    if (m_questionList->rows().size() == 1) {
        notify(m_widget, "Cannot delete", "There must be a minimum of one Question", QMessageBox::Critical);
        return;
    }
    if (m_questionList->currentRow() < 0 ||
        !confirm(m_widget, "Delete Question?", "Do you really want to delete this question?"))
        return;
    m_questionList->remove(m_questionList->currentRow());
    m_questionList->select(0);
    allowSave();
}

void QuestionsPart::saveQuestions()
{
    // The file is the one that is selected now, not the one that was loaded: so a list can be saved under
    // another name.
    const std::string name = selectedFile();
    if (m_fileList->currentRow() < 0 || refuseListedFile(m_widget, "Cannot save file", name) ||
        !attempt(m_widget, saving(fromBytes(name)),
                 [&] { saveTriviaQuestions(m_context.files, name, m_questionList->rows()); }))
        return;
    button(*m_questionBar, "SAVE")->setEnabled(false);
    emit changed();
}

void QuestionsPart::closeFile()
{
    bool bDiscardNow = false;
    ConfirmDiscard(*m_questionList, *m_questionBar, bDiscardNow);
    button(*m_questionBar, "SAVE")->setEnabled(false); // also after Cancel, until the next change
}

} // namespace

std::unique_ptr<FormPart> makeTriviaQuestionsPart(const FormContext& context)
{
    return std::make_unique<QuestionsPart>(context);
}

} // namespace quillfen
