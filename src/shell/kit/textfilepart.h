#pragma once

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
    /// `path` is a told path; `caption` stands beside the button.
    TextFilePart(const QString& toolbar, const QString& caption, std::string path,
                 const FormContext& context);

    QWidget* widget() override;
    void load() override {}
    void restore() override {}
    void save() override {}

private:
    void edit();

    std::string m_path;
    FormContext m_context;
    QToolBar* m_toolbar;
};

} // namespace quillfen
