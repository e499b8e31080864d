#include "functions/games/numbersform.h"

#include "functions/games/numbers.h"
#include "functions/games/shared/wordlistpart.h"
#include "settings/lines.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/tablefilepart.h"

#include <QHeaderView>

namespace quillfen {
namespace {

/// The width of a calculation's column, and that of a question's.
constexpr int numberWidth = 60;
constexpr int questionWidth = 360;

/// The calculations' rows. They stand in the settings file among its keys, so that its part loads and saves
/// them.
class CalculationsPart : public RowListPart
{
public:
    explicit CalculationsPart(const FormContext& context) : RowListPart(numbersCalculationList(), context)
    {
        list().header()->setDefaultSectionSize(numberWidth);
        list().setMinimumWidth(numberWidth * static_cast<int>(numbersCalculationList().columns.size() + 1));
    }

    Control control(const setting::NamedTexts& texts);

protected:
    bool mayTake(const CellRow& row) override;
    void touch() override {} ///< an edited calculation is saved together with the next other change

private:
    void show(const setting::NamedTexts& texts, const SettingValues& values);
};

bool CalculationsPart::mayTake(const CellRow& row)
{
    // Only the first field is looked at, and any number will do, "1.5" too.
    if (wholeNumber(row.cells.at(1)))
        return true;
    notify(&list(), "Invalid Entry", "Invalid Entry: Integers required in all fields", QMessageBox::Warning);
    edit();
    return false;
}

void CalculationsPart::show(const setting::NamedTexts& texts, const SettingValues& values)
{
    const std::size_t columns = numbersCalculationList().columns.size();
    list().setRows({});
    for (std::size_t at = 0; at < texts.texts.size(); ++at) {
        const std::string& name = texts.texts[at].name;
        CellRow row = calculationRow(calculationOperators.at(at), values.at(textRow(texts.key, name)));
        const bool isWhole = row.cells.size() == columns;
        row.cells.resize(columns);
        list().append(std::move(row));
        if (!isWhole)
            throw LoadError(name + " in " + numbersSettings().path + " has fewer than four numbers");
    }
}

Control CalculationsPart::control(const setting::NamedTexts& texts)
{
    return {widget(), [this, &texts](const SettingValues& values) { show(texts, values); },
            [this, &texts](SettingValues& values) {
                for (std::size_t at = 0; at < texts.texts.size(); ++at)
                    values[textRow(texts.key, texts.texts[at].name)] = calculationText(rows().at(at));
            }};
}

/// The fixed questions, with room for a sentence.
class FixedQuestionsPart : public WordListPart
{
public:
    FixedQuestionsPart(const RowListDeclaration& questions, const FormContext& context)
        : WordListPart(questions, context)
    {
        list().header()->resizeSection(0, questionWidth);
    }
};

/// The settings, and the menu of the calculations among them.
class NumbersPart : public TableFilePart
{
public:
    NumbersPart(const TableFile& file, CalculationsPart* calculations, const FormContext& context)
        : TableFilePart(
              file, context,
              [calculations](const setting::NamedTexts& texts) { return calculations->control(texts); }),
          m_calculations(calculations)
    {
        calculations->setParent(this);
    }

    RoutineTable routines() override { return m_calculations->routines(); }

private:
    CalculationsPart* m_calculations;
};

} // namespace

std::unique_ptr<FormPart> makeNumbersSettingsPart(const TableFile& file, const FormContext& context)
{
    return std::make_unique<NumbersPart>(file, new CalculationsPart(context), context);
}

std::unique_ptr<FormPart> makeFixedQuestionsPart(const RowListDeclaration& list, const FormContext& context)
{
    return std::make_unique<FixedQuestionsPart>(list, context);
}

} // namespace quillfen
