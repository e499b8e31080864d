#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeBotsForm(const FormContext& context);

} // namespace quillfen
