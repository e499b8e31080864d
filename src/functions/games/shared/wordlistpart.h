#pragma once

#include "shell/kit/rowlistpart.h"

namespace quillfen {

/// A game's list file, which is opened, edited, saved and closed by its own toolbar: the form's state knows
/// nothing of it. The list is empty until it is opened.
class WordListPart : public RowListPart
{
    Q_OBJECT

public:
    WordListPart(const RowListDeclaration& words, const FormContext& context);

    void load() override {}    ///< waits for OPEN
    void restore() override {} ///< the words are no settings
    void save() override {}    ///< waits for the list's own SAVE

protected:
    void touch() override {}
    void followRows() override {} ///< the buttons follow what was done with the file

private:
    void openFile();
    void saveFile();
    void closeFile();

    /// OPEN first, then the five that work on an open file.
    void setButtons(bool open, bool others);
};

} // namespace quillfen
