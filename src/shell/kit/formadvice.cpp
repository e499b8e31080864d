#include "shell/kit/formadvice.h"

#include "advice/filefindings.h"
#include "advice/settingfindings.h"
#include "declarations/oddfiles.h"
#include "declarations/settingcard.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/controlsign.h"
#include "shell/kit/controlvalue.h"
#include "shell/kit/rowlist.h"

#include <QLineEdit>

#include <algorithm>
#include <iterator>

namespace quillfen {
namespace {

/// Until the keys rest for so long nothing is looked at.
constexpr int restMilliseconds = 300;

/// Nobody goes through more at once; and each costs a look at all rows.
constexpr std::size_t mostAdvice = 100;

/// Where the switches are.
constexpr QLatin1String switchesNode("General~Switches");
constexpr QLatin1String switchesList("lvwSwitches");

std::string_view lineAt(std::string_view bytes, std::size_t number)
{
    LineCursor cursor(bytes);
    std::optional<std::string_view> line;
    for (std::size_t at = 0; at < number; ++at)
        line = cursor.next();
    return line.value_or(std::string_view());
}

/// How many bytes of a line a row's cells or a box's text make up.
std::size_t shareIn(std::string_view line, const std::string& text)
{
    return line.find(text) == std::string_view::npos ? 0 : text.size();
}

std::size_t shareIn(std::string_view line, const CellRow& row)
{
    std::size_t share = 0;
    for (const std::string& cell : row.cells)
        share += shareIn(line, cell);
    return share;
}

/// Where most of a line's bytes come from. A place has one piece of advice, so that of equal rows each gets
/// its own.
class PlaceOfLine
{
public:
    PlaceOfLine(std::string_view line, const std::vector<Advice>& taken) : m_line(line), m_taken(taken) {}

    void lookIn(RowList& list)
    {
        int place = 0;
        for (const CellRow& row : list.rows())
            offer(shareIn(m_line, row), list, place++);
    }

    void lookIn(QWidget& widget)
    {
        for (auto* list : widget.findChildren<RowList*>())
            lookIn(*list);
        for (auto* line : widget.findChildren<QLineEdit*>())
            offer(shareIn(m_line, toBytes(line->text())), *boxAround(line), -1);
    }

    QWidget* control() const { return m_control; }
    int row() const { return m_row; }

private:
    void offer(std::size_t share, QWidget& control, int row)
    {
        const auto isTaken = [&](const Advice& advice) {
            return advice.control == &control && advice.row == row;
        };
        if (share <= m_share || std::any_of(m_taken.begin(), m_taken.end(), isTaken))
            return;
        m_share = share;
        m_control = &control;
        m_row = row;
    }

    std::string_view m_line;
    const std::vector<Advice>& m_taken;
    std::size_t m_share = 0;
    QWidget* m_control = nullptr;
    int m_row = -1;
};

bool isSame(const Advice& one, const Advice& other)
{
    return one.finding == other.finding && one.control == other.control && one.row == other.row &&
           one.elsewhere == other.elsewhere;
}

/// What the owner knows the place by: the row's first cell, the control's label, or the file.
QString nameOf(const Advice& advice)
{
    const auto* list = qobject_cast<RowList*>(advice.control);
    if (list && advice.row >= 0)
        return list->model()->index(advice.row, 0).data().toString();
    if (advice.control && !advice.control->accessibleName().isEmpty())
        return advice.control->accessibleName();
    const std::string& file = advice.finding.file;
    return advice.elsewhere.isEmpty() ? fromBytes(file.substr(file.rfind('\\') + 1)) : QString();
}

QString wordsOf(const Advice& advice)
{
    const QString name = nameOf(advice);
    const QString words = fromBytes(advice.finding.words);
    return name.isEmpty() ? words : name + ": " + words;
}

} // namespace

FormAdvice::FormAdvice(const FormDeclaration& declaration, const FormContext& context, AdvisedForm& form,
                       QObject* parent)
    : QObject(parent),
      m_declaration(declaration),
      m_context(context),
      m_form(form)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMilliseconds);
    connect(&m_rest, &QTimer::timeout, this, &FormAdvice::look);
}

