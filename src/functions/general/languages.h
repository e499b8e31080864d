#pragma once

#include "declarations/function.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

/// One of the three sets of replaceable texts: its names and the words of its form, slips of the pen
/// included.
struct LanguageSet
{
    std::string_view form;
    std::string_view caption;
    std::string_view listFile; ///< the list of the set's languages
    std::string_view listTable;
    std::string_view folder; ///< of its language files, with the last backslash
    std::string_view textTable;
    std::string_view keyColumn;
    std::string_view textColumn;
    std::string_view newTitle;
    std::string_view newPrompt;
    std::string_view duplicateTail;
    std::string_view deleteRefusal;
    std::string_view editTitle;
    std::string_view editLabel;
    std::string_view namesExplained;
    std::string_view textsExplained;
};

/// Commands, right clicks and messages.
std::span<const LanguageSet> languageSets();

/// The languages of a set, and the texts of one; their loading and saving is told below.
ListedFiles languageLists(const LanguageSet& set);

/// The languages of a set by name; the current one is checked.
std::vector<CellRow> loadLanguages(const SettingsFiles& files, const LanguageSet& set);

/// Throws StoreError.
void saveLanguages(const SettingsFiles& files, const LanguageSet& set, const std::vector<CellRow>& rows);

/// The reference language, which defines the keys: it can be neither edited nor deleted.
inline constexpr std::string_view referenceLanguage = "DEFAULT";

/// Keys and texts of the reference language.
std::vector<CellRow> loadReferenceTexts(const SettingsFiles& files, const LanguageSet& set);

/// The reference's rows with the texts of a language laid over them: a key that the reference lacks is
/// dropped, and one that the language lacks keeps the reference's text.
std::vector<CellRow> loadLanguageTexts(const SettingsFiles& files, const LanguageSet& set,
                                       std::string_view name);

/// Throws StoreError.
void saveLanguageTexts(const SettingsFiles& files, const LanguageSet& set, std::string_view name,
                       const std::vector<CellRow>& rows);

FunctionDeclaration languagesFunction();

} // namespace quillfen
