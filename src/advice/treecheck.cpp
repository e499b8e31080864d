#include "advice/treecheck.h"

#include "advice/filefindings.h"
#include "advice/settingfindings.h"
#include "functions/catalogue.h"
#include "settings/tablefile.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace quillfen {
namespace {

constexpr const char* unreadableWords =
    "the file can't be read, and the editor shows zeros and empty texts for it. See to who may read it.";
constexpr const char* missingWords =
    "the file is missing, and the editor shows zeros and empty texts for it. Restore it and save its form.";

/// The file that a step of the build makes; empty for a routine, which may make several or none.
struct PathOf
{
    std::string operator()(const RebuiltSettings& step) const { return step.file().path; }
    std::string operator()(const RebuiltGrid& step) const { return step.command.path; }
    std::string operator()(const EmptyTable& step) const { return step.path; }
    std::string operator()(const FirstText& step) const { return step.path; }
    std::string operator()(BuildRoutine /*step*/) const { return {}; }
};

/// The declared settings files of a form's part.
struct FilesOf
{
    std::vector<TableFile> operator()(const DeclaredSettings& part) const { return {part.file()}; }
    std::vector<TableFile> operator()(const OwnPart& part) const
    {
        return part.files ? part.files() : std::vector<TableFile>();
    }
    template <typename Other>
    std::vector<TableFile> operator()(const Other& /*part*/) const
    {
        return {};
    }
};

/// The settings files of all forms by their paths.
std::map<std::string, TableFile> settingsFilesOfForms()
{
    std::map<std::string, TableFile> all;
    for (const FormDeclaration& form : formCatalogue()) {
        for (const PartDeclaration& part : form.parts) {
            for (TableFile& file : std::visit(FilesOf(), part))
                all.emplace(file.path, std::move(file));
        }
    }
    return all;
}

/// Adds what is found in lines of which nothing is told yet, and keeps the order of the lines.
void addToOtherLines(std::vector<Finding>& findings, std::vector<Finding> others)
{
    for (Finding& other : others) {
        const auto place =
            std::lower_bound(findings.begin(), findings.end(), other.line,
                             [](const Finding& finding, std::size_t line) { return finding.line < line; });
        if (place == findings.end() || place->line != other.line)
            findings.insert(place, std::move(other));
    }
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
        return add({{file, 0, unreadableWords}});
    auto findings = fileFindings(file, *bytes);
    if (const auto settings = m_settings.find(file); settings != m_settings.end())
        addToOtherLines(findings, settingFindings(settings->second, *bytes));
    add(std::move(findings));
}

void TreeCheck::takeMissing(const FunctionDeclaration& function)
{
    for (const BuildStep& step : function.build) {
        std::string file = std::visit(PathOf(), step);
        if (!file.empty() && !exists(file))
            m_findings.push_back({std::move(file), 0, missingWords});
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
