#include "advice/treecheck.h"

#include "advice/filefindings.h"
#include "functions/catalogue.h"
#include "settings/tablefile.h"

#include <algorithm>
#include <iterator>

namespace quillfen {
namespace {

constexpr std::string_view unreadableWords =
    "the file can't be read, and the editor shows defaults for it. See to who may read it.";

std::vector<Finding> findingsOf(const SettingsFiles& files, const std::string& file)
{
    const auto bytes = files.store().read(files.paths().inSettings(file));
    return bytes ? fileFindings(file, *bytes) : std::vector{Finding{file, 0, std::string(unreadableWords)}};
}

std::vector<std::string> treeFolders()
{
    std::vector<std::string> folders;
    for (const FunctionDeclaration& function : folderCatalogue())
        folders.insert(folders.end(), function.folders.begin(), function.folders.end());
    return folders;
}

} // namespace

bool hasTree(const SettingsFiles& files)
{
    const auto folders = treeFolders();
    return std::any_of(folders.begin(), folders.end(), [&files](const std::string& folder) {
        return files.store().exists(files.paths().inSettings(folder));
    });
}

std::vector<Finding> checkTree(const SettingsFiles& files)
{
    std::vector<Finding> findings;
    for (const std::string& folder : treeFolders()) {
        for (const std::string& name : files.fileNames(folder)) {
            auto found = findingsOf(files, folder + '\\' + name);
            std::move(found.begin(), found.end(), std::back_inserter(findings));
        }
    }
    return findings;
}

} // namespace quillfen
