#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeTriviaQuestionsForm(const FormContext& context);

} // namespace quillfen
