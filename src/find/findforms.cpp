#include "find/findforms.h"

#include "find/settingvalue.h"
#include "settings/codepage.h"
#include "settings/filename.h"
#include "settings/overloaded.h"
#include "settings/profiles.h"
#include "settings/tablefile.h"
#include "settings/textfolder.h"

#include <algorithm>
#include <map>
#include <utility>

namespace quillfen {
namespace {

using Texts = std::vector<std::string_view>;

void addAll(Texts& texts, const std::vector<std::string>& others)
{
    texts.insert(texts.end(), others.begin(), others.end());
}

/// A platform's path as the settings tell it; empty if they can't.
std::string toldPath(const std::string& path, const std::string& root)
{
    if (!path.starts_with(root + '/'))
        return {};
    std::string told = codepage::fromUtf8(std::string_view(path).substr(root.size() + 1)).value_or("");
    std::replace(told.begin(), told.end(), '/', '\\');
    return told;
}

/// A row's visible cells in one text.
std::string shownText(const CellRow& row, const RowListDeclaration& list)
{
    const auto hidden = static_cast<std::size_t>(list.hiddenColumns);
    std::string text;
    for (std::size_t cell = 0; cell < row.cells.size() && cell + hidden < list.columns.size(); ++cell) {
        if (!row.cells[cell].empty())
            text.append(text.empty() ? "" : " | ").append(row.cells[cell]);
    }
    return list.ticks ? text.append(": ").append(onOrOff(row.checked)) : text;
}

Texts detailsOf(const setting::Field& field, const HubProfiles& profiles)
{
    Texts details = {field.key, field.keyInSave, field.nest, field.toolTip, field.explanation};
    if (const auto* flag = std::get_if<setting::Flag>(&field.kind))
        details.emplace_back(flag->details.frame);
    if (const auto* number = std::get_if<setting::Number>(&field.kind))
        details.emplace_back(number->details.unit);
    if (const auto* flags = std::get_if<setting::ProfileFlags>(&field.kind))
        details.emplace_back(flags->heading);
    const Texts entries = entriesOf(field, profiles);
    details.insert(details.end(), entries.begin(), entries.end());
    return details;
}

Texts detailsOf(const RowListDeclaration& list)
{
    Texts details;
    addAll(details, list.columns);
    details.insert(details.end(), {list.explanation, list.remark});
    addAll(details, list.toolTips);
    addAll(details, list.dialog.labels);
    for (const auto& entries : list.dialog.entries)
        addAll(details, entries);
    return details;
}

Texts explanationsOf(const OwnPart& own, const std::string& control)
{
    Texts explanations;
    for (const ControlExplanation& each : own.explanations) {
        if (each.control == control)
            explanations.push_back(each.explanation);
    }
    return explanations;
}

/// Puts one form into an index.
class FormWalk
{
public:
    FormWalk(FindIndex& index, const FindableForm& form, const SettingsFiles& files,
             const HubProfiles& profiles)
        : m_index(index),
          m_files(files),
          m_profiles(profiles),
          m_function(index.add(
              FindIndex::top,
              {FindKind::Function, {form.key}, form.caption, {}, {form.form->form.caption, form.key}}))
    {
        for (const PartDeclaration& part : form.form->parts)
            std::visit([this](const auto& each) { take(each); }, part);
    }

private:
    /// What is read from now on until its files are asked for.
    class Reading
    {
    public:
        explicit Reading(const FormWalk& walk) : m_walk(walk), m_record(walk.m_files.store()) {}

        std::vector<std::string> files() const
        {
            std::vector<std::string> told;
            for (const auto& [path, mark] : m_record.files())
                told.push_back(toldPath(path, m_walk.m_files.paths().settingsRoot()));
            std::erase(told, "");
            return told;
        }

    private:
        const FormWalk& m_walk;
        ReadRecord m_record;
    };

    std::size_t fileEntry(const std::string& path);
    std::size_t parentOf(const std::vector<std::string>& files);
    std::size_t add(std::size_t parent, FindKind kind, FindPlace place, std::string_view label,
                    std::string_view value = {}, Texts details = {})
    {
        return m_index.add(parent, {kind, std::move(place), label, value, std::move(details)});
    }
    void addRow(std::size_t parent, const std::string& control, std::size_t row, std::string_view text,
                Texts details = {})
    {
        add(parent, FindKind::Row, {{}, control, static_cast<int>(row)}, {}, text, std::move(details));
    }

