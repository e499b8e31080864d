#pragma once

#include "support/groupfiles.h"

namespace quillfen::test {

/// A hub of three profiles with the folders of the customise user functions, all empty.
class CustomiseFiles : public GroupFiles
{
protected:
    CustomiseFiles() : GroupFiles("CustomiseUser", "customise") {}
};

} // namespace quillfen::test
