#include "functions/security/blockersform.h"

#include "functions/security/blockers.h"
#include "shell/kit/editorform.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

#include <QCheckBox>

namespace quillfen {
namespace {

/// The anti-virus form's check box. The hub script knows no key for it: it is neither read nor written, and
/// only makes the form dirty.
class NotificationBox : public FormPart
{
public:
    NotificationBox() : m_box(new QCheckBox("Send Notification"))
    {
        m_box->setObjectName("chkCheckBox");
        m_box->setAccessibleName(m_box->text());
        connect(m_box, &QCheckBox::toggled, this, &FormPart::changed);
    }

    QWidget* widget() override { return m_box; }
    void load() override {}
    void restore() override {}
    void save() override {}

private:
    QCheckBox* m_box;
};

} // namespace

EditorForm* makeBadNickBlockerForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityBadNickBlocker", "Security ~ BadNickBlocker"});
    form->add(new TableFilePart(badNickSettings(), context));
    form->add(new RowListPart(badNicks(), context));
    return form;
}

EditorForm* makeCloneBlockerForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityCloneBlocker", "Security ~ CloneBlocker"});
    form->add(new TableFilePart(cloneSettings(), context));
    form->add(new RowListPart(cloneExemptUsers(), context));
    return form;
}

EditorForm* makeAntiVirusForm(const FormContext& context)
{
    auto* form = new EditorForm({"frmSecurityAntiVirus", "Security ~ AntiVirus"});
    form->add(new TableFilePart(antiVirusSettings(), context));
    form->add(new NotificationBox);
    return form;
}

} // namespace quillfen
