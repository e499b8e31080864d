#pragma once

#include "declarations/formdeclaration.h"
#include "find/findindex.h"

#include <string>
#include <vector>

namespace quillfen {

class HubProfiles;
class SettingsFiles;

/// A form that can be found. All texts are code page bytes.
struct FindableForm
{
    std::string key;     ///< the navigator's
    std::string caption; ///< with those of the headings above it
    const FormDeclaration* form;
};

/// The index of what the forms are made of and of what their files hold now.
FindIndex indexOfForms(const std::vector<FindableForm>& forms, const SettingsFiles& files,
                       const HubProfiles& profiles);

} // namespace quillfen
