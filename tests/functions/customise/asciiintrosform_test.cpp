#include "functions/customise/customiseformtest.h"

#include <QCheckBox>
#include <QInputDialog>
#include <QPlainTextEdit>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::sameBytes;
using test::SeenDialog;

class AsciiIntroForm : public test::CustomiseForms
{
protected:
    AsciiIntroForm()
    {
        for (const char* name : {"dragon", "owl"})
            file(std::string("IntroOutro/Ascii/") + name + ".asc") = "picture\r\n";
    }

    EditorForm& openForm() { return open("CustomiseUser~IntroOutro~Ascii"); }
    static RowList& users(EditorForm& form) { return find<RowList>(form, "lvwAscii"); }
    static RowList& pictures(EditorForm& form) { return find<RowList>(form, "lvwFiles"); }

    /// Presses NEW of the pictures, answers the input boxes with these names, and the text editor with a
    /// picture, saved or not. Returns what was seen.
    QStringList draw(EditorForm& form, QStringList names, bool saves = true)
    {
        QStringList seen;
        test::withModal([&] { button(form, "NEW", "tlbFiles").trigger(); },
                        [&](QWidget& modal) {
                            if (auto* prompt = qobject_cast<QInputDialog*>(&modal)) {
                                seen.append(prompt->windowTitle() + '|' + prompt->labelText());
                                if (names.isEmpty())
                                    prompt->reject();
                                else
                                    test::typeInto(modal, names.takeFirst());
                            } else if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                                seen.append(box->windowTitle() + '|' + box->text());
                                box->button(QMessageBox::Ok)->click();
                            } else {
                                seen.append(drawIn(modal, saves));
                            }
                        });
        return seen;
    }

    /// Draws in the text editor and closes it. Returns its path.
    static QString drawIn(QWidget& editor, bool saves)
    {
        const QString path = find<QLineEdit>(editor, "txtPath").text();
        if (saves) {
            find<QPlainTextEdit>(editor, "txtTextBox").setPlainText("new");
            find<QAction>(editor, "SAVE").trigger();
        }
        editor.close();
        return path;
    }

    std::string& settings = file("IntroOutro/AsciiIntroSettings.tbl");
    std::string& usersFile = file("IntroOutro/AsciiIntro.tbl");
    std::string& index = file("IntroOutro/AsciiIntroIndex.tbl");
    const QString folder = R"(CustomiseUser\IntroOutro\Ascii\)";
    const QString input = "Enter filename|Enter filename for new Ascii Intro";
};

TEST_F(AsciiIntroForm, ShowsUsersAndThePicturesOfTheFolder)
{
    usersFile = golden("AsciiIntro.save.tbl");
    index = "tAsciiIntroIndex = {\r\n\t\"gone\",\r\n}\r\n"; // never read
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), "frmCustomiseUserAsciiIntro");
    EXPECT_EQ(form.windowTitle(), "Customise User ~ Intros & Outros ~ Ascii");
    EXPECT_EQ(find<QCheckBox>(form, "chkNotifyOps").text(), "Notify Ops");
    EXPECT_TRUE(find<QCheckBox>(form, "chkNotifyOps").isChecked());
    EXPECT_EQ(columns(find<RowList>(form, "lvwEnabledProfiles")), QStringList("Enabled Profiles"));
    EXPECT_EQ(users(form).accessibleName(), "Ascii Profiles");
    EXPECT_EQ(columns(users(form)), (QStringList{"Username", "Filename"}));
    EXPECT_EQ(columns(pictures(form)), QStringList("Filename"));
    EXPECT_EQ(shown(users(form)), (QStringList{"merle|dragon", "bob|owl"}));
    EXPECT_EQ(shown(pictures(form)), (QStringList{"dragon", "owl"}));
    EXPECT_FALSE(isDirty(form));
}

TEST_F(AsciiIntroForm, ItsToolbarsTellWhatTheyWorkOn)
{
    auto& form = openForm();
    const QStringList keys = {"NEW", "DELETE", "EDIT"};
    const QStringList ofUsers = {"Add new user", "Delete user", "Edit user"};
    const QStringList ofFiles = {"Add new file", "Delete file", "Edit file"};
    for (int at = 0; at < 3; ++at) {
        EXPECT_EQ(button(form, keys[at].toUtf8().constData(), "tlbAscii").toolTip(), ofUsers[at]);
        EXPECT_EQ(button(form, keys[at].toUtf8().constData(), "tlbFiles").toolTip(), ofFiles[at]);
    }
}

