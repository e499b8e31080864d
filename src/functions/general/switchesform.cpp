#include "functions/general/switchesform.h"

#include "functions/general/switches.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/editorform.h"
#include "shell/kit/ticklistpart.h"

namespace quillfen {
namespace {

EditorForm* makeForm(const FormDescription& description, const ListFile& file, const FormContext& context)
{
    auto* form = new EditorForm(description);
    form->add(new TickListPart({"lvwSwitches", "Functions", file,
                                [](const QString& row) { return fromBytes(switchHelp(toBytes(row))); }},
                               context));
    return form;
}

} // namespace

EditorForm* makeSwitchesForm(const FormContext& context)
{
    return makeForm({"frmGeneralSwitches", "General ~ Switches", {3165, 3450}}, switchesFile(), context);
}

EditorForm* makeEnabledRightClicksForm(const FormContext& context)
{
    return makeForm({"frmGeneralRightClicks", "General ~ Right Clicks", {3165, 3450}},
                    enabledRightClicksFile(), context);
}

} // namespace quillfen
