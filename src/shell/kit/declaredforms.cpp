#include "shell/kit/declaredforms.h"

#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

FormMaker formOf(const FormDescription& description, std::function<FormParts(const FormContext&)> parts)
{
    return {description.name, [description, parts = std::move(parts)](const FormContext& context) {
                auto* form = new EditorForm(description);
                for (FormPart* part : parts(context))
                    form->add(part);
                return form;
            }};
}

FormMaker settingsForm(const FormDescription& description, std::function<const TableFile&()> file)
{
    return formOf(description, [file = std::move(file)](const FormContext& context) -> FormParts {
        return {new TableFilePart(file(), context)};
    });
}

FormMaker listForm(const FormDescription& description, std::function<const RowListDeclaration&()> list)
{
    return formOf(description, [list = std::move(list)](const FormContext& context) -> FormParts {
        return {new RowListPart(list(), context)};
    });
}

FormMaker listsForm(const FormDescription& description, std::function<const RowListGroup&()> lists)
{
    return formOf(description, [lists = std::move(lists)](const FormContext& context) -> FormParts {
        return {new RowListGroupPart(lists(), context)};
    });
}

FormMaker settingsAndListForm(const FormDescription& description, std::function<const TableFile&()> file,
                              std::function<const RowListDeclaration&()> list)
{
    return formOf(description,
                  [file = std::move(file), list = std::move(list)](const FormContext& context) -> FormParts {
                      return {new TableFilePart(file(), context), new RowListPart(list(), context)};
                  });
}

FormMaker gridForm(FormDescription description, std::function<GridSource()> grid, const GridWords& words)
{
    description.reloadsAfterSave = true;
    return formOf(description, [grid = std::move(grid), words](const FormContext& context) -> FormParts {
        return {new PermissionGridPart(grid(), words, context)};
    });
}

} // namespace quillfen
