#include "functions/security/rules.h"
#include "functions/security/securitytest.h"

namespace quillfen {
namespace {

class Rules : public test::SecurityFiles
{
};

TEST_F(Rules, ABuildMakesAnEmptyTextForEachProfile)
{
    buildFunction(rulesFunction(), hub.files, hub.profiles);
    EXPECT_EQ(hub.store.files.size(), 4U);
    for (const char* key : {"-1", "0", "1", "2"})
        EXPECT_EQ(file(std::string("Rules/Ascii/") + key + ".asc"), "\r\n")
            << "no text and the writer's line end";
}

TEST_F(Rules, ABuildLeavesWhatIsThere)
{
    file("Rules/Ascii/0.asc") = "Be kind";
    buildFunction(rulesFunction(), hub.files, hub.profiles);
    EXPECT_EQ(file("Rules/Ascii/0.asc"), "Be kind");
    EXPECT_EQ(hub.store.log.size(), 3U);
}

} // namespace
} // namespace quillfen
