#include "functions/customise/introsoutros.h"

#include "functions/customise/shared/enabledprofiles.h"
#include "settings/profiles.h"

namespace quillfen {
namespace {

// The lines for everybody that RESTORE shows. A fresh tree has none of them.
std::vector<CellRow> standardIntros()
{
    return {
        {{"!username! appears in a blaze of octarine"}},
        {{"!username! staggers in and collapses in relief"}},
        {{"Like a demon, !username! materialises in the hub"}},
        {{"The trapdoor creaks open and !username! climbs out, covered in cobwebs"}},
        {{"A passing troll spits out !username!, complaining about the taste"}},
        {{"!username! falls out of the sky and blames the carpet"}},
        {{"The crystal ball clears, and !username! is pulling faces inside it"}},
        {{"!username! rides in on a very tired donkey and insists that it is a unicorn"}},
        {{"The third wish is granted: !username! is here. The first two were better"}},
        {{"!username! kicks the door down, then notices that it was open"}},
        {{"A frog is kissed, there is a pop, and !username! asks for a towel"}},
        {{"Somebody polishes the lamp, and !username! comes out yawning"}},
        {{"!username! steps out of the portrait on the wall and straightens the frame"}},
        {{"The prophecy promised a hero. It got !username!, and !random! is to blame"}},
    };
}

std::vector<CellRow> standardOutros()
{
    return {
        {{"!username! hops onto their broomstick and flies off into the night"}},
        {{"With a burst of flame, the dragon incinerates !username!"}},
        {{"Morvaleth banishes !username! to the Hubland wastes"}},
        {{"!username! says the magic word backwards and is gone"}},
        {{"The carpet takes off before !username! has sat down properly"}},
        {{"A large net drops from the ceiling, and goblins carry !username! away"}},
        {{"!username! drinks from the wrong bottle and hops away, croaking"}},
        {{"The spell wears off, and !username! is a turnip again"}},
        {{"The floor opens under !username! and closes with a satisfied burp"}},
        {{"!username! puts on the cloak of invisibility and trips over it on the way out"}},
        {{"!username! bows, vanishes in green smoke, and is heard coughing down the corridor"}},
        {{"A giant picks up !username! between two fingers and asks where to put this one"}},
        {{"!username! loses a staring contest with the basilisk"}},
        {{"The ferryman calls the last boat, and !username! runs for it"}},
        {{"!username! sets out for the treasure, holding the map upside down"}},
        {{"A raven brings the tavern bill, and !username! leaves through the window"}},
        {{"!username! signs up as a squire and is marched off to polish armour"}},
        {{"The moon is full, and !username! leaves in a hurry, growing hair"}},
    };
}

std::vector<CellRow> customIntros()
{
    return {{{"morvaleth", "Morvaleth arrives in a blaze of octarine as all in the hub bow before him"}}};
}

std::vector<CellRow> customOutros()
{
    return {{{"morvaleth", "Morvaleth vanishes in a burst of octarine flames"}}};
}

/// What differs between the lines for everybody and those for named users.
struct Family
{
    std::string word;  ///< in the names of files and tables
    std::string label; ///< in the labels of the lists
    bool named;        ///< each line has its user
    std::vector<CellRow> (*intros)();
    std::vector<CellRow> (*outros)();
    std::string askedOutro; ///< how the question before an outro goes calls it
    std::string_view profilesExplained;
    std::string_view introsExplained;
    std::string_view outrosExplained;
};

Family standard()
{
    return {
        "",
        "Standard",
        false,
        standardIntros,
        standardOutros,
        "outro",
        "Announces users of the ticked profiles with a random one of the standard lines.",
        "Each row is a line that may announce a user's arrival, with !username! for the user's name.",
        "Each row is a line that may announce a user's departure, with !username! for the user's name.",
    };
}

Family custom()
{
    return {
        "Custom",
        "Custom",
        true,
        customIntros,
        customOutros,
        "Outro",
        "Turns personal intros and outros on for the ticked profiles.",
        "Each row is a user and a line that announces this user's arrival.",
        "Each row is a user and a line that announces this user's departure.",
    };
}

std::string introOutroPath(const std::string& name)
{
    return R"(CustomiseUser\IntroOutro\)" + name + ".tbl";
}

/// The file of the intros or of the outros.
ListFile linesFile(const Family& family, const std::string& noun)
{
    return {introOutroPath(family.word + noun), "t" + family.word + noun,
            family.named ? ListFile::Form::Keyed : ListFile::Form::Plain};
}

/// `noun` is "Intro" or "Outro"; `asked` is the same in the question before a line goes.
RowListDeclaration announcedLines(const Family& family, const std::string& noun, const std::string& asked,
                                  std::vector<CellRow> (*restored)(), std::string_view explanation)
{
    RowListDeclaration list = listOf(noun, Fewest::One);
    list.list = "lvw" + noun;
    list.toolbar = "tlb" + noun;
    list.label = family.label + " " + noun + "s";
    list.explanation = explanation;
    list.columns = {noun};
    list.menu = "mnu" + noun;
    list.deletion = deletionOf(noun, asked, noun);
    list.load = loadOf(linesFile(family, noun));
    list.restored = [restored](const HubProfiles&) { return restored(); };
    if (family.named) {
        list.columns = {"Username", noun};
        list.dialog.form = EditForm::TwoFields;
        list.dialog.labels = {noun + " for", noun};
        list.labelsOf = [noun](const CellRow& row) {
            return std::vector<std::string>{noun + " for " + row.cells[0], noun};
        };
    }
    return list;
}

RowListGroup linesOf(const Family& family)
{
    RowListGroup group;
    group.lists = {announcedLines(family, "Intro", "intro", family.intros, family.introsExplained),
                   announcedLines(family, "Outro", family.askedOutro, family.outros, family.outrosExplained)};
    group.save = [family](const SettingsFiles& files, const std::vector<std::vector<CellRow>>& rows) {
        saveOf(linesFile(family, "Intro"))(files, {}, rows.at(0));
        saveOf(linesFile(family, "Outro"))(files, {}, rows.at(1));
    };
    return group;
}

TableFile settingsOf(const Family& family, std::vector<Setting> settings)
{
    settings.push_back(enabledProfiles(family.label + " Enabled Profiles", family.profilesExplained));
    return {introOutroPath(family.word + "IntroOutroSettings"), "t" + family.word + "IntroOutroSettings",
            std::move(settings)};
}

/// The keys of the first two say registered where the controls say unregistered: both stay.
std::vector<Setting> unregisteredIntro()
{
    auto line = setting::text("sRegIntro", "txtUnregIntro", "",
                              "Welcome !nick! to !hubname!. Type !prefix!!regcommand! to register");
    line.toolTip = "Unregistered User Intro";
    line.explanation = "Holds the intro for unregistered users, in which !nick!, !hubname!, !prefix! and "
                       "!regcommand! may stand.";
    return {setting::flag("bRegIntroEnabled", "chkEnableUnregIntro", "Enable Unregistered User Intro", true)
                .explained("Gives unregistered users an intro of their own."),
            line};
}

FormDeclaration introsOutrosForm(const char* name, const std::string& word, const IntrosOutros& (*all)())
{
    return {
        {name, "Customise User ~ Intros & Outros ~ " + word, {12000, 6900}},
        {DeclaredSettings{[all] { return all().settings; }}, DeclaredLists{[all] { return all().lines; }}}};
}

void addSteps(FunctionDeclaration& function, const Family& family, const IntrosOutros& (*all)())
{
    function.build.emplace_back(RebuiltSettings{[all] { return all().settings; }});
    for (const char* noun : {"Intro", "Outro"})
        function.build.emplace_back(emptyTable(linesFile(family, noun)));
}

} // namespace

const IntrosOutros& standardIntrosOutros()
{
    static const IntrosOutros all = {settingsOf(standard(), unregisteredIntro()), linesOf(standard())};
    return all;
}

const IntrosOutros& customIntrosOutros()
{
    static const IntrosOutros all = {
        settingsOf(custom(), {setting::flag("bNotifyOps", "chkNotifyOps",
                                            "Notify Ops when Custom Intro/Outro changed", true)}),
        linesOf(custom())};
    return all;
}

FunctionDeclaration introsOutrosFunction()
{
    FunctionDeclaration function;
    function.nodes = {{"CustomiseUser~IntroOutro", "Intros & Outros"},
                      {"CustomiseUser~IntroOutro~Standard", "Standard",
                       introsOutrosForm("frmCustomiseUserIntroOutro", "Standard", standardIntrosOutros),
                       "IntroOutro ~ Standard"},
                      {"CustomiseUser~IntroOutro~Custom", "Custom",
                       introsOutrosForm("frmCustomiseUserCustomIntroOutro", "Custom", customIntrosOutros),
                       "IntroOutro ~ Custom"}};
    // The folder of the ascii intros is made with this one, before any file of the two.
    function.folders = {R"(CustomiseUser\IntroOutro)", R"(CustomiseUser\IntroOutro\Ascii)"};
    addSteps(function, standard(), standardIntrosOutros);
    addSteps(function, custom(), customIntrosOutros);
    return function;
}

} // namespace quillfen
