#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

/// The Portal's form. The links live in it and end with it.
EditorForm* makePortalForm(const FormContext& context);

} // namespace quillfen
