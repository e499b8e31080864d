#include "shell/kit/rowlist.h"
#include "support/dialogs.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QAbstractSpinBox>
#include <QCheckBox>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::golden;
using test::sameBytes;
using test::SeenDialog;

/// A list of comments on one ending of a game.
struct Comments
{
    const char* key;
    const char* list;
    const char* toolbar;
    const char* label;
    const char* word; ///< "Win" or "Lose": what its boxes call it
    const char* menu;
    const char* table; ///< of file and table, behind the game's folder
};

void PrintTo(const Comments& comments, std::ostream* stream)
{
    *stream << comments.table;
}

class CommentLists : public test::FormTest, public testing::WithParamInterface<Comments>
{
protected:
    CommentLists() { file = table("\t\"one\",\r\n\t\"two\",\r\n"); }

    std::string table(const std::string& rows) const
    {
        return "t" + std::string(comments.table) + " = {\r\n" + rows + "}\r\n";
    }
    RowList& list(EditorForm& form) const { return find<RowList>(form, comments.list); }
    QAction& tool(EditorForm& form, const char* key) const { return button(form, key, comments.toolbar); }

    const Comments& comments = GetParam();
    const QString word = QString(comments.word) + " Comment";
    std::string& file =
        hub.file(std::string(comments.key).replace(5, 1, "/") + "/" + comments.table + ".tbl");
};

INSTANTIATE_TEST_SUITE_P(All, CommentLists,
                         testing::Values(Comments{"Games~RussianRoulette", "lvwLive", "tlbLive", "Live",
                                                  "Win", "mnuFirst", "RussianRouletteLive"},
                                         Comments{"Games~RussianRoulette", "lvwDie", "tlbDie", "Die", "Lose",
                                                  "mnuSecond", "RussianRouletteDie"},
                                         Comments{"Games~ThreeCardMonty", "lvwWin", "tlbWin", "Win", "Win",
                                                  "mnuFirst", "ThreeCardMontyWin"},
                                         Comments{"Games~ThreeCardMonty", "lvwLose", "tlbLose", "Lose",
                                                  "Lose", "mnuSecond", "ThreeCardMontyLose"}),
                         [](const auto& each) { return std::string(each.param.table); });

TEST_P(CommentLists, AreAddedToEditedAndSaved)
{
    auto& form = open(comments.key);
    EXPECT_EQ(list(form).accessibleName(), comments.label);
    EXPECT_EQ(shown(list(form)), (QStringList{"one", "two"}));
    const SeenDialog added{"frmGlobalEditOneFields", "Add " + word, {word}, {""}};
    EXPECT_EQ(entering({{{"three"}, "cmdAdd"}, {{"four"}}}, [&] { tool(form, "NEW").trigger(); }),
              (QList<SeenDialog>{added, added}));
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(entering({{{"ONE"}}}, [&] { doubleClickRow(list(form), 0); }),
              (QList<SeenDialog>{{"frmGlobalEditOneFields", "Edit " + word, {word}, {"one"}}}));
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(file, table("\t\"ONE\",\r\n\t\"two\",\r\n\t\"three\",\r\n\t\"four\",\r\n")));
}

