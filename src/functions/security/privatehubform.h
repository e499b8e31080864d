#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makePrivateHubForm(const FormContext& context);

} // namespace quillfen
