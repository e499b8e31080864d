#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeProfileRuleSettingsForm(const FormContext& context);
EditorForm* makeProfileRulesForm(const FormContext& context);

} // namespace quillfen
