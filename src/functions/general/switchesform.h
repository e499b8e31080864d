#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeSwitchesForm(const FormContext& context);
EditorForm* makeEnabledRightClicksForm(const FormContext& context);

} // namespace quillfen
