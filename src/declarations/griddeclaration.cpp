#include "declarations/griddeclaration.h"

namespace quillfen {

GridWords unfilteredGrid()
{
    GridWords words;
    words.columns.insert(words.columns.end(), {"iProfileBy", "iProfileOn"});
    words.filters = false;
    words.namesTarget = true;
    return words;
}

GridWords blockGrid()
{
    GridWords words = unfilteredGrid();
    words.namesCommandByProfile = true;
    return words;
}

} // namespace quillfen
