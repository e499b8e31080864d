#include "shell/kit/codepagetext.h"
#include "shell/kit/listview.h"
#include "support/formtest.h"
#include "support/navigatornames.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSet>
#include <QToolButton>
#include <QWheelEvent>

namespace quillfen {
namespace {

/// The keys of the forms that are built.
std::vector<std::string> builtKeys()
{
    std::vector<std::string> keys;
    const FormCatalogue forms = formCatalogue();
    for (const QString& key : formKeys()) {
        if (std::any_of(forms.begin(), forms.end(), [&key](const FormDeclaration& form) {
                return fromBytes(form.form.name) == formName(key);
            }))
            keys.push_back(key.toStdString());
    }
    return keys;
}

class EveryForm : public test::FormTest, public testing::WithParamInterface<std::string>
{
protected:
    EditorForm& openForm() { return open(GetParam().c_str()); }

    static std::string nameOf(const QWidget& widget)
    {
        return widget.metaObject()->className() + (' ' + widget.objectName()).toStdString();
    }

    static bool isUnchosenOption(const QWidget& widget)
    {
        const auto* option = qobject_cast<const QRadioButton*>(&widget);
        return option && !option->isChecked();
    }

    /// The line in a number box or combo box, whose size is the box's own affair.
    static bool isInsideABox(const QWidget& widget)
    {
        return qobject_cast<QAbstractSpinBox*>(widget.parentWidget()) ||
               qobject_cast<QComboBox*>(widget.parentWidget());
    }

