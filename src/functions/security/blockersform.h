#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeBadNickBlockerForm(const FormContext& context);
EditorForm* makeCloneBlockerForm(const FormContext& context);
EditorForm* makeAntiVirusForm(const FormContext& context);

} // namespace quillfen
