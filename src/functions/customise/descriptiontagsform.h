#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeDescriptionTagsForm(const FormContext& context);

} // namespace quillfen
