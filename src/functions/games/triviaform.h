#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeTriviaForm(const FormContext& context);
EditorForm* makeTriviaQuestionsForm(const FormContext& context);

} // namespace quillfen
