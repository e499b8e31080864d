#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeHideShareForm(const FormContext& context);

} // namespace quillfen
