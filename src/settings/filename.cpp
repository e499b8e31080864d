#include "settings/filename.h"

#include "settings/codepage.h"

#include <algorithm>

namespace quillfen {
namespace {

constexpr std::size_t longestName = 200; // leaves room for a folder and an extension in every file system

constexpr std::string_view devices[] = {"con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4",
                                        "com5", "com6", "com7", "com8", "com9", "lpt1", "lpt2", "lpt3",
                                        "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"};

#ifdef _WIN32
constexpr std::string_view leaving{"\\/:\0", 4}; // behind a colon stands another file, or a drive's
#else
constexpr std::string_view leaving{"\\/\0", 3}; // the platform ends a path at a NUL
#endif

} // namespace

std::string fileNameFault(std::string_view name)
{
    if (name.empty())
        return "A file needs a name.";
    if (name.size() > longestName)
        return "The name is too long.";
    if (name.find_first_of("\\/:*?\"<>|") != std::string_view::npos)
        return "A file name can't hold any of \\ / : * ? \" < > |";
    if (std::any_of(name.begin(), name.end(),
                    [](char each) { return static_cast<unsigned char>(each) < 0x20; }))
        return "A file name can't hold control characters.";
    if (name.starts_with(' ') || name.ends_with(' ') || name.ends_with('.'))
        return "A file name can't begin or end with a blank, or end with a dot.";
    const std::string stem = codepage::lowered(name.substr(0, name.find('.')));
    if (std::find(std::begin(devices), std::end(devices), stem) != std::end(devices))
        return "The name is one of the system's devices.";
    return {};
}

std::string leavingNameFault(std::string_view name)
{
    if (name.empty())
        return "A file needs a name.";
    if (name == "." || name == ".." || name.find_first_of(leaving) != std::string_view::npos)
        return "The name leads out of the folder.";
    return {};
}

} // namespace quillfen
