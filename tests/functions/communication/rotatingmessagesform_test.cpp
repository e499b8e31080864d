#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"
#include "support/lua.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::luaValues;
using test::sameBytes;

/// The main and the private messages are near twins.
class RotatingForms : public test::FormTest, public testing::WithParamInterface<const char*>
{
protected:
    RotatingForms()
    {
        namesFile = table("\t\"one\",\r\n\t\"gone\",\r\n");
        for (const char* text : {"one", "two"})
            hub.file(texts + text + ".asc") = "text\r\n";
    }

    std::string table(const std::string& rows) const { return "t" + name + "Files = {\r\n" + rows + "}\r\n"; }
    EditorForm& openForm() { return open(("Communication~" + name).c_str()); }
    static RowList& list(EditorForm& form) { return find<RowList>(form, "lvwFiles"); }
    static QAction& tool(EditorForm& form, const char* key) { return button(form, key, "tlbFiles"); }

    bool isPrivate() const { return name == "RotatingPrivateMessage"; }

    static QStringList ticks(EditorForm& form)
    {
        QStringList all;
        for (const CellRow& row : list(form).rows())
            all.append(QString::fromStdString(row.cells[0]) + (row.checked ? "+" : "-"));
        return all;
    }

    /// Answers the input boxes with these names and the text editor with a text, saved or not. Returns what
    /// was seen.
    QStringList addFile(EditorForm& form, QStringList names, bool saves = true)
    {
        QStringList seen;
        test::withModal([&] { tool(form, "NEW").trigger(); },
                        [&](QWidget& modal) {
                            if (auto* prompt = qobject_cast<QInputDialog*>(&modal)) {
                                seen.append(prompt->windowTitle() + '|' + prompt->labelText());
                                if (names.isEmpty()) {
                                    prompt->reject();
                                    return;
                                }
                                prompt->setTextValue(names.takeFirst());
                                prompt->accept();
                            } else if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                                seen.append(box->windowTitle() + '|' + box->text());
                                box->button(QMessageBox::Ok)->click();
                            } else {
                                seen.append(find<QLineEdit>(modal, "txtPath").text());
                                EXPECT_EQ(find<QPlainTextEdit>(modal, "txtTextBox").toPlainText(), "");
                                if (saves) {
                                    find<QPlainTextEdit>(modal, "txtTextBox").setPlainText("new");
                                    find<QAction>(modal, "SAVE").trigger();
                                }
                                modal.close();
                            }
                        });
        return seen;
    }

    const std::string name = GetParam();
    const QString folder = R"(Communication\)" + QString::fromStdString(name) + R"(\Files\)";
    const QString input = "Enter filename|Enter filename for new Rotating Main Message";
    const std::string texts = "Communication/" + name + "/Files/";
    std::string& settings = hub.file("Communication/" + name + "/" + name + "Settings.tbl");
    std::string& namesFile = hub.file("Communication/" + name + "/" + name + "Files.tbl");
};

INSTANTIATE_TEST_SUITE_P(Both, RotatingForms,
                         testing::Values("RotatingMainMessage", "RotatingPrivateMessage"),
                         [](const auto& each) { return std::string(each.param); });

TEST_P(RotatingForms, ShowSettingsProfilesAndFiles)
{
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), QString::fromStdString("frmCommunication" + name));
    EXPECT_EQ(form.windowTitle(), QString::fromStdString("Communication ~ " + name));
    EXPECT_EQ(find<QCheckBox>(form, "chkRandomise").text(), "Randomise");
    EXPECT_TRUE(find<QCheckBox>(form, "chkRandomise").isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "120");
    EXPECT_EQ(find<QLabel>(form, "lblLabel(0)").text(), "Delay");
    EXPECT_EQ(find<RowList>(form, "lvwEnabledProfiles").accessibleName(),
              isPrivate() ? "Enabled Profiles" : "Enabled Ad Profiles");
    if (isPrivate()) {
        EXPECT_EQ(find<RowList>(form, "lvwEnabledAdProfiles").accessibleName(), "Enabled Ad Profiles");
        EXPECT_EQ(find<RowList>(form, "lvwEnabledMaintainProfiles").accessibleName(),
                  "Enabled Maintain Profiles");
    }
    EXPECT_EQ(list(form).model()->headerData(0, Qt::Horizontal).toString(), "Filename");
    EXPECT_EQ(ticks(form), (QStringList{"one+", "gone-", "two-"}));
    EXPECT_FALSE(isDirty(form));
}

