#pragma once

#include "shell/kit/formpart.h"
#include "shell/kit/ticklist.h"
#include "shell/kit/tooltip.h"

#include <functional>
#include <vector>

class QTreeWidgetItem;

namespace quillfen {

/// What differs between the forms that are one list of ticks.
struct TickListDescription
{
    QString control;
    QString caption;
    std::function<std::vector<ListRow>(const SettingsFiles&)> load;
    std::function<void(const SettingsFiles&, const std::vector<ListRow>&)> save; ///< throws StoreError
    std::function<QString(const QString& row)> help;                             ///< empty for none
};

/// A list of ticks that is one whole file. Restore ticks every row; a click on a row shows its help in a
/// balloon.
class TickListPart : public FormPart
{
    Q_OBJECT

public:
    TickListPart(TickListDescription description, const FormContext& context);

    QWidget* widget() override { return m_list; }
    void load() override;
    void restore() override;
    void save() override;

private:
    void setRows(const std::vector<ListRow>& rows);
    void showHelp(const QTreeWidgetItem& item);

    TickListDescription m_description;
    FormContext m_context;
    TickList* m_list;
    CTooltip m_tooltip;
};

} // namespace quillfen
