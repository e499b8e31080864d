#pragma once

#include "declarations/declaration.h"

#include <QString>

#include <functional>

class QWidget;

namespace quillfen {

/// How a control stands among the others of its file.
enum class ControlPlace
{
    Choice, ///< a row of its own, as it says itself what it is
    Field,  ///< behind its label, as wide as what it holds
    Text,   ///< behind its label, as wide as there is room
    List    ///< below its label
};

/// A declared setting's control: shows the setting's text out of a file's values, and puts what it holds
/// back.
struct Control
{
    QWidget* widget = nullptr;
    std::function<void(const SettingValues&)> show;
    std::function<void(SettingValues&)> collect;
    ControlPlace place = ControlPlace::List;
    QString frame{}; ///< the caption of a frame around a choice
    QString unit{};  ///< behind a field
    QString label{};
    bool keptByRestore = false;
};

/// Makes the control that the field's kind asks for, named and with its label as accessible name. `changed`
/// is called at each change.
Control makeControl(const setting::Field& field, const HubProfiles& profiles,
                    const std::function<void()>& changed);

/// Makes a control that shows the default, and neither loads nor saves.
Control makeIdleControl(const setting::Idle& idle, const HubProfiles& profiles,
                        const std::function<void()>& changed);

} // namespace quillfen
