#include "check/programcall.h"

#include "store/nativepath.h"

#ifdef _WIN32
#include <memory>
#include <windows.h>
#endif

namespace quillfen {

#ifdef _WIN32

ProgramCall programCall(int /*count*/, const char* const* /*words*/)
{
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count),
                                                              &LocalFree);
    ProgramCall call;
    for (int word = 1; word < count; ++word)
        call.arguments.push_back(pathText(words.get()[word]));
    constexpr DWORD longest = 0x8000;
    std::wstring program(longest, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), longest));
    call.folder = pathText(std::filesystem::path(program).parent_path());
    return call;
}

#else

ProgramCall programCall(int count, const char* const* words)
{
    std::error_code unknown;
    auto program = std::filesystem::read_symlink("/proc/self/exe", unknown);
    if (unknown)
        program = std::filesystem::absolute(words[0], unknown);
    return {pathText(program.parent_path()), {words + 1, words + count}};
}

#endif

} // namespace quillfen
