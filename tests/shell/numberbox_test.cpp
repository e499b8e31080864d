#include "shell/kit/numberbox.h"
#include "support/formtest.h"

#include <QLineEdit>

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
