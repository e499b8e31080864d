#include "shell/icons/icons.h"
#include "shell/kit/elidedlabel.h"
#include "shell/kit/toolbars.h"
#include "support/formtest.h"

#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

namespace quillfen {
namespace {

TEST(Icons, AreLoadedOnceForAllForms)
{
    EXPECT_EQ(themedIcon("save").cacheKey(), themedIcon("save").cacheKey());
    EXPECT_NE(themedIcon("save").cacheKey(), themedIcon("edit").cacheKey());
    EXPECT_FALSE(themedIcon("save").pixmap(16, 16).isNull());
}

QImage pictureOf(const QString& icon, int side, qreal scale, QIcon::Mode mode = QIcon::Normal)
{
    return themedIcon(icon).pixmap({side, side}, scale, mode).toImage();
}

/// Whether neighbouring pixels come in pairs all over, as when a smaller picture was enlarged twice.
bool isDoubled(const QImage& image)
{
    for (int y = 0; y + 1 < image.height(); y += 2) {
        for (int x = 0; x + 1 < image.width(); x += 2) {
            if (image.pixel(x, y) != image.pixel(x + 1, y + 1))
                return false;
        }
    }
    return true;
}

TEST(Icons, HaveAsManyPixelsAsTheScreenShowsAtAnyScale)
{
    for (const char* icon : {"save", "quillfen"}) {
        for (const int side : {16, 20, 24, 64}) {
            for (const qreal scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
                const QImage image = pictureOf(icon, side, scale);
                EXPECT_EQ(image.size(), QSize(side, side) * scale) << icon << side << ' ' << scale;
                EXPECT_EQ(image.devicePixelRatio(), scale);
                EXPECT_FALSE(isDoubled(image)) << icon << side << ' ' << scale;
            }
        }
    }
}

TEST(Icons, AreDrawnAnewForALargerScale)
{
    const QImage drawn = pictureOf("hyperlink", 16, 3);
    const QImage enlarged = pictureOf("hyperlink", 16, 1).scaled(48, 48, {}, Qt::SmoothTransformation);
    const auto steepEdges = [](const QImage& image) {
        int edges = 0;
        for (int at = 0; at < 48 * 47; ++at) {
            const int x = at % 47;
            const int y = at / 47;
            edges += std::abs(qAlpha(image.pixel(x, y)) - qAlpha(image.pixel(x + 1, y))) > 127 ? 1 : 0;
        }
        return edges;
    };
    EXPECT_GT(steepEdges(drawn), 3 * steepEdges(enlarged) + 20);
}

TEST(Icons, OfDisabledButtonsHaveTheSameShapeInNoColour)
{
    const QImage normal = pictureOf("save", 16, 2);
    const QImage disabled = pictureOf("save", 16, 2, QIcon::Disabled);
    ASSERT_EQ(disabled.size(), normal.size());
    for (int at = 0; at < 32 * 32; ++at) {
        const QColor colour = disabled.pixelColor(at % 32, at / 32);
        EXPECT_EQ(colour.alpha() > 0, normal.pixelColor(at % 32, at / 32).alpha() > 0);
        EXPECT_LT(colour.alpha() * colour.saturation(), 255 * 60);
    }
}

/// Which of an icon's pixels bear colour, as a toolbar of lists draws it.
std::vector<bool> shapeOf(const QString& icon)
{
    constexpr int side = 16;
    const QImage image = themedIcon(icon).pixmap(side, side, QIcon::Normal).toImage();
    std::vector<bool> shape;
    for (int at = 0; at < side * side; ++at)
        shape.push_back(qAlpha(image.pixel(at % side, at / side)) > 100);
    return shape;
}

/// How much of two icons is the same: 1 for all, 0 for nothing.
double likeness(const QString& one, const QString& other)
{
    const auto first = shapeOf(one);
    const auto second = shapeOf(other);
    int both = 0;
    int either = 0;
    for (std::size_t at = 0; at < first.size(); ++at) {
        both += first[at] && second[at] ? 1 : 0;
        either += first[at] || second[at] ? 1 : 0;
    }
    return static_cast<double>(both) / either;
}

/// The hue of an icon's strongest pixel, as most of it is drawn.
int hueOf(const QString& icon)
{
    const QImage image = themedIcon(icon).pixmap(16, 16).toImage();
    QColor strongest;
    for (int at = 0; at < 16 * 16; ++at) {
        const QColor colour = image.pixelColor(at % 16, at / 16);
        if (colour.alpha() > 200 && colour.hslSaturation() > 60)
            strongest = colour;
    }
    return strongest.hslHue();
}

TEST(Icons, OfButtonsThatStandTogetherDifferInShapeAndColour)
{
    for (const auto& [one, other] : {std::pair("discard", "restore"), {"edit", "amend"}}) {
        EXPECT_LT(likeness(one, other), 0.3) << one << ' ' << other;
        const int apart = std::abs(hueOf(one) - hueOf(other));
        EXPECT_GT(std::min(apart, 360 - apart), 40) << one << ' ' << other;
    }
}

QStringList keysAndTips(const QToolBar& toolbar)
{
    QStringList seen;
    for (auto* action : toolbar.actions())
        seen.append(action->isSeparator() ? QStringLiteral("|")
                                          : action->objectName() + '=' + action->toolTip());
    return seen;
}

TEST(Toolbars, EachBuilderAddsItsButtons)
{
    using Builder = void (*)(QToolBar&, int&);
    const QList<QPair<Builder, QStringList>> builders = {
        {BuildFormToolbar,
         {"|", "SAVE=Save changes", "|", "DISCARD=Discard changes", "RESTORE=Restore defaults", "|"}},
        {AddDeleteButton, {"DELETE=Delete"}},
        {AddEditButton, {"EDIT=Edit"}},
        {AddEditAllButton, {"EDITALL=Edit All"}},
        {AddAmendButton, {"AMEND=Amend"}},
        {BuildListToolbar, {"NEW=Add", "DELETE=Delete", "EDIT=Edit"}},
        {BuildFileListToolbar,
         {"NEW=Create new file", "OPEN=Add existing file", "DELETE=Delete question file",
          "EDIT=Edit question file"}},
        {BuildFileEditToolbar,
         {"SAVE=Save changes", "CLOSE=Discard changes", "NEW=Add new question", "EDIT=Edit question",
          "DELETE=Delete question"}},
    };
    for (const auto& [build, expected] : builders) {
        QToolBar toolbar;
        int index = 0;
        build(toolbar, index);
        EXPECT_EQ(keysAndTips(toolbar), expected);
        EXPECT_EQ(index, expected.size());
        for (auto* action : toolbar.actions()) {
            EXPECT_TRUE(action->isSeparator() || !action->icon().pixmap(16).isNull())
                << action->objectName().toStdString();
        }
    }
}

TEST(Toolbars, TheButtonsThatMoveARowNameTheirKeys)
{
    QToolBar toolbar;
    int index = 0;
    BuildMovementToolbar(toolbar, index);
    EXPECT_EQ(keysAndTips(toolbar),
              (QStringList{"MoveTop=Move to the top (Alt+Home)", "MoveUp=Move up (Alt+Up)",
                           "MoveDown=Move down (Alt+Down)", "MoveBottom=Move to the bottom (Alt+End)"}));
}

TEST(Toolbars, ABuilderPutsItsButtonsInAtTheRunningIndex)
{
    QToolBar toolbar;
    int index = 0;
    BuildListToolbar(toolbar, index);
    index = 1;
    AddAmendButton(toolbar, index);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(keysAndTips(toolbar), (QStringList{"NEW=Add", "AMEND=Amend", "DELETE=Delete", "EDIT=Edit"}));
}

TEST(Toolbars, OnlySaveAndTheFileButtonsStartDisabled)
{
    QToolBar form;
    int index = 0;
    BuildFormToolbar(form, index);
    EXPECT_FALSE(button(form, "SAVE")->isEnabled());
    EXPECT_TRUE(button(form, "DISCARD")->isEnabled());
    EXPECT_TRUE(button(form, "RESTORE")->isEnabled());
    EXPECT_FALSE(form.isMovable());
    EXPECT_FALSE(form.isFloatable());
    QToolBar file;
    index = 0;
    BuildFileEditToolbar(file, index);
    for (auto* action : file.actions())
        EXPECT_FALSE(action->isEnabled());
}

TEST(Toolbars, TabGoesAlongTheButtonsAsTheyStand)
{
    QWidget window;
    auto* toolbar = new QToolBar(&window);
    auto* before = new QLineEdit(&window);
    int index = 0;
    BuildListToolbar(*toolbar, index);
    index = 0;
    addButton(*toolbar, index, "OPEN", "Open", "open");
    AddAmendButton(*toolbar, index);
    letKeysReachButtons(window);
    QStringList keys;
    for (QWidget* each = window.nextInFocusChain(); each != &window; each = each->nextInFocusChain()) {
        const auto* pressed = qobject_cast<QToolButton*>(each);
        if (pressed && pressed->defaultAction())
            keys.append(pressed->defaultAction()->objectName());
        else if (each == before)
            keys.append("before");
    }
    EXPECT_EQ(keys, (QStringList{"before", "OPEN", "AMEND", "NEW", "DELETE", "EDIT"}));
}

TEST(Toolbars, TheStatusBarHasTwoPanels)
{
    QStatusBar bar;
    PlaceChildForm(bar);
    const auto panels = bar.findChildren<QLabel*>();
    ASSERT_EQ(panels.size(), 2);
    EXPECT_EQ(panels[0]->text(), "Controls = Clean");
    EXPECT_EQ(panels[0]->minimumWidth(), 1500 / 15);
    EXPECT_EQ(panels[1]->text(), "");
}

TEST(Toolbars, ANoteThatHasNoRoomInTheStatusBarEndsInAnEllipsis)
{
    QStatusBar bar;
    PlaceChildForm(bar);
    EXPECT_TRUE(qobject_cast<ElidedLabel*>(bar.findChildren<QLabel*>()[1]));

    ElidedLabel note(0);
    const QString whole =
        "Enabled Profiles: no profile is ticked, so that nobody has any use of this function";
    note.setText(whole);
    note.resize(100, 20);
    const QImage shown = note.grab().toImage();
    const QString cut = note.fontMetrics().elidedText(whole, Qt::ElideRight, 100);
    ASSERT_TRUE(cut.endsWith(QChar(0x2026)));
    EXPECT_EQ(note.text(), whole);
    note.setText(cut);
    EXPECT_EQ(shown, note.grab().toImage());
}

TEST(Toolbars, DirtyAndCleanFollowButtonTwoAndTakeButtonThreeOut)
{
    QToolBar toolbar;
    QStatusBar bar;
    int index = 0;
    BuildFileListToolbar(toolbar, index); // here button 3 is no separator
    PlaceChildForm(bar);
    auto* panel = bar.findChildren<QLabel*>().constFirst();
    EXPECT_TRUE(SetControlsDirty(toolbar, bar));
    EXPECT_TRUE(toolbar.actions()[1]->isEnabled());
    EXPECT_FALSE(toolbar.actions()[2]->isEnabled());
    EXPECT_EQ(panel->text(), "Controls = Dirty");
    EXPECT_FALSE(SetControlsClean(toolbar, bar));
    EXPECT_FALSE(toolbar.actions()[1]->isEnabled());
    EXPECT_FALSE(toolbar.actions()[2]->isEnabled());
    EXPECT_EQ(panel->text(), "Controls = Clean");
}

/// Presses a key on a drop-down button, and returns what came up; it goes again.
QWidget* poppedUp(QToolButton& button, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget* seen = nullptr;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&seen] {
        if (auto* popup = QApplication::activePopupWidget()) {
            seen = popup;
            popup->close();
        }
    });
    timer.start(1);
    QTest::keyClick(&button, key, modifiers);
    return seen;
}

