#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeAsciiIntroForm(const FormContext& context);

} // namespace quillfen
