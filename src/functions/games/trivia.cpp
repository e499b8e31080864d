#include "functions/games/trivia.h"

#include "declarations/oddfiles.h"
#include "functions/games/shared/questions.h"
#include "functions/games/shared/quizpattern.h"
#include "functions/games/shared/wordlist.h"
#include "settings/codepage.h"
#include "settings/filename.h"
#include "settings/tablewriter.h"

#include <algorithm>

namespace quillfen {
namespace {

constexpr std::string_view questionFilesPath = R"(Games\Trivia\TriviaQuestionFiles.tbl)";
constexpr std::string_view questionFilesTable = "tTriviaQuestionFiles";
constexpr std::string_view defaultKey = "sDefaultQuestionFile";

constexpr QuizPattern triviaQuiz{QuizGame::Trivia};

/// A group of the form's option buttons, which are counted through.
Setting optionsFrom(int firstButton, const char* key, const char* label, int defaultValue,
                    std::vector<std::string> captions)
{
    return setting::options(key, "optOption", label, defaultValue, firstButton, std::move(captions));
}

bool comesBefore(const std::string& one, const std::string& other)
{
    return codepage::lowered(one) < codepage::lowered(other);
}

std::vector<PlacedText> placedQuestions(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    const auto known = loadTriviaQuestionFiles(files);
    const std::string list(questionFilesPath);
    std::vector<PlacedText> texts = {
        {list, "cboQuestionFileDefault", -1, "Default Question File", known.defaultFile}};
    for (std::size_t file = 0; file < known.names.size(); ++file) {
        PlacedText text = {list, "lvwQuestionFiles", static_cast<int>(file), "Available Question Files",
                           known.names[file]};
        texts.push_back(text);
        if (!leavingNameFault(known.names[file]).empty())
            continue; // the form doesn't open it either
        text.file = triviaQuestionFile(known.names[file]);
        for (const CellRow& row : loadTriviaQuestions(files, known.names[file])) {
            text.text = row.cells[0] + " | " + row.cells[1];
            texts.push_back(text);
        }
    }
    return texts;
}

/// Only together with its table: an owner who deleted the file but kept the table doesn't get it back.
void makeFirstQuestions(const SettingsFiles& files, const HubProfiles& /*profiles*/)
{
    if (files.store().exists(files.paths().inSettings(questionFilesPath)))
        return;
    TableWriter table(questionFilesTable);
    table.indent(0).text(bracketed(inQuotes(defaultKey)), "TriviaQuestions");
    files.WriteSettingsFile(questionFilesPath, table.closed());
    writeIfMissing(files, triviaQuestionFile("TriviaQuestions"),
                   std::string(firstTriviaQuestion).append(lineEnd));
}

} // namespace

const TableFile& triviaSettings()
{
    static const TableFile file = {
        R"(Games\Trivia\TriviaSettings.tbl)",
        "tTriviaSettings",
        withQuizFlags(
            "chkTrivia",
            {
                setting::flag("bShowOnlyOneHint", "chkTrivia(6)", "Only Show One Hint", true),
                triviaQuiz("iArchiveScores", "txtTextBoxUpDown(10)"),
                optionsFrom(0, "iFormat", "Question Format:", 0, {"Standard", "Expanded", "Trivia Ex"}),
                optionsFrom(3, "iScoring", "Scoring Type:", 1, {"Standard", "Hint Reduction"}),
                oneCharacter("sHintChar", "Hint Character", hintBullet),
                arrowNumber("iHintTime", "txtTextBoxUpDown(0)", "Hint Time", 30, 0, 60),
                arrowNumber("iMaxHints", "txtTextBoxUpDown(1)", "Max Hints", 5, 0, 10),
                triviaQuiz("iQuestions", "txtTextBoxUpDown(2)"),
                triviaQuiz("iQuestionsPause", "txtTextBoxUpDown(3)"),
                triviaQuiz("iTimeOut", "txtTextBoxUpDown(4)"),
                triviaQuiz("iBonusTime", "txtTextBoxUpDown(5)"),
                triviaQuiz("iPoints", "txtTextBoxUpDown(6)"),
                triviaQuiz("iScores", "txtTextBoxUpDown(7)"),
                triviaQuiz("iTopScores", "txtTextBoxUpDown(8)"),
                triviaQuiz("iAutoStartDelay", "txtTextBoxUpDown(9)"),
            }),
        {"sHintChar",       "bManualStart", "bOpOnlyStart",     "bOpOnlyStop",     "iFormat",
         "iHintTime",       "iMaxHints",    "iQuestions",       "iQuestionsPause", "iTimeOut",
         "iBonusTime",      "iPoints",      "iScores",          "iTopScores",      "iAutoStartDelay",
         "iScoring",        "bPlayInMain",  "bAutoClearScores", "bArchiveScores",  "iArchiveScores",
         "bShowOnlyOneHint"},
    };
    return file;
}

ListedFiles triviaQuestionLists()
{
    ListedFiles files;
    files.names.list = "lvwQuestionFiles";
    files.names.toolbar = "tlbQuestionFiles";
    files.names.explanation = "Each row is a file of questions that the game can ask.";
    files.names.columns = {"Available Question Files"};
    files.names.menu = "mnuFirst";
    files.names.dialog.addTitle = "Enter filename";
    files.names.dialog.labels = {"Enter filename"};
    files.names.deletion = {"Delete Question File?", "Do you really want to delete ",
                            "There must be a minimum of one Question File"};
    files.rows.list = "lvwQuestions";
    files.rows.toolbar = "tlbQuestions";
    files.rows.explanation = "Each row is a question with its category and its answer.";
    files.rows.columns = {"Questions", "Answers"};
    files.rows.menu = "mnuTriviaQuestions";
    files.rows.dialog.form = EditForm::ThreeFields;
    files.rows.dialog.addTitle = "Add Trivia Question";
    files.rows.dialog.editTitle = "Edit Trivia Question";
    files.rows.dialog.labels = {"Category", "Question", "Answer"};
    files.rows.deletion = deletionOf("Question", "question", "Question");
    files.rows.selectsFirst = true;
    files.rows.fieldsOf = questionFields;
    files.rows.take = [](const std::vector<std::string>& fields, CellRow& row) { row = questionRow(fields); };
    files.chooseTitle = "Select Trivia File to open";
    files.folder = R"(Games\Trivia\)";
    files.filter = "(*.lst)";
    files.patterns = "*.lst";
    files.refusesAdding = "Cannot add file";
    return files;
}

TriviaQuestionFiles loadTriviaQuestionFiles(const SettingsFiles& files)
{
    TriviaQuestionFiles result{files.ReadTableValue(questionFilesPath, defaultKey), {}};
    if (result.defaultFile.empty())
        return result;
    result.names.push_back(result.defaultFile);
    std::vector<ListRow> rows;
    files.ReadTableToList(questionFilesPath, rows, "", questionFilesTable);
    for (const ListRow& row : rows) {
        // The table's own line of the default, in the form's words or the build's, is no file.
        if (!row.text.starts_with(defaultKey))
            result.names.push_back(row.text);
    }
    std::stable_sort(result.names.begin(), result.names.end(), comesBefore);
    return result;
}

void saveTriviaQuestionFiles(const SettingsFiles& files, const TriviaQuestionFiles& questionFiles)
{
    TableWriter table(questionFilesTable);
    table.text(defaultKey, questionFiles.defaultFile);
    for (const std::string& name : questionFiles.names) {
        if (name != questionFiles.defaultFile)
            table.row(inQuotes(name));
    }
    files.WriteSettingsFile(questionFilesPath, table.closed());
}

std::string triviaQuestionFile(std::string_view name)
{
    return R"(Games\Trivia\QuestionFiles\)" + std::string(name) + ".lst";
}

std::vector<CellRow> loadTriviaQuestions(const SettingsFiles& files, std::string_view name)
{
    return listFileRows(files, files.realFile(triviaQuestionFile(name)), "*", Rows::Plain);
}

void saveTriviaQuestions(const SettingsFiles& files, std::string_view name, const std::vector<CellRow>& rows)
{
    std::string text;
    for (const CellRow& row : rows)
        text.append(row.cells.at(0)).append("*").append(row.cells.at(1)).append(lineEnd);
    files.WriteSettingsFile(triviaQuestionFile(name), text);
}

void createTriviaQuestions(const SettingsFiles& files, std::string_view name)
{
    files.WriteSettingsFile(
        triviaQuestionFile(name),
        "Literature:Which name of six letters does a horse bear in Tavis Orlemon's series of "
        "novels?*binkie");
}

FunctionDeclaration triviaFunction()
{
    const FormDescription questions = {.name = "frmGamesTriviaQuestions",
                                       .caption = "Games ~ Trivia ~ Questions",
                                       .minimumSize = {12000, 7500},
                                       .hasRestore = false,
                                       .isLoadedOnce = true};
    const auto lists = [] {
        const ListedFiles files = triviaQuestionLists();
        return std::vector{files.names, files.rows};
    };
    FunctionDeclaration function = quizFunction("Trivia", "Trivia", triviaSettings);
    function.nodes = {
        {"Games~Trivia", "Trivia"},
        {"Games~Trivia~Settings", "Settings",
         settingsForm({"frmGamesTrivia", "Games ~ Trivia ~ Settings"}, triviaSettings), "Trivia ~ Settings"},
        {"Games~Trivia~Questions",
         "Questions",
         {{questions,
           {OwnPart{
               .kind = OwnPartKind::TriviaQuestions,
               .lists = lists,
               .explanations =
                   {{"cboQuestionFileDefault", {}, std::string(questionFilesPath), std::string(defaultKey)}},
               .texts = placedQuestions,
               .paths = {std::string(questionFilesPath), R"(Games\Trivia\QuestionFiles\)"}}}}},
         "Trivia ~ Questions"}};
    function.folders.emplace_back(R"(Games\Trivia\QuestionFiles)");
    function.build.emplace_back(makeFirstQuestions);
    return function;
}

} // namespace quillfen
