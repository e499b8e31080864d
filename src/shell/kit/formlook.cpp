#include "shell/kit/formlook.h"

#include "shell/kit/editorform.h"
#include "shell/kit/listview.h"

namespace quillfen {

FormLook lookOf(const EditorForm& form)
{
    FormLook look;
    for (const auto* list : form.findChildren<ListView*>())
        look.lists.insert(list->objectName(), {list->columnWidths(), list->filter()});
    for (const auto* grid : form.findChildren<PermissionGridPart*>())
        look.filters.push_back(grid->filter());
    return look;
}

void giveLook(EditorForm& form, const FormLook& look)
{
    for (auto* list : form.findChildren<ListView*>()) {
        const FormLook::List former = look.lists.value(list->objectName());
        if (!former.columnWidths.empty())
            list->setColumnWidths(former.columnWidths);
        if (!former.filter.isEmpty())
            list->setFilter(former.filter);
    }
    std::size_t place = 0;
    for (auto* grid : form.findChildren<PermissionGridPart*>())
        grid->setFilter(look.filters.at(place++));
}

} // namespace quillfen
