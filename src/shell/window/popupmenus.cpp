#include "shell/window/popupmenus.h"

#include "shell/kit/editorform.h"

namespace quillfen {
namespace {

/// A menu of "&Edit", or of "&Add", "&Delete" and "&Edit".
struct EditMenu
{
    const char* name;
    bool editOnly = false;
};

constexpr EditMenu editMenus[] = {
    {"mnuOnlyEdit", true},
    {"mnuOnlyEditTwo", true},
    {"mnuOnlyEditThree", true},
    {"mnuFirst"},
    {"mnuSecond"},
    {"mnuThird"},
    {"mnuFourth"},
    {"mnuBots", true},
    {"mnuIntro"},
    {"mnuOutro"},
    {"mnuAnagrams"},
    {"mnuHangman"},
    {"mnuNumbers"},
    {"mnuNumbersNumbers", true},
    {"mnuUserActions"},
};

} // namespace

PopUpMenus::PopUpMenus(std::function<EditorForm*()> activeForm, QWidget* parent)
    : QObject(parent),
      m_activeForm(std::move(activeForm)),
      m_owner(parent)
{
    const QStringList items = {"Add", "Delete", "Edit"};
    for (const EditMenu& each : editMenus) {
        auto* menu = addMenu(QLatin1String(each.name));
        for (const QString& item : items) {
            if (!each.editOnly || item == "Edit")
                addItem(*menu, menu->objectName() + item, '&' + item,
                        routineName(QLatin1String(each.name), item));
        }
    }
    auto* trueFalse = addMenu("mnuTrueFalse");
    addItem(*trueFalse, "mnuTrueFalseTrue", "&True", "gMenuTrueFalseTrueClick");
    // Both items call the same routine: either toggles the row, and no form's other routine was ever reached.
    addItem(*trueFalse, "mnuTrueFalseFalse", "&False", "gMenuTrueFalseTrueClick");

    auto* questions = addMenu("mnuTriviaQuestions"); // its items have no handlers and do nothing
    for (const QString& item : items) {
        auto* action = questions->addAction('&' + item);
        action->setObjectName(questions->objectName() + item);
        action->setData(routineName(questions->objectName(), item));
    }
}

QMenu* PopUpMenus::addMenu(const QString& name)
{
    auto* menu = new QMenu(m_owner);
    menu->setObjectName(name);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { darken(*menu); });
    connect(menu, &QMenu::aboutToHide, this, &PopUpMenus::lightAgain);
    return menu;
}

void PopUpMenus::darken(const QMenu& menu)
{
    const EditorForm* form = m_activeForm();
    for (QAction* item : menu.actions()) {
        if (!form || form->isLit(item->data().toString()))
            continue;
        item->setEnabled(false);
        m_darkened.append(item);
    }
}

void PopUpMenus::lightAgain()
{
    for (QAction* item : std::exchange(m_darkened, {}))
        item->setEnabled(true);
}

void PopUpMenus::addItem(QMenu& menu, const QString& name, const QString& caption, const QString& routine)
{
    auto* item = menu.addAction(caption);
    item->setObjectName(name);
    item->setData(routine);
    connect(item, &QAction::triggered, this, [this, routine] { call(routine); });
}

QMenu* PopUpMenus::menu(const QString& name) const
{
    return m_owner->findChild<QMenu*>(name, Qt::FindDirectChildrenOnly);
}

void PopUpMenus::call(const QString& routine)
{
    const EditorForm* form = m_activeForm();
    if (const auto serve = form ? form->routine(routine) : nullptr)
        serve();
    else
        emit routineMissing(routine);
}

} // namespace quillfen
