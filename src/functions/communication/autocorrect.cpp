#include "functions/communication/autocorrect.h"

namespace quillfen {
namespace {

ListFile wordsFile()
{
    return {R"(Communication\AutoCorrect\AutoCorrectWords.tbl)", "tAutoCorrectWords", ListFile::Form::Keyed};
}

/// The actions whose texts are left alone. Their rows come with the hub script's own file: the form only
/// ticks them.
ListFile filtersFile()
{
    return {R"(Communication\AutoCorrect\AutoCorrectFilters.tbl)", "tAutoCorrectFilters",
            ListFile::Form::Flags};
}

RowListDeclaration declaredWords()
{
    RowListDeclaration words = listOf("AutoCorrect Word", Fewest::One); // also where a build began with none
    words.list = "lvwAutoCorrectWords";
    words.toolbar = "tlbAutoCorrectWords";
    words.label = "AutoCorrect Words";
    words.explanation = "Each row is a word and what the hub script puts in its place in chat.";
    words.columns = {"Word", "Replacement"};
    words.menu = "mnuFirst";
    words.dialog.form = EditForm::TwoFields;
    words.dialog.labels = {"Original Word", "Replacement Word"};
    words.deletion = deletionOf("Word", "Word", "Word");
    words.load = loadOf(wordsFile());
    words.save = saveOf(wordsFile());
    return words;
}

TickList filteredActions()
{
    return {.control = "lvwFilters",
            .caption = "Filtered Actions",
            .file = filtersFile(),
            .label = "Filtered Actions",
            .restoreTicks = false};
}

} // namespace

const TableFile& autoCorrectSettings()
{
    static const TableFile file = {
        R"(Communication\AutoCorrect\AutoCorrectSettings.tbl)",
        "tAutoCorrectSettings",
        {
            setting::flag("bNotifyOps", "chkNotifyOps", "Notify Ops", true),
            setting::enabledProfiles().explained("Turns auto correct on for the ticked profiles."),
        },
    };
    return file;
}

const RowListDeclaration& autoCorrectWords()
{
    static const RowListDeclaration words = declaredWords();
    return words;
}

FunctionDeclaration autoCorrectFunction()
{
    return {
        .nodes = {{"Communication~AutoCorrect",
                   "AutoCorrect",
                   {{{"frmCommunicationAutoCorrect", "Communication ~ AutoCorrect"},
                     {DeclaredSettings{autoCorrectSettings}, listPart(autoCorrectWords),
                      DeclaredTicks{filteredActions}}}}}},
        .folders = {R"(Communication\AutoCorrect)"},
        .build = {RebuiltSettings{autoCorrectSettings}, emptyTable(wordsFile()), emptyTable(filtersFile())}};
}

} // namespace quillfen
