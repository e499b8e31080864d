#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeMainCleanerForm(const FormContext& context);

} // namespace quillfen