void FormAdvice::look()
{
    m_rest.stop();
    // What a form shows only in part can't be saved; and while a save is under way its draft is the open one.
    auto found =
        m_form.isWhole() && !m_context.files.store().isDrafting() ? this->found() : std::vector<Advice>();
    if (!std::equal(found.begin(), found.end(), m_all.begin(), m_all.end(), isSame)) {
        m_all = std::move(found);
        m_shown = 0;
        m_wasGoneTo = false;
        showSigns();
    }
    emit looked();
}

/// What the parts would save, each by itself.
std::vector<FormAdvice::SavedPart> FormAdvice::saved() const
{
    std::vector<SavedPart> saved;
    for (FormPart* part : m_form.parts()) {
        Draft draft(m_context.files.store(), {m_declaration.form.caption});
        try {
            part->save();
            part->saveOpenFile();
        } catch (const StoreError&) {
            // SAVE will tell it
        }
        saved.push_back({part, draft.changes()});
    }
    return saved;
}

std::vector<Advice> FormAdvice::found()
{
    std::vector<Advice> found;
    findOnDisk(found);
    for (auto& [part, changes] : saved()) {
        for (const StoreChange& change : changes)
            findIn(*part, change, found);
        findInTexts(*part, found);
        if (part->hasUnsavedFile())
            found.push_back(
                {{{}, 0, "what is open here isn't saved by the form's SAVE. Save it by the list's."},
                 part->widget()->findChildren<RowList*>().constLast()});
    }
    findSwitchedOff(found);
    return found;
}

/// A clean form saves nothing: then the file itself is what counts, if it is there.
void FormAdvice::findIn(FormPart& part, const StoreChange& change, std::vector<Advice>& found)
{
    const auto file = m_context.files.paths().toldInSettings(change.path);
    const bool wouldSave = m_form.isDirty() || part.hasUnsavedFile();
    const auto bytes = wouldSave ? change.bytes : m_context.files.store().read(change.path);
    if (change.kind != StoreChange::Kind::Write || !file || !bytes)
        return;
    auto findings = fileFindings(*file, *bytes);
    if (const TableFile* settings = settingsFile(*file)) {
        for (const auto& more : {settingFindings(*settings, *bytes), useFindings(*settings, *bytes)})
            addToOtherLines(findings, more);
    } else if (part.widget()->findChild<ListView*>() && !part.widget()->findChild<RowList*>()) {
        addToOtherLines(findings, unreadFindings(*file, *bytes)); // a grid
    }
    for (const Finding& finding : findings) {
        if (found.size() < mostAdvice)
            found.push_back(placed(finding, *bytes, part, found));
    }
}

Advice FormAdvice::placed(const Finding& finding, const std::string& bytes, FormPart& part,
                          const std::vector<Advice>& found)
{
    Advice advice{finding};
    QWidget* widget = part.widget();
    PlaceOfLine place(lineAt(bytes, finding.line), found);
    const TableFile* file = settingsFile(finding.file);
    const Setting* setting = file ? settingAt(*file, bytes, finding.line) : nullptr;
    auto* control = setting ? controlNamed(*widget, fromBytes(controlOf(*setting))) : nullptr;
    if (auto* list = qobject_cast<RowList*>(control))
        place.lookIn(*list);
    else if (!control)
        place.lookIn(*widget);
    advice.control = control ? control : place.control();
    advice.row = place.row();
    return advice;
}

/// A text so short can't have too many lines.
void FormAdvice::findInTexts(FormPart& part, std::vector<Advice>& found) const
{
    const FileStore& store = m_context.files.store();
    for (const EditedText& text : part.editedTexts()) {
        const std::string path = m_context.files.paths().resolve(text.file);
        if (store.size(path).value_or(0) <= lineLimit)
            continue;
        const auto bytes = store.read(path);
        for (const Finding& finding : fileFindings(text.file, bytes.value_or(std::string())))
            found.push_back({finding, text.control, text.row});
    }
}