    /// What Tab must come to: of a group of options it is the chosen one.
    static QSet<QWidget*> reachable(const EditorForm& form)
    {
        QSet<QWidget*> all;
        for (auto* each : form.findChildren<QWidget*>()) {
            if ((each->focusPolicy() & Qt::TabFocus) != 0 && each->isVisible() && each->isEnabled() &&
                !each->focusProxy() && !isUnchosenOption(*each))
                all.insert(each);
        }
        return all;
    }
};

/// What the own parts of a node's form say of the controls that they make themselves.
std::vector<ControlExplanation> explainedByParts(const Node& node)
{
    std::vector<ControlExplanation> all;
    for (const PartDeclaration& part : node.form ? node.form->parts : std::vector<PartDeclaration>()) {
        if (const auto* own = std::get_if<OwnPart>(&part))
            all.insert(all.end(), own->explanations.begin(), own->explanations.end());
    }
    return all;
}

using OwnParts = test::FormTest;

TEST_F(OwnParts, ExplainOnlyControlsThatTheirFormsHave)
{
    std::size_t explained = 0;
    for (const Node& node : functionNodes()) {
        for (const ControlExplanation& each : explainedByParts(node)) {
            EXPECT_TRUE(open(node.key.c_str()).findChild<QWidget*>(fromBytes(each.control)))
                << node.key << ": " << each.control;
            ++explained;
        }
    }
    EXPECT_GT(explained, 0U);
}

TEST_P(EveryForm, OpensWithinTheWindow)
{
    window().resize(1180, 780);
    const QSize size = openForm().parentWidget()->size();
    const QSize room = find<QMdiArea>(window(), QString()).viewport()->size();
    EXPECT_LE(size.width(), room.width());
    EXPECT_LE(size.height(), room.height());
}

TEST_P(EveryForm, FitsTheSmallestWindowAndEachOfItsControlsCanBeScrolledTo)
{
    window().resize(window().minimumSize());
    auto& form = openForm();
    QApplication::processEvents(); // layouts wait for it
    const QRect room = find<QMdiArea>(window(), QString()).viewport()->rect();
    const auto* frame = form.parentWidget();
    EXPECT_TRUE(room.contains(frame->geometry()));
    for (const QSize least : {frame->minimumSize(), frame->minimumSizeHint(), form.minimumSize()})
        EXPECT_EQ(least, least.boundedTo(room.size()));
    EXPECT_TRUE(form.rect().contains(find<QWidget>(form, "tlbFormToolbar").geometry()));
    EXPECT_TRUE(form.rect().contains(find<QWidget>(form, "stsStatusBar").geometry()));
    auto& scroller = find<QScrollArea>(form, QString());
    for (auto* each : scroller.widget()->findChildren<QWidget*>()) {
        if ((each->focusPolicy() & Qt::TabFocus) == 0 || !each->isVisible())
            continue;
        const QRect place = {each->mapTo(scroller.widget(), QPoint()), each->size()};
        EXPECT_TRUE(scroller.widget()->rect().contains(place)) << nameOf(*each);
        if (!isInsideABox(*each)) {
            EXPECT_EQ(each->size(), each->size().expandedTo(each->minimumSizeHint())) << nameOf(*each);
        }
        scroller.ensureWidgetVisible(each);
        EXPECT_FALSE(each->visibleRegion().isEmpty()) << nameOf(*each);
    }
}

TEST_P(EveryForm, CutsNoTextOfALabelOrButton)
{
    auto& form = openForm();
    const auto check = [](const QWidget& widget, const QString& text) {
        if (widget.isVisible()) {
            EXPECT_GE(widget.width(), widget.sizeHint().width()) << text.toStdString();
        }
    };
    for (const auto* label : form.findChildren<QLabel*>())
        check(*label, label->text());
    for (const auto* each : form.findChildren<QAbstractButton*>())
        check(*each, each->text());
}

TEST_P(EveryForm, StartsInItsFirstControlAndTabGoesOnInTheOrderSeen)
{
    auto& form = openForm();
    auto* first = QApplication::focusWidget();
    ASSERT_TRUE(first && form.isAncestorOf(first));
    EXPECT_FALSE(qobject_cast<QToolButton*>(first)) << "the form's own toolbar comes last";
    QList<QWidget*> met = {first};
    while (met.size() < 200) {
        QTest::keyClick(met.last(), Qt::Key_Tab);
        auto* next = QApplication::focusWidget();
        if (next == first)
            break;
        ASSERT_TRUE(next && form.isAncestorOf(next)) << "Tab leaves the form";
        met.append(next);
    }
    met.removeIf([](const QWidget* each) { return isUnchosenOption(*each); }); // Tab may stop at one at first
    EXPECT_EQ(QSet<QWidget*>(met.begin(), met.end()), reachable(form));
    EXPECT_EQ(met.size(), reachable(form).size()) << "each control once";
    const auto placeOf = [&form](const QWidget* widget) {
        return QRect(widget->mapTo(&form, QPoint()), widget->size());
    };
    // Behind the last control Tab begins anew with the form's toolbar, above all others.
    const auto* toolbar = form.findChild<QToolBar*>("tlbFormToolbar");
    for (qsizetype at = 1; at < met.size(); ++at) {
        const QRect before = placeOf(met[at - 1]);
        const QRect place = placeOf(met[at]);
        const bool forward = place.bottom() >= before.top() || place.left() > before.left();
        EXPECT_TRUE(forward || met[at]->parentWidget() == toolbar)
            << nameOf(*met[at - 1]) << " is followed by " << nameOf(*met[at]);
    }
}

TEST_P(EveryForm, KeepsEachTextBoxOnOneLine)
{
    for (auto* box : openForm().findChildren<QLineEdit*>()) {
        if (box->isReadOnly())
            continue;
        box->insert(QStringLiteral("a\r\n\nb"));
        EXPECT_FALSE(box->text().contains(QRegularExpression("[\r\n]"))) << nameOf(*box);
        EXPECT_TRUE(box->text().contains('a')) << nameOf(*box) << " takes what is entered";
    }
}

TEST_P(EveryForm, HasARowSelectedInEachListThatHasRows)
{
    // Where what is selected has a meaning of its own, the user selects it.
    const QString key = QString::fromStdString(GetParam());
    const bool waits = key == "Communication~Portal" || key == "CustomiseUser~CustomRightClick";
    for (const auto* list : openForm().findChildren<ListView*>())
        EXPECT_EQ(list->currentRow() >= 0, !waits && list->model()->rowCount() > 0) << nameOf(*list);
}

TEST_P(EveryForm, LetsTheWheelPassOverComboBoxesAndNumbers)
{
    auto& form = openForm();
    for (auto* box : form.findChildren<QWidget*>()) {
        if (!qobject_cast<QComboBox*>(box) && !qobject_cast<QAbstractSpinBox*>(box))
            continue;
        box->clearFocus();
        QWheelEvent wheel({5, 5}, box->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &wheel);
        EXPECT_NE(box->focusPolicy(), Qt::WheelFocus) << nameOf(*box);
    }
    EXPECT_FALSE(isDirty(form));
}

TEST_P(EveryForm, NamesEveryControlForAssistiveTools)
{
    auto& form = openForm();
    for (QWidget* each : reachable(form)) {
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(each)->text(QAccessible::Name).isEmpty())
            << nameOf(*each);
    }
    for (const auto* label : form.findChildren<QLabel*>(QRegularExpression("^lblLabel")))
        EXPECT_TRUE(label->buddy()) << label->text().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Forms, EveryForm, testing::ValuesIn(builtKeys()), [](const auto& test) {
    std::string name = test.param;
    std::erase(name, '~');
    return name;
});

} // namespace
} // namespace quillfen
