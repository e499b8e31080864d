#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

struct ArchiveMember;

/// A member's link of the week.
OwnPart weekPart(const ArchiveMember& member);

} // namespace quillfen
