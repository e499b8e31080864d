#include "functions/communication/autocorrect.h"

namespace quillfen {
namespace {

const ListFile wordsFile = {R"(Communication\AutoCorrect\AutoCorrectWords.tbl)", "tAutoCorrectWords",
                            ListFile::Form::Keyed};
const ListFile filtersFile = {R"(Communication\AutoCorrect\AutoCorrectFilters.tbl)", "tAutoCorrectFilters",
                              ListFile::Form::Flags};

RowListDeclaration declaredWords()
{
    RowListDeclaration words;
    words.list = "lvwAutoCorrectWords";
    words.toolbar = "tlbAutoCorrectWords";
    words.label = "AutoCorrect Words";
    words.columns = {"Word", "Replacement"};
    words.menu = "mnuFirst";
    words.dialog.form = EditForm::TwoFields;
    words.dialog.addTitle = "Add AutoCorrect Word";
    words.dialog.editTitle = "Edit AutoCorrect Word";
    words.dialog.labels = {"Original Word", "Replacement Word"};
    words.deletion.title = "Delete Word?";
    words.deletion.text = "Do you really want to delete this Word?";
    words.deletion.minimum = "There must be a minimum of one Word"; // also where a build began with none
    words.load = loadOf(wordsFile);
    words.save = saveOf(wordsFile);
    return words;
}

TickList filteredActions()
{
    return {.control = "lvwFilters",
            .caption = "Filtered Actions",
            .file = filtersFile,
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
            setting::profileFlags("tEnabledProfiles", "lvwEnabledProfiles", "Enabled Profiles"),
        },
    };
    return file;
}

const RowListDeclaration& autoCorrectWords()
{
    static const RowListDeclaration words = declaredWords();
    return words;
}

const ListFile& autoCorrectFilters()
{
    return filtersFile;
}

FunctionDeclaration autoCorrectFunction()
{
    return {.nodes = {{"Communication~AutoCorrect",
                       "AutoCorrect",
                       {{{"frmCommunicationAutoCorrect", "Communication ~ AutoCorrect"},
                         {DeclaredSettings{autoCorrectSettings}, listPart(autoCorrectWords),
                          DeclaredTicks{filteredActions}}}}}},
            .folders = {R"(Communication\AutoCorrect)"},
            .build = {RebuiltSettings{autoCorrectSettings}, emptyTable(wordsFile), emptyTable(filtersFile)}};
}

} // namespace quillfen