TEST(Toolbars, DownAndAltDownOpenADropDown)
{
    QWidget window;
    auto* toolbar = new QToolBar(&window);
    int index = 0;
    auto* dropDown = addButton(*toolbar, index, "PROFILE", "View By Profile", "profile");
    QMenu menu;
    menu.addAction("Master");
    dropDown->setMenu(&menu);
    AddEditButton(*toolbar, index);
    letKeysReachButtons(window);
    window.show();
    auto& button = *qobject_cast<QToolButton*>(toolbar->widgetForAction(dropDown));
    button.setPopupMode(QToolButton::MenuButtonPopup);
    int pressed = 0;
    QObject::connect(dropDown, &QAction::triggered, [&pressed] { ++pressed; });
    EXPECT_EQ(poppedUp(button, Qt::Key_Down, Qt::NoModifier), &menu);
    EXPECT_EQ(poppedUp(button, Qt::Key_Down, Qt::AltModifier), &menu);
    EXPECT_EQ(poppedUp(button, Qt::Key_Down, Qt::KeypadModifier), &menu);
    EXPECT_EQ(poppedUp(button, Qt::Key_Down, Qt::ControlModifier), nullptr);
    EXPECT_EQ(poppedUp(button, Qt::Key_Right, Qt::NoModifier), nullptr);
    EXPECT_EQ(pressed, 0);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(pressed, 1) << "the button itself does what it did";
}

