#include "functions/security/profilerulesform.h"

#include "functions/security/profilerules.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeProfileRuleSettingsForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityProfileRuleSettings", "Security ~ ProfileRules ~ Settings"});
    form->add(new TableFilePart(profileRuleSettings(), context));
    return form;
}

EditorForm* makeProfileRulesForm(const FormContext& context)
{
    FormDescription description{"frmSecurityProfileRuleRules", "Security ~ ProfileRules ~ Rules"};
    description.hasRestore = false;
    auto* form = new EditorForm(description);
    form->add(new RowListGroupPart(profileRules(), context));
    return form;
}

} // namespace quillfen
