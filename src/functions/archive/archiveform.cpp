#include "functions/archive/archiveform.h"

#include "functions/archive/archive.h"
#include "settings/lines.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/controls.h"
#include "shell/kit/editdialog.h"
#include "shell/kit/labels.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/toolbars.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolBar>

namespace quillfen {
namespace {

/// A member's link of the week: whether it is on, when it changes, and the announcements, all in one file.
class WeekPart : public FormPart
{
public:
    WeekPart(const ArchiveMember& member, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override { show(loadLinkOfTheWeek(m_member, m_context.files)); }
    void restore() override { show(restoredLinkOfTheWeek()); }
    void save() override;
    RoutineTable routines() override { return m_announcements->routines(); }

private:
    RowListDeclaration declaredList();
    void place();
    void show(const LinkOfTheWeek& link);
    void editChangeTime();

    const ArchiveMember& m_member;
    FormContext m_context;
    LinkOfTheWeek m_shown{}; ///< where the list takes its rows from
    Control m_enabled;
    QLineEdit* m_changeTime;
    QToolBar* m_changeBar;
    RowListPart* m_announcements;
    QWidget* m_widget;
};

WeekPart::WeekPart(const ArchiveMember& member, const FormContext& context)
    : m_member(member),
      m_context(context),
      m_enabled(makeControl(setting::flag("bEnabled", "chkCheckBox(0)", "Enable Link of Week", true),
                            context.profiles, [this] { emit changed(); })),
      m_changeTime(new QLineEdit),
      m_changeBar(new QToolBar),
      m_announcements(new RowListPart(declaredList(), context)),
      m_widget(new QWidget)
{
    m_changeTime->setObjectName("txtChangeTime");
    m_changeTime->setAccessibleName("Change Time");
    limitToOneLine(*m_changeTime);
    connect(m_changeTime, &QLineEdit::textChanged, this, &FormPart::changed);
    m_changeBar->setObjectName("tlbChangeTime");
    m_changeBar->setIconSize({16, 16});
    int index = 0;
    AddEditButton(*m_changeBar, index);
    connectButton(*m_changeBar, "EDIT", this, &WeekPart::editChangeTime);
    adopt(*m_announcements);
    place();
}

RowListDeclaration WeekPart::declaredList()
{
    RowListDeclaration list = announcements();
    list.load = [this](const SettingsFiles&, const HubProfiles&) { return m_shown.announcements; };
    return list;
}

void WeekPart::place()
{
    auto* change = new QHBoxLayout;
    auto* label = labelFor("Change Time", m_changeTime);
    label->setObjectName("lblLabel(0)");
    change->addWidget(label);
    change->addWidget(m_changeTime, 1);
    change->addWidget(m_changeBar);
    auto* layout = new QVBoxLayout(m_widget);
    layout->setContentsMargins({});
    layout->addWidget(m_enabled.widget);
    layout->addLayout(change);
    layout->addWidget(m_announcements->widget(), 1);
}

void WeekPart::show(const LinkOfTheWeek& link)
{
    m_shown = link;
    m_enabled.show({{"bEnabled", link.enabled}});
    m_changeTime->setText(fromBytes(link.changeTime));
    m_announcements->load();
}

void WeekPart::save()
{
    SettingValues values;
    m_enabled.collect(values);
    saveLinkOfTheWeek(m_member,
                      {values.at("bEnabled"), toBytes(m_changeTime->text()), m_announcements->rows()},
                      m_context.files);
}

void WeekPart::editChangeTime()
{
    const std::string shown = toBytes(m_changeTime->text());
    const auto [day, time, found] = splitInPieces(shown, ' ');
    const std::string clock(time);
    EditRequest request{EditForm::ThreeCombos, "Edit Change Time", "E", 5, {"Day", "Hour", "Minute"}};
    request.values = {std::string(day), clock.substr(0, 2), clock.size() > 3 ? clock.substr(3, 2) : ""};
    request.entries = {dayNames(), hours(), minutes()};
    const EditAnswer answer = showEditDialog(m_widget, request);
    if (answer.gEditResult != "1")
        return;
    const auto& fields = answer.gEditValues;
    m_changeTime->setText(fromBytes(fields.at(0) + " " + fields.at(1) + ":" + fields.at(2)));
    emit changed(); // also when the same time was chosen
}

} // namespace

std::unique_ptr<FormPart> makeLinkOfTheWeekPart(const ArchiveMember& member, const FormContext& context)
{
    return std::make_unique<WeekPart>(member, context);
}

} // namespace quillfen
