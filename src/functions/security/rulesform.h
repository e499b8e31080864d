#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeRulesForm(const FormContext& context);

} // namespace quillfen
