#include "functions/games/numbersform.h"

#include "functions/games/numbers.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

#include <QHeaderView>

namespace quillfen {
namespace {

/// The width of a calculation's column.
constexpr int numberWidth = 60;

/// The calculations' list. Its rows stand in the settings file among its keys, so that their part loads and
/// saves them, and an edited calculation is saved together with the next other change.
RowListPart* calculationsPart(const FormContext& context)
{
    auto* calculations = new RowListPart(numbersCalculationList(), context, {.note = [] {}});
    calculations->list().header()->setDefaultSectionSize(numberWidth);
    calculations->list().setMinimumWidth(numberWidth *
                                         static_cast<int>(numbersCalculationList().columns.size() + 1));
    return calculations;
}

void show(RowList& list, const setting::NamedTexts& texts, const SettingValues& values)
{
    const std::size_t columns = numbersCalculationList().columns.size();
    list.setRows({});
    for (std::size_t at = 0; at < texts.texts.size(); ++at) {
        const std::string& name = texts.texts[at].name;
        CellRow row = calculationRow(calculationOperators.at(at), values.at(textRow(texts.key, name)));
        const bool isWhole = row.cells.size() == columns;
        row.cells.resize(columns);
        list.append(std::move(row));
        if (!isWhole)
            throw LoadError(name + " in " + numbersSettings().path + " has fewer than four numbers");
    }
}

Control calculationsControl(RowListPart& calculations, const setting::NamedTexts& texts)
{
    RowList& list = calculations.list();
    return {calculations.widget(),
            [&list, &texts](const SettingValues& values) { show(list, texts, values); },
            [&list, &texts](SettingValues& values) {
                for (std::size_t at = 0; at < texts.texts.size(); ++at)
                    values[textRow(texts.key, texts.texts[at].name)] = calculationText(list.rows().at(at));
            }};
}

/// The settings, and the menu of the calculations among them.
class NumbersPart : public TableFilePart
{
public:
    NumbersPart(const TableFile& file, RowListPart* calculations, const FormContext& context)
        : TableFilePart(file, context,
                        [calculations](const setting::NamedTexts& texts) {
                            return calculationsControl(*calculations, texts);
                        }),
          m_calculations(calculations)
    {
        calculations->setParent(this);
    }

    RoutineTable routines() override { return m_calculations->routines(); }

private:
    RowListPart* m_calculations;
};

} // namespace

std::unique_ptr<FormPart> makeNumbersSettingsPart(const TableFile& file, const FormContext& context)
{
    return std::make_unique<NumbersPart>(file, calculationsPart(context), context);
}

} // namespace quillfen
