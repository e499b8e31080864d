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
    edit.setValidator(new CodePageValidator(&edit));
    edit.setText("ab");
    edit.setCursorPosition(1);
    edit.insert(QStringLiteral(u"\u20AC"));
    edit.insert(QStringLiteral(u"1\u04162\U0001F6003"));
    EXPECT_EQ(edit.text(), QStringLiteral(u"a\u20AC123b"));
    EXPECT_EQ(edit.cursorPosition(), 5);
}

} // namespace
} // namespace quillfen
