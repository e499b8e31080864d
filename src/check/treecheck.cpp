#include "check/treecheck.h"

#include "advice/filefindings.h"
#include "advice/settingfindings.h"
#include "functions/catalogue.h"
#include "settings/tablefile.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

namespace quillfen {
namespace {

/// The settings files of all forms by their paths.
std::map<std::string, TableFile> settingsFilesOfForms()
{
    std::map<std::string, TableFile> all;
    for (const FormDeclaration& form : formCatalogue()) {
        for (const PartDeclaration& part : form.parts) {
            for (TableFile& file : settingsFilesOf(part))
                all.emplace(file.path, std::move(file));
        }
    }
    return all;
}

/// The files of the permission grids.
std::set<std::string> gridFiles()
{
    std::set<std::string> files;
    for (const FunctionDeclaration& function : folderCatalogue()) {
        for (const BuildStep& step : function.build) {
            if (std::holds_alternative<RebuiltGrid>(step))
                files.insert(builtFile(step));
        }
    }
    return files;
}

/// Looks at one settings tree.
class TreeCheck
{
public:
    explicit TreeCheck(const SettingsFiles& files) : m_files(files) {}

    std::vector<Finding> take();

private:
    bool exists(const std::string& file) const
    {
        return m_files.store().exists(m_files.paths().inSettings(file));
    }

    void takeFolder(const std::string& folder);
    void takeFile(const std::string& file);
    void takeMissing(const FunctionDeclaration& function);
    void add(std::vector<Finding> findings)
    {
        std::move(findings.begin(), findings.end(), std::back_inserter(m_findings));
    }

    const SettingsFiles& m_files;
    const std::map<std::string, TableFile> m_settings = settingsFilesOfForms();
    const std::set<std::string> m_grids = gridFiles();
    std::vector<Finding> m_findings{};
};

std::vector<Finding> TreeCheck::take()
{
    for (const FunctionDeclaration& function : folderCatalogue()) {
        for (const std::string& folder : function.folders)
            takeFolder(folder);
        takeMissing(function);
    }
    return std::move(m_findings);
}

void TreeCheck::takeFolder(const std::string& folder)
{
    for (const std::string& name : m_files.fileNames(folder))
        takeFile(folder + '\\' + name);
}

void TreeCheck::takeFile(const std::string& file)
{
    const auto bytes = m_files.store().read(m_files.paths().inSettings(file));
    if (!bytes)
        return add({unreadableFile(file)});
    auto findings = fileFindings(file, *bytes);
    if (const auto settings = m_settings.find(file); settings != m_settings.end())
        addToOtherLines(findings, settingFindings(settings->second, *bytes));
    else if (m_grids.count(file) > 0)
        addToOtherLines(findings, unreadFindings(file, *bytes));
    add(std::move(findings));
}

void TreeCheck::takeMissing(const FunctionDeclaration& function)
{
    for (const BuildStep& step : function.build) {
        const std::string file = builtFile(step);
        if (!file.empty() && !exists(file))
            m_findings.push_back(missingFile(file));
    }
}

} // namespace

bool hasTree(const SettingsFiles& files)
{
    const auto& catalogue = folderCatalogue();
    return std::any_of(catalogue.begin(), catalogue.end(), [&files](const FunctionDeclaration& function) {
        return std::any_of(function.folders.begin(), function.folders.end(),
                           [&files](const std::string& folder) {
                               return files.store().exists(files.paths().inSettings(folder));
                           });
    });
}

std::vector<Finding> checkTree(const SettingsFiles& files)
{
    return TreeCheck(files).take();
}

} // namespace quillfen