TEST_P(RotatingForms, AreSavedInTheFormsOrderWithTheTickedNames)
{
    auto& form = openForm();
    find<QCheckBox>(form, "chkRandomise").click();
    EXPECT_TRUE(isDirty(form));
    find<QLineEdit>(form, "txtUpDown").selectAll();
    QTest::keyClicks(&find<QLineEdit>(form, "txtUpDown"), "721"); // beyond the arrows' range, and kept
    clickTick(find<RowList>(form, isPrivate() ? "lvwEnabledAdProfiles" : "lvwEnabledProfiles"), 1);
    if (isPrivate()) {
        clickTick(find<RowList>(form, "lvwEnabledProfiles"), 0);
        clickTick(find<RowList>(form, "lvwEnabledMaintainProfiles"), 3);
    }
    clickTick(list(form), 0);
    clickTick(list(form), 2);
    hub.store.log.clear();
    button(form, "SAVE").trigger();
    EXPECT_FALSE(isDirty(form));
    EXPECT_TRUE(sameBytes(settings, golden("communication/" + name + "Settings.save.tbl")));
    EXPECT_TRUE(sameBytes(namesFile, table("\t\"two\",\r\n")));
    const std::string path = "write " + hub.root + "/Communication/" + name + "/" + name;
    EXPECT_EQ(hub.store.log, (std::vector<std::string>{path + "Settings.tbl", path + "Files.tbl"}))
        << "and not the list of immune users";
    EXPECT_TRUE(hub.has(texts + "one.asc")); // unticked, it stays on the disk
    EXPECT_EQ(luaValues(settings).at("t" + name + "Settings.tEnabledAdProfiles.0"), "1");
    EXPECT_EQ(luaValues(namesFile).at("t" + name + "Files.1"), "two");
}

TEST_P(RotatingForms, TheArrowsStayFrom10To720)
{
    auto& form = openForm();
    find<QAbstractSpinBox>(form, "updUpDown").stepBy(9999);
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "720");
    find<QAbstractSpinBox>(form, "updUpDown").stepBy(-9999);
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "10");
}

TEST_P(RotatingForms, ANewFileIsWrittenAndJoinsUnticked)
{
    auto& form = openForm();
    EXPECT_EQ(addFile(form, {"Three"}), (QStringList{input, folder + "Three.asc"}));
    EXPECT_EQ(hub.file(texts + "Three.asc"), "new\r\n");
    EXPECT_EQ(ticks(form), (QStringList{"one+", "gone-", "two-", "Three-"}));
    EXPECT_TRUE(isDirty(form)); // as after every list action
}

TEST_P(RotatingForms, AFileThatIsNotSavedDoesNotJoin)
{
    auto& form = openForm();
    addFile(form, {"three"}, false);
    EXPECT_FALSE(hub.has(texts + "three.asc"));
    EXPECT_EQ(list(form).rows().size(), 3U);
    EXPECT_EQ(addFile(form, {}), QStringList{input});
    EXPECT_EQ(addFile(form, {""}), QStringList{input});
    EXPECT_FALSE(isDirty(form));
}

TEST_P(RotatingForms, ANameIsLoweredAndComparedWithTheRowsAsTheyStand)
{
    hub.file(texts + "Hello.asc") = "";
    auto& form = openForm();
    const QString exists = "Error|File already exists";
    EXPECT_EQ(addFile(form, {"ONE", "two"}), (QStringList{input, exists, input, exists, input}));
    EXPECT_EQ(addFile(form, {"hello"}), (QStringList{input, folder + "hello.asc"}));
}

TEST_P(RotatingForms, ANameThatNoFileCanHaveIsRefused)
{
    auto& form = openForm();
    const auto seen = addFile(form, {"..\\one", "a:b", QStringLiteral(u"\u0416")});
    ASSERT_EQ(seen.size(), 5)
        << "a character that the code page lacks can't be typed: the last answer is empty";
    EXPECT_EQ(seen[1], "Cannot create file|..\\one\n\nA file name can't hold any of \\ / : * ? \" < > |");
    EXPECT_EQ(seen[4], input);
    EXPECT_EQ(list(form).rows().size(), 3U);
}

