#pragma once

#include "declarations/function.h"

#include <string>
#include <vector>

namespace quillfen {

/// The topic changer and the kick bar changer: a delay, and texts that are shown in turn.
struct Changer
{
    TableFile settings;
    RowListDeclaration texts;
};

const Changer& topicChanger();
const Changer& kickBarChanger();

FunctionDeclaration topicChangerFunction();
FunctionDeclaration kickBarChangerFunction();

} // namespace quillfen
