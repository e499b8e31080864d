#pragma once

#include "declarations/function.h"

namespace quillfen {

/// The lines with which users come and go: for everybody, or for named users.
struct IntrosOutros
{
    TableFile settings;
    RowListGroup lines; ///< intros and outros
};

const IntrosOutros& standardIntrosOutros();
const IntrosOutros& customIntrosOutros();

FunctionDeclaration introsOutrosFunction();

} // namespace quillfen
