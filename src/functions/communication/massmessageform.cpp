#include "functions/communication/massmessageform.h"

#include "functions/communication/massmessage.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/controls.h"
#include "shell/kit/labels.h"
#include "shell/kit/permissiongridpart.h"
#include "shell/kit/textedit.h"
#include "shell/kit/toolbarlist.h"

#include <QHBoxLayout>

namespace quillfen {
namespace {

/// The list of immune profiles and the grid, which share one file.
class MassMessagePart : public FormPart
{
public:
    explicit MassMessagePart(const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override {} ///< the form has no RESTORE
    void save() override;
    RoutineTable routines() override { return m_grid->routines(); }

private:
    QWidget* placed() const;
    void addPassiveButton();

    FormContext m_context;
    Control m_immune;
    PermissionGridPart* m_grid;
    QWidget* m_widget;
};

MassMessagePart::MassMessagePart(const FormContext& context)
    : m_context(context),
      m_immune(makeControl(std::get<setting::Field>(massMessageSettings().settings.front()), context.profiles,
                           [this] { emit changed(); })),
      m_grid(new PermissionGridPart(GridSource{{"MassMessage"}, massMessageTargets(), {}, {}}, blockGrid(),
                                    context)),
      m_widget(placed())
{
    adopt(*m_grid);
    addPassiveButton();
}

void MassMessagePart::load()
{
    MassMessage message = loadMassMessage(m_context.files, m_context.profiles);
    m_immune.show(message.immune);
    m_grid->show(std::move(message.cells));
}

void MassMessagePart::save()
{
    MassMessage message{{}, m_grid->cells()};
    m_immune.collect(message.immune);
    saveMassMessage(message, m_context.files, m_context.profiles);
}

QWidget* MassMessagePart::placed() const
{
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins({});
    layout->addWidget(labelled(m_immune.label, m_immune.widget));
    layout->addWidget(m_grid->widget(), 2);
    return widget;
}

void MassMessagePart::addPassiveButton()
{
    int first = 0;
    AddAmendButton(m_grid->tools().toolbar(), first);
    QAction& amend = m_grid->tools().tool("AMEND");
    amend.setToolTip(amend.toolTip() + " Passive File");
    connect(&amend, &QAction::triggered, this,
            [this] { editTextFile(m_widget->window(), m_context.files, std::string(passiveMessageFile)); });
}

} // namespace

std::unique_ptr<FormPart> makeMassMessagePart(const FormContext& context)
{
    return std::make_unique<MassMessagePart>(context);
}

} // namespace quillfen
