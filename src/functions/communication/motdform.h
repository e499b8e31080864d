#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeMotdForm(const FormContext& context);

} // namespace quillfen
