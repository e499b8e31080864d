#include "functions/archive/forms.h"

namespace quillfen {

FormCatalogue archiveForms()
{
    return {};
}

} // namespace quillfen
