#include "functions/useractions/forms.h"

namespace quillfen {

FormCatalogue useractionsForms()
{
    return {};
}

} // namespace quillfen
