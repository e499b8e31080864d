#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeFloodForm(const FormContext& context);

} // namespace quillfen
