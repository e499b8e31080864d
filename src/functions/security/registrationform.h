#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeRegistrationForm(const FormContext& context);

} // namespace quillfen
