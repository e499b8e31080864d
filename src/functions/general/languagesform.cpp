#include "functions/general/languagesform.h"

#include "functions/general/languages.h"
#include "settings/codepage.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/listedfilespart.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbarlist.h"

#include <algorithm>

namespace quillfen {
namespace {

/// SAVE, CLOSE, EDIT and EDITALL.
void buildTextsToolbar(QToolBar& toolbar, int& index)
{
    BuildFileEditToolbar(toolbar, index);
    removeButton(toolbar, "NEW");
    removeButton(toolbar, "DELETE");
    index -= 2;
    AddEditAllButton(toolbar, index);
}

/// The languages of a set, of which one is current, and the texts of the one that is open.
class LanguagesPart : public ListedFilesPart
{
public:
    LanguagesPart(const LanguageSet& set, const FormContext& context);

    void saveOpenFile() override;

protected:
    void startFile(const std::string& name) override;
    bool mayJoin(const std::string& name) override;
    bool mayOpen() override;
    void openFile(const std::string& name) override;
    bool mustStay(const std::string& name) override;
    bool asksToGo(const std::string& name) override;
    void followGone(const std::string& /*name*/) override { emit changed(); }
    void saveFile() override;
    void closeFile() override;

private:
    void choose(int row);
    void editText();
    void editAllTexts();
    void followText();
    void showTexts(std::vector<CellRow> texts, const std::string& name);
    void leaveTexts();

    const LanguageSet& m_set;
    std::string m_open;      ///< the file under edit, without its extension; empty if none is
    bool m_readOnly = false; ///< the reference language is on view
};

LanguagesPart::LanguagesPart(const LanguageSet& set, const FormContext& context)
    : ListedFilesPart(languageLists(set), context,
                      {.builders = {buildTextsToolbar},
                       .activates = {}, // a double click edits the reference's texts too, where EDIT is dark
                       .rowsLightButtons = false,
                       .note = [this] { followText(); }}),
      m_set(set)
{
    rows().list().setAccessibleName(fromBytes(set.textColumn));
    names().setTicksTogether(false); // one language is current
    connect(&names(), &RowList::tickChanged, this, &LanguagesPart::choose);
    connect(&rows().list(), &RowList::editAsked, this, &LanguagesPart::editText);
    rows().tools().connectButtons(this, {{"EDITALL", &LanguagesPart::editAllTexts}});
    leaveTexts();
}

/// One language is current: a click checks its own and unchecks the others, and a second click changes
/// nothing.
void LanguagesPart::choose(int row)
{
    for (int at = 0; at < static_cast<int>(names().rows().size()); ++at) {
        CellRow language = names().rows()[static_cast<std::size_t>(at)];
        language.checked = at == row;
        names().replace(at, std::move(language));
    }
    emit changed();
}

void LanguagesPart::startFile(const std::string& name)
{
    if (refuseNewFile(widget(), name))
        return;
    m_readOnly = false;
    showTexts(loadReferenceTexts(context().files, m_set), name);
}

bool LanguagesPart::mayJoin(const std::string& name)
{
    if (!isListed(name))
        return true;
    tellRefusal(fromBytes(files().refusesAdding), name, std::string(m_set.duplicateTail));
    return false;
}

bool LanguagesPart::mustStay(const std::string& name)
{
    const bool isReference = name == referenceLanguage;
    if (isReference)
        notify(widget(), "Cannot delete", fromBytes(m_set.deleteRefusal), QMessageBox::Warning);
    return isReference;
}

bool LanguagesPart::asksToGo(const std::string& name)
{
    const DeleteWords& words = files().names.deletion;
    return askYesNo(widget(), fromBytes(words.title), fromBytes(words.text + name + '?'));
}

bool LanguagesPart::mayOpen()
{
    const bool isOpen = !rows().rows().empty();
    if (isOpen)
        notify(widget(), "Cannot Edit", "There is already a file being edited", QMessageBox::Warning);
    return !isOpen;
}

void LanguagesPart::openFile(const std::string& name)
{
    m_readOnly = name == referenceLanguage;
    if (m_readOnly)
        notify(widget(), "Read Only", "DEFAULT file cannot be edited", QMessageBox::Information);
    // The name goes on in upper case, and so does the file that is saved; the list keeps its own spelling.
    showTexts(loadLanguageTexts(context().files, m_set, name), codepage::raised(name));
}

void LanguagesPart::showTexts(std::vector<CellRow> texts, const std::string& name)
{
    const bool areThere = !texts.empty();
    m_open = name;
    rows().list().setRows(std::move(texts));
    rows().list().setEnabled(true);
    if (areThere)
        rows().list().select(0);
    rowTool("SAVE").setEnabled(!m_readOnly &&
                               !areThere); // without texts there is none that could change first
    rowTool("CLOSE").setEnabled(true);
    rowTool("EDIT").setEnabled(!m_readOnly);
    rowTool("EDITALL").setEnabled(!m_readOnly);
}

void LanguagesPart::editText()
{
    if (rows().list().currentRow() >= 0)
        rows().editRow(rows().list().currentRow());
}

/// Cancel leaves one text as it is; a closed dialog ends the round.
void LanguagesPart::editAllTexts()
{
    for (int row = 0; row < static_cast<int>(rows().rows().size()); ++row) {
        rows().list().select(row);
        const EditAnswer answer = rows().editRow(row);
        if (answer.gEditResult != EditResult::Ok && !answer.byCancel)
            return;
    }
}

/// A change of the reference stays on the screen.
void LanguagesPart::followText()
{
    if (m_readOnly)
        return;
    rowTool("SAVE").setEnabled(true);
    emit changed();
}

void LanguagesPart::saveFile()
{
    const std::string name = m_open;
    if (m_readOnly || !attempt(widget(), saving(fromBytes(name)),
                               [&] { saveLanguageTexts(context().files, m_set, name, rows().rows()); }))
        return;
    leaveTexts();
    const auto& listed = names().rows();
    if (std::none_of(listed.begin(), listed.end(),
                     [&name](const CellRow& row) { return row.cells[0] == name; }))
        addName(name);
}

void LanguagesPart::saveOpenFile()
{
    if (!m_open.empty() && !m_readOnly)
        saveLanguageTexts(context().files, m_set, m_open, rows().rows());
}

void LanguagesPart::closeFile()
{
    if (m_readOnly || confirm(widget(), "Discard changes?", "Are you sure you'd like to discard changes?"))
        leaveTexts();
}

void LanguagesPart::leaveTexts()
{
    m_open.clear();
    rows().list().setRows({});
    rows().list().setEnabled(false);
    for (auto* action : rows().tools().toolbar().actions())
        action->setEnabled(false);
}

} // namespace

std::unique_ptr<FormPart> makeLanguagesPart(const LanguageSet& set, const FormContext& context)
{
    return std::make_unique<LanguagesPart>(set, context);
}

} // namespace quillfen
