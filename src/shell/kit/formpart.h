#pragma once

#include "declarations/function.h"
#include "shell/kit/routines.h"

#include <QObject>
#include <QPoint>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

class QMenu;
class QWidget;

namespace quillfen {

class HubProfiles;
class SettingsFiles;

/// What a form works on.
struct FormContext
{
    const SettingsFiles& files;
    const HubProfiles& profiles;

    /// The borrowed right-click menu of a name; null where there is no main window.
    std::function<QMenu*(const QString&)> popUpMenu = [](const QString&) { return nullptr; };

    FunctionFacts facts{};

    /// Shows that menu, if there is one of the name.
    void showMenu(const QString& name, const QPoint& at) const;
};

/// A file holds what a form can't show: its load stops there, and what is shown by then stays.
class LoadError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A file that is edited by a button or a row of its own.
struct EditedText
{
    std::string file; ///< a told path
    QWidget* control;
    int row = -1; ///< of a list; -1 for none
};

/// A piece of an editor form that loads, restores and saves files of its own. The form owns it and runs the
/// cycle.
class FormPart : public QObject
{
    Q_OBJECT

public:
    /// The part's controls, to be placed by the form.
    virtual QWidget* widget() = 0;

    /// Files to controls. Throws LoadError.
    virtual void load() = 0;

    /// Defaults to controls; nothing is written.
    virtual void restore() = 0;

    /// Whether the controls hold what can be saved; tells why if not.
    virtual bool maySave() { return true; }

    /// Controls to files and nothing else, as it also shows what would be saved. Throws StoreError.
    virtual void save() = 0;

    /// Saves what is open in the part and has a SAVE of its own, if anything is. Asks and tells nothing.
    /// Throws StoreError.
    virtual void saveOpenFile() {}

    /// Whether that has changes which the form's SAVE doesn't save.
    virtual bool hasUnsavedFile() const { return false; }

    /// The texts that are edited and saved one by one from here.
    virtual std::vector<EditedText> editedTexts() { return {}; }

    /// What it serves to the borrowed right-click menus.
    virtual RoutineTable routines() { return {}; }

    /// The form was closed; it goes as soon as the event loop comes to it.
    virtual void close() {}

protected:
    /// Takes over a part that this one is made of: its changes and notes are this one's.
    void adopt(FormPart& part);

signals:
    /// What is open and saved by itself came, went or changed.
    void openFileChanged();

    /// The user changed a control.
    void changed();

    /// What the form's second status panel is to say from now on; may be empty.
    void note(const QString& text);
};

} // namespace quillfen
