#include "shell/window/popupmenus.h"

#include <QMetaObject>

namespace quillfen {
namespace {

/// A menu of "&Edit", or of "&Add", "&Delete" and "&Edit". A routine's name is "gMenu", the word, the item's
/// word and "Click".
struct EditMenu
{
    const char* name;
    const char* word;
    bool editOnly = false;
};

constexpr EditMenu editMenus[] = {
    {"mnuOnlyEdit", "", true},      {"mnuOnlyEditTwo", "", true},
    {"mnuOnlyEditThree", "", true}, {"mnuFirst", "First"},
    {"mnuSecond", "Second"},        {"mnuThird", "Third"},
    {"mnuFourth", "Fourth"},        {"mnuBots", "Bots", true},
    {"mnuIntro", "Intro"},          {"mnuOutro", "Outro"},
    {"mnuAnagrams", "Anagrams"},    {"mnuHangman", "Hangman"},
    {"mnuNumbers", "Numbers"},      {"mnuNumbersNumbers", "NumbersNumbers", true},
    {"mnuUserActions", ""},
};

QString routineOf(const EditMenu& menu, const QString& item)
{
    const QString name = menu.name;
    const QString number =
        name.startsWith("mnuOnlyEdit") ? name.mid(QStringLiteral("mnuOnlyEdit").size()) : QString();
    return QStringLiteral("gMenu") + menu.word + item + number + QStringLiteral("Click");
}

} // namespace

PopUpMenus::PopUpMenus(std::function<QObject*()> activeForm, QWidget* parent)
    : QObject(parent),
      m_activeForm(std::move(activeForm)),
      m_owner(parent)
{
    for (const EditMenu& each : editMenus) {
        auto* menu = addMenu(each.name);
        for (const char* item : {"Add", "Delete", "Edit"}) {
            if (!each.editOnly || QString(item) == "Edit")
                addItem(*menu, menu->objectName() + item, QStringLiteral("&") + item, routineOf(each, item));
        }
    }
    auto* trueFalse = addMenu("mnuTrueFalse");
    addItem(*trueFalse, "mnuTrueFalseTrue", "&True", "gMenuTrueFalseTrueClick");
    // Both items call the same routine: either toggles the row, and no form's other routine was ever reached.
    addItem(*trueFalse, "mnuTrueFalseFalse", "&False", "gMenuTrueFalseTrueClick");

    auto* questions = addMenu("mnuTriviaQuestions"); // its items have no handlers and do nothing
    for (const char* item : {"Add", "Delete", "Edit"})
        questions->addAction(QStringLiteral("&") + item)->setObjectName(questions->objectName() + item);
}

QMenu* PopUpMenus::addMenu(const QString& name)
{
    auto* menu = new QMenu(m_owner);
    menu->setObjectName(name);
    return menu;
}

void PopUpMenus::addItem(QMenu& menu, const QString& name, const QString& caption, const QString& routine)
{
    auto* item = menu.addAction(caption);
    item->setObjectName(name);
    connect(item, &QAction::triggered, this, [this, routine] { call(routine); });
}

QMenu* PopUpMenus::menu(const QString& name) const
{
    return m_owner->findChild<QMenu*>(name, Qt::FindDirectChildrenOnly);
}

void PopUpMenus::call(const QString& routine)
{
    QObject* form = m_activeForm();
    const QByteArray signature = routine.toLatin1() + "()";
    if (!form || form->metaObject()->indexOfMethod(signature) < 0)
        emit routineMissing(routine);
    else
        QMetaObject::invokeMethod(form, routine.toLatin1().constData());
}

} // namespace quillfen
