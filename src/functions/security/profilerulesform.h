#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeProfileRulesForm(const FormContext& context);

} // namespace quillfen
