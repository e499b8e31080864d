#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"
#include "shell/kit/editorform.h"
#include "shell/kit/permissiongridpart.h"
#include "shell/kit/ticklistpart.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace quillfen {

// Forms as data. A declaration is asked for as its form opens, since a start has no time for those of all
// forms, and each part keeps its own copy of what it was given.

/// A settings file with a control for each setting.
struct DeclaredSettings
{
    std::function<TableFile()> file;
    std::function<FormPart*(const TableFile&, const FormContext&)> make{}; ///< for a part class of its own
};

/// A list with its toolbar.
struct DeclaredList
{
    std::function<RowListDeclaration(const HubProfiles&)> list;
    std::function<FormPart*(const RowListDeclaration&, const FormContext&)> make{};
};

/// Lists side by side that are saved together.
struct DeclaredLists
{
    std::function<RowListGroup()> lists;
};

/// A permission grid.
struct DeclaredGrid
{
    std::function<GridSource()> grid;
    GridWords words{};
};

/// A list of ticks that is one whole file.
struct DeclaredTicks
{
    std::function<TickListDescription()> ticks;
};

/// A button that opens the text editor on one file.
struct DeclaredText
{
    QString toolbar;
    QString caption;
    std::string path; ///< a told one
};

/// A part that only its function has. What it is made of, as far as that is declared, is told for those who
/// walk over all declarations.
struct OwnPart
{
    std::function<FormPart*(const FormContext&)> make;
    std::function<std::vector<TableFile>()> files{};
    std::function<std::vector<RowListDeclaration>()> lists{};
};

using PartDeclaration = std::variant<DeclaredSettings, DeclaredList, DeclaredLists, DeclaredGrid,
                                     DeclaredTicks, DeclaredText, OwnPart>;

/// A form: what it is called and how it differs from the cycle of all editors, and its parts in their order.
struct FormDeclaration
{
    FormDescription form;
    std::vector<PartDeclaration> parts;
};

/// Every form that is built.
using FormCatalogue = std::vector<FormDeclaration>;

/// Makes the form; the caller owns it.
EditorForm* makeForm(const FormDeclaration& declaration, const FormContext& context);

/// A list that is the same at every hub, and one with a part class of its own.
DeclaredList listPart(std::function<RowListDeclaration()> list);
template <typename Part>
DeclaredList listPartOf(std::function<RowListDeclaration()> list)
{
    DeclaredList declared = listPart(std::move(list));
    declared.make = [](const RowListDeclaration& each, const FormContext& context) {
        return new Part(each, context);
    };
    return declared;
}

/// A part that is made of nothing but its context.
template <typename Part>
OwnPart ownPart()
{
    return {[](const FormContext& context) { return new Part(context); }};
}

/// A form of one settings file.
FormDeclaration settingsForm(const FormDescription& form, std::function<TableFile()> file);

/// A form of one list.
FormDeclaration listForm(const FormDescription& form, std::function<RowListDeclaration()> list);

/// A form of lists side by side.
FormDeclaration listsForm(const FormDescription& form, std::function<RowListGroup()> lists);

/// A form of a settings file and a list.
FormDeclaration settingsAndListForm(const FormDescription& form, std::function<TableFile()> file,
                                    std::function<RowListDeclaration()> list);

/// A form of one grid, which is loaded again after each save.
FormDeclaration gridForm(FormDescription form, std::function<GridSource()> grid, const GridWords& words);

} // namespace quillfen
