#pragma once

#include "settings/declaration.h"
#include "settings/listdeclaration.h"
#include "shell/kit/editorform.h"

namespace quillfen {

/// The form of a game's settings and of the comments on its two endings.
EditorForm* makeCommentedGame(const FormDescription& description, const TableFile& settings,
                              const RowListDeclaration& well, const RowListDeclaration& badly,
                              const FormContext& context);

} // namespace quillfen
