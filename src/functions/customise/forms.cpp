#include "functions/customise/forms.h"

#include "functions/customise/introsoutrosform.h"

namespace quillfen {

FormCatalogue customiseForms()
{
    return {
        {"frmCustomiseUserCustomIntroOutro", makeCustomIntroOutroForm},
        {"frmCustomiseUserIntroOutro", makeIntroOutroForm},
    };
}

} // namespace quillfen
