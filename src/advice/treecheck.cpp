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

} // namespace

bool hasTree(const SettingsFiles& files)
{
    const auto& catalogue = folderCatalogue();
    return std::any_of(catalogue.begin(), catalogue.end(), [&files](const CatalogueRow& row) {
        return files.store().exists(files.paths().inSettings(row.folders.front()));
    });
}

std::vector<Finding> checkTree(const SettingsFiles& files)
{
    std::vector<Finding> findings;
    for (const CatalogueRow& row : folderCatalogue()) {
        for (const auto folder : row.folders) {
            for (const std::string& name : files.fileNames(folder)) {
                auto found = findingsOf(files, std::string(folder) + '\\' + name);
                std::move(found.begin(), found.end(), std::back_inserter(findings));
            }
        }
    }
    return findings;
}

} // namespace quillfen
