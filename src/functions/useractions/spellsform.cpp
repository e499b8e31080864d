#include "functions/useractions/spellsform.h"

#include "functions/useractions/spells.h"
#include "settings/codepage.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/toolbars.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace quillfen {
namespace {

/// The warded users, with a note below them.
class WardsPart : public RowListPart
{
public:
    WardsPart(const RowListDeclaration& wards, const FormContext& context)
        : RowListPart(wards, context),
          m_widget(new QWidget)
    {
        auto* note = new QLabel("Allows IPs beginning with 0 (such as 0.3.6.0)");
        note->setTextFormat(Qt::PlainText);
        note->setWordWrap(true);
        auto* layout = new QVBoxLayout(m_widget);
        layout->setContentsMargins({});
        layout->addWidget(RowListPart::widget(), 1);
        layout->addWidget(note);
    }

    QWidget* widget() override { return m_widget; }

private:
    QWidget* m_widget;
};

/// The spells of a book. A double click amends a spell's phrases.
class SpellsPart : public RowListPart
{
public:
    SpellsPart(const SpellBook& book, std::function<void()> amend, const FormContext& context)
        : RowListPart(spellList(book), context),
          m_amend(std::move(amend))
    {
        int index = static_cast<int>(toolbar().actions().size());
        AddAmendButton(toolbar(), index);
        button(toolbar(), "AMEND")->setToolTip("Amend Spell Phrases");
        connect(button(toolbar(), "AMEND"), &QAction::triggered, this, m_amend);
        list().setColumnHidden(SpellPhrases, true);
        list().setColumnHidden(SpellLines, true);
        followRows();
    }

    using RowListPart::list;

    /// The selected spell's name; empty if none is selected.
    std::string selected() const
    {
        const int row = list().currentRow();
        return row < 0 ? std::string() : rows()[static_cast<std::size_t>(row)].cells[SpellName];
    }

protected:
    bool mayAdd(const CellRow& row) override
    {
        return !refuseNewFile(widget()->window(), row.cells[SpellName]);
    }

    bool mayTake(const CellRow& row) override { return row.cells[SpellName] == selected() || mayAdd(row); }

    void activate() override { m_amend(); }

private:
    std::function<void()> m_amend;
};

/// The phrases of the spell that is being amended.
class PhrasesPart : public RowListPart
{
public:
    PhrasesPart(const RowListDeclaration& phrases, const FormContext& context) : RowListPart(phrases, context)
    {
    }

    /// Without a spell there is nothing to add a phrase to.
    void setSpell(const std::string& spell)
    {
        list().setProperty("tag", fromBytes(spell));
        button(toolbar(), "NEW")->setEnabled(!spell.empty());
    }
};

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
    RowListDeclaration declaredPhrases();
    void amend();
    void setCurrent(const std::string& spell);
    void showPhrasesOf(const std::string& spell);
    void followSpells();
    void gather();

    const SpellBook& m_book;
    FormContext m_context;
    std::string m_current;      ///< the spell that is being amended; empty if none is
    std::size_t m_spellCount{}; ///< before the change that is being followed
    SpellsPart* m_spells;
    PhrasesPart* m_phrases;
    QWidget* m_widget;
};

SpellBookPart::SpellBookPart(const SpellBook& book, const FormContext& context)
    : m_book(book),
      m_context(context),
      m_spells(new SpellsPart(
          book, [this] { amend(); }, context)),
      m_phrases(new PhrasesPart(declaredPhrases(), context)),
      m_widget(new QWidget)
{
    m_spells->setParent(this);
    m_phrases->setParent(this);
    connect(m_spells, &FormPart::changed, this, [this] { followSpells(); });
    connect(m_phrases, &FormPart::changed, this, [this] { gather(); });
    auto* layout = new QHBoxLayout(m_widget);
    layout->setContentsMargins({});
    layout->addWidget(m_spells->widget(), 3);
    layout->addWidget(m_phrases->widget(), 2);
}

RowListDeclaration SpellBookPart::declaredPhrases()
{
    RowListDeclaration phrases = phraseList();
    phrases.load = [this](const SettingsFiles& files, const HubProfiles&) {
        return m_current.empty() ? std::vector<CellRow>() : loadPhrases(m_book, m_current, files);
    };
    return phrases;
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
    const std::string spell = m_spells->selected();
    if (!spell.empty() && !refuseListedFile(m_widget->window(), "Cannot open file", spell))
        showPhrasesOf(spell);
}

void SpellBookPart::setCurrent(const std::string& spell)
{
    m_current = spell;
    m_phrases->setSpell(spell);
}

void SpellBookPart::showPhrasesOf(const std::string& spell)
{
    setCurrent(spell);
    m_phrases->load();
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
            setCurrent(m_spells->selected());
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

std::unique_ptr<FormPart> makeWardsPart(const RowListDeclaration& list, const FormContext& context)
{
    return std::make_unique<WardsPart>(list, context);
}

std::unique_ptr<FormPart> makeSpellBookPart(const SpellBook& book, const FormContext& context)
{
    return std::make_unique<SpellBookPart>(book, context);
}

} // namespace quillfen