TEST_P(CommentLists, TheLastCommentStays)
{
    auto& form = open(comments.key);
    clickRow(list(form), 1);
    auto boxes = answering(QMessageBox::Cancel, [&] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete " + word + "?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this " + word + "?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_FALSE(isDirty(form));
    answering(QMessageBox::Ok, [&] { tool(form, "DELETE").trigger(); });
    EXPECT_TRUE(isDirty(form));
    boxes = answering(QMessageBox::Ok, [&] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_EQ(boxes[0].text, "There must be a minimum of one " + word);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(shown(list(form)), QStringList{"one"});
}

TEST_P(CommentLists, ARestoreLeavesThemAlone)
{
    auto& form = open(comments.key);
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(shown(list(form)), (QStringList{"one", "two"}));
}

TEST_P(CommentLists, EachHasAMenuOfItsOwn)
{
    auto& form = open(comments.key);
    clickRow(list(form), 0);
    answering(QMessageBox::Ok,
              [this] { find<QAction>(window(), QString(comments.menu) + "Delete").trigger(); });
    EXPECT_EQ(shown(list(form)), QStringList{"two"});
}

class ChanceForms : public test::FormTest
{
protected:
    /// Saves, and returns the names of the files that were written, in that order.
    std::vector<std::string> written(EditorForm& form)
    {
        hub.store.log.clear();
        button(form, "SAVE").trigger();
        std::vector<std::string> names;
        for (const std::string& line : hub.store.log)
            names.push_back(line.substr(line.rfind('/') + 1));
        return names;
    }

    static void up(EditorForm& form, const char* arrows)
    {
        QTest::keyClick(&find<QAbstractSpinBox>(form, arrows), Qt::Key_Up);
    }
    static QString number(EditorForm& form, const char* name) { return find<QLineEdit>(form, name).text(); }

    /// The ends of a number's range, as its arrows find them, and what one step up from the lower one gives.
    static QStringList range(EditorForm& form, int place)
    {
        auto& arrows = find<QAbstractSpinBox>(form, QString("updUpDown(%1)").arg(place));
        const auto& box = find<QLineEdit>(form, QString("txtUpDown(%1)").arg(place));
        arrows.stepBy(99999);
        const QString last = box.text();
        arrows.stepBy(-99999);
        const QString first = box.text();
        arrows.stepBy(1);
        return {first, last, box.text()};
    }
};

TEST_F(ChanceForms, ASaveOfRouletteQuotesTheChambers)
{
    auto& form = open("Games~RussianRoulette");
    EXPECT_EQ(form.objectName(), "frmGamesRussianRoulette");
    EXPECT_EQ(form.windowTitle(), "Games ~ RussianRoulette");
    auto& box = find<QCheckBox>(form, "chkPlayInMain");
    EXPECT_EQ(box.text(), "Play In Main");
    EXPECT_TRUE(box.isChecked());
    box.click();
    EXPECT_EQ(written(form), (std::vector<std::string>{"RussianRouletteSettings.tbl",
                                                       "RussianRouletteLive.tbl", "RussianRouletteDie.tbl"}));
    EXPECT_TRUE(sameBytes(hub.file("Games/RussianRoulette/RussianRouletteSettings.tbl"),
                          golden("games/RussianRouletteSettings.save.tbl")));
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(box.isChecked());
}

TEST_F(ChanceForms, ASaveOfMontySpellsTheCardsWithASmallO)
{
    auto& form = open("Games~ThreeCardMonty");
    EXPECT_EQ(form.objectName(), "frmGamesThreeCardMonty");
    EXPECT_EQ(form.windowTitle(), "Games ~ Three Card Monty");
    EXPECT_EQ(number(form, "txtUpDown(0)"), "1");
    EXPECT_EQ(number(form, "txtUpDown(1)"), "25");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Wager");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(1)").text(), "Marker");
    find<QCheckBox>(form, "chkPlayInMain").click();
    up(form, "updUpDown(0)");
    up(form, "updUpDown(1)");
    EXPECT_EQ(written(form), (std::vector<std::string>{"ThreeCardMontySettings.tbl", "ThreeCardMontyWin.tbl",
                                                       "ThreeCardMontyLose.tbl"}));
    EXPECT_TRUE(sameBytes(hub.file("Games/ThreeCardMonty/ThreeCardMontySettings.tbl"),
                          golden("games/ThreeCardMontySettings.save.tbl")));
    EXPECT_EQ(range(form, 0), (QStringList{"1", "50", "2"}));
    EXPECT_EQ(range(form, 1), (QStringList{"10", "500", "11"}));
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(number(form, "txtUpDown(0)"), "1");
    EXPECT_EQ(number(form, "txtUpDown(1)"), "25");
    EXPECT_TRUE(find<QCheckBox>(form, "chkPlayInMain").isChecked());
}

TEST_F(ChanceForms, TheSlotMachineStepsByFive)
{
    auto& form = open("Games~SlotMachine");
    EXPECT_EQ(form.objectName(), "frmGamesSlotMachine");
    EXPECT_EQ(form.windowTitle(), "Games ~ SlotMachine");
    EXPECT_EQ(find<QCheckBox>(form, "chkCheckBox(0)").text(), "Play In Main");
    const char* const captions[] = {"Credit - Start", "Credit - Play", "Credit - Loan"};
    for (int place = 0; place < 3; ++place)
        EXPECT_EQ(find<QLabel>(form, QString("lblLabel(%1)").arg(place)).text(), captions[place]);
    EXPECT_EQ(number(form, "txtUpDown(1)"), "2"); // and not what the box was drawn with
    find<QCheckBox>(form, "chkCheckBox(0)").click();
    for (const char* arrows : {"updUpDown(0)", "updUpDown(1)", "updUpDown(2)"})
        up(form, arrows);
    button(form, "SAVE").trigger();
    EXPECT_TRUE(sameBytes(hub.file("Games/SlotMachine/SlotMachineSettings.tbl"),
                          golden("games/SlotMachineSettings.save.tbl")));
    EXPECT_EQ(range(form, 0), (QStringList{"50", "5000", "55"}));
    EXPECT_EQ(range(form, 1), (QStringList{"1", "100", "2"}));
    EXPECT_EQ(range(form, 2), (QStringList{"50", "50000", "55"}));
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_EQ(number(form, "txtUpDown(0)"), "50");
    EXPECT_EQ(number(form, "txtUpDown(1)"), "2");
    EXPECT_EQ(number(form, "txtUpDown(2)"), "1000");
    EXPECT_TRUE(find<QCheckBox>(form, "chkCheckBox(0)").isChecked());
}

