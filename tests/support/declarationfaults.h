#pragma once

#include "declarations/formdeclaration.h"

#include <string>
#include <vector>

namespace quillfen::test {

/// What is wrong with the declarations of all forms, each as "<form>: <fault>"; empty if nothing is.
/// `deliberate` names those that are meant, as "<form>: <fault>" too; one that isn't found is a fault itself.
std::vector<std::string> faults(const FormCatalogue& forms, const HubProfiles& profiles,
                                const std::vector<std::string>& deliberate = {});

} // namespace quillfen::test
