#pragma once

#include "shell/kit/declaredforms.h"

namespace quillfen {

/// The archive of the news: articles are read and deleted here, and never changed.
OwnPart newsPart();

} // namespace quillfen
