#pragma once

#include "declarations/function.h"

#include <string>
#include <vector>

namespace quillfen {

/// A book of spells, each with its phrases. There are two side by side: spells and nick spells.
struct SpellBook
{
    std::string path;
    std::string table;
    std::string folder;      ///< of the phrase files
    std::string phraseTable; ///< in each of them
};

const SpellBook& spellBook();
const SpellBook& nickSpellBook();

const TableFile& spellSettings();
const TableFile& nickSpellSettings();

/// The users who are protected when wards are on.
const RowListDeclaration& spellWards();

/// The columns of a spell's row. The last two work for the save.
enum SpellColumn
{
    SpellName,
    SpellDescription,
    SpellPhrases, ///< those of a spell that was amended since the form was opened, a `|` behind each
    SpellLines,   ///< how many phrases it has; empty if it was not amended
};

RowListDeclaration spellList(const SpellBook& book);
RowListDeclaration phraseList();

std::vector<CellRow> loadPhrases(const SpellBook& book, const std::string& spell, const SettingsFiles& files);

/// Puts the phrases behind those that the spell's row has gathered already. The spell is the first of its
/// name, in whatever case; nothing happens if there is none.
void gatherPhrases(std::vector<CellRow>& spells, const std::string& spell,
                   const std::vector<CellRow>& phrases);

/// Writes the phrase files of the amended spells, then the book. Throws StoreError.
void saveSpellBook(const SpellBook& book, const std::vector<CellRow>& spells, const SettingsFiles& files);

FunctionDeclaration spellsFunction();
FunctionDeclaration nickSpellsFunction();

} // namespace quillfen
