#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeGeneralSettingsForm(const FormContext& context);

} // namespace quillfen
