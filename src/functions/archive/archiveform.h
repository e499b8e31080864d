#pragma once

#include "shell/kit/formpart.h"

#include <memory>

namespace quillfen {

struct ArchiveMember;

/// A member's link of the week.
std::unique_ptr<FormPart> makeLinkOfTheWeekPart(const ArchiveMember& member, const FormContext& context);

} // namespace quillfen
