#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeTopicChangerForm(const FormContext& context);
EditorForm* makeKickBarChangerForm(const FormContext& context);

} // namespace quillfen
