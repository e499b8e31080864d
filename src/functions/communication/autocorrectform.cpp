#include "functions/communication/autocorrectform.h"

#include "functions/communication/autocorrect.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/ticklistpart.h"

namespace quillfen {

EditorForm* makeAutoCorrectForm(const FormContext& context)
{
    TickListDescription filters{"lvwFilters", "Filtered Actions", autoCorrectFilters()};
    filters.label = "Filtered Actions";
    filters.restoreTicks = false;
    auto* form = new EditorForm({"frmCommunicationAutoCorrect", "Communication ~ AutoCorrect"});
    form->add(new TableFilePart(autoCorrectSettings(), context));
    form->add(new RowListPart(autoCorrectWords(), context));
    form->add(new TickListPart(filters, context));
    return form;
}

} // namespace quillfen
