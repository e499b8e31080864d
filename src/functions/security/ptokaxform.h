#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makePtokaXSettingsForm(const FormContext& context);

} // namespace quillfen
