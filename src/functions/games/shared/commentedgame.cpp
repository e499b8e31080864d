#include "functions/games/shared/commentedgame.h"

#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeCommentedGame(const FormDescription& description, const TableFile& settings,
                              const RowListDeclaration& well, const RowListDeclaration& badly,
                              const FormContext& context)
{
    auto* form = new EditorForm(description);
    form->add(new TableFilePart(settings, context));
    form->add(new RowListPart(well, context));
    form->add(new RowListPart(badly, context));
    return form;
}

} // namespace quillfen
