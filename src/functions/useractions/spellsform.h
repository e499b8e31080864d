#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

struct SpellBook;

/// The spells of a book, and the phrases of the one that is being amended.
OwnPart spellBookPart(const SpellBook& book);

} // namespace quillfen
