#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;
struct LanguageSet;

EditorForm* makeLanguageForm(const LanguageSet& set, const FormContext& context);

} // namespace quillfen
