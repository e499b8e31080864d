#pragma once

#include "declarations/formdeclaration.h"

#include <string>
#include <vector>

namespace quillfen::test {

/// Whether a control may bear a name: its kind in three letters and a word, and perhaps a number,
/// "txtUpDown(3)".
bool isControlName(const std::string& name);

/// Whether a text is one that users read: it begins with a capital letter, and no blank stands too much.
/// Nothing is one as well.
bool isWorded(const std::string& words);

/// What is wrong with the declarations of all forms, each as "<form>: <fault>"; empty if nothing is.
/// `deliberate` names those that are meant, as "<form>: <fault>" too; one that isn't found is a fault itself.
std::vector<std::string> faults(const FormCatalogue& forms, const HubProfiles& profiles,
                                const std::vector<std::string>& deliberate = {});

} // namespace quillfen::test
