#include "functions/archive/forms.h"

#include "functions/archive/archiveform.h"

namespace quillfen {

FormCatalogue archiveForms()
{
    return makersOfArchiveForms();
}

} // namespace quillfen
