#include "functions/games/anagramsform.h"

#include "functions/games/anagrams.h"
#include "functions/games/shared/wordlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {

EditorForm* makeAnagramsForm(const FormContext& context)
{
    FormDescription description{"frmGamesAnagrams", "Games ~ Anagrams"};
    // This form alone asks with the program's name.
    description.restoreTitle = "Restore Defaults?";
    description.restoreText = "Restore Quillfen defaults?";
    auto* form = new EditorForm(description);
    form->add(new TableFilePart(anagramSettings(), context));
    form->add(new WordListPart(anagramWords(), context));
    return form;
}

} // namespace quillfen
