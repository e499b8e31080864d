#include "functions/useractions/spellsform.h"

#include "functions/useractions/spells.h"
#include "settings/codepage.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/toolbarlist.h"

#include <QHBoxLayout>

#include <algorithm>

namespace quillfen {
namespace {

/// A new name is also a new file's.
std::optional<RowRefusal> nameRefusal(const CellRow& spell, const CellRow* before)
{
    const std::string& name = spell.cells[SpellName];
    return before && before->cells[SpellName] == name ? std::nullopt : newFileRefusal(name);
}

/// A spell book: its spells, and the phrases of the one that is being amended.
class SpellBookPart : public FormPart
{
public:
    SpellBookPart(const SpellBook& book, const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override {} ///< a book has no defaults
    void save() override { saveSpellBook(m_book, m_spells->rows(), m_context.files); }
    RoutineTable routines() override;

private:
    std::string selectedSpell() const;
    void amend();
    void setCurrent(const std::string& spell);
    void showPhrasesOf(const std::string& spell);
    void followSpells();
    void gather();

    const SpellBook& m_book;
    FormContext m_context;
    std::string m_current;      ///< the spell that is being amended; empty if none is
    std::size_t m_spellCount{}; ///< before the change that is being followed
    RowListPart* m_spells;
    RowListPart* m_phrases;
    QWidget* m_widget;
};

SpellBookPart::SpellBookPart(const SpellBook& book, const FormContext& context)
    : m_book(book),
      m_context(context),
      m_spells(new RowListPart(spellList(book), context,
                               {.builders = {BuildListToolbar, AddAmendButton},
                                .activates = "AMEND",
                                .refusal = nameRefusal,
                                .note = [this] { followSpells(); }})),
      m_phrases(new RowListPart(phraseList(), context, {.note = [this] { gather(); }})),
      m_widget(new QWidget)
{
    m_spells->setParent(this);
    m_phrases->setParent(this);
    m_spells->tools().connectButtons(this, {{"AMEND", &SpellBookPart::amend}});
    m_spells->tools().tool("AMEND").setToolTip("Amend Spell Phrases");
    auto* layout = new QHBoxLayout(m_widget);
    layout->setContentsMargins({});
    layout->addWidget(m_spells->widget(), 3);
    layout->addWidget(m_phrases->widget(), 2);
}

/// Empty if none is selected.
std::string SpellBookPart::selectedSpell() const
{
    const int row = m_spells->list().currentRow();
    return row < 0 ? std::string() : m_spells->rows()[static_cast<std::size_t>(row)].cells[SpellName];
}

RoutineTable SpellBookPart::routines()
{
    RoutineTable all = m_spells->routines();
    all.insert(m_phrases->routines());
    return all;
}

void SpellBookPart::load()
{
    m_spells->load();
    m_spellCount = m_spells->rows().size();
    showPhrasesOf({});
}

void SpellBookPart::amend()
{
    const std::string spell = selectedSpell();
    if (!spell.empty() && !refuseListedFile(m_widget->window(), "Cannot open file", spell))
        showPhrasesOf(spell);
}

/// Without a spell there is nothing to add a phrase to.
void SpellBookPart::setCurrent(const std::string& spell)
{
    m_current = spell;
    m_phrases->tools().tool("NEW").setEnabled(!spell.empty());
}

void SpellBookPart::showPhrasesOf(const std::string& spell)
{
    setCurrent(spell);
    m_phrases->list().setRows(spell.empty() ? std::vector<CellRow>()
                                            : loadPhrases(m_book, spell, m_context.files));
}

/// A spell that is renamed while it is amended stays the one that is amended; with a deleted one its phrases
/// go.
void SpellBookPart::followSpells()
{
    const auto& rows = m_spells->rows();
    const bool isThere = std::any_of(rows.begin(), rows.end(), [this](const CellRow& row) {
        return codepage::lowered(row.cells[SpellName]) == codepage::lowered(m_current);
    });
    if (!m_current.empty() && !isThere) {
        if (rows.size() < m_spellCount)
            showPhrasesOf({});
        else
            setCurrent(selectedSpell());
    }
    m_spellCount = rows.size();
    emit changed();
}

void SpellBookPart::gather()
{
    auto spells = m_spells->rows();
    gatherPhrases(spells, m_current, m_phrases->rows());
    for (std::size_t row = 0; row < spells.size(); ++row) {
        if (spells[row] != m_spells->rows()[row])
            m_spells->list().replace(static_cast<int>(row), spells[row]);
    }
    emit changed();
}

} // namespace

std::unique_ptr<FormPart> makeSpellBookPart(const SpellBook& book, const FormContext& context)
{
    return std::make_unique<SpellBookPart>(book, context);
}

} // namespace quillfen