TEST_P(RotatingForms, AnEditLeavesTheTickAndTheFormAlone)
{
    auto& form = openForm();
    const auto edit = [&](const std::function<void()>& action, const char* text) {
        test::withModal(action, [&](QWidget& dialog) {
            EXPECT_EQ(find<QLineEdit>(dialog, "txtPath").text(), folder + "one.asc");
            find<QPlainTextEdit>(dialog, "txtTextBox").setPlainText(text);
            find<QAction>(dialog, "SAVE").trigger();
            dialog.close();
        });
        EXPECT_EQ(hub.file(texts + "one.asc"), std::string(text) + "\r\n");
    };
    clickRow(list(form), 0);
    edit([&form] { tool(form, "EDIT").trigger(); }, "a");
    edit([&form] { doubleClickRow(list(form), 0); }, "b");
    EXPECT_EQ(ticks(form)[0], "one+");
    EXPECT_FALSE(isDirty(form));
}

TEST_P(RotatingForms, ADeletedFileIsGoneAtOnceAndADiscardDoesNotBringItBack)
{
    auto& form = openForm();
    clickRow(list(form), 0);
    auto boxes = answering(QMessageBox::Cancel, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete File?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this File?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_TRUE(hub.has(texts + "one.asc"));
    answering(QMessageBox::Ok, [&form] { QTest::keyClick(&list(form), Qt::Key_Delete); });
    EXPECT_FALSE(hub.has(texts + "one.asc"));
    EXPECT_EQ(ticks(form), (QStringList{"gone-", "two-"}));
    EXPECT_TRUE(isDirty(form));
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(ticks(form), (QStringList{"one-", "gone-", "two-"})); // the name is in the table still
    EXPECT_FALSE(hub.has(texts + "one.asc"));
}

TEST_P(RotatingForms, AFileThatIsGoneAlreadyOnlyLeavesTheList)
{
    auto& form = openForm();
    clickRow(list(form), 1);
    EXPECT_EQ(answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); }).size(), 1);
    EXPECT_EQ(ticks(form), (QStringList{"one+", "two-"}));
}

TEST_P(RotatingForms, AFileThatCannotBeDeletedStaysInTheListAndIsTold)
{
    auto& form = openForm();
    clickRow(list(form), 0);
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const auto boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_EQ(boxes[1].icon, QMessageBox::Critical);
    EXPECT_EQ(boxes[1].title, window().windowTitle());
    EXPECT_EQ(
        boxes[1].text.toStdString(),
        test::native("one couldn't be deleted. " + hub.root + "/" + texts +
                     "one.asc: No space left on device. It stays in the list: mend it and delete it again."));
    EXPECT_EQ(list(form).rows().size(), 3U);
    EXPECT_FALSE(isDirty(form));
}

TEST_P(RotatingForms, ANameInTheTableThatLeavesTheFolderIsNeitherOpenedNorDeleted)
{
    namesFile = table("\t\"..\\..\\one\",\r\n");
    auto& form = openForm();
    clickRow(list(form), 0);
    hub.store.log.clear();
    auto boxes = answering(QMessageBox::Ok, [&form] { tool(form, "EDIT").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Cannot open file");
    EXPECT_EQ(boxes[0].text, "..\\..\\one\n\nThe name leads out of the folder.");
    boxes = answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1) << "and nothing was asked before";
    EXPECT_EQ(boxes[0].title, "Cannot delete");
    EXPECT_EQ(boxes[0].text, "..\\..\\one\n\nThe name leads out of the folder.");
    EXPECT_TRUE(hub.store.log.empty());
    EXPECT_EQ(list(form).rows().size(), 3U);
}

TEST_P(RotatingForms, AFileWithANameThatWeWouldNotGiveIsOpenedAndDeleted)
{
    for (const char* bad : {" two", "con", "x?y", "dot."}) {
        hub.file(texts + bad + ".asc") = "text\r\n";
        auto& form = openForm();
        answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
        clickRow(list(form), rowOf(list(form), bad));
        QString path;
        const auto boxes = answering(
            QMessageBox::Ok, [&form] { tool(form, "EDIT").trigger(); },
            [&path](QWidget& dialog) {
                path = find<QLineEdit>(dialog, "txtPath").text();
                dialog.close();
            });
        EXPECT_EQ(path, folder + bad + ".asc");
        EXPECT_TRUE(boxes.isEmpty()) << bad;
        EXPECT_EQ(answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); }).size(), 1) << bad;
        EXPECT_FALSE(hub.has(texts + bad + ".asc")) << bad;
    }
}

