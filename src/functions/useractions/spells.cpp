#include "functions/useractions/spells.h"

#include "settings/codepage.h"
#include "settings/filename.h"
#include "settings/profiles.h"

#include <algorithm>

namespace quillfen {
namespace {

ListFile wardsFile()
{
    return {R"(UserActions\Spells\SpellWards.tbl)", "tSpellWards", ListFile::Form::Presence};
}

ListFile bookFile(const SpellBook& book)
{
    return {book.path, book.table, ListFile::Form::Keyed};
}

ListFile phraseFile(const SpellBook& book, const std::string& spell)
{
    return {book.folder + "\\" + spell + ".tbl", book.phraseTable};
}

Setting timeout()
{
    return setting::number("iDelay", "txtUpDown(0)", "Timeout", 3, 1, 180);
}

Setting castingProfiles()
{
    return setting::enabledProfiles().explained("Lets the ticked profiles cast these spells.");
}

/// The phrases, each of which ends in a bar.
std::vector<std::string> pieces(const std::string& text)
{
    std::vector<std::string> all;
    std::size_t start = 0;
    for (auto end = text.find('|'); end != std::string::npos; end = text.find('|', start)) {
        all.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return all;
}

/// The rows of an amended spell's file. The pieces are counted from 0 and taken from 1 on, so the first
/// phrase gathered is left out, unless a second gathering has put it behind the others.
std::vector<ListRow> phrasesToWrite(const CellRow& spell)
{
    const auto all = pieces(spell.cells.at(SpellPhrases));
    const auto count = static_cast<std::size_t>(std::stoul(spell.cells.at(SpellLines)));
    std::vector<ListRow> rows;
    for (std::size_t at = 1; at <= count && at < all.size(); ++at) {
        if (!all[at].empty())
            rows.push_back({all[at]});
    }
    return rows;
}

std::vector<PlacedText> placedPhrases(const SpellBook& book, const SettingsFiles& files,
                                      const HubProfiles& profiles)
{
    std::vector<PlacedText> texts;
    int place = 0;
    for (const CellRow& spell : spellList(book).load(files, profiles)) {
        const std::string& name = spell.cells[SpellName];
        const bool isReadable = leavingNameFault(name).empty(); // as the form has it
        for (const CellRow& phrase : isReadable ? loadPhrases(book, name, files) : std::vector<CellRow>())
            texts.push_back({phraseFile(book, name).path, "lvwSpells", place, "Spell Phrase",
                             name + ": " + phrase.cells[0]});
        ++place;
    }
    return texts;
}

FormDeclaration bookForm(const char* name, const char* caption, OwnPartKind kind, const SpellBook& (*book)())
{
    const auto lists = [book] { return std::vector{spellList(book()), phraseList()}; };
    const auto texts = [book](const SettingsFiles& files, const HubProfiles& profiles) {
        return placedPhrases(book(), files, profiles);
    };
    return {{name, caption, {10500, 6000}},
            {OwnPart{.kind = kind, .lists = lists, .texts = texts, .paths = {book().folder + '\\'}}}};
}

} // namespace

const SpellBook& spellBook()
{
    static const SpellBook book = {R"(UserActions\Spells\SpellBook.tbl)", "tSpellBook",
                                   R"(UserActions\Spells\Spells)", "tSpell"};
    return book;
}

const SpellBook& nickSpellBook()
{
    static const SpellBook book = {R"(UserActions\NickSpells\NickSpellBook.tbl)", "tNickSpellBook",
                                   R"(UserActions\NickSpells\NickSpells)", "tNickSpell"};
    return book;
}

const TableFile& spellSettings()
{
    static const TableFile file = {R"(UserActions\Spells\SpellSettings.tbl)",
                                   "tSpellSettings",
                                   {setting::flag("bEnableWards", "chkCheckBox(0)", "Enable Wards", true)
                                        .explained("Protects the warded users from spells."),
                                    timeout(), castingProfiles()},
                                   {"iDelay", "bEnableWards", "tEnabledProfiles"}};
    return file;
}

const TableFile& nickSpellSettings()
{
    static const TableFile file = {R"(UserActions\NickSpells\NickSpellSettings.tbl)",
                                   "tNickSpellSettings",
                                   {timeout(), castingProfiles()}};
    return file;
}

const RowListDeclaration& spellWards()
{
    static const RowListDeclaration declared = [] {
        RowListDeclaration list = listOf("Warded User", Fewest::None);
        list.list = "lvwWards";
        list.toolbar = "tlbWards";
        list.label = "Warded Users";
        list.explanation = "Each row is a user who is protected from spells while wards are on.";
        list.remark = "Allows IPs beginning with 0 (such as 0.3.6.0)";
        list.columns = {"Warded User"};
        list.menu = "mnuFirst";
        list.load = loadOf(wardsFile());
        list.save = saveOf(wardsFile());
        return list;
    }();
    return declared;
}

RowListDeclaration spellList(const SpellBook& book)
{
    RowListDeclaration list = listOf("Spell", Fewest::One);
    list.list = "lvwSpells";
    list.toolbar = "tlbSpells";
    list.explanation = "Each row is a spell that users can cast.";
    list.columns = {"Spell Name", "Spell Description", "Spell Phrases", "Spell LInes"};
    list.hiddenColumns = 2;
    list.menu = "mnuFirst";
    list.dialog.form = EditForm::TwoFields;
    list.dialog.addTitle = "Add New Spell";
    list.dialog.editTitle = "Edit Warded User"; // copied from the wards
    list.dialog.labels = {"Spell Name", "Spell Description"};
    list.load = [load = loadOf(bookFile(book))](const SettingsFiles& files, const HubProfiles& profiles) {
        auto rows = load(files, profiles);
        for (CellRow& row : rows)
            row.cells.resize(SpellLines + 1);
        return rows;
    };
    return list;
}

RowListDeclaration phraseList()
{
    RowListDeclaration list = listOf("Spell Phrase", Fewest::One);
    list.list = "lvwSpellPhrases";
    list.toolbar = "tlbSpellPhrases";
    list.explanation = "Each row is a phrase of the spell that is being amended.";
    list.columns = {"Spell Phrase"};
    list.menu = "mnuSecond";
    list.dialog.addTitle = "Add New Spell Phrase";
    return list;
}

std::vector<CellRow> loadPhrases(const SpellBook& book, const std::string& spell, const SettingsFiles& files)
{
    ListFile phrases = phraseFile(book, spell);
    phrases.path = files.realFile(phrases.path);
    return loadOf(phrases)(files, {});
}

void gatherPhrases(std::vector<CellRow>& spells, const std::string& spell,
                   const std::vector<CellRow>& phrases)
{
    const auto row =
        std::find_if(spells.begin(), spells.end(), [name = codepage::lowered(spell)](const CellRow& each) {
            return codepage::lowered(each.cells.at(SpellName)) == name;
        });
    if (row == spells.end())
        return;
    // What was gathered before is not cleared: each time, all phrases come again behind it.
    for (const CellRow& phrase : phrases)
        row->cells.at(SpellPhrases) += phrase.cells.at(0) + "|";
    row->cells.at(SpellLines) = std::to_string(phrases.size());
}

void saveSpellBook(const SpellBook& book, const std::vector<CellRow>& spells, const SettingsFiles& files)
{
    std::vector<ListRow> rows;
    for (const CellRow& spell : spells) {
        rows.push_back({spell.cells.at(SpellName), spell.cells.at(SpellDescription)});
        if (!spell.cells.at(SpellLines).empty())
            saveList(files, phraseFile(book, spell.cells[SpellName]), phrasesToWrite(spell));
    }
    saveList(files, bookFile(book), rows);
}

FunctionDeclaration spellsFunction()
{
    return {.nodes = {{"UserActions~Spells", "Spells"},
                      {"UserActions~Spells~Settings",
                       "Settings",
                       {{{"frmUserActionsSpellSettings", "UserActions ~ Spells ~ Settings", {7500, 7500}},
                         {DeclaredSettings{spellSettings}, listPart(spellWards)}}},
                       "Spells ~ Settings"},
                      {"UserActions~Spells~SpellBook", "Spell Book",
                       bookForm("frmUserActionsSpellsSpellBook", "UserActions ~ Spells ~ SpellBook",
                                OwnPartKind::SpellBook, spellBook),
                       "Spells ~ Spell Book"}},
            .folders = {R"(UserActions\Spells)", R"(UserActions\Spells\Spells)"},
            .build = {RebuiltSettings{spellSettings}, emptyTable(bookFile(spellBook())),
                      emptyTable(wardsFile())}};
}

FunctionDeclaration nickSpellsFunction()
{
    return {
        .nodes = {{"UserActions~NickSpells", "NickSpells"},
                  {"UserActions~NickSpells~Settings", "Settings",
                   settingsForm({"frmUserActionsNickSpellSettings", "UserActions ~ NickSpells ~ Settings"},
                                nickSpellSettings),
                   "Nick Spells ~ Settings"},
                  {"UserActions~NickSpells~SpellBook", "Nick Spell Book",
                   bookForm("frmUserActionsNickSpellsSpellBook", "UserActions ~ Nick Spells ~ SpellBook",
                            OwnPartKind::NickSpellBook, nickSpellBook),
                   "Nick Spells ~ Spell Book"}},
        .folders = {R"(UserActions\NickSpells)", R"(UserActions\NickSpells\NickSpells)"},
        .build = {RebuiltSettings{nickSpellSettings}, emptyTable(bookFile(nickSpellBook()))}};
}

} // namespace quillfen
