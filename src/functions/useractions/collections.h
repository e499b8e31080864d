#pragma once

#include "declarations/function.h"

namespace quillfen {

/// A collection of texts that the hub script sends by command or on a timer: jokes, limericks, proverbs and
/// quotations.
struct Collection
{
    TableFile settings;
    RowListDeclaration texts;
};

const Collection& jokes();
const Collection& limericks();
const Collection& proverbs();
const Collection& quotations();

FunctionDeclaration jokesFunction();
FunctionDeclaration limericksFunction();
FunctionDeclaration proverbsFunction();
FunctionDeclaration quotationsFunction();

} // namespace quillfen
