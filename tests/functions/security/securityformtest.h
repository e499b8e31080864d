#pragma once

#include "support/groupforms.h"

namespace quillfen::test {

/// The main window over a built tree, with the files of the security functions.
class SecurityForms : public GroupForms
{
protected:
    SecurityForms() : GroupForms("Security", "security") {}
};

} // namespace quillfen::test
