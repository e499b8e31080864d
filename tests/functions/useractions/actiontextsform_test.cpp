#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::golden;
using test::sameBytes;
using test::SeenDialog;

class ActionTextForms : public test::FormTest
{
protected:
    static RowList& list(EditorForm& form, const QString& name) { return find<RowList>(form, name); }

    void save(EditorForm& form)
    {
        EXPECT_TRUE(isDirty(form));
        button(form, "SAVE").trigger();
        EXPECT_FALSE(isDirty(form));
    }

    void expectSaved(const char* file, const char* name)
    {
        EXPECT_TRUE(sameBytes(hub.file(file), golden(name)));
    }

    /// Presses DELETE on the first row and answers its box.
    static test::SeenBox deleting(EditorForm& form, const QString& list, const char* toolbar,
                                  QMessageBox::StandardButton answer = QMessageBox::Cancel)
    {
        find<RowList>(form, list).select(0);
        const auto boxes = answering(answer, [&] { button(form, "DELETE", toolbar).trigger(); });
        EXPECT_EQ(boxes.size(), 1);
        return boxes.value(0);
    }
};

TEST_F(ActionTextForms, AreCalledAsTheNavigatorTells)
{
    const QList<QStringList> told = {
        {"UserActions~Insults~Standard", "frmUserActionsInsultsStandard", "UserActions ~ Insults ~ Standard"},
        {"UserActions~Insults~Medieval", "frmUserActionsInsultsMedieval", "UserActions ~ Insults ~ Medieval"},
        {"UserActions~Insults~Modern", "frmUserActionsInsultsModern", "UserActions ~ Insults ~ Modern"},
        {"UserActions~Attacks", "frmUserActionsAttacks", "UserActions ~ Attacks"},
        {"UserActions~DoAction", "frmUserActionsDoAction", "UserActions ~ DoAction"},
    };
    for (const QStringList& words : told) {
        auto& form = open(qPrintable(words[0]));
        EXPECT_EQ(form.objectName(), words[1]);
        EXPECT_EQ(form.windowTitle(), words[2]);
        EXPECT_FALSE(isDirty(form));
    }
}

TEST_F(ActionTextForms, InsultsAreAddedEditedDeletedAndSaved)
{
    auto& form = open("UserActions~Insults~Standard");
    EXPECT_EQ(shown(list(form, "lvwInsults")).size(), 1);
    const auto dialogs = entering({{{"!victim! snores"}, "cmdAdd"}, {{"!victim! smells"}}},
                                  [&] { button(form, "NEW", "tlbInsults").trigger(); });
    const SeenDialog add{"frmGlobalEditOneFields", "Add Insult", {"Insult"}, {""}};
    EXPECT_EQ(dialogs, (QList<SeenDialog>{add, add}));
    deleting(form, "lvwInsults", "tlbInsults", QMessageBox::Ok);
    EXPECT_EQ(shown(list(form, "lvwInsults")), (QStringList{"!victim! snores", "!victim! smells"}));
    deleting(form, "lvwInsults", "tlbInsults", QMessageBox::Ok);
    entering({{{"!victim! snores, says !username!"}}}, [&] { button(form, "NEW", "tlbInsults").trigger(); });
    save(form);
    expectSaved("UserActions/Insults/Insults.tbl", "useractions/Insults.save.tbl");
}

TEST_F(ActionTextForms, ADoubleClickEdits)
{
    auto& form = open("UserActions~Attacks");
    const auto dialogs =
        entering({{{"!username! bites"}}}, [&] { doubleClickRow(list(form, "lvwAttacks"), 0); });
    EXPECT_EQ(dialogs, (QList<SeenDialog>{{"frmGlobalEditOneFields",
                                           "Edit Attack",
                                           {"Attack"},
                                           {"*** !username! blows !victim!'s brains out"}}}));
    EXPECT_EQ(shown(list(form, "lvwAttacks")), QStringList{"!username! bites"});
    EXPECT_TRUE(isDirty(form));
}

TEST_F(ActionTextForms, AttacksAreSaved)
{
    auto& form = open("UserActions~Attacks");
    const auto dialogs =
        entering({{{"!username! bites"}}}, [&] { button(form, "NEW", "tlbAttacks").trigger(); });
    EXPECT_EQ(dialogs, (QList<SeenDialog>{{"frmGlobalEditOneFields", "Add Attack", {"Attack"}, {""}}}));
    save(form);
    expectSaved("UserActions/Attacks/Attacks.tbl", "useractions/Attacks.save.tbl");
}

