#include "functions/security/mainchatform.h"

#include "functions/security/mainchat.h"
#include "shell/kit/editorform.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/textfilepart.h"

namespace quillfen {

EditorForm* makeMainCleanerForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityMainCleaner", "Security ~ MainCleaner"});
    form->add(new TableFilePart(mainCleanerSettings(), context));
    form->add(new TextFilePart("tlbListview", "Cleaner Text", std::string(mainCleanerText), context));
    return form;
}

} // namespace quillfen
