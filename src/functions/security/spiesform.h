#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeCommandSpyForm(const FormContext& context);
EditorForm* makeSearchSpyForm(const FormContext& context);

} // namespace quillfen
