#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeJokesForm(const FormContext& context);
EditorForm* makeLimericksForm(const FormContext& context);
EditorForm* makeProverbsForm(const FormContext& context);
EditorForm* makeQuotationsForm(const FormContext& context);

} // namespace quillfen
