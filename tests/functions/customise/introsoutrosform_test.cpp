#include "functions/customise/customiseformtest.h"

#include <QCheckBox>

namespace quillfen {
namespace {

using test::answering;
using test::entering;
using test::sameBytes;
using test::SeenBox;
using test::SeenDialog;

/// The form of the lines for everybody, and that of the lines for named users.
struct IntroWords
{
    const char* key;
    const char* form;
    const char* caption;
    const char* word; ///< in the names of files and tables
    const char* label;
    const char* dialog;
    const char* askedOutro;
};

const IntroWords standard = {"CustomiseUser~IntroOutro~Standard",
                             "frmCustomiseUserIntroOutro",
                             "Customise User ~ Intros & Outros ~ Standard",
                             "",
                             "Standard",
                             "frmGlobalEditOneFields",
                             "Do you really want to delete this outro?"};
const IntroWords custom = {"CustomiseUser~IntroOutro~Custom",
                           "frmCustomiseUserCustomIntroOutro",
                           "Customise User ~ Intros & Outros ~ Custom",
                           "Custom",
                           "Custom",
                           "frmGlobalEditTwoFields",
                           "Do you really want to delete this Outro?"};

class IntroOutroForms : public test::CustomiseForms, public testing::WithParamInterface<IntroWords>
{
protected:
    EditorForm& openForm() { return open(words.key); }
    static RowList& list(EditorForm& form, const QString& noun) { return find<RowList>(form, "lvw" + noun); }
    bool isNamed() const { return *words.word != '\0'; }

    std::string& lines(const char* noun)
    {
        return file(std::string("IntroOutro/") + words.word + noun + ".tbl");
    }

    /// A file of lines, each for a user where lines have one.
    std::string table(const char* noun, std::initializer_list<const char*> rows) const
    {
        std::string text = std::string("t") + words.word + noun + " = {\r\n";
        for (const char* row : rows)
            text += std::string("\t") + (isNamed() ? "[\"bob\"] = " : "") + "\"" + row + "\",\r\n";
        return text + "}\r\n";
    }

    /// What a dialog asks for: the user first where lines have one.
    QStringList fields(const QString& user, const QString& line) const
    {
        return isNamed() ? QStringList{user, line} : QStringList{line};
    }

    QString row(const QString& line) const { return isNamed() ? "bob|" + line : line + "|"; }

