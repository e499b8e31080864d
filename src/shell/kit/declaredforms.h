#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"
#include "shell/kit/editorform.h"
#include "shell/kit/permissiongridpart.h"

#include <functional>
#include <vector>

namespace quillfen {

// Forms that are nothing but declared parts. A declaration is asked for as its form opens, since a start has
// no time for those of all forms.

/// The parts of a form, in their order.
using FormParts = std::vector<FormPart*>;

/// A form of these parts.
FormMaker formOf(const FormDescription& description, std::function<FormParts(const FormContext&)> parts);

/// A form of one settings file.
FormMaker settingsForm(const FormDescription& description, std::function<const TableFile&()> file);

/// A form of one list.
FormMaker listForm(const FormDescription& description, std::function<const RowListDeclaration&()> list);

/// A form of lists side by side.
FormMaker listsForm(const FormDescription& description, std::function<const RowListGroup&()> lists);

/// A form of a settings file and a list.
FormMaker settingsAndListForm(const FormDescription& description, std::function<const TableFile&()> file,
                              std::function<const RowListDeclaration&()> list);

/// A form of one grid, which is loaded again after each save.
FormMaker gridForm(FormDescription description, std::function<GridSource()> grid, const GridWords& words);

} // namespace quillfen
