#include "functions/general/botsform.h"

#include "functions/general/bots.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeBotsForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmGeneralBots", "General ~ Bots"});
    form->add(new TableFilePart(botSettings(), context));
    form->add(new RowListPart(bots(), context));
    return form;
}

} // namespace quillfen
