#include "support/declarationfaults.h"

#include <algorithm>
#include <cctype>
#include <regex>
#include <set>

namespace quillfen::test {
namespace {

bool isFormName(const std::string& name)
{
    static const std::regex shape("frm[A-Z][A-Za-z]*");
    return std::regex_match(name, shape);
}

/// A key of a settings file begins with the letter of what it holds: a flag, a number, a text.
bool isKey(const std::string& key)
{
    static const std::regex shape("[bis][A-Z][A-Za-z]*");
    return std::regex_match(key, shape);
}

bool isInPixels(const Twips& size)
{
    constexpr int twipsOfAPixel = 15;
    return size.width % twipsOfAPixel == 0 && size.height % twipsOfAPixel == 0;
}

/// Whether the main window lends lists a menu of this name.
bool isMenu(const std::string& name)
{
    static const std::set<std::string> lent = {
        "mnuAnagrams",      "mnuBots",        "mnuFirst",           "mnuFourth",
        "mnuHangman",       "mnuIntro",       "mnuNumbers",         "mnuOnlyEdit",
        "mnuOnlyEditThree", "mnuOnlyEditTwo", "mnuOutro",           "mnuNumbersNumbers",
        "mnuSecond",        "mnuThird",       "mnuTriviaQuestions", "mnuUserActions"};
    return lent.contains(name);
}

/// Walks over the parts of a form.
class FormWalk
{
public:
    FormWalk(const FormDeclaration& form, const HubProfiles& profiles)
        : m_form(form.form.name),
          m_profiles(profiles)
    {
        expect(isFormName(m_form), "no name of a form");
        expect(isInPixels(form.form.minimumSize), "no size in pixels");
        expect(!form.form.caption.empty(), "no caption");
        expectWords({form.form.caption});
        expect(!form.parts.empty(), "no parts");
        for (const PartDeclaration& part : form.parts)
            std::visit([this](const auto& each) { walk(each); }, part);
        for (const std::string& control : std::set<std::string>(m_controls.begin(), m_controls.end()))
            expect(std::count(m_controls.begin(), m_controls.end(), control) == 1,
                   "control twice: " + control);
    }

    const std::vector<std::string>& found() const { return m_found; }

private:
    void expect(bool good, const std::string& fault)
    {
        if (!good)
            m_found.push_back(m_form + ": " + fault);
    }

    void expectWords(const std::vector<std::string>& texts)
    {
        for (const std::string& words : texts)
            expect(isWorded(words), "no words: " + words);
    }

    void addControl(const std::string& name, const std::string& of)
    {
        expect(!name.empty(), "no control: " + of);
        expect(name.empty() || isControlName(name), "no name of a control: " + name);
        m_controls.push_back(name);
    }

    void walk(const DeclaredSettings& settings)
    {
        const TableFile file = settings.file();
        walkFile(file);
        for (const Setting& each : file.settings)
            expect(settings.kind != SettingsPartKind::Plain ||
                       !std::holds_alternative<setting::NamedTexts>(each),
                   "nobody makes the control: " + keyOf(each));
    }

    void walk(const DeclaredList& list) { walkList(list.list(m_profiles), true); }

    void walk(const DeclaredLists& lists)
    {
        const RowListGroup group = lists.lists();
        expect(!group.lists.empty(), "a group of no lists");
        expect(static_cast<bool>(group.save), "lists without a save");
        for (const RowListDeclaration& list : group.lists)
            walkList(list, false);
    }

    void walk(const DeclaredTexts& texts)
    {
        expect(!texts.folder.empty(), "texts without a folder");
        walkList(texts.list(), true);
    }

    void walk(const DeclaredGrid& declared)
    {
        const GridSource grid = declared.grid();
        expect(!grid.commands.empty(), "a grid of no commands");
        expect(grid.load && grid.save, "a grid without load or save");
        const std::size_t columns = declared.words.targets ? 4 : 3;
        expect(declared.words.columns.size() >= columns, "a grid of too few columns");
        expectWords({declared.words.columns.begin(),
                     declared.words.columns.begin() +
                         static_cast<std::ptrdiff_t>(std::min(columns, declared.words.columns.size()))});
        const std::string& filter = declared.words.commandFilter;
        expect(filter == "COMMAND" || filter == "RIGHTCLICK", "no button of the toolbar: " + filter);
        addControl(declared.words.list, "a grid");
        addControl(declared.words.toolbar, "a grid's toolbar");
    }

