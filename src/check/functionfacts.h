#pragma once

#include "declarations/function.h"

namespace quillfen {

/// The facts of all functions in the catalogue. What they take is gathered at the first question.
FunctionFacts functionFacts();

} // namespace quillfen
