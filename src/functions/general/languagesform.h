#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

struct LanguageSet;

/// The languages of a set, and the texts of the one that is open.
OwnPart languagesPart(const LanguageSet& set);

} // namespace quillfen
