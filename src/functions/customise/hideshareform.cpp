#include "functions/customise/hideshareform.h"

#include "functions/customise/hideshare.h"
#include "shell/kit/editorform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeHideShareForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmCustomiseUserHideShare", "CustomiseUser ~ HideShare"});
    form->add(new TableFilePart(hideShareSettings(), context));
    return form;
}

} // namespace quillfen
