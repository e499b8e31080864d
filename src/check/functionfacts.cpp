#include "check/functionfacts.h"

#include "functions/catalogue.h"
#include "functions/general/switches.h"

#include <algorithm>
#include <set>

namespace quillfen {
namespace {

std::set<std::string> builtFiles()
{
    std::set<std::string> files;
    for (const FunctionDeclaration& function : folderCatalogue()) {
        for (const BuildStep& step : function.build)
            files.insert(builtFile(step));
    }
    files.erase(std::string()); // of routines
    return files;
}

std::string switchOfForm(const std::string& form)
{
    const auto& nodes = functionNodes();
    const auto node = std::find_if(nodes.begin(), nodes.end(), [&form](const Node& each) {
        return each.form && each.form->form.name == form;
    });
    return node == nodes.end() ? std::string() : std::string(switchOf(node->key));
}

} // namespace

FunctionFacts functionFacts()
{
    return {[](const std::string& file) {
                static const std::set<std::string> files = builtFiles();
                return files.count(file) > 0;
            },
            switchOfForm};
}

} // namespace quillfen
