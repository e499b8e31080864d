#pragma once

#include "lua/reading.h"

#include <map>
#include <string>

namespace quillfen {

/// Files below the settings root, with slashes, that Lua can't load, and what keeps them from it. The forms'
/// own readers, which look at single lines, take them, and the hub script reads them in its own way.
using NotLoading = std::map<std::string, lua::Fault, std::less<>>;

/// Those of a fresh tree.
const NotLoading& notLoading();

/// Those of a tree that every form has saved.
const NotLoading& notLoadingOnceSaved();

} // namespace quillfen
