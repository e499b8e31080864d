#include "shell/kit/codepagetext.h"
#include "support/formtest.h"

#include <QLineEdit>

namespace quillfen {
namespace {

TEST(CodePageText, All256BytesComeBack)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const QString text = fromBytes(bytes);
    EXPECT_EQ(text.size(), 256);
    EXPECT_EQ(toBytes(text), bytes);
    EXPECT_EQ(fromBytes("\x95\xBB\x80"), QStringLiteral(u"\u2022\u00BB\u20AC"));
}

TEST(CodePageText, WhatTheCodePageLacksCannotBeTypedOrPasted)
{
    QLineEdit edit;
    edit.setValidator(new OneLineValidator(&edit));
    edit.setText("ab");
    edit.setCursorPosition(1);
    edit.insert(QStringLiteral(u"\u20AC"));
    edit.insert(QStringLiteral(u"1\u04162\U0001F6003"));
    EXPECT_EQ(edit.text(), QStringLiteral(u"a\u20AC123b"));
    EXPECT_EQ(edit.cursorPosition(), 5);
}

TEST(CodePageText, ARunOfLineEndsBecomesABlankAndNulGoes)
{
    QLineEdit edit;
    limitToOneLine(edit);
    edit.setText(QStringLiteral("one\r\ntwo\n\n\rthree\r") + QChar::Null + QStringLiteral("four"));
    EXPECT_EQ(edit.text(), "one two three four");
    edit.setText("ab");
    edit.setCursorPosition(1);
    edit.insert("1\r\n\r\n2");
    EXPECT_EQ(edit.text(), "a1 2b");
    EXPECT_EQ(edit.cursorPosition(), 4);
    edit.insert("\r\n");
    EXPECT_EQ(edit.text(), "a1 2 b");
    EXPECT_EQ(edit.cursorPosition(), 5);
}

} // namespace
} // namespace quillfen
