#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

/// The archive of the news: articles are read and deleted here, and never changed.
EditorForm* makeNewsForm(const FormContext& context);

} // namespace quillfen
