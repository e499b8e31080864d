// Every form of the program, on good trees and on bad ones: opened, changed all over, saved, opened again.
#include "shell/kit/codepagetext.h"
#include "shell/kit/listview.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/textedit.h"
#include "shell/window/navigatortable.h"
#include "support/formtest.h"
#include "support/lua.h"
#include "support/notloading.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include <algorithm>
#include <map>
#include <optional>
#include <random>
#include <set>

namespace quillfen {
namespace {

/// What a user would see of a form: each control's name, and what it shows.
using Shown = std::map<QString, QString>;

class Sweep : public test::FormTest
{
protected:
    /// Gives the hub so many profiles, "Unregistered" among them, and rebuilds its tree.
    void setProfiles(int count)
    {
        std::string text;
        for (int profile = 1; profile < count; ++profile)
            text += "<Name>Profile " + std::to_string(profile) + "</Name>\r\n";
        hub.store.files["/hub/cfg/Profiles.xml"] = text;
        hub.store.files.erase(hub.root + "/General/Globals/Version.tbl");
        hub.profiles = {};
        reconcileSettings(
            {hub.files, folderCatalogue(), "5.2.0", [](const RebuildQuestion&) { return true; }},
            hub.profiles);
    }

    static bool isOfTheForm(const QWidget& widget)
    {
        for (const auto* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
            if (qobject_cast<const QComboBox*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent))
                return false;
        }
        return true;
    }

    static Shown shownBy(EditorForm& form)
    {
        Shown all;
        for (const auto* box : form.findChildren<QCheckBox*>())
            all[box->objectName()] = box->isChecked() ? "1" : "0";
        for (const auto* option : form.findChildren<QRadioButton*>())
            all[option->objectName()] = option->isChecked() ? "1" : "0";
        for (const auto* box : form.findChildren<QComboBox*>())
            all[box->objectName()] = box->currentText();
        for (const auto* edit : form.findChildren<QLineEdit*>())
            all[edit->objectName()] = edit->text();
        for (const auto* list : form.findChildren<RowList*>())
            all[list->objectName()] = rowsOf(*list);
        return all;
    }

    /// The cells that show, and the ticks.
    static QString rowsOf(const RowList& list)
    {
        const QStringList cells = shown(list);
        QString text;
        for (qsizetype row = 0; row < cells.size(); ++row)
            text += (list.rows()[static_cast<std::size_t>(row)].checked ? '+' : '-') + cells[row] + '\n';
        return text;
    }

    /// Changes every control of the form once, as its user could. Lists get a row through their dialogs.
    static void changeEverything(EditorForm& form)
    {
        const auto isMine = [](const QWidget& widget) { return widget.isEnabled() && isOfTheForm(widget); };
        for (auto* box : form.findChildren<NumberBox*>()) {
            if (box->isEnabled()) {
                const QString before = box->text();
                box->stepBy(1);
                if (box->text() == before)
                    box->stepBy(-1);
            }
        }
        for (auto* edit : form.findChildren<QLineEdit*>()) {
            if (isMine(*edit) && !edit->isReadOnly())
                edit->setText(edit->maxLength() == 1 ? "z" : "swept");
        }
        for (auto* box : form.findChildren<QCheckBox*>()) {
            if (box->isEnabled())
                box->click();
        }
        for (auto* group : form.findChildren<QGroupBox*>())
            chooseAnother(*group);
        for (auto* box : form.findChildren<QComboBox*>()) {
            if (box->isEnabled() && box->count() > 1)
                box->setCurrentIndex(box->currentIndex() == 0 ? 1 : 0);
        }
        for (auto* list : form.findChildren<ListView*>())
            changeRows(*list);
    }

    static void chooseAnother(const QGroupBox& group)
    {
        for (auto* option : group.findChildren<QRadioButton*>()) {
            if (!option->isChecked()) {
                option->click();
                return;
            }
        }
    }

