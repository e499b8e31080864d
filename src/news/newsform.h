#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

/// The archive of the news: articles are read and deleted here, and never changed.
std::unique_ptr<FormPart> makeNewsPart(const FormContext& context);

} // namespace quillfen
