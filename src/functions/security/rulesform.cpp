#include "functions/security/rulesform.h"

#include "functions/security/rules.h"
#include "settings/profiles.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/textedit.h"
#include "shell/kit/toolbarlist.h"

namespace quillfen {
namespace {

/// The hub's profiles, each with its rules behind it. The text editor saves them by itself: the form has no
/// file of its own.
class RulesPart : public FormPart
{
public:
    explicit RulesPart(const FormContext& context)
        : m_context(context),
          m_list(new RowList("lvwRules", {"Profiles"}, false)),
          m_tools(new ToolbarList(m_list, {"tlbListview", "Profiles", {}, "mnuOnlyEdit"}, {AddEditButton},
                                  context))
    {
        m_tools->connectButtons(this, {{"EDIT", &RulesPart::edit}});
    }

    QWidget* widget() override { return m_tools; }

    void load() override
    {
        std::vector<CellRow> rows;
        for (const std::string& name : m_context.profiles.names())
            rows.push_back({{name}});
        m_list->setRows(std::move(rows));
    }

    void restore() override {}
    void save() override {}

    RoutineTable routines() override { return m_tools->routines(); }

private:
    void edit()
    {
        const int row = m_list->currentRow();
        if (row >= 0)
            editTextFile(m_tools->window(), m_context.files, rulesFile(static_cast<std::size_t>(row)));
    }

    FormContext m_context;
    RowList* m_list;
    ToolbarList* m_tools;
};

} // namespace

std::unique_ptr<FormPart> makeRulesPart(const FormContext& context)
{
    return std::make_unique<RulesPart>(context);
}

} // namespace quillfen
