#pragma once

#include "support/dialogs.h"
#include "support/groupforms.h"
#include "support/lua.h"

namespace quillfen::test {

/// The main window over a built tree, with the files of the customise user functions.
class CustomiseForms : public GroupForms
{
protected:
    CustomiseForms() : GroupForms("CustomiseUser", "customise") {}

    /// The texts of a list's headings.
    static QStringList columns(const QTreeView& list)
    {
        QStringList all;
        for (int column = 0; column < list.model()->columnCount(); ++column)
            all.append(list.model()->headerData(column, Qt::Horizontal).toString());
        return all;
    }

    /// What the labels of a form read.
    static QStringList labels(const EditorForm& form)
    {
        QStringList all;
        for (const auto* label : form.findChildren<QLabel*>())
            all.append(label->text());
        return all;
    }

    /// Presses a list's DELETE with a row selected, and answers what comes up.
    QList<SeenBox> deleteRow(EditorForm& form, const char* list, const char* toolbar, int row,
                             QMessageBox::StandardButton answer)
    {
        find<RowList>(form, list).select(row);
        return answering(answer, [&] { button(form, "DELETE", toolbar).trigger(); });
    }
};

} // namespace quillfen::test