class ScoreClearers : public test::FormTest
{
protected:
    ScoreClearers() { file = "tScoreClearers = {\r\n\t[\"Quill\"] = 1,\r\n}\r\n"; }

    static RowList& users(EditorForm& form) { return find<RowList>(form, "lvwUsers"); }
    static QAction& tool(EditorForm& form, const char* key) { return button(form, key, "tlbListview"); }

    std::string& file = hub.file("Games/Globals/ScoreClearers.tbl");
};

TEST_F(ScoreClearers, HaveNothingToRestoreAndBecomeDirtyAllTheSame)
{
    auto& form = open("Games~ScoreClearers");
    EXPECT_EQ(form.objectName(), "frmGamesGlobalsScoreClearers");
    EXPECT_EQ(form.windowTitle(), "Games ~ Score Clearers");
    EXPECT_EQ(shown(users(form)), QStringList{"Quill"});
    const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Restore defaults?");
    EXPECT_EQ(boxes[0].text, "Restore to defaults?");
    EXPECT_EQ(shown(users(form)), QStringList{"Quill"});
    EXPECT_TRUE(isDirty(form));
}

TEST_F(ScoreClearers, ADiscardShowsTheFileAgain)
{
    auto& form = open("Games~ScoreClearers");
    entering({{{"Fen"}}}, [&form] { tool(form, "NEW").trigger(); });
    EXPECT_EQ(shown(users(form)), (QStringList{"Quill", "Fen"}));
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(shown(users(form)), QStringList{"Quill"});
    EXPECT_FALSE(isDirty(form));
}

TEST_F(ScoreClearers, AreAddedEditedAndSaved)
{
    auto& form = open("Games~ScoreClearers");
    const SeenDialog added{"frmGlobalEditOneFields", "Add User", {"User"}, {""}};
    EXPECT_EQ(entering({{{"Fen"}, "cmdAdd"}, {{"Ink"}}}, [&form] { tool(form, "NEW").trigger(); }),
              (QList<SeenDialog>{added, added}));
    EXPECT_TRUE(isDirty(form));
    EXPECT_EQ(entering({{{"INK"}}}, [&form] { doubleClickRow(users(form), 2); }),
              (QList<SeenDialog>{{"frmGlobalEditOneFields", "Edit User", {"User"}, {"Ink"}}}));
    button(form, "SAVE").trigger();
    EXPECT_EQ(file,
              "tScoreClearers = {\r\n\t[\"Quill\"] = 1,\r\n\t[\"Fen\"] = 1,\r\n\t[\"INK\"] = 1,\r\n}\r\n");
}

TEST_F(ScoreClearers, OneThatDiffersInCaseOnlyIsRefused)
{
    auto& form = open("Games~ScoreClearers");
    QStringList boxes;
    bool entered = false;
    test::withModal([&form] { tool(form, "NEW").trigger(); },
                    [&](QWidget& modal) {
                        if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                            boxes.append(box->windowTitle() + '|' + box->text());
                            EXPECT_EQ(box->icon(), QMessageBox::Warning);
                            box->button(QMessageBox::Ok)->click();
                        } else if (!entered) {
                            entered = true;
                            test::fillField(test::fieldOf(modal, 0), "qUILL");
                            modal.findChild<QPushButton*>("cmdOK")->click();
                        }
                    });
    EXPECT_EQ(boxes, QStringList{"Duplicate user|Duplicate users are not permitted"});
    EXPECT_EQ(shown(users(form)), QStringList{"Quill"});
    EXPECT_FALSE(isDirty(form));
}

TEST_F(ScoreClearers, AnEditIsNotCompared)
{
    auto& form = open("Games~ScoreClearers");
    entering({{{"QUILL"}}}, [&form] { doubleClickRow(users(form), 0); });
    EXPECT_EQ(shown(users(form)), QStringList{"QUILL"});
}

TEST_F(ScoreClearers, AllMayBeDeleted)
{
    auto& form = open("Games~ScoreClearers");
    clickRow(users(form), 0);
    const auto boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Exempt User?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this User?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_TRUE(users(form).isEmpty());
    EXPECT_FALSE(tool(form, "EDIT").isEnabled());
    button(form, "SAVE").trigger();
    EXPECT_EQ(file, "tScoreClearers = {\r\n}\r\n");
}

} // namespace
} // namespace quillfen
