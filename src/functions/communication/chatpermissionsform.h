#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeMuteForm(const FormContext& context);
EditorForm* makeTalkForm(const FormContext& context);

} // namespace quillfen
