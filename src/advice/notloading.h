#pragma once

#include "lua/reading.h"

#include <map>
#include <string>
#include <string_view>

namespace quillfen {

/// What keeps a file from loading that never loads, and why that is so.
struct KnownFault
{
    lua::Fault fault;
    std::string_view reason;
};

/// Files below the settings root, with slashes, that Lua can't load. The forms' own readers, which look at
/// single lines, take them, and the hub script reads them in its own way.
using NotLoading = std::map<std::string, KnownFault, std::less<>>;

/// Those of a fresh tree.
const NotLoading& notLoading();

/// Those of a tree that every form has saved.
const NotLoading& notLoadingOnceSaved();

} // namespace quillfen
