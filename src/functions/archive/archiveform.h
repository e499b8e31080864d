#pragma once

namespace quillfen {

class EditorForm;
struct ArchiveMember;
struct FormContext;

/// A member's link of the week.
EditorForm* makeWeekForm(const ArchiveMember& member, const FormContext& context);

} // namespace quillfen
