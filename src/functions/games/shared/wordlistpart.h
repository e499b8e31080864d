#pragma once

#include "shell/kit/rowlistpart.h"

namespace quillfen {

/// A game's list file, which is opened, edited, saved and closed by its own toolbar: the form's state knows
/// nothing of it. The list is empty until it is opened.
class WordListPart : public FormPart
{
    Q_OBJECT

public:
    WordListPart(const RowListDeclaration& words, const FormContext& context);

    QWidget* widget() override { return m_words->widget(); }
    void load() override {}    ///< waits for OPEN
    void restore() override {} ///< the words are no settings
    void save() override {}    ///< waits for the list's own SAVE
    RoutineTable routines() override { return m_words->routines(); }

private:
    void openFile();
    void saveFile();
    void closeFile();

    /// OPEN first, then the five that work on an open file.
    void setButtons(bool open, bool others);

    RowListPart* m_words;
};

} // namespace quillfen
