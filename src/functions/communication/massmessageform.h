#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeMassMessageForm(const FormContext& context);

} // namespace quillfen
