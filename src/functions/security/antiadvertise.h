#pragma once

#include "declarations/function.h"

namespace quillfen {

/// What is done to those who advertise another hub, and which profiles are looked at.
const TableFile& antiAdvertiseSettings();

/// Where is looked: a flag for each place, as the form's list holds it.
const ListFile& blockedActionsFile();

/// The addresses that count as advertising, and those that don't.
const RowListDeclaration& blockedAddresses();
const RowListDeclaration& allowedAddresses();

FunctionDeclaration antiAdvertiseFunction();

} // namespace quillfen
