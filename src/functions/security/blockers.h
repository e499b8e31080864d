#pragma once

#include "declarations/function.h"

namespace quillfen {

/// What is done to users with a bad nick, and which profiles may have one.
const TableFile& badNickSettings();

/// The bad nicks. They are stored numbered in their order, and shown without their numbers.
const RowListDeclaration& badNicks();

/// What is done to clones, which profiles are looked at and which are not held by it.
const TableFile& cloneSettings();

/// The users who may have clones.
const RowListDeclaration& cloneExemptUsers();

/// What is done to users who spread a virus.
const TableFile& antiVirusSettings();

FunctionDeclaration badNickBlockerFunction();
FunctionDeclaration cloneBlockerFunction();
FunctionDeclaration antiVirusFunction();

} // namespace quillfen