TEST_F(ActionTextForms, DoActionsHaveACommandAndAnAction)
{
    auto& form = open("UserActions~DoAction");
    EXPECT_EQ(list(form, "lvwDoActions").model()->headerData(0, Qt::Horizontal), "Command");
    EXPECT_EQ(list(form, "lvwDoActions").model()->headerData(1, Qt::Horizontal), "Action");
    EXPECT_EQ(shown(list(form, "lvwDoActions")), QStringList{"beer|*** !username! drinks an ice cold beer"});
    const auto added = entering({{{"tea", "!username! drinks tea"}}},
                                [&] { button(form, "NEW", "tlbDoActions").trigger(); });
    EXPECT_EQ(added, (QList<SeenDialog>{
                         {"frmGlobalEditTwoFields", "Add DoAction", {"Command", "Action"}, {"", ""}}}));
    list(form, "lvwDoActions").select(0);
    const auto edited = entering({{{QString(), "*** !username! drinks two beers"}}},
                                 [&] { button(form, "EDIT", "tlbDoActions").trigger(); });
    EXPECT_EQ(edited, (QList<SeenDialog>{{"frmGlobalEditTwoFields",
                                          "Edit DoAction",
                                          {"Command", "Action"},
                                          {"beer", "*** !username! drinks an ice cold beer"}}}));
    save(form);
    expectSaved("UserActions/DoAction/DoAction.tbl", "useractions/DoAction.save.tbl");
}

TEST_F(ActionTextForms, MedievalWordsAreSavedUnderTheRightThirdName)
{
    auto& form = open("UserActions~Insults~Medieval");
    EXPECT_EQ(shown(list(form, "lvwInsultsOne")), QStringList{"artless"});
    EXPECT_EQ(shown(list(form, "lvwInsultsTwo")), QStringList{"boil brained"});
    EXPECT_EQ(shown(list(form, "lvwInsultsThree")), QStringList()); // the build misspells its table
    entering({{{"bawdy"}}}, [&] { button(form, "NEW", "tlbInsultsOne").trigger(); });
    list(form, "lvwInsultsTwo").select(0);
    entering({{{"beef-witted"}}}, [&] { button(form, "EDIT", "tlbInsultsTwo").trigger(); });
    const auto dialogs =
        entering({{{"canker-blossom"}}}, [&] { button(form, "NEW", "tlbInsultsThree").trigger(); });
    EXPECT_EQ(dialogs, (QList<SeenDialog>{
                           {"frmGlobalEditOneFields", "Add Medieval Insult", {"Medieval Insult"}, {""}}}));
    save(form);
    expectSaved("UserActions/Insults/InsultsMedieval.tbl", "useractions/InsultsMedieval.save.tbl");
}

TEST_F(ActionTextForms, ModernWordsAreSavedInFourTables)
{
    auto& form = open("UserActions~Insults~Modern");
    const auto dialogs =
        entering({{{"old socks"}}}, [&] { button(form, "NEW", "tlbInsultsFour").trigger(); });
    EXPECT_EQ(dialogs,
              (QList<SeenDialog>{{"frmGlobalEditOneFields", "Add Modern Insult", {"Modern Insult"}, {""}}}));
    save(form);
    expectSaved("UserActions/Insults/InsultsModern.tbl", "useractions/InsultsModern.save.tbl");
}

struct ActionTextWords
{
    const char* key;
    const char* list;
    const char* addition;
    const char* minimum;
    const char* title;
    const char* text;
    const char* first; ///< the row that it starts with
};

/// The words of each list, which were copied from one another: attacks and actions are called intros, and
/// some modern words medieval.
const ActionTextWords allWords[] = {
    {"UserActions~Insults~Standard", "Insults", "Insult", "Insult", "Delete Insult?", "Insult",
     "*** !username! Says 'People can't say that !victim! has absolutely nothing! After all, they have "
     "inferiority!'"},
    {"UserActions~Attacks", "Attacks", "Attack", "Intro", "Delete Intro?", "intro",
     "*** !username! blows !victim!'s brains out"},
    {"UserActions~DoAction", "DoActions", "DoAction", "Intro", "Delete DoAction?", "intro",
     "beer|*** !username! drinks an ice cold beer"},
    {"UserActions~Insults~Medieval", "InsultsOne", "Medieval Insult", "Medieval Insult",
     "Delete Medieval Insult?", "Medieval Insult", "artless"},
    {"UserActions~Insults~Medieval", "InsultsTwo", "Medieval Insult", "Medieval Insult",
     "Delete Medieval Insult?", "Medieval Insult", "boil brained"},
    {"UserActions~Insults~Medieval", "InsultsThree", "Medieval Insult", "Medieval Insult",
     "Delete Medieval Insult?", "Medieval Insult", "hedge-pig"},
    {"UserActions~Insults~Modern", "InsultsOne", "Modern Insult", "Modern Insult", "Delete Modern Insult?",
     "Medieval Insult", "amorphous"},
    {"UserActions~Insults~Modern", "InsultsTwo", "Modern Insult", "Modern Insult", "Delete Modern Insult?",
     "Modern Insult", "blob of"},
    {"UserActions~Insults~Modern", "InsultsThree", "Modern Insult", "Medieval Insult",
     "Delete Modern Insult?", "Modern Insult", "fly-covered"},
    {"UserActions~Insults~Modern", "InsultsFour", "Modern Insult", "Modern Insult", "Delete Modern Insult?",
     "Modern Insult", "kangaroo vomit"},
};

