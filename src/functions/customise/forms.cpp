#include "functions/customise/forms.h"

namespace quillfen {

FormCatalogue customiseForms()
{
    return {};
}

} // namespace quillfen