TEST_F(AsciiIntroForm, EverythingIsSavedAndTheIndexFollowsTheList)
{
    auto& form = openForm();
    find<QCheckBox>(form, "chkNotifyOps").click();
    tick(form, "lvwEnabledProfiles", {2});
    file("IntroOutro/Ascii/Cat.asc") = ""; // comes in with the discard
    discard(form);
    find<QCheckBox>(form, "chkNotifyOps").click();
    tick(form, "lvwEnabledProfiles", {2});
    entering({{{"merle", "dragon"}, "cmdAdd"}, {{"bob", "owl"}, "cmdOK"}},
             [&form] { button(form, "NEW", "tlbAscii").trigger(); });
    hub.store.log.clear();
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("AsciiIntroSettings.save.tbl")));
    EXPECT_TRUE(sameBytes(usersFile, golden("AsciiIntro.save.tbl")));
    EXPECT_TRUE(sameBytes(index, golden("AsciiIntroIndex.save.tbl")));
    const std::string written = "write " + hub.root + "/CustomiseUser/IntroOutro/";
    EXPECT_EQ(hub.store.log,
              (std::vector<std::string>{written + "AsciiIntroSettings.tbl", written + "AsciiIntro.tbl",
                                        written + "AsciiIntroIndex.tbl"}));
}

TEST_F(AsciiIntroForm, TheUsersDialogOffersThePicturesThatAreListedNow)
{
    auto& form = openForm();
    draw(form, {"cat"});
    QStringList offered;
    test::withModal([&form] { button(form, "NEW", "tlbAscii").trigger(); },
                    [&](QWidget& dialog) {
                        const auto* combo = dialog.findChild<QComboBox*>("cboComboBox(0)");
                        for (int at = 0; at < combo->count(); ++at)
                            offered.append(combo->itemText(at));
                        dialog.close();
                    });
    EXPECT_EQ(offered, (QStringList{"dragon", "owl", "cat"}));
}

TEST_F(AsciiIntroForm, AUserIsAddedAlsoWithoutAPictureAndEditedOnlyWithOne)
{
    auto& form = openForm();
    auto dialogs =
        entering({{{"bob", "owl"}, "cmdOK"}}, [&form] { button(form, "NEW", "tlbAscii").trigger(); });
    EXPECT_EQ(
        dialogs,
        (QList<SeenDialog>{
            {"frmGlobalEditTextCombo", "Add Ascii Profile for User", {"Username", "Filename"}, {"", ""}}}));
    dialogs = entering({{{QString(), "dragon"}, "cmdOK"}}, [&form] { doubleClickRow(users(form), 0); });
    EXPECT_EQ(dialogs, (QList<SeenDialog>{{"frmGlobalEditTextCombo",
                                           "Edit Ascii Intro for bob",
                                           {"Username", "Filename"},
                                           {"bob", "owl"}}}));
    EXPECT_EQ(shown(users(form)), QStringList("bob|dragon"));
    test::withModal([&form] { doubleClickRow(users(form), 0); },
                    [](QWidget& dialog) {
                        test::fillField(test::fieldOf(dialog, 0), "eve");
                        EXPECT_TRUE(find<QPushButton>(dialog, "cmdOK").isEnabled());
                        EXPECT_FALSE(find<QPushButton>(dialog, "cmdAdd").isEnabled());
                        dialog.close();
                    });
    entering({{{"eve"}, "cmdOK"}}, [&form] { button(form, "NEW", "tlbAscii").trigger(); });
    EXPECT_EQ(shown(users(form)), (QStringList{"bob|dragon", "eve|"}));
    test::withModal([&form] { doubleClickRow(users(form), 1); },
                    [](QWidget& dialog) {
                        find<QPushButton>(dialog, "cmdOK").click();
                        EXPECT_TRUE(dialog.isVisible()); // the field of the picture is red
                        dialog.close();
                    });
}

