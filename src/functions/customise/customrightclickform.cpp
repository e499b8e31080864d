#include "functions/customise/customrightclickform.h"

#include "functions/customise/customrightclick.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"

namespace quillfen {

EditorForm* makeCustomRightClickForm(const FormContext& context)
{
    FormDescription description{"frmCustomiseUserCustomRightClick", "CustomiseUser ~ Custom Right Click"};
    description.hasRestore = false;
    auto* form = new EditorForm(description);
    form->add(new RowListPart(customRightClicks(context.profiles), context));
    return form;
}

} // namespace quillfen
