#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeClientCheckerForm(const FormContext& context);

} // namespace quillfen
