#pragma once

#include <cstdio>
#include <cstdlib>

namespace quillfen::fuzz {

/// Ends the run with the broken promise's words, in every build.
inline void require(bool kept, const char* promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}

} // namespace quillfen::fuzz