    static void changeRows(ListView& list)
    {
        const QModelIndex first = list.model()->index(0, 0);
        if (first.isValid() && (first.flags() & Qt::ItemIsUserCheckable) != 0) {
            const bool on = first.data(Qt::CheckStateRole).toInt() != Qt::Unchecked;
            list.model()->setData(first, on ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        } else if (first.isValid()) {
            list.select(0);
            useModals([&list] { emit list.editAsked(); });
        }
        // A list's own toolbar stands right above it.
        if (auto* toolbar = list.parentWidget()->findChild<QToolBar*>()) {
            auto* add = toolbar->findChild<QAction*>("NEW");
            if (add && add->isEnabled())
                useModals([add] { add->trigger(); });
        }
    }

    /// Runs an action, and goes through each dialog that it opens as a user would who fills in everything.
    /// Returns the message boxes.
    static QStringList useModals(const std::function<void()>& action,
                                 QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        QStringList boxes;
        int count = 0;
        test::withModal(action, [&](QWidget& modal) {
            if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                boxes.append(box->windowTitle() + '|' + box->text());
                auto* button = box->button(answer);
                button ? button->click() : static_cast<void>(box->close());
            } else if (++count > 8) {
                modal.close(); // a dialog that comes again and again
            } else if (qobject_cast<QInputDialog*>(&modal)) {
                test::typeInto(modal, "swept" + QString::number(count));
            } else if (auto* editor = qobject_cast<TextEditDialog*>(&modal)) {
                find<QPlainTextEdit>(*editor, "txtTextBox").setPlainText("swept");
                boxes += useModals([editor] { find<QAction>(*editor, "SAVE").trigger(); });
                boxes += useModals([editor] { editor->close(); });
            } else {
                fillIn(modal);
            }
        });
        return boxes;
    }

    static void fillIn(QWidget& dialog)
    {
        int field = 0;
        for (auto* edit : dialog.findChildren<QLineEdit*>()) {
            ++field;
            if (isOfTheForm(*edit))
                edit->setText("swept" + QString::number(field));
            else if (auto* box = qobject_cast<NumberBox*>(edit->parentWidget()))
                box->setText(QString::number(field));
        }
        for (auto* box : dialog.findChildren<QComboBox*>()) {
            if (box->count() > 0)
                box->setCurrentIndex(box->count() - 1);
        }
        if (auto* ok = dialog.findChild<QPushButton*>("cmdOK"); ok && ok->isEnabled())
            ok->click();
        if (dialog.isVisible())
            dialog.close();
    }

    /// Closes a form, answering its question if it asks one; true if it went.
    static bool close(EditorForm& form, QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        bool closed = false;
        useModals([&] { closed = form.parentWidget()->close(); }, answer);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return closed;
    }

