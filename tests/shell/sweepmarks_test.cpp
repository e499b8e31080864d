// Every control of every form has a card, is marked when it differs from the file, and comes back alone.
#include "shell/kit/controlvalue.h"
#include "shell/sweep.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace quillfen::test {
namespace {

class SweepOfMarks : public SweepOfAHub
{
protected:
    /// The controls of one value that a user can change.
    static QList<QWidget*> valuesOf(EditorForm& form)
    {
        QList<QWidget*> controls;
        for (auto* widget : find<QWidget>(form, "fraFrame(0)").findChildren<QWidget*>()) {
            const auto* line = qobject_cast<QLineEdit*>(widget);
            const bool isFixed = !widget->isEnabled() || (line && line->isReadOnly());
            if (valueOf(*widget) && boxAround(widget) == widget && !isFixed && !widget->isHidden())
                controls.append(widget);
        }
        return controls;
    }

    static QString nameOf(const QWidget& control)
    {
        if (!control.objectName().isEmpty())
            return control.objectName();
        const auto* inner = control.findChild<QRadioButton*>();
        return inner ? inner->objectName() : control.accessibleName();
    }

    static void change(QWidget& control)
    {
        if (auto* box = qobject_cast<QCheckBox*>(&control)) {
            box->click();
        } else if (auto* group = qobject_cast<QGroupBox*>(&control)) {
            chooseAnother(*group);
        } else if (auto* combo = qobject_cast<QComboBox*>(&control); combo && !combo->isEditable()) {
            combo->setCurrentIndex(combo->currentIndex() == 0 ? combo->count() - 1 : 0);
        } else if (qobject_cast<NumberBox*>(&control)) {
            setValue(control, valueOf(control) == "3" ? "4" : "3");
        } else {
            setValue(control, "swept over");
        }
    }

    static int dots(EditorForm& form)
    {
        return static_cast<int>(form.findChildren<QWidget*>("CHANGED").size());
    }

    static void takeBack(QWidget& control)
    {
        auto* line = control.findChild<QLineEdit*>();
        QWidget& clicked = line ? *line : control;
        QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, clicked.mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(&clicked, &event);
        auto& menu = find<QMenu>(clicked, "mnuSetting");
        find<QAction>(menu, "mnuSettingStored").trigger();
        menu.close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

INSTANTIATE_TEST_SUITE_P(Profiles, SweepOfMarks, testing::Values(5),
                         [](const auto& each) { return "Of" + std::to_string(each.param); });

TEST_P(SweepOfMarks, EveryControlHasACard)
{
    int cards = 0;
    forEachForm([&](const std::string&, EditorForm& form) {
        for (const auto* control : valuesOf(form)) {
            EXPECT_FALSE(control->whatsThis().isEmpty()) << nameOf(*control).toStdString();
            ++cards;
        }
    });
    EXPECT_GT(cards, 230);
}

TEST_P(SweepOfMarks, EveryControlIsMarkedWhenItDiffersAndComesBackAlone)
{
    forEachForm([&](const std::string&, EditorForm& form) {
        for (auto* control : valuesOf(form)) {
            SCOPED_TRACE(nameOf(*control).toStdString());
            const auto before = valueOf(*control);
            change(*control);
            if (valueOf(*control) == before)
                continue; // a choice of one
            EXPECT_EQ(dots(form), 1);
            takeBack(*control);
            EXPECT_EQ(valueOf(*control), before);
            EXPECT_EQ(dots(form), 0);
        }
    });
}

} // namespace
} // namespace quillfen::test