    void take(const DeclaredSettings& settings) { takeFile(settings.file()); }
    void take(const DeclaredList& list) { takeList(list.list(m_profiles)); }
    void take(const DeclaredLists& lists)
    {
        for (const RowListDeclaration& list : lists.lists().lists)
            takeList(list);
    }
    void take(const DeclaredTexts& texts);
    void take(const DeclaredGrid& declared);
    void take(const DeclaredTicks& declared);
    void take(const DeclaredText& text);
    void take(const OwnPart& own);

    void takeFile(const TableFile& file);
    void takeSetting(std::size_t parent, const setting::Field& field, const SettingValues& values);
    void takeSetting(std::size_t parent, const setting::Idle& idle, const SettingValues& values);
    void takeSetting(std::size_t parent, const setting::NamedTexts& texts, const SettingValues& values);
    void takeSetting(std::size_t /*parent*/, const auto& /*without a control*/, const SettingValues&) {}

    std::pair<std::size_t, std::vector<CellRow>> takeList(const RowListDeclaration& list);
    void takeCells(std::size_t parent, const std::string& control, const GridSource& grid,
                   const GridWords& words, const std::vector<PermissionCell>& cells);
    void takeLines(std::size_t parent, const FindPlace& place, std::string_view text);
    std::string targetOf(const GridSource& grid, const PermissionCell& cell) const;

