#pragma once

#include <fstream>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace quillfen::bench {

/// The most memory that this process ever held, in KiB; 0 where the platform isn't asked. The kernel's other
/// account, of getrusage, would begin with what the parent held before it became this program.
inline double peakKiB()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double peak = 0;
        if (word == "VmHWM:" && status >> peak)
            return peak;
    }
    return 0;
}

/// What the process holds of its heap, in KiB; 0 where the platform isn't asked.
inline double heapKiB()
{
#ifdef __GLIBC__
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1024;
#else
    return 0;
#endif
}

} // namespace quillfen::bench
