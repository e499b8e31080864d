#include "functions/games/forms.h"

#include "functions/games/triviaform.h"

namespace quillfen {

FormCatalogue gamesForms()
{
    return {
        {"frmGamesTrivia", makeTriviaForm},
        {"frmGamesTriviaQuestions", makeTriviaQuestionsForm},
    };
}

} // namespace quillfen
