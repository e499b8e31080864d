#include "functions/communication/hubemail.h"
#include "functions/communication/whisper.h"
#include "support/freshtree.h"
#include "support/golden.h"
#include "support/lua.h"

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using test::LuaValues;
using test::luaValues;
using test::sameBytes;

class Whisper : public testing::Test
{
protected:
    test::Hub hub{"Communication", "Communication/Whisper"};
    std::string& file = hub.file("Communication/Whisper/WhisperSettings.tbl");
};

TEST_F(Whisper, AFreshBuildConfirms)
{
    buildFunction(whisperFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(file, "tWhisperSettings = {\r\n\tbSendConfirmation = 1,\r\n}\r\n"));
    EXPECT_EQ(luaValues(file), (LuaValues{{"tWhisperSettings.bSendConfirmation", "1"}}));
}

TEST_F(Whisper, ARebuildKeepsTheValue)
{
    file = "tWhisperSettings = {\r\n\tiOld = 3,\r\n\tbSendConfirmation = 0,\r\n}\r\n";
    buildFunction(whisperFunction(), hub.files, hub.profiles);
    EXPECT_TRUE(sameBytes(file, "tWhisperSettings = {\r\n\tbSendConfirmation = 0,\r\n}\r\n"));
}

TEST(HubEmail, HasNeitherFolderNorFileAfterABuild)
{
    test::Hub hub;
    test::buildTree(hub);
    EXPECT_FALSE(hub.store.exists(hub.root + "/Communication/HubEmail"));
    EXPECT_TRUE(hub.has("Communication/Whisper/WhisperSettings.tbl"));
}

} // namespace
} // namespace quillfen
