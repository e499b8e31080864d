#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeUserLogForm(const FormContext& context);

} // namespace quillfen
