#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

struct RowListDeclaration;
struct SpellBook;

/// The warded users.
std::unique_ptr<FormPart> makeWardsPart(const RowListDeclaration& list, const FormContext& context);

/// The spells of a book, and the phrases of the one that is being amended.
std::unique_ptr<FormPart> makeSpellBookPart(const SpellBook& book, const FormContext& context);

} // namespace quillfen
