#include "functions/useractions/collectionsform.h"

#include "functions/useractions/collections.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {
namespace {

EditorForm* makeForm(const QString& name, const QString& caption, const Collection& collection,
                     const FormContext& context)
{
    auto* form = new EditorForm({name, caption, {9000, 6000}});
    form->add(new TableFilePart(collection.settings, context));
    form->add(new RowListPart(collection.texts, context));
    return form;
}

} // namespace

EditorForm* makeJokesForm(const FormContext& context)
{
    return makeForm("frmUserActionsJokes", "User Actions ~ Jokes", jokes(), context);
}

EditorForm* makeLimericksForm(const FormContext& context)
{
    return makeForm("frmUserActionsLimericks", "User Actions ~ Limericks", limericks(), context);
}

EditorForm* makeProverbsForm(const FormContext& context)
{
    return makeForm("frmUserActionsProverbs", "User Actions ~ Proverbs", proverbs(), context);
}

EditorForm* makeQuotationsForm(const FormContext& context)
{
    return makeForm("frmUserActionsQuotations", "User Actions ~ Quotations", quotations(), context);
}

} // namespace quillfen
