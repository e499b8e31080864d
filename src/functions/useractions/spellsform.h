#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeSpellSettingsForm(const FormContext& context);
EditorForm* makeSpellBookForm(const FormContext& context);
EditorForm* makeNickSpellBookForm(const FormContext& context);

} // namespace quillfen