TEST_P(RotatingForms, ANameThatIsListedIsToldSoBeforeItsFault)
{
    hub.file(texts + "con.asc") = "text\r\n";
    EXPECT_EQ(addFile(openForm(), {"con"}), (QStringList{input, "Error|File already exists", input}));
}

TEST_P(RotatingForms, ARowOpensAndDeletesTheFileThatDiffersInCaseAlone)
{
    namesFile = table("\t\"news\",\r\n");
    hub.file(texts + "NEWS.ASC") = "old\r\n";
    hub.file(texts + "Hours.Asc") = "old\r\n";
    auto& form = openForm();
    clickRow(list(form), rowOf(list(form), "news"));
    test::withModal([&form] { tool(form, "EDIT").trigger(); },
                    [](QWidget& dialog) {
                        auto& text = find<QPlainTextEdit>(dialog, "txtTextBox");
                        EXPECT_EQ(text.toPlainText(), "old");
                        text.setPlainText("new");
                        find<QAction>(dialog, "SAVE").trigger();
                        dialog.close();
                    });
    EXPECT_EQ(hub.file(texts + "NEWS.ASC"), "new\r\n");
    EXPECT_FALSE(hub.has(texts + "news.asc"));
    answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    EXPECT_FALSE(hub.has(texts + "NEWS.ASC"));
    clickRow(list(form), rowOf(list(form), "Hours"));
    answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    EXPECT_FALSE(hub.has(texts + "Hours.Asc"));
}

TEST_P(RotatingForms, FilesWhoseNamesCannotBeListedAreNamedInTheSecondPanel)
{
    const auto note = [](EditorForm& form) {
        return find<QStatusBar>(form, "stsStatusBar").findChildren<QLabel*>().at(1)->text();
    };
    const std::string path = texts + "\xD0\x96<b>.asc";
    hub.file(path) = "text\r\n";
    auto& form = openForm();
    EXPECT_EQ(note(form),
              QStringLiteral(u"Not listed: \u0416<b>.asc (the hub script can't read such a name)"));
    EXPECT_EQ(ticks(form), (QStringList{"one+", "gone-", "two-"}));
    EXPECT_EQ(find<QStatusBar>(form, "stsStatusBar").findChildren<QLabel*>().at(1)->textFormat(),
              Qt::PlainText);
    hub.store.files.erase(hub.root + "/" + path);
    answering(QMessageBox::Ok, [&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(note(form), "");
}

TEST_P(RotatingForms, DeleteAndEditFollowTheRows)
{
    namesFile = table("");
    hub.store.files.erase(hub.root + "/" + texts + "one.asc");
    hub.store.files.erase(hub.root + "/" + texts + "two.asc");
    auto& form = openForm();
    EXPECT_FALSE(tool(form, "DELETE").isEnabled());
    EXPECT_FALSE(tool(form, "EDIT").isEnabled());
    addFile(form, {"three"});
    EXPECT_TRUE(tool(form, "DELETE").isEnabled());
    EXPECT_TRUE(tool(form, "EDIT").isEnabled());
    answering(QMessageBox::Ok, [&form] { tool(form, "DELETE").trigger(); });
    EXPECT_FALSE(tool(form, "DELETE").isEnabled());
}

TEST_P(RotatingForms, ARestoreLeavesTheFilesAlone)
{
    settings = golden("communication/" + name + "Settings.save.tbl");
    auto& form = openForm();
    answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(find<QCheckBox>(form, "chkRandomise").isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown").text(), "120");
    QStringList lists = {"lvwEnabledProfiles"};
    if (isPrivate())
        lists.append({"lvwEnabledAdProfiles", "lvwEnabledMaintainProfiles"});
    for (const QString& each : lists) {
        EXPECT_EQ(find<RowList>(form, each).rows().size(), 4U);
        for (const CellRow& row : find<RowList>(form, each).rows())
            EXPECT_FALSE(row.checked) << each.toStdString();
    }
    EXPECT_EQ(ticks(form), (QStringList{"one+", "gone-", "two-"}));
    EXPECT_TRUE(isDirty(form));
}

TEST_P(RotatingForms, TheBorrowedMenuServesTheFiles)
{
    auto& form = openForm();
    clickRow(list(form), 1);
    answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuFirstDelete").trigger(); });
    EXPECT_EQ(ticks(form), (QStringList{"one+", "two-"}));
}

} // namespace
} // namespace quillfen
