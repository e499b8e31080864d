#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeRotatingMainMessageForm(const FormContext& context);
EditorForm* makeRotatingPrivateMessageForm(const FormContext& context);

} // namespace quillfen
