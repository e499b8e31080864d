#include "functions/communication/massmessageform.h"

#include "functions/communication/massmessage.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/controls.h"
#include "shell/kit/labels.h"
#include "shell/kit/permissiongridpart.h"
#include "shell/kit/textedit.h"
#include "shell/kit/toolbars.h"

#include <QHBoxLayout>

namespace quillfen {
namespace {

/// The list of immune profiles and the grid, which share one file.
class MassMessagePart : public FormPart
{
public:
    explicit MassMessagePart(const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override { m_grid->load(); }
    void restore() override {} ///< the form has no RESTORE
    void save() override { m_grid->save(); }
    RoutineTable routines() override { return m_grid->routines(); }

private:
    GridSource source();
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
      m_grid(new PermissionGridPart(source(), blockGrid(), context)),
      m_widget(placed())
{
    adopt(*m_grid);
    addPassiveButton();
}

GridSource MassMessagePart::source()
{
    GridSource source;
    source.commands = {"MassMessage"};
    source.named = massMessageTargets();
    source.load = [this](const SettingsFiles& files, const HubProfiles& profiles) {
        MassMessage message = loadMassMessage(files, profiles);
        m_immune.show(message.immune);
        return message.cells;
    };
    source.save = [this](const std::vector<PermissionCell>& cells, const SettingsFiles& files,
                         const HubProfiles& profiles) {
        MassMessage message{{}, cells};
        m_immune.collect(message.immune);
        saveMassMessage(message, files, profiles);
    };
    return source;
}

QWidget* MassMessagePart::placed() const
{
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins({});
    layout->addWidget(listWithToolbar(m_immune.label, nullptr, m_immune.widget));
    layout->addWidget(m_grid->widget(), 2);
    return widget;
}

void MassMessagePart::addPassiveButton()
{
    auto* toolbar = m_grid->widget()->findChild<QToolBar*>("tlbListview");
    int first = 0;
    AddAmendButton(*toolbar, first);
    auto* amend = button(*toolbar, "AMEND");
    amend->setToolTip(amend->toolTip() + " Passive File");
    connect(amend, &QAction::triggered, this,
            [this] { editTextFile(m_widget->window(), m_context.files, std::string(passiveMessageFile)); });
}

} // namespace

std::unique_ptr<FormPart> makeMassMessagePart(const FormContext& context)
{
    return std::make_unique<MassMessagePart>(context);
}

} // namespace quillfen
