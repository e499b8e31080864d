#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

struct LanguageSet;

/// The languages of a set, and the texts of the one that is open.
std::unique_ptr<FormPart> makeLanguagesPart(const LanguageSet& set, const FormContext& context);

} // namespace quillfen
