#pragma once

#include "shell/kit/editdialog.h"

#include <functional>
#include <string>
#include <vector>

namespace quillfen {

/// Gives each row of the clipboard's text to `take`, as the dialog of `request` would give what was typed
/// into it; `take` says why it takes a row not, and nothing where it does. One box tells of all rows that are
/// refused, by the dialog's rules or by `take`. Returns whether a row was taken.
bool pasteRows(QWidget* parent, const EditRequest& request,
               const std::function<std::string(const std::vector<std::string>& fields)>& take);

} // namespace quillfen
