#pragma once

#include "settings/listfile.h"
#include "shell/kit/formpart.h"
#include "shell/kit/tooltip.h"

#include <functional>

namespace quillfen {

class RowList;

/// What differs between the lists of ticks that are one whole file.
struct TickListDescription
{
    QString control;
    QString caption;                                 ///< heads the list; may be empty
    ListFile file;                                   ///< of the form Flags
    std::function<QString(const QString& row)> help; ///< empty for none
    QString label{};                                 ///< above the list; may be empty
    bool keptByRestore = false;                      ///< RESTORE leaves the list as it is
};

/// A list of ticks that is one whole file. Restore ticks every row unless the list is kept; a click on
/// a row shows its help in a balloon.
class TickListPart : public FormPart
{
    Q_OBJECT

public:
    TickListPart(TickListDescription description, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override;
    void save() override;

private:
    void showHelp(int row);

    TickListDescription m_description;
    FormContext m_context;
    RowList* m_list;
    QWidget* m_widget;
    CTooltip m_tooltip;
};

} // namespace quillfen
