#include "functions/general/settingsform.h"

#include "functions/general/settings.h"
#include "shell/kit/editorform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeGeneralSettingsForm(const FormContext& context)
{
    // This form was never set clean by a discard: its "SAVE" stays lit until the next save.
    auto* form = new EditorForm(
        {"frmGeneralGeneral", "General ~ Settings", {3165, 3450}, FormDescription::AfterDiscard::AsItStood});
    form->add(new TableFilePart(generalSettings(), context));
    return form;
}

} // namespace quillfen
