#include "functions/archive/forms.h"

#include "functions/archive/archive.h"
#include "functions/archive/archiveform.h"
#include "shell/kit/codepagetext.h"

namespace quillfen {
namespace {

constexpr QSize gridSize = {7500, 6000};

/// One value for each command and profile, which a click turns.
GridWords gridWords()
{
    GridWords words;
    words.columns = {"Command", "Profile", "Setting"};
    words.targets = false;
    words.clickToggles = true;
    return words;
}

GridWords rightClickWords()
{
    GridWords words = gridWords();
    // A press of this button doesn't take its filter off: only a button of the key COMMAND does so.
    words.commandFilter = "RIGHTCLICK";
    words.commandFilterTip = "View By Right Click";
    return words;
}

} // namespace

FormCatalogue archiveForms()
{
    FormCatalogue forms;
    for (const ArchiveMember& member : archiveMembers()) {
        const QString word = fromBytes(member.word);
        const QString name = "frm" + word;
        forms.push_back({{name + "Week", word + " ~ Link Of The Week", {7500, 6000}}, {weekPart(member)}});
        forms.push_back(settingsForm({name + "NewItems", word + " ~ New " + fromBytes(member.items)},
                                     [&member] { return newItems(member); }));
        forms.push_back(gridForm(
            {name + "Permissions", word + " ~ Permissions", gridSize},
            [&member] { return archivePermissions(member); }, gridWords()));
    }
    forms.push_back(gridForm({"frmHyperlinkRightClicks", "Hyperlink ~ Right Clicks", gridSize},
                             hyperlinkRightClicks, rightClickWords()));
    return forms;
}

} // namespace quillfen
