#pragma once

#include "declarations/function.h"

#include <string>
#include <string_view>

namespace quillfen {

/// When users are checked, whether redirects are logged, and who may read and set the rules.
const TableFile& profileRuleSettings();

/// The rules of each profile, the message of each rule and the address that it redirects to, which one file
/// holds: in the order permissions, messages, redirects.
const RowListGroup& profileRules();

/// A stored count of bytes as the form shows it: divided by a unit that goes by how many digits it has, with
/// up to 15 significant digits, and the unit. Empty for no count.
std::string shownShare(std::string_view bytes);

/// The count of bytes of a shown share.
std::string storedShare(std::string_view shown);

FunctionDeclaration profileRulesFunction();

} // namespace quillfen
