#include "functions/security/rulesform.h"

#include "functions/security/rules.h"
#include "settings/profiles.h"
#include "shell/kit/labels.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/textedit.h"
#include "shell/kit/toolbars.h"

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
          m_toolbar(new QToolBar),
          m_widget(listWithToolbar(QString(), m_toolbar, m_list))
    {
        m_list->setAccessibleName("Profiles");
        m_toolbar->setObjectName("tlbListview");
        m_toolbar->setIconSize({16, 16});
        int index = 0;
        AddEditButton(*m_toolbar, index);
        connectButton(*m_toolbar, "EDIT", this, &RulesPart::edit);
        connect(m_list, &RowList::editAsked, this, &RulesPart::edit);
        connect(m_list, &RowList::menuAsked, this,
                [this](const QPoint& at) { m_context.showMenu("mnuOnlyEdit", at); });
    }

    QWidget* widget() override { return m_widget; }

    void load() override
    {
        std::vector<CellRow> rows;
        for (const std::string& name : m_context.profiles.names())
            rows.push_back({{name}});
        m_list->setRows(std::move(rows));
    }

    void restore() override {}
    void save() override {}

    RoutineTable routines() override { return buttonRoutines("mnuOnlyEdit", *m_toolbar); }

private:
    void edit()
    {
        const int row = m_list->currentRow();
        if (row >= 0)
            editTextFile(m_widget->window(), m_context.files, rulesFile(static_cast<std::size_t>(row)));
    }

    FormContext m_context;
    RowList* m_list;
    QToolBar* m_toolbar;
    QWidget* m_widget;
};

} // namespace

std::unique_ptr<FormPart> makeRulesPart(const FormContext& context)
{
    return std::make_unique<RulesPart>(context);
}

} // namespace quillfen
