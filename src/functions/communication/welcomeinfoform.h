#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeNetworkHubsForm(const FormContext& context);

} // namespace quillfen
