#include "functions/customise/forms.h"

#include "functions/customise/asciiintros.h"
#include "functions/customise/asciiintrosform.h"
#include "functions/customise/customrightclick.h"
#include "functions/customise/descriptiontagsform.h"
#include "functions/customise/hideshare.h"
#include "functions/customise/introsoutros.h"

namespace quillfen {
namespace {

FormDeclaration introsOutrosForm(const char* name, const char* caption, const IntrosOutros& (*all)())
{
    return {
        {name, caption, {12000, 6900}},
        {DeclaredSettings{[all] { return all().settings; }}, DeclaredLists{[all] { return all().lines; }}}};
}

} // namespace

FormCatalogue customiseForms()
{
    return {
        {{"frmCustomiseUserAsciiIntro", "Customise User ~ Intros & Outros ~ Ascii"},
         {DeclaredSettings{asciiIntroSettings}, asciiIntrosPart()}},
        introsOutrosForm("frmCustomiseUserCustomIntroOutro", "Customise User ~ Intros & Outros ~ Custom",
                         customIntrosOutros),
        {{.name = "frmCustomiseUserCustomRightClick",
          .caption = "CustomiseUser ~ Custom Right Click",
          .hasRestore = false},
         {DeclaredList{customRightClicks}}},
        {{"frmCustomiseUserDescriptionTags", "CustomiseUser ~ DescriptionTags"}, {descriptionTagsPart()}},
        settingsForm({"frmCustomiseUserHideShare", "CustomiseUser ~ HideShare"}, hideShareSettings),
        introsOutrosForm("frmCustomiseUserIntroOutro", "Customise User ~ Intros & Outros ~ Standard",
                         standardIntrosOutros),
    };
}

} // namespace quillfen