class DropDowns : public test::FormTest
{
};

TEST_F(DropDowns, OfEveryToolbarOpenByKeys)
{
    open("Security~Kicks~Permissions");
    int tried = 0;
    for (auto* each : window().findChildren<QToolButton*>()) {
        auto* menu = each->defaultAction() ? each->defaultAction()->menu() : nullptr;
        if (!menu)
            continue;
        EXPECT_EQ(poppedUp(*each, Qt::Key_Down, Qt::AltModifier), menu);
        ++tried;
    }
    EXPECT_EQ(tried, 12 + 2) << "the groups of the main window, and the grid's filters";
}

class OpenFile : public testing::Test
{
protected:
    OpenFile()
    {
        int index = 0;
        BuildFileEditToolbar(toolbar, index);
        for (auto* action : toolbar.actions())
            action->setEnabled(true);
        toolbar.actions().constFirst()->setEnabled(false);
        new QTreeWidgetItem(&list, {"a"});
        new QTreeWidgetItem(&list, {"b"});
    }

    bool isLeft() const
    {
        for (int at = 0; at < 5; ++at) {
            if (toolbar.actions()[at]->isEnabled() != (at == 0))
                return false;
        }
        return list.topLevelItemCount() == 0;
    }

    QTreeWidget list;
    QToolBar toolbar;
};

TEST_F(OpenFile, IsLeftAfterAnOk)
{
    bool bDiscardNow = false;
    const auto boxes = test::answering(QMessageBox::Ok, [&] { ConfirmDiscard(list, toolbar, bDiscardNow); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Are you sure you want to discard unsaved changes?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::NoIcon);
    EXPECT_TRUE(bDiscardNow);
    EXPECT_TRUE(isLeft());
}

TEST_F(OpenFile, StaysAfterACancel)
{
    bool bDiscardNow = false;
    test::answering(QMessageBox::Cancel, [&] { ConfirmDiscard(list, toolbar, bDiscardNow); });
    EXPECT_FALSE(bDiscardNow);
    EXPECT_EQ(list.topLevelItemCount(), 2);
    EXPECT_FALSE(toolbar.actions()[0]->isEnabled());
}

TEST_F(OpenFile, IsLeftWithoutAQuestionWhenNothingIsDirty)
{
    bool bDiscardNow = true;
    EXPECT_TRUE(
        test::answering(QMessageBox::Cancel, [&] { ConfirmDiscard(list, toolbar, bDiscardNow); }).isEmpty());
    EXPECT_TRUE(isLeft());
}

} // namespace
} // namespace quillfen