TEST_F(AsciiIntroForm, TheLastUserCanGo)
{
    usersFile = "tAsciiIntro = {\r\n\t[\"bob\"] = \"owl\",\r\n}\r\n";
    auto& form = openForm();
    const auto boxes = deleteRow(form, "lvwAscii", "tlbAscii", 0, QMessageBox::Ok);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Intro?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this intro?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_TRUE(users(form).isEmpty());
    EXPECT_FALSE(button(form, "DELETE", "tlbAscii").isEnabled());
    save(form);
    EXPECT_TRUE(sameBytes(usersFile, "tAsciiIntro = {\r\n}\r\n"));
}

TEST_F(AsciiIntroForm, ANewPictureKeepsItsLettersAndChangesTheForm)
{
    auto& form = openForm();
    EXPECT_EQ(draw(form, {"Phoenix"}), (QStringList{input, folder + "Phoenix.asc"}));
    EXPECT_EQ(file("IntroOutro/Ascii/Phoenix.asc"), "new\r\n");
    EXPECT_EQ(shown(pictures(form)), (QStringList{"dragon", "owl", "Phoenix"}));
    save(form);
    EXPECT_TRUE(
        sameBytes(index, "tAsciiIntroIndex = {\r\n\t\"dragon\",\r\n\t\"owl\",\r\n\t\"Phoenix\",\r\n}\r\n"));
}

