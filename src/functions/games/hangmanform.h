#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

struct TableFile;

/// The settings, which are not saved without a hint character.
std::unique_ptr<FormPart> makeHangmanSettingsPart(const TableFile& file, const FormContext& context);

/// The pictures of the gallows.
std::unique_ptr<FormPart> makeGallowsPart(const FormContext& context);

} // namespace quillfen
