#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeMainBlockForm(const FormContext& context);
EditorForm* makeMainLockForm(const FormContext& context);
EditorForm* makeMainCleanerForm(const FormContext& context);

} // namespace quillfen
