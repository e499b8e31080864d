#pragma once

#include <QObject>

class QWidget;

namespace quillfen {

class HubProfiles;
class SettingsFiles;

/// What a form works on.
struct FormContext
{
    const SettingsFiles& files;
    const HubProfiles& profiles;
};

/// A piece of an editor form that loads, restores and saves files of its own. The form owns it and runs the
/// cycle.
class FormPart : public QObject
{
    Q_OBJECT

public:
    /// The part's controls, to be placed by the form.
    virtual QWidget* widget() = 0;

    /// Files to controls.
    virtual void load() = 0;

    /// Defaults to controls; nothing is written.
    virtual void restore() = 0;

    /// Controls to files. Throws StoreError.
    virtual void save() = 0;

signals:
    /// The user changed a control.
    void changed();
};

} // namespace quillfen