TEST_F(AsciiIntroForm, APictureThatIsNotSavedDoesNotJoin)
{
    auto& form = openForm();
    EXPECT_EQ(draw(form, {"cat"}, false), (QStringList{input, folder + "cat.asc"}));
    EXPECT_EQ(draw(form, {}), QStringList(input));
    EXPECT_EQ(draw(form, {""}), QStringList(input));
    EXPECT_FALSE(has("IntroOutro/Ascii/cat.asc"));
    EXPECT_EQ(pictures(form).rows().size(), 2U);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(AsciiIntroForm, OnlyTheAnswerIsLoweredAndNotTheRowsItIsComparedWith)
{
    auto& form = openForm();
    const QString exists = "Error|File already exists";
    EXPECT_EQ(draw(form, {"Dragon", "dragon"}), (QStringList{input, exists, input, exists, input}));
    draw(form, {"Phoenix"});
    EXPECT_EQ(draw(form, {"Phoenix"}), (QStringList{input, folder + "Phoenix.asc"}));
    EXPECT_EQ(draw(form, {"phoenix"}), (QStringList{input, folder + "phoenix.asc"}));
}

TEST_F(AsciiIntroForm, ANameThatLeavesTheFolderIsRefused)
{
    auto& form = openForm();
    hub.store.log.clear();
    const auto seen = draw(form, {R"(..\owl)"});
    ASSERT_EQ(seen.size(), 3);
    EXPECT_EQ(seen[1].section('|', 0, 0), "Cannot create file");
    EXPECT_TRUE(hub.store.log.empty());
}

TEST_F(AsciiIntroForm, AnEditOpensThePictureAndLeavesTheForm)
{
    auto& form = openForm();
    QStringList paths;
    const auto drawOver = [&paths](QWidget& editor) { paths.append(drawIn(editor, true)); };
    pictures(form).select(1);
    test::withModal([&form] { button(form, "EDIT", "tlbFiles").trigger(); }, drawOver);
    test::withModal([&form] { doubleClickRow(pictures(form), 0); }, drawOver);
    EXPECT_EQ(paths, (QStringList{folder + "owl.asc", folder + "dragon.asc"}));
    EXPECT_EQ(file("IntroOutro/Ascii/owl.asc"), "new\r\n");
    EXPECT_FALSE(isDirty(form));
}

TEST_F(AsciiIntroForm, PicturesThatAreThereAreOpenedAndDeletedUnderTheirOwnNames)
{
    file("IntroOutro/Ascii/CAT.ASC") = "=^.^=\r\n";
    file("IntroOutro/Ascii/con.asc") = "picture\r\n";
    file("IntroOutro/Ascii/\xD0\x96.asc") = "picture\r\n";
    auto& form = openForm();
    QStringList paths;
    for (const char* name : {"CAT", "con"}) {
        pictures(form).select(rowOf(pictures(form), name));
        test::withModal([&form] { button(form, "EDIT", "tlbFiles").trigger(); },
                        [&paths](QWidget& editor) { paths.append(drawIn(editor, false)); });
        EXPECT_EQ(
            deleteRow(form, "lvwFiles", "tlbFiles", rowOf(pictures(form), name), QMessageBox::Ok).size(), 1);
    }
    EXPECT_EQ(paths, (QStringList{folder + "CAT.ASC", folder + "con.asc"}));
    EXPECT_FALSE(has("IntroOutro/Ascii/CAT.ASC"));
    EXPECT_FALSE(has("IntroOutro/Ascii/con.asc"));
    EXPECT_TRUE(find<QStatusBar>(form, "stsStatusBar")
                    .findChildren<QLabel*>()
                    .at(1)
                    ->text()
                    .contains(QStringLiteral(u"\u0416.asc")));
}

TEST_F(AsciiIntroForm, APictureInUseStaysUntilEveryUserThatHasItHasGone)
{
    usersFile = "tAsciiIntro = {\r\n\t[\"bob\"] = \"owl\",\r\n\t[\"merle\"] = \"owl\",\r\n}\r\n";
    auto& form = openForm();
    for (int left = 2; left > 0; --left) {
        const auto boxes = deleteRow(form, "lvwFiles", "tlbFiles", 1, QMessageBox::Ok);
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_EQ(boxes[0].title, "Cannot delete");
        EXPECT_EQ(boxes[0].text, "Cannot delete this Ascii Intro as it is in use");
        EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
        EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
        EXPECT_TRUE(has("IntroOutro/Ascii/owl.asc"));
        deleteRow(form, "lvwAscii", "tlbAscii", 0, QMessageBox::Ok);
    }
    EXPECT_EQ(deleteRow(form, "lvwFiles", "tlbFiles", 1, QMessageBox::Ok).value(0).title,
              "Delete Ascii Intro?");
    EXPECT_FALSE(has("IntroOutro/Ascii/owl.asc"));
}

TEST_F(AsciiIntroForm, ADeletedPictureIsGoneAtOnceAndADiscardDoesNotBringItBack)
{
    auto& form = openForm();
    auto boxes = deleteRow(form, "lvwFiles", "tlbFiles", 0, QMessageBox::Cancel);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Ascii Intro?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Ascii Intro?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_TRUE(has("IntroOutro/Ascii/dragon.asc"));
    EXPECT_FALSE(isDirty(form));
    answering(QMessageBox::Ok, [&form] { QTest::keyClick(&pictures(form), Qt::Key_Delete); });
    EXPECT_FALSE(has("IntroOutro/Ascii/dragon.asc"));
    EXPECT_TRUE(isDirty(form));
    discard(form);
    EXPECT_EQ(shown(pictures(form)), QStringList("owl"));
}

TEST_F(AsciiIntroForm, ARestoreSetsTheFlagUnticksTheProfilesAndEmptiesTheUsersOnly)
{
    settings = golden("AsciiIntroSettings.save.tbl");
    usersFile = golden("AsciiIntro.save.tbl");
    auto& form = openForm();
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0010");
    restore(form);
    EXPECT_TRUE(users(form).isEmpty());
    EXPECT_EQ(shown(pictures(form)), (QStringList{"dragon", "owl"}));
    EXPECT_TRUE(has("IntroOutro/Ascii/dragon.asc"));
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("AsciiIntroSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(usersFile, "tAsciiIntro = {\r\n}\r\n"));
}

TEST_F(AsciiIntroForm, EachListHasItsBorrowedMenu)
{
    usersFile = golden("AsciiIntro.save.tbl");
    auto& form = openForm();
    users(form).select(1);
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstDelete").trigger(); });
    EXPECT_EQ(shown(users(form)), QStringList("merle|dragon"));
    pictures(form).select(1);
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuSecondDelete").trigger(); });
    EXPECT_EQ(shown(pictures(form)), QStringList("dragon"));
}

} // namespace
} // namespace quillfen
