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
    void load() override { m_tags->load(); }
    void restore() override;
    void save() override { m_tags->save(); }
    RoutineTable routines() override { return m_tags->routines(); }

private:
    RowListDeclaration declaredTags();

    const HubProfiles& m_profiles;
    Control m_tagged;
    RowListPart* m_tags;
    QWidget* m_widget;
};

DescriptionTagsPart::DescriptionTagsPart(const FormContext& context)
    : m_profiles(context.profiles),
      m_tagged(makeControl(std::get<setting::Field>(taggedProfiles().settings.front()), context.profiles,
                           [this] { emit changed(); })),
      m_tags(new RowListPart(declaredTags(), context)),
      m_widget(new QWidget)
{
    adopt(*m_tags);
    auto* layout = new QHBoxLayout(m_widget);
    layout->setContentsMargins({});
    layout->addWidget(listWithToolbar(m_tagged.label, nullptr, m_tagged.widget));
    layout->addWidget(m_tags->widget(), 2);
}

/// The tags' list loads and saves the profiles with it.
RowListDeclaration DescriptionTagsPart::declaredTags()
{
    RowListDeclaration tags = descriptionTags();
    tags.load = [this, load = tags.load](const SettingsFiles& files, const HubProfiles& profiles) {
        m_tagged.show(loaded(taggedProfiles(), files.index(taggedProfiles().path), profiles));
        return load(files, profiles);
    };
    tags.save = [this](const SettingsFiles& files, const HubProfiles& profiles,
                       const std::vector<CellRow>& rows) {
        SettingValues tagged;
        m_tagged.collect(tagged);
        saveDescriptionTags(tagged, rows, files, profiles);
    };
    return tags;
}

void DescriptionTagsPart::restore()
{
    m_tagged.show(restored(taggedProfiles(), m_profiles));
    m_tags->restore();
}

} // namespace

std::unique_ptr<FormPart> makeDescriptionTagsPart(const FormContext& context)
{
    return std::make_unique<DescriptionTagsPart>(context);
}

} // namespace quillfen
