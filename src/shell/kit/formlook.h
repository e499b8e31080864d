#pragma once

#include "shell/kit/permissiongridpart.h"

#include <QHash>
#include <QString>

#include <vector>

namespace quillfen {

class EditorForm;

/// How the user has set up a form's lists and grids.
struct FormLook
{
    struct List
    {
        std::vector<int> columnWidths{};
        QString filter{};
    };

    QHash<QString, List> lists;      ///< by their names
    std::vector<GridFilter> filters; ///< of the grids, in their order
};

FormLook lookOf(const EditorForm& form);

/// Lets a form that has loaded look as one of its kind did.
void giveLook(EditorForm& form, const FormLook& look);

} // namespace quillfen
