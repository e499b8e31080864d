#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeSearchSpyForm(const FormContext& context);

} // namespace quillfen
