#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeCalculatorForm(const FormContext& context);

} // namespace quillfen
