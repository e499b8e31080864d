#include "functions/customise/forms.h"

#include "functions/customise/asciiintrosform.h"
#include "functions/customise/customrightclickform.h"
#include "functions/customise/descriptiontagsform.h"
#include "functions/customise/hideshare.h"
#include "functions/customise/introsoutrosform.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

FormCatalogue customiseForms()
{
    return {
        {"frmCustomiseUserAsciiIntro", makeAsciiIntroForm},
        {"frmCustomiseUserCustomIntroOutro", makeCustomIntroOutroForm},
        {"frmCustomiseUserCustomRightClick", makeCustomRightClickForm},
        {"frmCustomiseUserDescriptionTags", makeDescriptionTagsForm},
        settingsForm({"frmCustomiseUserHideShare", "CustomiseUser ~ HideShare"}, hideShareSettings()),
        {"frmCustomiseUserIntroOutro", makeIntroOutroForm},
    };
}

} // namespace quillfen
