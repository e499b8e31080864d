#include "settings/paths.h"

#include "settings/codepage.h"

#include <algorithm>

namespace quillfen {
namespace {

constexpr char pathSeparator = '/'; // on Windows too, which takes both

#ifdef _WIN32
constexpr bool rootIsAbsolute = false; // it is that of whichever drive is the present one
#else
constexpr bool rootIsAbsolute = true;
#endif

std::string platformPath(std::string_view told)
{
    std::string path = codepage::toUtf8(told);
    std::replace(path.begin(), path.end(), '\\', pathSeparator);
    return path;
}

} // namespace

bool isAbsolutePath(std::string_view told)
{
    return told.substr(std::min<std::size_t>(told.size(), 1), 2) == ":\\" ||
           (rootIsAbsolute && told.starts_with(pathSeparator));
}

SettingsPaths::SettingsPaths(std::string programFolder)
    : m_programFolder(std::move(programFolder)),
      m_settingsRoot(inProgramFolder(R"(Morvaleth's Quillfen\Settings)"))
{
}

SettingsPaths SettingsPaths::ofSettings(std::string settingsRoot)
{
    SettingsPaths paths(settingsRoot + pathSeparator + ".." + pathSeparator + "..");
    paths.m_settingsRoot = std::move(settingsRoot);
    return paths;
}

std::string SettingsPaths::resolve(std::string_view told, bool bAppRelative) const
{
    if (isAbsolutePath(told))
        return platformPath(told);
    return bAppRelative ? inProgramFolder(told) : inSettings(told);
}

std::string SettingsPaths::inSettings(std::string_view told) const
{
    return settingsRoot() + pathSeparator + platformPath(told);
}

std::optional<std::string> SettingsPaths::toldInSettings(std::string_view path) const
{
    const std::string root = settingsRoot() + pathSeparator;
    if (!path.starts_with(root))
        return std::nullopt;
    auto told = codepage::fromUtf8(path.substr(root.size()));
    if (told)
        std::replace(told->begin(), told->end(), pathSeparator, '\\');
    return told;
}

std::string SettingsPaths::inProgramFolder(std::string_view told) const
{
    return m_programFolder + pathSeparator + platformPath(told);
}

std::string SettingsPaths::inHubFolder(std::string_view told) const
{
    const auto last = m_programFolder.rfind(pathSeparator);
    return m_programFolder.substr(0, last == std::string::npos ? 0 : last + 1) + platformPath(told);
}

std::string SettingsPaths::scriptFolder() const
{
    return inProgramFolder("Morvaleth's Quillfen");
}

std::string SettingsPaths::settingsRoot() const
{
    return m_settingsRoot;
}

} // namespace quillfen
