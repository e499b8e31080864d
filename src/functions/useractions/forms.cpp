#include "functions/useractions/forms.h"

#include "functions/useractions/actiontexts.h"
#include "functions/useractions/ascii.h"
#include "functions/useractions/asciiform.h"
#include "functions/useractions/calculator.h"
#include "functions/useractions/collections.h"
#include "functions/useractions/spells.h"
#include "functions/useractions/spellsform.h"

namespace quillfen {
namespace {

constexpr QSize listSize = {9000, 5400};
constexpr QSize bookSize = {10500, 6000};

FormDeclaration collectionForm(const char* name, const char* caption, const Collection& (*collection)())
{
    return settingsAndListForm(
        {name, caption, {9000, 6000}}, [collection] { return collection().settings; },
        [collection] { return collection().texts; });
}

} // namespace

FormCatalogue useractionsForms()
{
    return {
        {{"frmUserActionsAscii", "User Actions ~ Ascii", {9000, 7500}},
         {DeclaredSettings{asciiSettings}, asciiPicturesPart()}},
        settingsForm({"frmUserActionsCalculator", "UserActions ~ Calculator"}, calculatorSettings),
        listForm({"frmUserActionsInsultsStandard", "UserActions ~ Insults ~ Standard", listSize}, insults),
        listsForm({"frmUserActionsInsultsMedieval", "UserActions ~ Insults ~ Medieval", listSize},
                  medievalInsults),
        listsForm({"frmUserActionsInsultsModern", "UserActions ~ Insults ~ Modern", listSize}, modernInsults),
        listForm({"frmUserActionsAttacks", "UserActions ~ Attacks", listSize}, attacks),
        listForm({"frmUserActionsDoAction", "UserActions ~ DoAction", listSize}, doActions),
        collectionForm("frmUserActionsJokes", "User Actions ~ Jokes", jokes),
        collectionForm("frmUserActionsLimericks", "User Actions ~ Limericks", limericks),
        collectionForm("frmUserActionsProverbs", "User Actions ~ Proverbs", proverbs),
        collectionForm("frmUserActionsQuotations", "User Actions ~ Quotations", quotations),
        {{"frmUserActionsSpellSettings", "UserActions ~ Spells ~ Settings", {7500, 7500}},
         {DeclaredSettings{spellSettings}, listPart(spellWards)}},
        {{"frmUserActionsSpellsSpellBook", "UserActions ~ Spells ~ SpellBook", bookSize},
         {spellBookPart(spellBook())}},
        settingsForm({"frmUserActionsNickSpellSettings", "UserActions ~ NickSpells ~ Settings"},
                     nickSpellSettings),
        {{"frmUserActionsNickSpellsSpellBook", "UserActions ~ Nick Spells ~ SpellBook", bookSize},
         {spellBookPart(nickSpellBook())}},
    };
}

} // namespace quillfen
