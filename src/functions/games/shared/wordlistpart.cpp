#include "functions/games/shared/wordlistpart.h"

#include "shell/kit/hourglass.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbars.h"

namespace quillfen {

WordListPart::WordListPart(const RowListDeclaration& words, const FormContext& context)
    : RowListPart(words, context)
{
    int index = 0;
    addButton(toolbar(), index, "OPEN", "Open Words file", "open");
    addButton(toolbar(), index, "SAVE", "Save Words file", "save");
    addButton(toolbar(), index, "CLOSE", "Close Words file", "close");
    connectButton(toolbar(), "OPEN", this, &WordListPart::openFile);
    connectButton(toolbar(), "SAVE", this, &WordListPart::saveFile);
    connectButton(toolbar(), "CLOSE", this, &WordListPart::closeFile);
    setButtons(true, false);
}

void WordListPart::openFile()
{
    const Hourglass hourglass;
    RowListPart::load();
    setButtons(false, true);
}

void WordListPart::saveFile()
{
    if (list().isEmpty()) {
        notify(&list(), "Questions needed", "You must specify some questions", QMessageBox::Warning);
        return;
    }
    if (!attempt(&list(), saving("The words' file"), [this] { RowListPart::save(); }))
        return;
    bool bDiscardNow = true;                        // what is shown is in the file: nothing to ask
    ConfirmDiscard(list(), toolbar(), bDiscardNow); // leaves the sixth button, EDIT, lit
}

void WordListPart::closeFile()
{
    bool bDiscardNow = false;
    ConfirmDiscard(list(), toolbar(), bDiscardNow);
    // Also after Cancel: the rows stay in sight, and only OPEN, which reads the file again, goes on from
    // there.
    setButtons(true, false);
}

void WordListPart::setButtons(bool open, bool others)
{
    for (auto* action : toolbar().actions())
        action->setEnabled(action->objectName() == "OPEN" ? open : others);
}

} // namespace quillfen
