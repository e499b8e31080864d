#pragma once

#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QLineEdit>

#include <string>
#include <utility>

namespace quillfen::test {

/// The main window over a built tree, with what the tests of a group's forms share.
class GroupForms : public FormTest
{
protected:
    /// The group's folder of settings, and that of its golden files.
    GroupForms(std::string folder, std::string goldenFolder)
        : m_folder(std::move(folder)),
          m_goldenFolder(std::move(goldenFolder))
    {
    }

    std::string& file(const std::string& path) { return hub.file(m_folder + '/' + path); }
    bool has(const std::string& path) const { return hub.has(m_folder + '/' + path); }
    std::string golden(const std::string& name) const { return test::golden(m_goldenFolder + '/' + name); }

    /// Ticks or unticks the rows of these places, "Unregistered" being 0.
    static void tick(EditorForm& form, const char* list, std::initializer_list<int> rows)
    {
        for (const int row : rows)
            clickTick(find<RowList>(form, list), row);
    }

    /// The ticks of a list: "0110".
    static std::string ticks(EditorForm& form, const char* list)
    {
        std::string all;
        for (const CellRow& row : find<RowList>(form, list).rows())
            all += row.checked ? '1' : '0';
        return all;
    }

    static void save(EditorForm& form)
    {
        EXPECT_TRUE(isDirty(form));
        button(form, "SAVE").trigger();
        EXPECT_FALSE(isDirty(form));
    }

    /// Presses RESTORE, answers its question with OK, and checks that the form is dirty then.
    static void restore(EditorForm& form)
    {
        const auto boxes = answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_EQ(boxes[0].title, "Restore defaults?");
        EXPECT_EQ(boxes[0].text, "Restore to defaults?");
        EXPECT_TRUE(isDirty(form));
    }

    /// Presses DISCARD, answers its question, and checks that the form is clean then, or still dirty after a
    /// Cancel.
    static void discard(EditorForm& form, QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        const auto boxes = answering(answer, [&form] { button(form, "DISCARD").trigger(); });
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_EQ(boxes[0].title, "Discard changes?");
        EXPECT_EQ(boxes[0].text, "Discard all unsaved changes?");
        EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
        EXPECT_EQ(isDirty(form), answer == QMessageBox::Cancel);
    }

    /// Puts a text in the place of what a text or number box holds, by keys.
    static void type(EditorForm& form, const char* box, const QString& text)
    {
        auto& edit = find<QLineEdit>(form, box);
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }

    /// The ends at which the arrows of a number box stop.
    static std::pair<std::string, std::string> range(EditorForm& form, const char* upDown)
    {
        auto& box = find<NumberBox>(form, upDown);
        box.setText("-99999999");
        QTest::keyClick(&box, Qt::Key_Up);
        const std::string lowest = box.text().toStdString();
        box.setText("99999999");
        QTest::keyClick(&box, Qt::Key_Down);
        return {lowest, box.text().toStdString()};
    }

    static std::string text(const QWidget& form, const char* label)
    {
        const auto* found = form.findChild<QLabel*>(label);
        return found ? found->text().toStdString() : "no such label";
    }

private:
    std::string m_folder;
    std::string m_goldenFolder;
};

} // namespace quillfen::test
