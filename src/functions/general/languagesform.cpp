#include "functions/general/languagesform.h"

#include "functions/general/languages.h"
#include "settings/codepage.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/editdialog.h"
#include "shell/kit/inputbox.h"
#include "shell/kit/labels.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbars.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QSplitter>
#include <QToolBar>

#include <algorithm>

namespace quillfen {
namespace {

/// The languages of a set, of which one is current, and the texts of the one that is open. The list of
/// languages is the form's; an open language is saved by a button of its own.
class LanguagesPart : public FormPart
{
public:
    LanguagesPart(const LanguageSet& set, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override {} ///< the lists have no defaults of their own: the form only becomes dirty
    void save() override;
    RoutineTable routines() override;

private:
    QWidget* placed();
    void connectFiles();
    void connectTexts();
    static QString word(std::string_view bytes) { return fromBytes(bytes); }

    void choose(int row);
    void newLanguage();
    void addExisting();
    void removeLanguage();
    void openLanguage();
    void showTexts(std::vector<CellRow> rows, const std::string& name);
    void setTextButtons(bool editable);

    void editText();
    void editAllTexts();
    bool editRow(int row); ///< false if the dialog was closed: there is no going on then
    void saveTexts();
    void closeTexts();
    void leaveTexts();

    std::string selectedName() const;
    bool isListed(const std::string& name, bool anyCase) const;

    const LanguageSet& m_set;
    FormContext m_context;
    RowList* m_files;
    RowList* m_texts;
    QToolBar* m_fileBar;
    QToolBar* m_textBar;
    QWidget* m_widget;
    bool m_readOnly = false; ///< the reference language is on view
};

LanguagesPart::LanguagesPart(const LanguageSet& set, const FormContext& context)
    : m_set(set),
      m_context(context),
      m_files(new RowList("lvwFiles", {"Languages"}, true)),
      m_texts(new RowList("lvwTexts", {word(set.keyColumn), word(set.textColumn)}, false)),
      m_fileBar(new QToolBar),
      m_textBar(new QToolBar),
      m_widget(placed())
{
    connectFiles();
    connectTexts();
    leaveTexts();
}

QWidget* LanguagesPart::placed()
{
    m_fileBar->setObjectName("tlbFiles");
    m_textBar->setObjectName("tlbTexts");
    m_files->setAccessibleName("Languages");
    m_texts->setAccessibleName(word(m_set.textColumn));
    m_texts->header()->resizeSection(0, 180);
    for (auto* toolbar : {m_fileBar, m_textBar})
        toolbar->setIconSize({16, 16});
    auto* splitter = new QSplitter;
    splitter->addWidget(listWithToolbar(QString(), m_fileBar, m_files));
    splitter->addWidget(listWithToolbar(QString(), m_textBar, m_texts));
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    return splitter;
}

void LanguagesPart::connectFiles()
{
    int index = 0;
    BuildFileListToolbar(*m_fileBar, index);
    connectButton(*m_fileBar, "NEW", this, &LanguagesPart::newLanguage);
    connectButton(*m_fileBar, "OPEN", this, &LanguagesPart::addExisting);
    connectButton(*m_fileBar, "DELETE", this, &LanguagesPart::removeLanguage);
    connectButton(*m_fileBar, "EDIT", this, &LanguagesPart::openLanguage);
    connect(m_files, &RowList::tickChanged, this, &LanguagesPart::choose);
    connect(m_files, &RowList::editAsked, this, &LanguagesPart::openLanguage);
    connect(m_files, &RowList::deleteAsked, this, &LanguagesPart::removeLanguage);
    connect(m_files, &RowList::menuAsked, this,
            [this](const QPoint& at) { m_context.showMenu("mnuFirst", at); });
}

void LanguagesPart::connectTexts()
{
    int index = 0;
    BuildFileEditToolbar(*m_textBar, index);
    removeButton(*m_textBar, "NEW");
    removeButton(*m_textBar, "DELETE");
    index -= 2;
    AddEditAllButton(*m_textBar, index);
    connectButton(*m_textBar, "SAVE", this, &LanguagesPart::saveTexts);
    connectButton(*m_textBar, "CLOSE", this, &LanguagesPart::closeTexts);
    connectButton(*m_textBar, "EDIT", this, &LanguagesPart::editText);
    connectButton(*m_textBar, "EDITALL", this, &LanguagesPart::editAllTexts);
    connect(m_texts, &RowList::editAsked, this, &LanguagesPart::editText);
}

RoutineTable LanguagesPart::routines()
{
    return buttonRoutines("mnuFirst", *m_fileBar);
}

void LanguagesPart::load()
{
    m_files->setRows(loadLanguages(m_context.files, m_set));
}

void LanguagesPart::save()
{
    saveLanguages(m_context.files, m_set, m_files->rows());
}

std::string LanguagesPart::selectedName() const
{
    const int row = m_files->currentRow();
    return row < 0 ? std::string() : m_files->rows()[static_cast<std::size_t>(row)].cells[0];
}

bool LanguagesPart::isListed(const std::string& name, bool anyCase) const
{
    const auto& rows = m_files->rows();
    return std::any_of(rows.begin(), rows.end(), [&](const CellRow& row) {
        return anyCase ? codepage::lowered(row.cells[0]) == codepage::lowered(name) : row.cells[0] == name;
    });
}

void LanguagesPart::choose(int row)
{
    // One language is current: a click checks its own and unchecks the others, and a second click changes
    // nothing.
    for (int at = 0; at < static_cast<int>(m_files->rows().size()); ++at) {
        CellRow cells = m_files->rows()[static_cast<std::size_t>(at)];
        cells.checked = at == row;
        m_files->replace(at, std::move(cells));
    }
    emit changed();
}

void LanguagesPart::newLanguage()
{
    const std::string name = askText(m_widget, word(m_set.newTitle), word(m_set.newPrompt));
    if (name.empty() || refuseNewFile(m_widget, name))
        return;
    m_readOnly = false;
    showTexts(loadReferenceTexts(m_context.files, m_set), name);
}

void LanguagesPart::addExisting()
{
    // The filter's own words stand in front of its patterns, which don't show.
    const QString path =
        QFileDialog::getOpenFileName(m_widget, "Select Language File to open",
                                     QString::fromStdString(m_context.files.paths().inSettings(m_set.folder)),
                                     "(*.TBL) (*.tbl *.TBL)", nullptr, QFileDialog::HideNameFilterDetails);
    if (path.isEmpty())
        return;
    QString file = QFileInfo(path).fileName();
    file.chop(4);
    const std::string name = toBytes(file);
    if (fromBytes(name) != file) {
        notify(m_widget, "Cannot Add Language File", file + " has characters that the hub script can't read",
               QMessageBox::Warning);
        return;
    }
    if (isListed(name, true)) {
        notify(m_widget, "Cannot Add Language File", file + word(m_set.duplicateTail), QMessageBox::Warning);
        return;
    }
    m_files->append({{name}});
    emit changed();
}

void LanguagesPart::removeLanguage()
{
    if (m_files->currentRow() < 0)
        return;
    const std::string name = selectedName();
    if (name == referenceLanguage) {
        notify(m_widget, "Cannot delete", word(m_set.deleteRefusal), QMessageBox::Warning);
        return;
    }
    if (!askYesNo(m_widget, "Delete Language File?",
                  "Are you sure you wish to delete " + fromBytes(name) + '?'))
        return;
    m_files->remove(m_files->currentRow());
    emit changed();
}

void LanguagesPart::openLanguage()
{
    if (!m_texts->isEmpty()) {
        notify(m_widget, "Cannot Edit", "There is already a file being edited", QMessageBox::Warning);
        return;
    }
    const std::string name = selectedName();
    if (m_files->currentRow() < 0 || refuseListedFile(m_widget, "Cannot open file", name))
        return;
    m_readOnly = name == referenceLanguage;
    if (m_readOnly)
        notify(m_widget, "Read Only", "DEFAULT file cannot be edited", QMessageBox::Information);
    // The name goes on in upper case, and so does the file that is saved; the list keeps its own spelling.
    showTexts(loadLanguageTexts(m_context.files, m_set, name), codepage::raised(name));
}

void LanguagesPart::showTexts(std::vector<CellRow> rows, const std::string& name)
{
    m_texts->setRows(std::move(rows));
    m_texts->setProperty("tag", fromBytes(name));
    m_texts->setEnabled(true);
    if (!m_texts->isEmpty())
        m_texts->select(0);
    setTextButtons(!m_readOnly);
}

void LanguagesPart::setTextButtons(bool editable)
{
    // Without a reference there are no texts that could change first.
    button(*m_textBar, "SAVE")->setEnabled(editable && m_texts->isEmpty());
    button(*m_textBar, "CLOSE")->setEnabled(true);
    button(*m_textBar, "EDIT")->setEnabled(editable);
    button(*m_textBar, "EDITALL")->setEnabled(editable);
}

bool LanguagesPart::editRow(int row)
{
    CellRow cells = m_texts->rows()[static_cast<std::size_t>(row)];
    m_texts->select(row);
    EditRequest request{EditForm::OneFields,
                        std::string(m_set.editTitle),
                        "E",
                        habitualEditMode(EditForm::OneFields),
                        {std::string(m_set.editLabel)}};
    request.values = {cells.cells[1]};
    const EditAnswer answer = showEditDialog(m_widget, request);
    if (answer.gEditResult != "1")
        return answer.byCancel;
    cells.cells[1] = answer.gEditValues[0];
    m_texts->replace(row, std::move(cells));
    if (m_readOnly) // a change of the reference stays on the screen
        return true;
    button(*m_textBar, "SAVE")->setEnabled(true);
    emit changed();
    return true;
}

void LanguagesPart::editText()
{
    if (m_texts->currentRow() >= 0)
        editRow(m_texts->currentRow());
}

void LanguagesPart::editAllTexts()
{
    for (int row = 0; row < static_cast<int>(m_texts->rows().size()); ++row) {
        if (!editRow(row))
            return;
    }
}

void LanguagesPart::saveTexts()
{
    const std::string name = toBytes(m_texts->property("tag").toString());
    if (m_readOnly || !attempt(m_widget, saving(fromBytes(name)),
                               [&] { saveLanguageTexts(m_context.files, m_set, name, m_texts->rows()); }))
        return;
    leaveTexts();
    if (isListed(name, false))
        return;
    m_files->append({{name}});
    emit changed();
}

void LanguagesPart::closeTexts()
{
    if (!m_readOnly && !confirm(m_widget, "Discard changes?", "Are you sure you'd like to discard changes?"))
        return;
    leaveTexts();
}

void LanguagesPart::leaveTexts()
{
    m_texts->setRows({});
    m_texts->setProperty("tag", QString());
    m_texts->setEnabled(false);
    for (auto* action : m_textBar->actions())
        action->setEnabled(false);
}

} // namespace

std::unique_ptr<FormPart> makeLanguagesPart(const LanguageSet& set, const FormContext& context)
{
    return std::make_unique<LanguagesPart>(set, context);
}

} // namespace quillfen
