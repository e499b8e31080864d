#include "functions/games/shared/wordlistpart.h"

#include "shell/kit/hourglass.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbarlist.h"

namespace quillfen {

namespace {

void addFileButtons(QToolBar& toolbar, int& index)
{
    addButton(toolbar, index, "OPEN", "Open Words file", "open");
    addButton(toolbar, index, "SAVE", "Save Words file", "save");
    addButton(toolbar, index, "CLOSE", "Close Words file", "close");
}

} // namespace

WordListPart::WordListPart(const RowListDeclaration& words, const FormContext& context)
    : m_words(new RowListPart(words, context,
                              {.builders = {addFileButtons, BuildListToolbar},
                               .rowsLightButtons = false, // they follow what was done with the file
                               .note = [this] { setChanges(true); }}))
{
    m_words->setParent(this);
    m_words->list().setSavedByItself();
    m_words->tools().connectButtons(this, {{"OPEN", &WordListPart::openFile},
                                           {"SAVE", &WordListPart::saveFile},
                                           {"CLOSE", &WordListPart::closeFile}});
    setButtons(true, false);
}

void WordListPart::openFile()
{
    const Hourglass hourglass;
    m_words->load();
    setChanges(false);
    setButtons(false, true);
}

void WordListPart::saveFile()
{
    if (m_words->rows().empty()) {
        notify(widget(), "Questions needed", "You must specify some questions", QMessageBox::Warning);
        return;
    }
    if (!attempt(widget(), saving("The words' file"), [this] { m_words->save(); }))
        return;
    bool bDiscardNow = true; // what is shown is in the file: nothing to ask
    ConfirmDiscard(m_words->list(), m_words->tools().toolbar(),
                   bDiscardNow); // leaves the sixth button, EDIT, lit
    setChanges(false);
}

void WordListPart::saveOpenFile()
{
    if (isOpen())
        m_words->save();
}

void WordListPart::setChanges(bool hasChanges)
{
    m_hasChanges = hasChanges;
    emit openFileChanged();
}

void WordListPart::closeFile()
{
    bool bDiscardNow = false;
    ConfirmDiscard(m_words->list(), m_words->tools().toolbar(), bDiscardNow);
    // Also after Cancel: the rows stay in sight, and only OPEN, which reads the file again, goes on from
    // there.
    setButtons(true, false);
    emit openFileChanged();
}

void WordListPart::setButtons(bool open, bool others)
{
    for (auto* action : m_words->tools().toolbar().actions())
        action->setEnabled(action->objectName() == "OPEN" ? open : others);
}

} // namespace quillfen