void FormAdvice::findOnDisk(std::vector<Advice>& found) const
{
    const FileStore& store = m_context.files.store();
    for (const auto& [path, mark] : m_form.files()) {
        const auto file = m_context.files.paths().toldInSettings(path);
        if (mark != markOf(std::nullopt) || !file)
            continue;
        if (store.exists(path))
            found.push_back({unreadableFile(*file)});
        else if (m_context.facts.isBuilt(*file))
            found.push_back({missingFile(*file)});
    }
}

void FormAdvice::findSwitchedOff(std::vector<Advice>& found) const
{
    const std::string name = m_context.facts.switchOf(m_declaration.form.name);
    if (name.empty() || m_context.files.ReadTableValue(switchesPath, "b" + name) != "0")
        return;
    found.push_back({switchedOff(name)});
    found.back().elsewhere = switchesNode;
}

const TableFile* FormAdvice::settingsFile(const std::string& path)
{
    if (!m_settings) {
        m_settings.emplace();
        for (const PartDeclaration& part : m_declaration.parts) {
            auto files = settingsFilesOf(part);
            std::move(files.begin(), files.end(), std::back_inserter(*m_settings));
        }
    }
    const auto file = std::find_if(m_settings->begin(), m_settings->end(),
                                   [&path](const TableFile& each) { return each.path == path; });
    return file == m_settings->end() ? nullptr : &*file;
}

void FormAdvice::showSigns()
{
    for (const auto& sign : m_signs)
        delete sign;
    m_signs.clear();
    for (const auto& list : m_signedLists) {
        if (list)
            list->setSigns({});
    }
    m_signedLists.clear();
    std::map<QWidget*, QStringList> controls;
    std::map<ListView*, std::map<int, QString>> rows;
    for (const Advice& advice : m_all) {
        if (!advice.control)
            continue;
        controls[advice.control].append(wordsOf(advice));
        auto* list = qobject_cast<ListView*>(advice.control);
        if (list && advice.row >= 0)
            rows[list][advice.row] = wordsOf(advice);
    }
    for (const auto& [control, words] : controls)
        m_signs.emplace_back(new ControlSign(*control, words.join('\n')));
    for (const auto& [list, signs] : rows) {
        list->setSigns(signs);
        m_signedLists.emplace_back(list);
    }
}

QString FormAdvice::words() const
{
    if (m_all.empty())
        return {};
    const QString words = wordsOf(m_all.at(m_shown));
    return m_all.size() == 1
               ? words
               : QString::number(m_shown + 1) + " of " + QString::number(m_all.size()) + ". " + words;
}

void FormAdvice::goToNext()
{
    if (!m_all.empty())
        goTo(m_wasGoneTo ? (m_shown + 1) % m_all.size() : m_shown);
}

void FormAdvice::goTo(std::size_t place)
{
    m_shown = place;
    m_wasGoneTo = true;
    const Advice advice = m_all.at(place);
    emit looked();
    if (advice.control)
        m_form.goTo(*advice.control, advice.row);
    else if (!advice.elsewhere.isEmpty())
        emit elsewhereAsked(advice.elsewhere, switchesList,
                            fromBytes(m_context.facts.switchOf(m_declaration.form.name)));
}

void FormAdvice::goTo(const Finding& finding)
{
    look();
    const auto matches = [this](const auto& isMeant) {
        const auto place = std::find_if(m_all.begin(), m_all.end(), isMeant);
        return place == m_all.end() ? m_all.size() : static_cast<std::size_t>(place - m_all.begin());
    };
    std::size_t place = matches([&](const Advice& each) { return each.finding == finding; });
    if (place == m_all.size())
        place = matches([&](const Advice& each) { return each.finding.file == finding.file; });
    if (place < m_all.size())
        goTo(place);
}

} // namespace quillfen
