#pragma once

#include "shell/kit/listview.h"
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/textedit.h"
#include "support/formtest.h"
#include "support/freshtree.h"
#include "support/navigatornames.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>

#include <map>
#include <set>

namespace quillfen::test {

/// What a user would see of a form: each control's name, and what it shows.
using Shown = std::map<QString, QString>;

class Sweep : public FormTest
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
        test::buildTree(hub);
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
                edit->setText("swept over");
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
        withModal(action, [&](QWidget& modal) {
            if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                boxes.append(box->windowTitle() + '|' + box->text());
                auto* button = box->button(answer);
                button ? button->click() : static_cast<void>(box->close());
            } else if (++count > 8) {
                modal.close(); // a dialog that comes again and again
            } else if (qobject_cast<QInputDialog*>(&modal)) {
                typeInto(modal, "swept" + QString::number(count));
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

    /// A box that was closed leaves no window active here.
    static void focus(ListView& list)
    {
        list.window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(list.window()));
        list.setFocus();
    }

    /// Shows only the rows of a list that hold the first word of its first row, and all of them again.
    static void filterAndShowAll(ListView& list)
    {
        const auto textOf = [&list](int row) {
            QString text;
            for (int column = 0; column < list.model()->columnCount(); ++column)
                text += list.isColumnHidden(column)
                            ? QString()
                            : list.model()->index(row, column).data(WholeText).toString() + '\n';
            return text;
        };
        const auto rows = static_cast<std::size_t>(list.model()->rowCount());
        const QString word = textOf(0).section(QRegularExpression("\\s"), 0, 0, QString::SectionSkipEmpty);
        focus(list);
        QTest::keyClick(&list, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        auto& line = find<QLineEdit>(list, "txtFilter");
        EXPECT_TRUE(line.hasFocus());
        line.setText(word);
        const std::vector<int> shown = list.shownRows();
        EXPECT_FALSE(shown.empty());
        EXPECT_TRUE(std::all_of(shown.begin(), shown.end(), [&](int row) {
            return textOf(row).contains(word, Qt::CaseInsensitive);
        })) << word.toStdString();
        line.setText(word + "\x7f");
        EXPECT_EQ(list.shownRows().size(), 0U);
        EXPECT_EQ(list.currentRow(), -1) << "what isn't in sight isn't selected";
        QTest::keyClick(&line, Qt::Key_Escape);
        EXPECT_EQ(list.shownRows().size(), rows);
    }

    /// What the copy of a list's first row and a paste of it came to.
    enum class Pasted
    {
        Taken,
        Refused, ///< told in a box
        NotHere, ///< told beside the list, or NEW is dark
    };

    static Pasted copyAndPaste(ListView& list)
    {
        list.select(0);
        focus(list);
        QApplication::clipboard()->clear();
        QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text().count('\n'), 1);
        const int before = list.model()->rowCount();
        const QStringList boxes =
            useModals([&list] { QTest::keyClick(&list, Qt::Key_V, Qt::ControlModifier); });
        if (!boxes.isEmpty()) {
            EXPECT_EQ(boxes.size(), 1);
            EXPECT_TRUE(boxes[0].startsWith("Rows not pasted|1 of 1 rows not taken:"))
                << boxes[0].toStdString();
            EXPECT_EQ(list.model()->rowCount(), before);
            return Pasted::Refused;
        }
        if (list.model()->rowCount() == before)
            return Pasted::NotHere;
        EXPECT_EQ(list.model()->rowCount(), before + 1);
        return Pasted::Taken;
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
inline const std::map<std::string, std::set<QString>> knownToDiffer = {
    // the word lists wait for OPEN
    {"Games~Numbers", {"lvwWords"}},
    {"Games~Hangman", {"lvwWords", "txtTextBoxUpDown(4)"}}, // and the idle box starts anew
    {"Games~Anagrams", {"lvwWords"}},
    // the files are sorted by a load
    {"Games~Trivia~Questions", {"lvwQuestionFiles"}},
    // its box belongs to no key
    {"Security~AntiVirus", {"chkCheckBox"}},
    // the day that a save wrote is not read back
    {"Bookshelf~LinkOfTheWeek", {"txtChangeTime"}},
    {"DVDRack~LinkOfTheWeek", {"txtChangeTime"}},
    {"Jukebox~LinkOfTheWeek", {"txtChangeTime"}},
    {"Songbook~LinkOfTheWeek", {"txtChangeTime"}},
    {"Arcade~LinkOfTheWeek", {"txtChangeTime"}},
    {"Hyperlink~LinkOfTheWeek", {"txtChangeTime"}},
};

/// Forms whose discard doesn't empty the lists before it reads them again.
inline const std::map<std::string, std::set<QString>> addedToByDiscard = {
    {"Communication~Portal", {"lvwHubs", "lvwNicks"}},
};

/// Forms that write or delete files at once, whatever is discarded later: texts, pictures and word files.
inline const std::set<std::string> writesAtOnce = {"CustomiseUser~IntroOutro~Ascii",
                                                   "Communication~RotatingMainMessage",
                                                   "Communication~RotatingPrivateMessage"};

inline bool holds(const std::map<std::string, std::set<QString>>& known, const std::string& key,
                  const QString& name)
{
    const auto found = known.find(key);
    return found != known.end() && found->second.contains(name);
}

inline void expectSame(const std::string& key, const Shown& before, const Shown& after,
                       bool discarded = false)
{
    for (const auto& [name, text] : before) {
        if (holds(knownToDiffer, key, name) || (discarded && holds(addedToByDiscard, key, name)))
            continue;
        const auto found = after.find(name);
        EXPECT_EQ(text, found == after.end() ? QString("no such control") : found->second)
            << name.toStdString();
    }
}

/// A hub of so many profiles.
class SweepOfAHub : public Sweep, public testing::WithParamInterface<int>
{
protected:
    SweepOfAHub() { setProfiles(GetParam()); }
};

} // namespace quillfen::test
