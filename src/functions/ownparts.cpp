#include "functions/ownparts.h"

#include "functions/archive/archive.h"
#include "functions/archive/archiveform.h"
#include "functions/communication/massmessageform.h"
#include "functions/communication/motdform.h"
#include "functions/customise/asciiintrosform.h"
#include "functions/customise/descriptiontagsform.h"
#include "functions/games/hangmanform.h"
#include "functions/games/numbersform.h"
#include "functions/games/scoreclearersform.h"
#include "functions/games/shared/wordlistpart.h"
#include "functions/games/triviaform.h"
#include "functions/general/languages.h"
#include "functions/general/languagesform.h"
#include "functions/security/rulesform.h"
#include "functions/useractions/asciiform.h"
#include "functions/useractions/spells.h"
#include "functions/useractions/spellsform.h"
#include "news/newsform.h"
#include "portal/portalpart.h"
#include "shell/kit/rowlistpart.h"
#include "shell/kit/tablefilepart.h"

#include <stdexcept>

namespace quillfen {
namespace {

std::unique_ptr<FormPart> settingsPart(SettingsPartKind kind, const TableFile& file,
                                       const FormContext& context)
{
    switch (kind) {
    case SettingsPartKind::Plain:
        return std::make_unique<TableFilePart>(file, context);
    case SettingsPartKind::Hangman:
        return makeHangmanSettingsPart(file, context);
    case SettingsPartKind::Numbers:
        return makeNumbersSettingsPart(file, context);
    }
    throw std::invalid_argument("no such settings");
}

std::unique_ptr<FormPart> rowsPart(ListPartKind kind, const RowListDeclaration& list,
                                   const FormContext& context)
{
    switch (kind) {
    case ListPartKind::Plain:
        return std::make_unique<RowListPart>(list, context);
    case ListPartKind::Words:
        return std::make_unique<WordListPart>(list, context);
    case ListPartKind::FixedQuestions:
        return makeFixedQuestionsPart(list, context);
    case ListPartKind::ScoreClearers:
        return makeScoreClearersPart(list, context);
    case ListPartKind::AsciiPictures:
        return makeAsciiPicturesPart(list, context);
    case ListPartKind::SpellWards:
        return makeWardsPart(list, context);
    }
    throw std::invalid_argument("no such list");
}

std::unique_ptr<FormPart> ownPart(const OwnPart& part, const FormContext& context)
{
    switch (part.kind) {
    case OwnPartKind::News:
        return makeNewsPart(context);
    case OwnPartKind::Portal:
        return std::make_unique<PortalPart>(context);
    case OwnPartKind::Gallows:
        return makeGallowsPart(context);
    case OwnPartKind::TriviaQuestions:
        return makeTriviaQuestionsPart(context);
    case OwnPartKind::AsciiIntros:
        return makeAsciiIntrosPart(context);
    case OwnPartKind::DescriptionTags:
        return makeDescriptionTagsPart(context);
    case OwnPartKind::MessageOfTheDay:
        return makeMotdPart(context);
    case OwnPartKind::MassMessage:
        return makeMassMessagePart(context);
    case OwnPartKind::Languages:
        return makeLanguagesPart(languageSets()[part.which], context);
    case OwnPartKind::LinkOfTheWeek:
        return makeLinkOfTheWeekPart(archiveMembers()[part.which], context);
    case OwnPartKind::Rules:
        return makeRulesPart(context);
    case OwnPartKind::SpellBook:
        return makeSpellBookPart(spellBook(), context);
    case OwnPartKind::NickSpellBook:
        return makeSpellBookPart(nickSpellBook(), context);
    }
    throw std::invalid_argument("no such part");
}

} // namespace

PartMakers partMakers()
{
    return {settingsPart, rowsPart, ownPart};
}

} // namespace quillfen
