#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeReportForm(const FormContext& context);

} // namespace quillfen
