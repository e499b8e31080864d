#include "settings/codepage.h"
#include "settings/filename.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

TEST(FileNames, ThatNoFileCanBearAreFaulty)
{
    for (const char* name :
         {"",   ".",  "..",   "a/b", "a\\b", "..\\x", "c:x", "a*",  "a?",       "\"a", "a<",
          "a>", "a|", "a\tb", " a",  "a ",   "a.",    "con", "NUL", "com1.txt", "Lpt9"})
        EXPECT_NE(fileNameFault(name), "") << name;
    EXPECT_NE(fileNameFault(std::string(300, 'x')), "");
    for (const char* name :
         {"a", "TriviaQuestions", "my words 2", "caf\xE9", "a.b", "control", ".hidden", "it's", "a~1"})
        EXPECT_EQ(fileNameFault(name), "") << name;
}

TEST(FileNames, ThatNoFileCanBearAreToldWhy)
{
    EXPECT_EQ(fileNameFault(""), "A file needs a name.");
    EXPECT_EQ(fileNameFault(std::string(201, 'x')), "The name is too long.");
    EXPECT_EQ(fileNameFault("a?"), "A file name can't hold any of \\ / : * ? \" < > |");
    EXPECT_EQ(fileNameFault("a\tb"), "A file name can't hold control characters.");
    EXPECT_EQ(fileNameFault("a."), "A file name can't begin or end with a blank, or end with a dot.");
    EXPECT_EQ(leavingNameFault(""), "A file needs a name.");
    EXPECT_EQ(leavingNameFault("../a"), "The name leads out of the folder.");
}

TEST(FileNames, AreGoodUpToTheirTwoHundredthCharacter)
{
    EXPECT_EQ(fileNameFault(std::string(200, 'x')), "");
    EXPECT_NE(fileNameFault(std::string(201, 'x')), "");
}

TEST(FileNames, ThatAreThereAlreadyAreGoodUnlessTheyLeadOutOfTheirFolder)
{
    for (const std::string& name :
         {std::string(), std::string("."), std::string(".."), std::string("a/b"), std::string("a\\b"),
          std::string("..\\x"), std::string("/x"), std::string("a\0b", 3)})
        EXPECT_NE(leavingNameFault(name), "") << name;
    for (const char* name : {" a", "a ", "con", "NUL", "x?y", "a*", "\"a", "a.", "a\tb", "...", "..a"})
        EXPECT_EQ(leavingNameFault(name), "") << name;
    EXPECT_EQ(leavingNameFault(std::string(300, 'x')), "");
}

TEST(FileNames, ChangeTheirCaseInTheCodePage)
{
    EXPECT_EQ(codepage::lowered("FOO \xC9\x8A\x9F\xD7"), "foo \xE9\x9A\xFF\xD7");
    EXPECT_EQ(codepage::lowered("@AZ[ \xBF\xC0\xDE\xDF"), "@az[ \xBF\xE0\xFE\xDF");
    EXPECT_EQ(codepage::raised("foo \xE9\x9A\xFF\xF7\xDF"), "FOO \xC9\x8A\x9F\xF7\xDF");
}

TEST(FileNames, OfAnyDeviceAreRefused)
{
    for (const std::string device : {"con", "prn", "aux", "nul"})
        EXPECT_EQ(fileNameFault(device), "The name is one of the system's devices.") << device;
    for (const char number : std::string("123456789")) {
        EXPECT_EQ(fileNameFault(std::string("com") + number), "The name is one of the system's devices.");
        EXPECT_EQ(fileNameFault(std::string("lpt") + number), "The name is one of the system's devices.");
    }
    EXPECT_EQ(fileNameFault("com0"), "");
}

} // namespace
} // namespace quillfen
