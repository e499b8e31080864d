#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeAutoCorrectForm(const FormContext& context);

} // namespace quillfen
