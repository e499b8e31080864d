#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeIntroOutroForm(const FormContext& context);
EditorForm* makeCustomIntroOutroForm(const FormContext& context);

} // namespace quillfen