    const IntroWords words = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Both, IntroOutroForms, testing::Values(standard, custom),
                         [](const auto& each) { return std::string(each.param.label); });

TEST_P(IntroOutroForms, ShowTheirNamesListsAndProfiles)
{
    auto& form = openForm();
    EXPECT_EQ(form.objectName(), words.form);
    EXPECT_EQ(form.windowTitle(), words.caption);
    const QString label = words.label;
    EXPECT_EQ(list(form, "Intro").accessibleName(), label + " Intros");
    EXPECT_EQ(list(form, "Outro").accessibleName(), label + " Outros");
    EXPECT_EQ(columns(list(form, "Intro")),
              isNamed() ? QStringList({"Username", "Intro"}) : QStringList("Intro"));
    EXPECT_EQ(columns(list(form, "Outro")),
              isNamed() ? QStringList({"Username", "Outro"}) : QStringList("Outro"));
    auto& profiles = find<RowList>(form, "lvwEnabledProfiles");
    EXPECT_EQ(profiles.accessibleName(), label + " Enabled Profiles");
    EXPECT_EQ(columns(profiles), QStringList("Enabled Profiles"));
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0000");
    EXPECT_TRUE(list(form, "Intro").isEmpty()); // a fresh tree has no lines
    EXPECT_TRUE(list(form, "Outro").isEmpty());
    EXPECT_FALSE(isDirty(form));
}

TEST_P(IntroOutroForms, TheWindowMenuForgetsAClosedFormThoughItsCaptionIsNotItsKey)
{
    openForm();
    auto& item = find<QAction>(window(), "mnuWindows1");
    EXPECT_TRUE(item.isVisible());
    window().findChild<QMdiArea*>()->currentSubWindow()->close();
    EXPECT_FALSE(item.isVisible());
}

TEST_P(IntroOutroForms, LinesAreAddedOneAfterTheOther)
{
    auto& form = openForm();
    for (const QString noun : {"Intro", "Outro"}) {
        const QStringList labels = isNamed() ? QStringList{noun + " for", noun} : QStringList{noun};
        const QStringList empty = fields("", "");
        const auto dialogs =
            entering({{fields("bob", "one"), "cmdAdd"}, {fields("bob", "two"), "cmdOK"}},
                     [&] { button(form, "NEW", ("tlb" + noun).toUtf8().constData()).trigger(); });
        EXPECT_EQ(dialogs, (QList<SeenDialog>(2, {words.dialog, "Add " + noun, labels, empty})));
        EXPECT_EQ(list(form, noun).rows().size(), 2U);
    }
    save(form);
    EXPECT_TRUE(sameBytes(lines("Intro"), table("Intro", {"one", "two"})));
    EXPECT_TRUE(sameBytes(lines("Outro"), table("Outro", {"one", "two"})));
}

TEST_P(IntroOutroForms, ALineIsEditedByItsButtonAndByADoubleClick)
{
    lines("Intro") = table("Intro", {"one", "two"});
    lines("Outro") = table("Outro", {"one", "two"});
    auto& form = openForm();
    for (const QString noun : {"Intro", "Outro"}) {
        const QStringList labels = isNamed() ? QStringList{noun + " for bob", noun} : QStringList{noun};
        clickRow(list(form, noun), 1);
        const auto dialogs = entering({{fields(QString(), "zwei"), "cmdOK"}}, [&] {
            button(form, "EDIT", ("tlb" + noun).toUtf8().constData()).trigger();
        });
        EXPECT_EQ(dialogs, (QList<SeenDialog>{{words.dialog, "Edit " + noun, labels, fields("bob", "two")}}));
        entering({{fields(QString(), "eins"), "cmdOK"}}, [&] { doubleClickRow(list(form, noun), 0); });
    }
    save(form);
    EXPECT_TRUE(sameBytes(lines("Intro"), table("Intro", {"eins", "zwei"})));
    EXPECT_TRUE(sameBytes(lines("Outro"), table("Outro", {"eins", "zwei"})));
}

TEST_P(IntroOutroForms, TheDeleteKeyAsksTheSameQuestionAsTheToolbar)
{
    const QString questions[] = {"Do you really want to delete this intro?", words.askedOutro};
    const char* nouns[] = {"Intro", "Outro"};
    for (const char* noun : nouns)
        lines(noun) = table(noun, {"one", "two", "three"});
    auto& form = openForm();
    for (int at = 0; at < 2; ++at) {
        auto& rows = list(form, nouns[at]);
        const QString toolbar = QString("tlb") + nouns[at];
        auto boxes = deleteRow(form, rows.objectName().toUtf8().constData(), toolbar.toUtf8().constData(), 0,
                               QMessageBox::Cancel);
        EXPECT_EQ(rows.rows().size(), 3U);
        boxes += answering(QMessageBox::Ok, [&rows] { QTest::keyClick(&rows, Qt::Key_Delete); });
        EXPECT_EQ(rows.rows().size(), 2U);
        ASSERT_EQ(boxes.size(), 2);
        for (const SeenBox& box : boxes) {
            EXPECT_EQ(box.title, QString("Delete %1?").arg(nouns[at]));
            EXPECT_EQ(box.text, questions[at]);
            EXPECT_EQ(box.buttons, QMessageBox::Ok | QMessageBox::Cancel);
            EXPECT_EQ(box.icon, QMessageBox::Question);
        }
    }
    save(form);
    EXPECT_TRUE(sameBytes(lines("Outro"), table("Outro", {"two", "three"})));
}

TEST_P(IntroOutroForms, TheLastLineStays)
{
    for (const char* noun : {"Intro", "Outro"})
        lines(noun) = table(noun, {"one"});
    auto& form = openForm();
    for (const QString noun : {"Intro", "Outro"}) {
        const auto boxes = deleteRow(form, ("lvw" + noun).toUtf8().constData(),
                                     ("tlb" + noun).toUtf8().constData(), 0, QMessageBox::Ok);
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_EQ(boxes[0].title, "Cannot delete");
        EXPECT_EQ(boxes[0].text, "There must be a minimum of one " + noun);
        EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
        EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
        EXPECT_EQ(list(form, noun).rows().size(), 1U);
    }
    EXPECT_FALSE(isDirty(form));
}

TEST_P(IntroOutroForms, DeleteAndEditFollowTheRows)
{
    auto& form = openForm();
    for (const char* toolbar : {"tlbIntro", "tlbOutro"}) {
        EXPECT_TRUE(button(form, "NEW", toolbar).isEnabled());
        EXPECT_FALSE(button(form, "DELETE", toolbar).isEnabled());
        EXPECT_FALSE(button(form, "EDIT", toolbar).isEnabled());
        entering({{fields("bob", "one"), "cmdOK"}}, [&] { button(form, "NEW", toolbar).trigger(); });
        EXPECT_TRUE(button(form, "DELETE", toolbar).isEnabled());
        EXPECT_TRUE(button(form, "EDIT", toolbar).isEnabled());
    }
}

TEST_P(IntroOutroForms, EachListHasItsBorrowedMenu)
{
    for (const char* noun : {"Intro", "Outro"})
        lines(noun) = table(noun, {"one", "two"});
    auto& form = openForm();
    for (const QString noun : {"Intro", "Outro"}) {
        clickRow(list(form, noun), 0);
        entering({{fields(QString(), noun), "cmdOK"}},
                 [&] { find<QAction>(window(), "mnu" + noun + "Edit").trigger(); });
        EXPECT_EQ(list(form, noun).rows()[0].cells[isNamed() ? 1 : 0], noun.toStdString());
        answering(QMessageBox::Ok, [&] { find<QAction>(window(), "mnu" + noun + "Delete").trigger(); });
        EXPECT_EQ(list(form, noun).rows().size(), 1U);
    }
}

TEST_P(IntroOutroForms, TheSettingsAreWrittenBeforeIntrosAndOutros)
{
    auto& form = openForm();
    tick(form, "lvwEnabledProfiles", {1});
    hub.store.log.clear();
    save(form);
    const std::string folder = "write " + hub.root + "/CustomiseUser/IntroOutro/" + words.word;
    EXPECT_EQ(hub.store.log, (std::vector<std::string>{folder + "IntroOutroSettings.tbl",
                                                       folder + "Intro.tbl", folder + "Outro.tbl"}));
}

TEST_P(IntroOutroForms, FiftyThousandLinesAreShownAndSaved)
{
    std::string text = table("Intro", {});
    text.resize(text.size() - 3);
    for (int row = 0; row < 50000; ++row) {
        const std::string number = std::to_string(row);
        text += "\t" + (isNamed() ? "[\"user" + number + "\"] = " : std::string()) + "\"line " + number +
                "\",\r\n";
    }
    lines("Intro") = text + "}\r\n";
    auto& form = openForm();
    auto& rows = list(form, "Intro");
    ASSERT_EQ(rows.rows().size(), 50000U);
    rows.scrollToBottom();
    tick(form, "lvwEnabledProfiles", {0});
    save(form);
    EXPECT_TRUE(sameBytes(lines("Intro"), text + "}\r\n"));
}

class StandardIntros : public test::CustomiseForms
{
protected:
    std::string& settings = file("IntroOutro/IntroOutroSettings.tbl");
    EditorForm& openForm() { return open(standard.key); }
};

TEST_F(StandardIntros, TheUnregisteredIntroHasABoxAndATickThatSaysOtherThanItsKey)
{
    auto& form = openForm();
    auto& box = find<QCheckBox>(form, "chkEnableUnregIntro");
    auto& line = find<QLineEdit>(form, "txtUnregIntro");
    EXPECT_EQ(box.text(), "Enable Unregistered User Intro");
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ(line.text(), "Welcome !nick! to !hubname!. Type !prefix!!regcommand! to register");
    EXPECT_EQ(line.accessibleName(), "Unregistered User Intro"); // it has no label on the form
    EXPECT_EQ(line.cursorPosition(), 0);
    EXPECT_EQ(text(form, "lblLabel(0)"), "Standard Enabled Profiles");
    box.click();
    EXPECT_TRUE(line.isEnabled());
}

TEST_F(StandardIntros, TheSettingsAreSavedAndReadBack)
{
    {
        auto& form = openForm();
        find<QCheckBox>(form, "chkEnableUnregIntro").click();
        type(form, "txtUnregIntro", "Mind the dragon, !nick!");
        tick(form, "lvwEnabledProfiles", {1, 3});
        save(form);
        EXPECT_TRUE(sameBytes(settings, golden("IntroOutroSettings.save.tbl")));
        window().findChild<QMdiArea*>()->currentSubWindow()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    auto& form = openForm();
    EXPECT_FALSE(find<QCheckBox>(form, "chkEnableUnregIntro").isChecked());
    EXPECT_EQ(find<QLineEdit>(form, "txtUnregIntro").text(), "Mind the dragon, !nick!");
    EXPECT_EQ(ticks(form, "lvwEnabledProfiles"), "0101");
}

TEST_F(StandardIntros, ARestoreShowsFourteenIntrosAndEighteenOutrosAndNoProfile)
{
    settings = golden("IntroOutroSettings.save.tbl");
    auto& form = openForm();
    restore(form);
    EXPECT_TRUE(find<QCheckBox>(form, "chkEnableUnregIntro").isChecked());
    EXPECT_EQ(find<RowList>(form, "lvwIntro").rows().size(), 14U);
    EXPECT_EQ(find<RowList>(form, "lvwOutro").rows().size(), 18U);
    EXPECT_TRUE(sameBytes(settings, golden("IntroOutroSettings.save.tbl"))); // nothing is written yet
    EXPECT_TRUE(sameBytes(file("IntroOutro/Intro.tbl"), "tIntro = {\r\n}\r\n"));
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("IntroOutroSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(file("IntroOutro/Intro.tbl"), golden("Intro.restored.tbl")));
    EXPECT_TRUE(sameBytes(file("IntroOutro/Outro.tbl"), golden("Outro.restored.tbl")));
}

TEST_F(StandardIntros, ADiscardShowsTheFilesAgain)
{
    auto& form = openForm();
    restore(form);
    discard(form);
    EXPECT_TRUE(find<RowList>(form, "lvwIntro").isEmpty());
}

TEST_F(StandardIntros, SixtyFourProfilesAreTickedAndSavedByTheirKeys)
{
    for (std::size_t more = hub.profiles.count(); more < 65; ++more)
        hub.profiles.add("Profile " + std::to_string(more));
    auto& form = openForm();
    ASSERT_EQ(ticks(form, "lvwEnabledProfiles").size(), 65U);
    tick(form, "lvwEnabledProfiles", {0, 64});
    save(form);
    const auto values = test::luaValues(settings);
    EXPECT_EQ(values.at("tIntroOutroSettings.tEnabledProfiles.-1"), "1");
    EXPECT_EQ(values.at("tIntroOutroSettings.tEnabledProfiles.62"), "0");
    EXPECT_EQ(values.at("tIntroOutroSettings.tEnabledProfiles.63"), "1");
    EXPECT_EQ(values.size(), 67U);
}

class CustomIntros : public test::CustomiseForms
{
protected:
    std::string& settings = file("IntroOutro/CustomIntroOutroSettings.tbl");
    EditorForm& openForm() { return open(custom.key); }
};

TEST_F(CustomIntros, TheSettingsAndTheLinesOfUsersAreSaved)
{
    auto& form = openForm();
    auto& box = find<QCheckBox>(form, "chkNotifyOps");
    EXPECT_EQ(box.text(), "Notify Ops when Custom Intro/Outro changed");
    EXPECT_TRUE(box.isChecked());
    box.click();
    tick(form, "lvwEnabledProfiles", {0});
    entering({{{"merle", "Merle walks through the wall"}, "cmdAdd"}, {{"bob", "Bob is back"}, "cmdOK"}},
             [&form] { button(form, "NEW", "tlbIntro").trigger(); });
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("CustomIntroOutroSettings.save.tbl")));
    EXPECT_TRUE(sameBytes(file("IntroOutro/CustomIntro.tbl"), golden("CustomIntro.save.tbl")));
}

TEST_F(CustomIntros, ARestoreReplacesEachListByOneRow)
{
    settings = golden("CustomIntroOutroSettings.save.tbl");
    file("IntroOutro/CustomIntro.tbl") = golden("CustomIntro.save.tbl");
    auto& form = openForm();
    restore(form);
    save(form);
    EXPECT_TRUE(sameBytes(settings, golden("CustomIntroOutroSettings.build.tbl")));
    EXPECT_TRUE(sameBytes(file("IntroOutro/CustomIntro.tbl"), golden("CustomIntro.restored.tbl")));
    EXPECT_TRUE(sameBytes(file("IntroOutro/CustomOutro.tbl"), golden("CustomOutro.restored.tbl")));
}

} // namespace
} // namespace quillfen
