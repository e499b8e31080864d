#pragma once

namespace quillfen {

class EditorForm;
struct FormContext;

EditorForm* makeInsultsForm(const FormContext& context);
EditorForm* makeMedievalInsultsForm(const FormContext& context);
EditorForm* makeModernInsultsForm(const FormContext& context);
EditorForm* makeAttacksForm(const FormContext& context);
EditorForm* makeDoActionForm(const FormContext& context);

} // namespace quillfen
