#pragma once

#include "declarations/formdeclaration.h"
#include "shell/kit/formpart.h"

#include <string>

class QToolBar;

namespace quillfen {

/// A toolbar with one button that edits a text file. The editor saves the file by itself, so the form's state
/// does not change.
class TextFilePart : public FormPart
{
    Q_OBJECT

public:
    TextFilePart(const DeclaredText& text, const FormContext& context);

    QWidget* widget() override;
    void load() override {}
    void restore() override {}
    void save() override {}
    std::vector<EditedText> editedTexts() override { return {{m_path, widget()}}; }

private:
    void edit();

    std::string m_path;
    FormContext m_context;
    QToolBar* m_toolbar;
};

} // namespace quillfen
