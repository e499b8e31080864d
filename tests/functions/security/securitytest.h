#pragma once

#include "support/groupfiles.h"

namespace quillfen::test {

/// A hub of three profiles with the folders of the security functions, all empty.
class SecurityFiles : public GroupFiles
{
protected:
    SecurityFiles() : GroupFiles("Security", "security") {}
};

} // namespace quillfen::test
