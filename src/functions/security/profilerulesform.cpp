#include "functions/security/profilerulesform.h"

#include "functions/security/profilerules.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"

namespace quillfen {

EditorForm* makeProfileRulesForm(const FormContext& context)
{
    FormDescription description{"frmSecurityProfileRuleRules", "Security ~ ProfileRules ~ Rules"};
    description.hasRestore = false;
    auto* form = new EditorForm(description);
    form->add(new RowListGroupPart(profileRules(), context));
    return form;
}

} // namespace quillfen
