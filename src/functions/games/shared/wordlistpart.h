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
    void saveOpenFile() override;
    bool hasUnsavedFile() const override { return m_hasChanges && isOpen(); }
    RoutineTable routines() override { return m_words->routines(); }

private:
    bool isOpen() const { return !m_words->rows().empty(); }
    void setChanges(bool hasChanges);
    void openFile();
    void saveFile();
    void closeFile();

    /// OPEN first, then the five that work on an open file.
    void setButtons(bool open, bool others);

    RowListPart* m_words;
    bool m_hasChanges = false; ///< the rows were edited since they were read
};

} // namespace quillfen