    void walk(const DeclaredTicks& declared)
    {
        const TickList ticks = declared.ticks();
        addControl(ticks.control, "ticks");
        expect(!ticks.file.path.empty() && !ticks.file.table.empty(), "ticks without a file");
        expect(ticks.file.form == ListFile::Form::Flags, "ticks of a file without flags");
        expect(!ticks.caption.empty() || !ticks.label.empty(), "ticks without a name");
    }

    void walk(const DeclaredText& text)
    {
        addControl(text.toolbar, "a text");
        expect(!text.path.empty(), "a text without a file");
    }

    void walk(const OwnPart& own)
    {
        for (const TableFile& file : settingsFilesOf(own))
            walkFile(file);
        for (const RowListDeclaration& list : listsOf(own, m_profiles))
            walkList(list, false); // the part may load and save them itself
        for (const ControlExplanation& each : own.explanations) {
            expect(isControlName(each.control), "no name of a control: " + each.control);
            expect(each.file.empty() == each.key.empty(), "a key without its file: " + each.control);
            expect(each.key.empty() || isKey(each.key), "no key: " + each.key);
        }
    }

    void walkFile(const TableFile& file)
    {
        expect(!file.path.empty() && !file.table.empty(), "settings without a file");
        std::multiset<std::string> keys;
        for (const Setting& each : file.settings) {
            if (!std::holds_alternative<setting::Idle>(each))
                keys.insert(keyOf(each));
            std::visit([this](const auto& setting) { walkSetting(setting); }, each);
        }
        for (const std::string& key : std::set<std::string>(keys.begin(), keys.end()))
            expect(keys.count(key) == 1, "key twice: " + key);
        const std::multiset<std::string> ordered(file.rebuildOrder.begin(), file.rebuildOrder.end());
        expect(ordered.empty() || ordered == keys, "the rebuild's order doesn't name each key once");
    }

    void walkSetting(const setting::Field& field)
    {
        std::visit([this, &field](const auto& kind) { walkKind(field, kind); }, field.kind);
        expect(!field.label.empty() || !field.toolTip.empty(), "no label: " + field.key);
        expectWords({field.label, std::string(field.toolTip)});
        const auto* options = std::get_if<setting::Options>(&field.kind);
        if (!options)
            addControl(field.control, field.key);
        for (std::size_t at = 0; options && at < options->captions.size(); ++at) {
            const auto place = static_cast<std::size_t>(options->firstButton) + at;
            addControl(field.control + '(' + std::to_string(place) + ')', field.key);
        }
    }

    void walkSetting(const setting::Idle& idle) { walkSetting(idle.field); }

    void walkSetting(const setting::NamedTexts& texts)
    {
        expect(!texts.texts.empty(), "no texts: " + texts.key);
        expect(!texts.label.empty(), "no label: " + texts.key);
        expectWords({std::string(texts.label)});
        addControl(texts.control, texts.key);
    }

    void walkSetting(const setting::ConstantRows& constant)
    {
        expect(!constant.rows.empty(), "no rows: " + constant.key);
    }

    void walkSetting(const auto& /*has no control and any text*/) {}

    void walkKind(const setting::Field& field, const setting::Number& number)
    {
        expectWords({number.details.unit});
        expect(number.minimum < number.maximum && number.details.step > 0, "no range: " + field.key);
        expectDefault(field, number.defaultValue >= number.minimum && number.defaultValue <= number.maximum);
    }

    void walkKind(const setting::Field& /*any default is one*/, const setting::Flag& flag)
    {
        expectWords({flag.details.frame});
    }

    void walkKind(const setting::Field& field, const setting::Options& options)
    {
        expectWords(options.captions);
        expectDefault(field,
                      options.defaultValue >= 0 && options.defaultValue < std::ssize(options.captions));
    }

    void walkKind(const setting::Field& /*any default is one*/, const setting::ProfileFlags& flags)
    {
        expectWords({flags.heading});
    }

