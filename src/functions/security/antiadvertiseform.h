#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeAntiAdvertiseSettingsForm(const FormContext& context);
EditorForm* makeAntiAdvertiseAddressesForm(const FormContext& context);

} // namespace quillfen
