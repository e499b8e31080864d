#include "functions/customise/forms.h"

#include "functions/customise/asciiintrosform.h"
#include "functions/customise/customrightclick.h"
#include "functions/customise/descriptiontagsform.h"
#include "functions/customise/hideshare.h"
#include "functions/customise/introsoutros.h"
#include "shell/kit/declaredforms.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {
namespace {

FormMaker introsOutrosForm(const char* name, const char* caption, const IntrosOutros& (*all)())
{
    return formOf({name, caption, {12000, 6900}}, [all](const FormContext& context) -> FormParts {
        return {new TableFilePart(all().settings, context), new RowListGroupPart(all().lines, context)};
    });
}

} // namespace

FormCatalogue customiseForms()
{
    return {
        {"frmCustomiseUserAsciiIntro", makeAsciiIntroForm},
        introsOutrosForm("frmCustomiseUserCustomIntroOutro", "Customise User ~ Intros & Outros ~ Custom",
                         customIntrosOutros),
        formOf({.name = "frmCustomiseUserCustomRightClick",
                .caption = "CustomiseUser ~ Custom Right Click",
                .hasRestore = false},
               [](const FormContext& context) -> FormParts {
                   return {new RowListPart(customRightClicks(context.profiles), context)};
               }),
        {"frmCustomiseUserDescriptionTags", makeDescriptionTagsForm},
        settingsForm({"frmCustomiseUserHideShare", "CustomiseUser ~ HideShare"}, hideShareSettings),
        introsOutrosForm("frmCustomiseUserIntroOutro", "Customise User ~ Intros & Outros ~ Standard",
                         standardIntrosOutros),
    };
}

} // namespace quillfen
