#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

struct RowListDeclaration;
struct TableFile;

/// The settings with the calculations among them.
std::unique_ptr<FormPart> makeNumbersSettingsPart(const TableFile& file, const FormContext& context);

/// The fixed questions.
std::unique_ptr<FormPart> makeFixedQuestionsPart(const RowListDeclaration& list, const FormContext& context);

} // namespace quillfen
