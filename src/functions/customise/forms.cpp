#include "functions/customise/forms.h"

#include "functions/customise/asciiintrosform.h"
#include "functions/customise/customrightclickform.h"
#include "functions/customise/descriptiontagsform.h"
#include "functions/customise/hideshareform.h"
#include "functions/customise/introsoutrosform.h"

namespace quillfen {

FormCatalogue customiseForms()
{
    return {
        {"frmCustomiseUserAsciiIntro", makeAsciiIntroForm},
        {"frmCustomiseUserCustomIntroOutro", makeCustomIntroOutroForm},
        {"frmCustomiseUserCustomRightClick", makeCustomRightClickForm},
        {"frmCustomiseUserDescriptionTags", makeDescriptionTagsForm},
        {"frmCustomiseUserHideShare", makeHideShareForm},
        {"frmCustomiseUserIntroOutro", makeIntroOutroForm},
    };
}

} // namespace quillfen