TEST_F(ActionTextForms, AddingBearsTheListsOwnWords)
{
    for (const ActionTextWords& words : allWords) {
        auto& form = open(words.key);
        const std::string toolbar = std::string("tlb") + words.list;
        const auto dialogs =
            entering({}, [&form, &toolbar] { button(form, "NEW", toolbar.c_str()).trigger(); });
        ASSERT_EQ(dialogs.size(), 1);
        EXPECT_EQ(dialogs[0].title, QStringLiteral("Add ") + words.addition);
        const bool isAction = QString(words.addition) == "DoAction";
        EXPECT_EQ(dialogs[0].labels,
                  isAction ? QStringList({"Command", "Action"}) : QStringList(words.addition));
    }
}

TEST_F(ActionTextForms, DeletingAsksInTheListsOwnWordsAndNeverTakesTheLastRow)
{
    hub.file("UserActions/Insults/InsultsMedieval.tbl") = golden("useractions/InsultsMedieval.save.tbl");
    for (const ActionTextWords& words : allWords) {
        auto& form = open(words.key);
        const QString list = QStringLiteral("lvw") + words.list;
        const std::string toolbar = std::string("tlb") + words.list;
        auto& rows = find<RowList>(form, list);
        while (rows.rows().size() > 1) // the medieval file's first table has two
            rows.remove(1);
        const auto refusal = deleting(form, list, toolbar.c_str());
        EXPECT_EQ(refusal.title, "Cannot delete");
        EXPECT_EQ(refusal.text, QStringLiteral("There must be a minimum of one ") + words.minimum);
        EXPECT_EQ(refusal.icon, QMessageBox::Critical);
        EXPECT_EQ(refusal.buttons, QMessageBox::Ok);
        EXPECT_EQ(rows.rows().size(), 1U);
        rows.append({{"another", "one"}});
        const auto question = deleting(form, list, toolbar.c_str(), QMessageBox::Ok);
        EXPECT_EQ(question.title, words.title);
        EXPECT_EQ(question.text,
                  QStringLiteral("Do you really want to delete this ") + words.text + QChar('?'));
        EXPECT_EQ(question.buttons, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(shown(rows).value(0).section('|', 0, 0), "another");
    }
}

TEST_F(ActionTextForms, ARestoreShowsTheFirstTextsAgain)
{
    for (const ActionTextWords& words : allWords) {
        auto& form = open(words.key);
        auto& rows = find<RowList>(form, QStringLiteral("lvw") + words.list);
        rows.setRows({{{"mine", "too"}}, {{"and", "mine"}}});
        answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
        EXPECT_TRUE(isDirty(form));
        EXPECT_EQ(shown(rows), QStringList{words.first});
    }
    EXPECT_TRUE(
        sameBytes(hub.file("UserActions/DoAction/DoAction.tbl"), golden("useractions/DoAction.build.tbl")));
}

TEST_F(ActionTextForms, ADiscardShowsTheFileAgain)
{
    auto& form = open("UserActions~Insults~Modern");
    entering({{{"old socks"}}}, [&] { button(form, "NEW", "tlbInsultsFour").trigger(); });
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(shown(list(form, "lvwInsultsFour")), QStringList{"kangaroo vomit"});
    EXPECT_FALSE(isDirty(form));
}

TEST_F(ActionTextForms, EachListOfWordsServesItsOwnMenu)
{
    auto& form = open("UserActions~Insults~Modern");
    const QList<QPair<const char*, const char*>> menus = {{"gMenuFirstAddClick", "lvwInsultsOne"},
                                                          {"gMenuSecondAddClick", "lvwInsultsTwo"},
                                                          {"gMenuThirdAddClick", "lvwInsultsThree"},
                                                          {"gMenuFourthAddClick", "lvwInsultsFour"}};
    for (const auto& [routine, name] : menus) {
        entering({{{"word"}}}, form.routine(routine));
        EXPECT_EQ(list(form, name).rows().size(), 2U) << name;
    }
}

} // namespace
} // namespace quillfen