    void forEachForm(const std::function<void(const std::string& key, EditorForm& form)>& use)
    {
        for (const QString& key : formKeys()) {
            SCOPED_TRACE(key.toStdString());
            EditorForm* form = nullptr;
            const auto boxes = useModals([&] { form = &open(qPrintable(key)); });
            for (const QString& box : boxes)
                EXPECT_TRUE(box.contains("has fewer than four numbers")) << box.toStdString();
            use(key.toStdString(), *form);
            EXPECT_TRUE(close(find<EditorForm>(window(), formName(key))));
        }
    }
};

/// What a form shows otherwise after it was saved and opened again, and why.
const std::map<std::string, std::set<QString>> knownToDiffer = {
    // the word lists wait for OPEN
    {"Games~Numbers", {"lvwWords"}},
    {"Games~Hangman", {"lvwWords", "txtTextBoxUpDown(4)"}}, // and the idle box starts anew
    {"Games~Anagrams", {"lvwWords"}},
    // the files are sorted by a load
    {"Games~Trivia~Questions", {"lvwQuestionFiles"}},
    // its box belongs to no key
    {"Security~AntiVirus", {"chkCheckBox"}},
    // the day that a save wrote is not read back
    {"Hyperlink~LinkOfTheWeek", {"txtChangeTime"}},
};

/// Forms whose discard doesn't empty the lists before it reads them again.
const std::map<std::string, std::set<QString>> addedToByDiscard = {
    {"Communication~Portal", {"lvwHubs", "lvwNicks"}},
};

/// Forms that write or delete files at once, whatever is discarded later: texts, pictures and word files.
const std::set<std::string> writesAtOnce = {"CustomiseUser~IntroOutro~Ascii",
                                            "Communication~RotatingMainMessage",
                                            "Communication~RotatingPrivateMessage"};

bool holds(const std::map<std::string, std::set<QString>>& known, const std::string& key, const QString& name)
{
    const auto found = known.find(key);
    return found != known.end() && found->second.contains(name);
}

void expectSame(const std::string& key, const Shown& before, const Shown& after, bool discarded = false)
{
    for (const auto& [name, text] : before) {
        if (holds(knownToDiffer, key, name) || (discarded && holds(addedToByDiscard, key, name)))
            continue;
        const auto found = after.find(name);
        EXPECT_EQ(text, found == after.end() ? QString("no such control") : found->second)
            << name.toStdString();
    }
}

class SweepOfAHub : public Sweep, public testing::WithParamInterface<int>
{
protected:
    SweepOfAHub() { setProfiles(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Profiles, SweepOfAHub, testing::Values(1, 5, 64),
                         [](const auto& each) { return "Of" + std::to_string(each.param); });

TEST_P(SweepOfAHub, EveryFormShowsWhatItSaved)
{
    int count = 0;
    forEachForm([&](const std::string& key, EditorForm& form) {
        ++count;
        EXPECT_FALSE(isDirty(form));
        changeEverything(form);
        if (form.isDirty()) {
            EXPECT_EQ(useModals([&form] { button(form, "SAVE").trigger(); }), QStringList());
        }
        EXPECT_FALSE(isDirty(form));
        const Shown before = shownBy(form);
        EXPECT_TRUE(close(form));
        auto& again = open(key.c_str());
        expectSame(key, before, shownBy(again));
        EXPECT_FALSE(isDirty(again));
    });
    EXPECT_EQ(count, 97);
}

TEST_P(SweepOfAHub, EveryFormDiscardsToWhatItShowedAndAsksBeforeItCloses)
{
    forEachForm([&](const std::string& key, EditorForm& form) {
        const Shown before = shownBy(form);
        changeEverything(form);
        if (!form.isDirty())
            return;
        EXPECT_FALSE(close(form, QMessageBox::Cancel)) << "a Cancel keeps it open";
        EXPECT_TRUE(form.isDirty());
        EXPECT_EQ(useModals([&form] { button(form, "DISCARD").trigger(); }).size(), 1);
        if (writesAtOnce.count(key) == 0)
            expectSame(key, before, shownBy(form), true);
    });
}

TEST_P(SweepOfAHub, EveryFormRestoresWithoutWriting)
{
    forEachForm([&](const std::string&, EditorForm& form) {
        if (!find<QToolBar>(form, "tlbFormToolbar").findChild<QAction*>("RESTORE"))
            return;
        const auto files = hub.store.files;
        EXPECT_EQ(useModals([&form] { button(form, "RESTORE").trigger(); }).size(), 1);
        EXPECT_TRUE(isDirty(form));
        EXPECT_TRUE(hub.store.files == files);
        EXPECT_EQ(useModals([&form] { button(form, "SAVE").trigger(); }).size(), 0);
    });
}

/// The texts and numbers that the hub script finds in what was written since that call of the store; nothing
/// if no table was written.
std::optional<std::set<QString>> seenByTheHubScript(const test::Hub& hub, std::size_t sinceCall)
{
    std::optional<std::set<QString>> seen;
    for (std::size_t call = sinceCall; call < hub.store.log.size(); ++call) {
        const std::string path = hub.store.log[call].substr(hub.store.log[call].find(' ') + 1);
        if (!path.ends_with(".tbl") || test::notLoadingOnceSaved().contains(path.substr(hub.root.size() + 1)))
            continue;
        if (!seen)
            seen.emplace();
        for (const auto& [name, value] : test::luaValues(hub.store.files.at(path)))
            seen->insert(fromBytes(value));
    }
    return seen;
}

TEST_P(SweepOfAHub, TheHubScriptSeesTheNumbersAndTextsThatEveryFormShows)
{
    int compared = 0;
    forEachForm([&](const std::string& key, EditorForm& form) {
        changeEverything(form);
        const std::size_t before = hub.store.log.size();
        if (form.isDirty())
            useModals([&form] { button(form, "SAVE").trigger(); });
        std::optional<std::set<QString>> seen;
        ASSERT_NO_THROW(seen = seenByTheHubScript(hub, before));
        for (const auto* edit : form.findChildren<QLineEdit*>()) {
            const bool inCombo = qobject_cast<QComboBox*>(edit->parentWidget());
            if (!seen || inCombo || holds(knownToDiffer, key, edit->objectName()))
                continue;
            ++compared;
            EXPECT_TRUE(seen->contains(edit->text()))
                << edit->objectName().toStdString() << " shows " << edit->text().toStdString();
        }
    });
    EXPECT_GT(compared, 100);
}

TEST_P(SweepOfAHub, TheHubScriptLoadsTheTreeThatEveryFormSavedButForTheFilesThatAreKnownNotTo)
{
    forEachForm([&](const std::string&, EditorForm& form) {
        changeEverything(form);
        if (form.isDirty())
            useModals([&form] { button(form, "SAVE").trigger(); });
    });
    for (const auto& [path, bytes] : hub.store.files) {
        if (!path.ends_with(".tbl"))
            continue;
        if (test::notLoadingOnceSaved().contains(path.substr(hub.root.size() + 1))) {
            EXPECT_THROW(test::luaValues(bytes), std::runtime_error) << path << " loads by now";
        } else {
            EXPECT_NO_THROW(test::luaValues(bytes)) << path;
        }
    }
}

class SweepOfFaults : public Sweep
{
};

TEST_F(SweepOfFaults, AWriteThatFailsAtAnyPlaceLeavesTheFormOpenAndDirty)
{
    forEachForm([&](const std::string&, EditorForm& form) {
        changeEverything(form);
        if (!form.isDirty())
            return;
        for (int call = 0;; ++call) {
            const auto files = hub.store.files;
            const std::size_t done = hub.store.log.size();
            hub.store.failingCall = static_cast<int>(done) + call;
            const auto boxes = useModals([&form] { button(form, "SAVE").trigger(); });
            hub.store.failingCall = -1;
            if (boxes.isEmpty())
                return; // it made no more than so many calls
            EXPECT_EQ(boxes.size(), 1);
            EXPECT_TRUE(boxes[0].contains("No space left on device")) << boxes[0].toStdString();
            EXPECT_TRUE(isDirty(form));
            std::set<std::string> written;
            for (std::size_t at = done; at < hub.store.log.size(); ++at)
                written.insert(hub.store.log[at].substr(hub.store.log[at].find(' ') + 1));
            for (const auto& [path, bytes] : files)
                EXPECT_TRUE(written.count(path) > 0 || hub.store.files.at(path) == bytes) << path;
        }
    });
}

TEST_F(SweepOfFaults, AFolderThatWentUnderAnOpenFormIsToldAndLosesNothing)
{
    forEachForm([&](const std::string&, EditorForm& form) {
        changeEverything(form);
        if (!form.isDirty())
            return;
        const auto folders = hub.store.folders;
        const auto files = hub.store.files;
        hub.store.folders = {"/hub", "/hub/cfg", "/hub/scripts", hub.script};
        hub.store.files.clear();
        const auto boxes = useModals([&form] { button(form, "SAVE").trigger(); });
        EXPECT_EQ(boxes.size(), 1);
        EXPECT_TRUE(isDirty(form));
        EXPECT_TRUE(hub.store.files.empty());
        hub.store.folders = folders;
        hub.store.files = files;
        EXPECT_EQ(useModals([&form] { button(form, "SAVE").trigger(); }), QStringList());
        EXPECT_FALSE(isDirty(form));
    });
}

TEST_F(SweepOfFaults, AFileThatWasReplacedWhileItsFormWasOpenIsOverwrittenBySaveAndShownByDiscard)
{
    auto& form = open("Games~SlotMachine");
    std::string& file = hub.file("Games/SlotMachine/SlotMachineSettings.tbl");
    file = "tSlotMachineSettings = {\r\n\tiCredit = 77,\r\n}\r\n";
    useModals([&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown(0)").text(), "77");
    file = "something else";
    find<NumberBox>(form, "updUpDown(0)").stepBy(1);
    button(form, "SAVE").trigger();
    EXPECT_EQ(test::luaValues(file).at("tSlotMachineSettings.iCredit"), "82");
}

/// Makes something else of a file's bytes.
struct Damage
{
    const char* name;
    std::function<std::string(const std::string&)> of;
};

void PrintTo(const Damage& damage, std::ostream* stream)
{
    *stream << damage.name;
}

std::string junk(const std::string& bytes)
{
    std::mt19937 random(static_cast<unsigned>(bytes.size()));
    std::string result(4096, ' ');
    for (char& each : result)
        each = static_cast<char>(random() & 0xFF);
    return result;
}

std::string shuffledLines(const std::string& bytes)
{
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', from), bytes.size() - 1) + 1;
        lines.push_back(bytes.substr(from, end - from));
        from = end;
    }
    std::shuffle(lines.begin(), lines.end(), std::mt19937(static_cast<unsigned>(bytes.size())));
    std::string result;
    for (const std::string& line : lines)
        result += line;
    return result;
}

class SweepOfDamage : public Sweep, public testing::WithParamInterface<Damage>
{
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, SweepOfDamage,
    testing::Values(Damage{"Empty", [](const std::string&) { return std::string(); }},
                    Damage{"Cut", [](const std::string& bytes) { return bytes.substr(0, bytes.size() / 2); }},
                    Damage{"Junk", junk}, Damage{"Shuffled", shuffledLines}),
    [](const auto& each) { return std::string(each.param.name); });

TEST_P(SweepOfDamage, EveryFormOpensCleanAndCanBeSaved)
{
    forEachForm([&](const std::string& key, EditorForm&) {
        EXPECT_TRUE(close(find<EditorForm>(window(), formName(QString::fromStdString(key)))));
        hub.store.damage = GetParam().of;
        EditorForm* form = nullptr;
        useModals([&] { form = &open(key.c_str()); });
        hub.store.damage = nullptr;
        EXPECT_FALSE(isDirty(*form));
        changeEverything(*form);
        if (form->isDirty()) {
            EXPECT_EQ(useModals([form] { button(*form, "SAVE").trigger(); }), QStringList());
        }
    });
}

TEST_F(Sweep, OnAnEmptySettingsFolderEveryFormOpensAndTellsThatItCannotSave)
{
    const std::string below = hub.root + '/';
    std::erase_if(hub.store.files, [&](const auto& file) { return file.first.starts_with(below); });
    std::erase_if(hub.store.folders, [&](const auto& folder) { return folder.starts_with(below); });
    forEachForm([&](const std::string& key, EditorForm& form) {
        EXPECT_FALSE(isDirty(form));
        changeEverything(form);
        if (!form.isDirty())
            return;
        const auto boxes = useModals([&form] { button(form, "SAVE").trigger(); });
        if (key == "Communication~HubEmail" || key == "Communication~Portal")
            return; // whose saves make their folders
        EXPECT_EQ(boxes.size(), 1);
        EXPECT_TRUE(isDirty(form));
    });
}

TEST_F(Sweep, WithFoldersInTheFilesPlacesEveryFormOpensAndTellsThatItCannotSave)
{
    const std::string below = hub.root + '/';
    for (const auto& [path, bytes] : hub.store.files) {
        if (path.starts_with(below))
            hub.store.folders.insert(path);
    }
    std::erase_if(hub.store.files, [&](const auto& file) { return file.first.starts_with(below); });
    forEachForm([&](const std::string&, EditorForm& form) {
        EXPECT_FALSE(isDirty(form));
        changeEverything(form);
        if (form.isDirty())
            useModals([&form] { button(form, "SAVE").trigger(); });
    });
}

TEST_F(Sweep, FilesOfTenMegabytesOpenInTheFormsOfEachDesign)
{
    hub.store.damage = [](const std::string& bytes) {
        constexpr std::size_t size = 10U << 20U;
        std::string result;
        result.reserve(size + bytes.size());
        while (result.size() < size)
            result += bytes.empty() ? std::string("\r\n") : bytes;
        return result;
    };
    for (const char* key : {"General~Settings", "General~Bots", "Games~Trivia~Questions", "Security~Report",
                            "UserActions~Jokes", "Communication~TopicChanger"}) {
        SCOPED_TRACE(key);
        auto& form = open(key);
        EXPECT_FALSE(isDirty(form));
        EXPECT_TRUE(close(form));
    }
}

} // namespace
} // namespace quillfen
