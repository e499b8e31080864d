#pragma once

#include "declarations/declaration.h"

#include <QString>

#include <functional>

class QWidget;

namespace quillfen {

/// A declared setting's control: shows the setting's text out of a file's values, and puts what it holds
/// back.
struct Control
{
    QWidget* widget = nullptr;
    std::function<void(const SettingValues&)> show;
    std::function<void(SettingValues&)> collect;
};

/// Makes the control that the setting's kind asks for, named and with its label as accessible name. `changed`
/// is called at each change. Named texts and constant rows have none.
Control makeControl(const Setting& setting, const HubProfiles& profiles,
                    const std::function<void()>& changed);

} // namespace quillfen