    void walkKind(const setting::Field& field, const setting::Letter& letter)
    {
        expectWords(letter.words);
        const auto isWord = [&letter](const std::string& word) {
            return std::ranges::find(letter.words, word) != letter.words.end();
        };
        expectDefault(field, isWord(letter.defaultWord));
        expect(letter.wordWhereNone.empty() || isWord(letter.wordWhereNone), "where none: " + field.key);
    }

    void walkKind(const setting::Field& field, const setting::Entry& entry)
    {
        expectDefault(field, std::ranges::find(entry.entries, entry.defaultValue) != entry.entries.end());
    }

    void walkKind(const setting::Field& field, const setting::Text& text)
    {
        expectDefault(field, text.limit == 0 || std::ssize(text.defaultValue) <= text.limit);
    }

    void walkKind(const setting::Field& field, const setting::NamedFlags& flags)
    {
        expect(!flags.names.empty(), "no names: " + field.key);
    }

    void walkKind(const setting::Field& /*field*/, const auto& /*any default is one*/) {}

    void expectDefault(const setting::Field& field, bool good) { expect(good, "default: " + field.key); }

    void walkList(const RowListDeclaration& list, bool savesItself)
    {
        addControl(list.list, "a list");
        addControl(list.toolbar, list.list);
        if (!list.movement.empty())
            addControl(list.movement, list.list);
        expect(!savesItself || list.load, "no load: " + list.list);
        expect(!savesItself || list.save, "no save: " + list.list);
        expect(!list.columns.empty(), "no columns: " + list.list);
        expectWords(
            {list.columns.begin(),
             list.columns.end() - std::min(list.hiddenColumns, static_cast<int>(list.columns.size()))});
        expectWords(list.toolTips);
        expectWords(list.dialog.labels);
        expectWords({list.label, list.remark, list.dialog.addTitle, list.dialog.editTitle,
                     list.deletion.title, list.deletion.minimum});
        expect(isMenu(list.menu), "no menu: " + list.list);
        const bool hasDialogOfItsOwn = list.dialogOf || list.labelsOf;
        expect(hasDialogOfItsOwn || list.dialog.labels.size() == inputsOf(list.dialog.form).size(),
               "labels: " + list.list);
        const auto combos = std::ranges::count(inputsOf(list.dialog.form), 'C');
        expect(list.dialog.entries.empty() || list.dialog.entries.size() == static_cast<std::size_t>(combos),
               "entries: " + list.list);
        const bool adds = !list.dialog.addTitle.empty();
        expect(adds == !list.deletion.title.empty() && adds == !list.deletion.text.empty(),
               "words of the deletion: " + list.list);
        expect(adds || list.editTitleOf || list.dialogOf || !list.dialog.editTitle.empty(),
               "no title: " + list.list);
    }

    std::string m_form;
    const HubProfiles& m_profiles;
    std::vector<std::string> m_controls;
    std::vector<std::string> m_found;
};

} // namespace

bool isControlName(const std::string& name)
{
    static const std::regex shape("(cbo|chk|fra|lvw|opt|sld|tlb|txt)[A-Z][A-Za-z]*(\\([0-9]+\\))?");
    return std::regex_match(name, shape);
}

bool isWorded(const std::string& words)
{
    return words.empty() || (std::isupper(static_cast<unsigned char>(words.front())) != 0 &&
                             words.back() != ' ' && words.find("  ") == std::string::npos);
}

std::vector<std::string> faults(const FormCatalogue& forms, const HubProfiles& profiles,
                                const std::vector<std::string>& deliberate)
{
    std::vector<std::string> found;
    std::multiset<std::string> names;
    for (const FormDeclaration& form : forms) {
        names.insert(form.form.name);
        const FormWalk walk(form, profiles);
        found.insert(found.end(), walk.found().begin(), walk.found().end());
    }
    for (const std::string& name : std::set<std::string>(names.begin(), names.end())) {
        if (names.count(name) > 1)
            found.push_back(name + ": declared twice");
    }
    for (const std::string& meant : deliberate) {
        if (std::erase(found, meant) == 0)
            found.push_back(meant + " (meant, and not found)");
    }
    return found;
}

} // namespace quillfen::test
