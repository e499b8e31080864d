#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeKickSettingsForm(const FormContext& context);
EditorForm* makeKickPermissionsForm(const FormContext& context);

} // namespace quillfen
