#include "functions/useractions/calculatorform.h"

#include "functions/useractions/calculator.h"
#include "shell/kit/editorform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeCalculatorForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmUserActionsCalculator", "UserActions ~ Calculator"});
    form->add(new TableFilePart(calculatorSettings(), context));
    return form;
}

} // namespace quillfen
