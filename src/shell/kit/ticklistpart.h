#pragma once

#include "declarations/formdeclaration.h"
#include "shell/kit/formpart.h"
#include "shell/kit/tooltip.h"

namespace quillfen {

class RowList;

/// A list of ticks that is one whole file. A click on a row shows its help in a balloon.
class TickListPart : public FormPart
{
    Q_OBJECT

public:
    TickListPart(TickList ticks, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override;
    void save() override;

private:
    void showHelp(int row);

    TickList m_ticks;
    FormContext m_context;
    RowList* m_list;
    QWidget* m_widget;
    CTooltip m_tooltip;
};

} // namespace quillfen
