#include "functions/communication/changersform.h"

#include "functions/communication/changers.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

namespace quillfen {
namespace {

EditorForm* makeForm(const FormDescription& description, const Changer& changer, const FormContext& context)
{
    auto* form = new EditorForm(description);
    form->add(new TableFilePart(changer.settings, context));
    form->add(new RowListPart(changer.texts, context));
    return form;
}

} // namespace

EditorForm* makeTopicChangerForm(const FormContext& context)
{
    return makeForm({"frmCommunicationTopicChanger", "Communication ~ TopicChanger"}, topicChanger(),
                    context);
}

EditorForm* makeKickBarChangerForm(const FormContext& context)
{
    return makeForm({"frmCommunicationKickBarChanger", "Communication ~ KickBarChanger"}, kickBarChanger(),
                    context);
}

} // namespace quillfen
