#pragma once

#include "check/functionfacts.h"
#include "functions/catalogue.h"
#include "functions/ownparts.h"
#include "shell/window/mainwindow.h"
#include "support/boxes.h"
#include "support/freshtree.h"

#include <QAbstractItemView>
#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <QTreeView>

#include <gtest/gtest.h>
#include <memory>

/// Lets a failed comparison show its text.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

namespace quillfen::test {

/// A main window over a hub in memory whose tree is built.
class FormTest : public testing::Test
{
protected:
    FormTest()
    {
        hub.store.files["/hub/cfg/Profiles.xml"] =
            "<Name>Master</Name>\r\n<Name>Operator</Name>\r\n<Name>VIP</Name>\r\n";
        buildTree(hub);
    }

    /// The main window, made at the first call.
    MainWindow& window()
    {
        if (!m_window) {
            m_window = std::make_unique<MainWindow>(
                program, FormContext{.files = hub.files, .profiles = hub.profiles, .facts = functionFacts()},
                functionNodes(), forms, makers);
            m_window->show();
            m_window->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        }
        return *m_window;
    }

    /// Opens the form of a key and returns it.
    EditorForm& open(const char* key)
    {
        window().OpenFunctionForm(key);
        auto* active = window().findChild<QMdiArea*>()->currentSubWindow();
        return *qobject_cast<EditorForm*>(active->widget());
    }

    /// Closes a form, which is gone then.
    static void close(EditorForm& form)
    {
        form.parentWidget()->close();
        QApplication::sendPostedEvents(nullptr,
                                       QEvent::DeferredDelete); // no event loop runs that would do it
    }

    /// Puts a form of this part into the place of "Games ~ Anagrams".
    void standIn(PartDeclaration part)
    {
        std::erase_if(forms,
                      [](const FormDeclaration& form) { return form.form.name == "frmGamesAnagrams"; });
        forms.push_back({{"frmGamesAnagrams", "Games ~ Anagrams"}, {std::move(part)}});
    }

    template <typename Widget>
    static Widget& find(QObject& parent, const QString& name)
    {
        auto* found = parent.findChild<Widget*>(name);
        if (!found)
            throw std::runtime_error("no " + name.toStdString());
        return *found;
    }

    static QAction& button(EditorForm& form, const char* key, const char* toolbar = "tlbFormToolbar")
    {
        return find<QAction>(find<QToolBar>(form, toolbar), key);
    }

    /// The place of the row whose first cell reads so.
    static int rowOf(const QAbstractItemView& list, const QString& text)
    {
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            if (list.model()->index(row, 0).data().toString() == text)
                return row;
        }
        throw std::runtime_error("no row " + text.toStdString());
    }

    /// A click on a row, behind its tick box if it has one.
    static void clickRow(QAbstractItemView& list, int row, Qt::MouseButton mouse = Qt::LeftButton)
    {
        QTest::mouseClick(list.viewport(), mouse, {}, placeOf(list, row).center());
    }

    /// A click on a row's tick box.
    static void clickTick(QAbstractItemView& list, int row)
    {
        const QRect place = placeOf(list, row);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {place.left() + 9, place.center().y()});
    }

    static void doubleClickRow(QAbstractItemView& list, int row)
    {
        clickRow(list, row); // the first of the two clicks
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, placeOf(list, row).center());
    }

    /// What a list shows: each row's visible cells, joined by "|".
    static QStringList shown(const QTreeView& list)
    {
        QStringList rows;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < list.model()->columnCount(); ++column) {
                if (!list.isColumnHidden(column))
                    cells.append(list.model()->index(row, column).data().toString());
            }
            rows.append(cells.join('|'));
        }
        return rows;
    }

    /// A panel of the form's status bar, from 0.
    static QLabel& panel(EditorForm& form, int at)
    {
        return *find<QStatusBar>(form, "stsStatusBar").findChildren<QLabel*>().at(at);
    }

    static QString state(EditorForm& form) { return panel(form, 0).text(); }
    static QLabel& secondPanel(EditorForm& form) { return panel(form, 1); }

    static bool isDirty(EditorForm& form)
    {
        const bool dirty = form.isDirty();
        EXPECT_EQ(button(form, "SAVE").isEnabled(), dirty);
        EXPECT_EQ(state(form), dirty ? "Controls = Dirty" : "Controls = Clean");
        return dirty;
    }

    static QRect placeOf(QAbstractItemView& list, int row)
    {
        const QModelIndex index = list.model()->index(row, 0);
        list.scrollTo(index);
        return list.visualRect(index);
    }

    Hub hub;
    ProgramInfo program{"5.2.0", "quillfentest:///"};
    FormCatalogue forms = formCatalogue();
    PartMakers makers = partMakers();

private:
    std::unique_ptr<MainWindow> m_window;
};

} // namespace quillfen::test
