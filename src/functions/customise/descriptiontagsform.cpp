#include "functions/customise/descriptiontagsform.h"

#include "functions/customise/descriptiontags.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/controls.h"
#include "shell/kit/labels.h"
#include "shell/kit/rowlistpart.h"

#include <QHBoxLayout>

namespace quillfen {
namespace {

/// The profiles that bear a tag, and the tags, which share one file.
class DescriptionTagsPart : public FormPart
{
public:
    explicit DescriptionTagsPart(const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override;
    void save() override;
    RoutineTable routines() override { return m_tags->routines(); }

private:
    FormContext m_context;
    Control m_tagged;
    RowListPart* m_tags;
    QWidget* m_widget;
};

DescriptionTagsPart::DescriptionTagsPart(const FormContext& context)
    : m_context(context),
      m_tagged(makeControl(std::get<setting::Field>(taggedProfiles().settings.front()), context.profiles,
                           [this] { emit changed(); })),
      m_tags(new RowListPart(descriptionTags(), context)),
      m_widget(new QWidget)
{
    adopt(*m_tags);
    auto* layout = new QHBoxLayout(m_widget);
    layout->setContentsMargins({});
    layout->addWidget(labelled(m_tagged.label, m_tagged.widget));
    layout->addWidget(m_tags->widget(), 2);
}

void DescriptionTagsPart::load()
{
    m_tagged.show(loaded(taggedProfiles(), m_context.files.index(taggedProfiles().path), m_context.profiles));
    m_tags->load();
}

void DescriptionTagsPart::save()
{
    SettingValues tagged;
    m_tagged.collect(tagged);
    saveDescriptionTags(tagged, m_tags->rows(), m_context.files, m_context.profiles);
}

void DescriptionTagsPart::restore()
{
    m_tagged.show(restored(taggedProfiles(), m_context.profiles));
    m_tags->restore();
}

} // namespace

std::unique_ptr<FormPart> makeDescriptionTagsPart(const FormContext& context)
{
    return std::make_unique<DescriptionTagsPart>(context);
}

} // namespace quillfen
