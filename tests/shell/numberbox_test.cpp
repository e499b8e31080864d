#include "shell/kit/numberbox.h"
#include "support/formtest.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QWheelEvent>

namespace quillfen {
namespace {

TEST(NumberBoxTest, BearsBothNames)
{
    NumberBox box("txtUpDown(3)", 1, 50);
    EXPECT_EQ(box.objectName(), "updUpDown(3)");
    EXPECT_TRUE(box.findChild<QLineEdit*>("txtUpDown(3)"));
}

TEST(NumberBoxTest, KeepsWhatIsLoadedOrTypedOutsideItsRange)
{
    NumberBox box("txtUpDown", 1, 720);
    for (const char* text : {"9999", "-5", "abc", "", "007", " 5"}) {
        box.setText(text);
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(box.text(), text);
    }
    box.setText("");
    QTest::keyClicks(&box, "721");
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_EQ(box.text(), "721");
}

TEST(NumberBoxTest, ItsArrowsKeepTheRange)
{
    NumberBox box("txtUpDown", 1, 720);
    const auto stepped = [&box](const char* from, Qt::Key key) {
        box.setText(from);
        QTest::keyClick(&box, key);
        return box.text();
    };
    EXPECT_EQ(stepped("5", Qt::Key_Up), "6");
    EXPECT_EQ(stepped("5", Qt::Key_Down), "4");
    EXPECT_EQ(stepped("720", Qt::Key_Up), "720");
    EXPECT_EQ(stepped("1", Qt::Key_Down), "1");
    EXPECT_EQ(stepped("9999", Qt::Key_Down), "720");
    EXPECT_EQ(stepped("-9", Qt::Key_Up), "1");
    EXPECT_EQ(stepped("abc", Qt::Key_Up), "1");
    EXPECT_EQ(stepped("488.28125", Qt::Key_Up), "489");
    EXPECT_EQ(stepped("488.28125", Qt::Key_Down), "487");
}

TEST(NumberBoxTest, EitherArrowBringsANumberBackIntoItsRange)
{
    NumberBox box("txtUpDown", 1, 10);
    for (const auto& [key, from] : {std::pair(Qt::Key_Up, "20"), {Qt::Key_Down, "20"}}) {
        box.setText(from);
        QTest::keyClick(&box, key);
        EXPECT_EQ(box.text(), "10");
    }
    box.setText("-5");
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.text(), "1");
}

TEST(NumberBoxTest, ItsStepMayBeMoreThanOne)
{
    NumberBox box("txtUpDown", 50, 5000);
    box.setStep(5);
    box.setText("50");
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.text(), "55");
    box.setText("4998");
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.text(), "5000");
}

TEST(NumberBoxTest, NothingButArrowsPageKeysAndWheelChangesANumberForArrowsOnly)
{
    NumberBox box("txtUpDown", 1, 720);
    box.setOnlyArrows();
    box.setText("50");
    box.show();
    box.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    box.setFocus();
    for (int key = Qt::Key_0; key <= Qt::Key_Z; ++key) {
        if (key > Qt::Key_9 && key < Qt::Key_A)
            continue;
        for (const auto modifiers : {Qt::NoModifier, Qt::ControlModifier, Qt::AltModifier}) {
            QTest::keyClick(&box, static_cast<Qt::Key>(key), modifiers);
            ASSERT_EQ(box.text(), "50") << "key " << key << " with " << int(modifiers);
        }
    }
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Home, Qt::Key_End,
                              Qt::Key_Insert, Qt::Key_Clear})
        QTest::keyClick(&box, key);
    QApplication::clipboard()->setText("7");
    QTest::keyClick(&box, Qt::Key_Insert, Qt::ShiftModifier);
    QInputMethodEvent composed;
    composed.setCommitString("7");
    QApplication::sendEvent(&box, &composed);
    EXPECT_EQ(box.text(), "50");
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.text(), "51");
    QTest::keyClick(&box, Qt::Key_PageDown);
    EXPECT_EQ(box.text(), "41");
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.text(), "42");
}

TEST(NumberBoxTest, ANumberForArrowsOnlyLooksReadOnlyAndTellsHowItIsChanged)
{
    NumberBox box("txtUpDown", 1, 720);
    const NumberBox typed("txtUpDown", 1, 720);
    box.setOnlyArrows();
    EXPECT_EQ(box.palette().color(QPalette::Base), box.palette().color(QPalette::Window));
    EXPECT_NE(typed.palette().color(QPalette::Base), typed.palette().color(QPalette::Window));
    EXPECT_EQ(box.toolTip(), "Changed by the arrows, the Page keys and the wheel");
    EXPECT_EQ(box.accessibleDescription(), box.toolTip());
    EXPECT_EQ(typed.toolTip(), "");
}

/// A box whose look can be asked for.
class ArrowBox : public NumberBox
{
public:
    ArrowBox() : NumberBox("txtUpDown", 1, 720) {}
    QPalette seenPalette() const
    {
        QStyleOptionSpinBox option;
        initStyleOption(&option);
        return option.palette;
    }
};

TEST(NumberBoxTest, NumbersForArrowsOnlyShareThePicturesOfTheStyle)
{
    ArrowBox one;
    ArrowBox two;
    ArrowBox disabled;
    for (ArrowBox* box : {&one, &two, &disabled})
        box->setOnlyArrows();
    disabled.setEnabled(false);
    EXPECT_NE(one.palette().cacheKey(), two.palette().cacheKey());
    EXPECT_EQ(one.seenPalette().cacheKey(), two.seenPalette().cacheKey());
    EXPECT_EQ(disabled.seenPalette().cacheKey(), two.seenPalette().cacheKey());
    EXPECT_EQ(disabled.seenPalette().currentColorGroup(), QPalette::Disabled);
    EXPECT_EQ(one.seenPalette(), one.palette());

    QPalette other = one.palette();
    other.setColor(QPalette::Base, Qt::green);
    one.setPalette(other);
    EXPECT_EQ(one.seenPalette().color(QPalette::Base), QColor(Qt::green));
    EXPECT_EQ(two.seenPalette(), two.palette());
}

TEST(NumberBoxTest, TheWheelDoesNothingWithoutFocus)
{
    NumberBox box("txtUpDown", 1, 720);
    box.setText("5");
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.text(), "5");
}

} // namespace
} // namespace quillfen