    FindIndex& m_index;
    const SettingsFiles& m_files;
    const HubProfiles& m_profiles;
    std::size_t m_function;
    std::map<std::string, std::size_t> m_fileEntries{};
};

/// The entry of a file, each of which a form has once.
std::size_t FormWalk::fileEntry(const std::string& path)
{
    if (path.empty())
        return m_function;
    const auto known = m_fileEntries.find(path);
    return known != m_fileEntries.end()
               ? known->second
               : m_fileEntries.emplace(path, add(m_function, FindKind::File, {}, path)).first->second;
}

/// What stands in several files stands below none of them.
std::size_t FormWalk::parentOf(const std::vector<std::string>& files)
{
    std::size_t parent = m_function;
    for (const std::string& file : files)
        parent = fileEntry(file);
    return files.size() == 1 ? parent : m_function;
}

void FormWalk::takeFile(const TableFile& file)
{
    const std::size_t parent = fileEntry(file.path);
    const SettingValues values = loaded(file, m_files.index(file.path), m_profiles);
    for (const Setting& each : file.settings)
        std::visit([&](const auto& setting) { takeSetting(parent, setting, values); }, each);
}

void FormWalk::takeSetting(std::size_t parent, const setting::Field& field, const SettingValues& values)
{
    const std::string control = shownControl(field, values);
    const std::string& label = field.label.empty() ? field.toolTip : field.label;
    const auto entry = add(parent, FindKind::Control, {{}, control}, label,
                           shownValue(field, values, m_profiles), detailsOf(field, m_profiles));
    std::size_t place = 0;
    for (const TickedRow& row : shownRows(field, values, m_profiles))
        addRow(entry, control, place++, row.text + ": " + std::string(onOrOff(row.checked)));
}

void FormWalk::takeSetting(std::size_t parent, const setting::Idle& idle, const SettingValues& /*values*/)
{
    setting::Field field = idle.field;
    const SettingValues shown = {{field.key, setting::defaultText(field.kind)}};
    takeSetting(parent, field, shown);
}

void FormWalk::takeSetting(std::size_t parent, const setting::NamedTexts& texts, const SettingValues& values)
{
    const auto entry =
        add(parent, FindKind::Control, {{}, texts.control}, texts.label, {}, {texts.key, texts.explanation});
    std::size_t place = 0;
    for (const setting::NamedText& each : texts.texts)
        addRow(entry, texts.control, place++, each.name + ": " + values.at(textRow(texts.key, each.name)));
}

/// The list's entry and its rows, none if it is loaded otherwise.
std::pair<std::size_t, std::vector<CellRow>> FormWalk::takeList(const RowListDeclaration& list)
{
    std::vector<CellRow> rows;
    std::vector<std::string> read;
    if (list.load) {
        const Reading reading(*this);
        rows = list.load(m_files, m_profiles);
        read = reading.files();
    }
    const std::string& label = list.label.empty() ? list.columns.front() : list.label;
    const auto entry = add(parentOf(read), FindKind::Control, {{}, list.list}, label, {}, detailsOf(list));
    rows.resize(std::min(rows.size(), lineLimit));
    for (std::size_t row = 0; row < rows.size(); ++row)
        addRow(entry, list.list, row, shownText(rows[row], list));
    return {entry, std::move(rows)};
}

void FormWalk::take(const DeclaredTexts& texts)
{
    const RowListDeclaration list = texts.list();
    const auto [entry, rows] = takeList(list);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const std::string& name = rows[row].cells.front();
        if (leavingNameFault(name).empty()) // else the form doesn't open it either
            takeLines(entry, {{}, list.list, static_cast<int>(row)},
                      m_files.ReadTextFile(textFileOnDisk(m_files, texts.folder, name)));
    }
}

void FormWalk::take(const DeclaredTicks& declared)
{
    const TickList ticks = declared.ticks();
    const std::string& label = ticks.label.empty() ? ticks.caption : ticks.label;
    const auto entry = add(fileEntry(ticks.file.path), FindKind::Control, {{}, ticks.control}, label, {},
                           {ticks.caption, ticks.explanation});
    std::size_t place = 0;
    for (const CellRow& row : loadOf(ticks.file)(m_files, m_profiles)) {
        const std::string& name = row.cells.front();
        addRow(entry, ticks.control, place++, name + ": " + std::string(onOrOff(row.checked)),
               ticks.help ? Texts{ticks.help(name)} : Texts{});
    }
}

void FormWalk::take(const DeclaredText& text)
{
    const auto entry = add(fileEntry(text.path), FindKind::Control, {{}, text.toolbar}, text.caption, {},
                           {text.explanation});
    takeLines(entry, {{}, text.toolbar}, m_files.ReadTextFile(text.path));
}

void FormWalk::take(const DeclaredGrid& declared)
{
    const GridSource grid = declared.grid();
    const Reading reading(*this);
    const auto cells = grid.load(m_files, m_profiles);
    Texts details = {declared.words.explanation};
    addAll(details, declared.words.columns);
    const auto entry = add(parentOf(reading.files()), FindKind::Control, {{}, declared.words.list},
                           declared.words.columns.front(), {}, details);
    takeCells(entry, declared.words.list, grid, declared.words, cells);
}

/// A row for each command and acting profile, which stand in the first of their cells, and below it the
/// cells.
void FormWalk::takeCells(std::size_t parent, const std::string& control, const GridSource& grid,
                         const GridWords& words, const std::vector<PermissionCell>& cells)
{
    const auto* before = static_cast<const PermissionCell*>(nullptr);
    std::size_t row = 0;
    for (std::size_t at = 0; at < cells.size(); before = &cells[at++]) {
        const PermissionCell& cell = cells[at];
        const FindPlace place = {{}, control, static_cast<int>(at)};
        const std::string& allowed = cell.allowed ? words.yes : words.no;
        const std::string& by = m_profiles.names()[cell.by];
        if (!words.targets) {
            add(parent, FindKind::Row, place, grid.commands[cell.command], by + ": " + allowed);
            continue;
        }
        if (!before || before->command != cell.command || before->by != cell.by)
            row = add(parent, FindKind::Row, place, grid.commands[cell.command], by);
        add(row, FindKind::Cell, place, {}, targetOf(grid, cell) + ": " + allowed);
    }
}

std::string FormWalk::targetOf(const GridSource& grid, const PermissionCell& cell) const
{
    const auto& names = m_profiles.names();
    return cell.on < names.size() ? names[cell.on] : grid.named[cell.on - names.size()];
}

void FormWalk::takeLines(std::size_t parent, const FindPlace& place, std::string_view text)
{
    LineCursor cursor(text);
    for (std::size_t line = 0; line < lineLimit; ++line) {
        const auto found = cursor.next();
        if (!found)
            return;
        if (!trimBlanks(*found).empty())
            add(parent, FindKind::Row, place, {}, *found);
    }
}

void FormWalk::take(const OwnPart& own)
{
    for (const TableFile& file : settingsFilesOf(own))
        takeFile(file);
    for (const RowListDeclaration& list : listsOf(own, m_profiles))
        takeList(list);
    if (!own.texts)
        return;
    std::map<std::pair<std::string, std::string>, std::size_t> settings;
    for (const PlacedText& text : own.texts(m_files, m_profiles)) {
        const std::size_t parent = fileEntry(text.file);
        auto [entry, isNew] = settings.try_emplace({text.control, text.label});
        if (isNew)
            entry->second = add(parent, FindKind::Control, {{}, text.control}, text.label, {},
                                explanationsOf(own, text.control));
        takeLines(entry->second, {{}, text.control, text.row}, text.text);
    }
}

} // namespace

FindIndex indexOfForms(const std::vector<FindableForm>& forms, const SettingsFiles& files,
                       const HubProfiles& profiles)
{
    FindIndex index;
    for (const FindableForm& form : forms)
        FormWalk(index, form, files, profiles);
    return index;
}

} // namespace quillfen
