#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeCustomRightClickForm(const FormContext& context);

} // namespace quillfen
