#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeAsciiForm(const FormContext& context);

} // namespace quillfen
