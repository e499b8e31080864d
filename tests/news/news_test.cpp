#include "news/news.h"
#include "support/golden.h"
#include "support/hub.h"

#include <gtest/gtest.h>
#include <map>
#include <ostream>

namespace quillfen {

inline std::ostream& operator<<(std::ostream& out, const NewsArticle& article)
{
    return out << article.number << ": " << article.date << '|' << article.symbol << '|' << article.headline
               << '|' << article.story;
}

namespace {

using test::golden;
using test::sameBytes;
using Strings = std::vector<std::string>;

constexpr const char* base = "http://maker/scripts/news/";
constexpr const char* errorPage = "<!DOCTYPE html><title>Not found | oops | x | y</title>";

class News : public testing::Test
{
protected:
    News()
    {
        for (const char* folder :
             {"/hub/scripts/Morvaleth's Scripts", "/hub/scripts/Morvaleth's Scripts/News"})
            hub.store.folders.insert(folder);
    }

    /// A start's fetch.
    std::optional<NewsArticle> fetch()
    {
        asked.clear();
        return fetchNews(hub.files, base, [this](const std::string& address) {
            EXPECT_TRUE(address.starts_with(base));
            asked.push_back(address.substr(std::string(base).size()));
            return server[asked.back()];
        });
    }

    bool nothingWritten() const { return hub.store.log.empty(); }

    test::Hub hub{"General", "General/Globals"};
    std::string& news = hub.store.files["/hub/scripts/Morvaleth's Scripts/News/News.tbl"];
    std::string& settings = hub.store.files["/hub/scripts/Morvaleth's Scripts/News/NewsSettings.tbl"];
    std::map<std::string, FetchedText> server; ///< what is missing gives no text
    Strings asked;
};

const NewsArticle oldArticle{"01/02/03", "Old news", "It was so", "star", "3"};
const NewsArticle newVersion{"04/05/06", "New version", "Fetch it now", "bolt", "7"};
constexpr const char* oldRow = "\t[3] = \"01/02/03|star|Old news|It was so\",\r\n";

TEST_F(News, TheFirstStartFetchesAllThatTheServerHas)
{
    server = {{"counter.txt", {"1|2"}}, {"1.txt", {"d1|s1|h1|t1"}}, {"2.txt", {"d2|s2|h2|t2"}}};
    EXPECT_EQ(fetch(), (NewsArticle{"d2", "h2", "t2", "s2", "2"}));
    EXPECT_EQ(asked, (Strings{"counter.txt", "1.txt", "2.txt"}));
    EXPECT_TRUE(sameBytes(settings, "tNewsSettings = { \r\n\tiLastID = 2,\r\n}\r\n"));
    EXPECT_TRUE(
        sameBytes(news, "tNews = {\r\n\t[1] = \"d1|s1|h1|t1\",\r\n\t[2] = \"d2|s2|h2|t2\",\r\n}\r\n"));
}

TEST_F(News, NewArticlesAreWrittenBehindTheOldOnes)
{
    settings = "tNewsSettings = { \r\n\tiLastID = 6,\r\n}\r\n";
    news = std::string("tNews = {\r\n") + oldRow + "}\r\n";
    server = {{"counter.txt", {"1|8"}},
              {"7.txt", {"04/05/06|bolt|New version|Fetch it now"}},
              {"8.txt", {"07/08/09|bolt|Newer version|Fetch it again"}}};
    fetch();
    EXPECT_EQ(asked, (Strings{"counter.txt", "7.txt", "8.txt"}));
    EXPECT_TRUE(sameBytes(news, golden("news/News.fetched.tbl")));
    EXPECT_TRUE(sameBytes(settings, golden("news/NewsSettings.fetched.tbl")));
}

TEST_F(News, TheSettingsAreWrittenBeforeTheArchive)
{
    server = {{"counter.txt", {"1|1"}}, {"1.txt", {"d|s|h|t"}}};
    fetch();
    EXPECT_EQ(hub.store.log, (Strings{"write /hub/scripts/Morvaleth's Scripts/News/NewsSettings.tbl",
                                      "write /hub/scripts/Morvaleth's Scripts/News/News.tbl"}));
}

TEST_F(News, WithNothingNewTheLastStoredArticleIsShown)
{
    settings = "tNewsSettings = { \r\n\tiLastID = 7,\r\n}\r\n";
    news = std::string("tNews = {\r\n") + oldRow + "}\r\n";
    server = {{"counter.txt", {"1|7"}}};
    EXPECT_EQ(fetch(), oldArticle);
    EXPECT_EQ(asked, Strings{"counter.txt"});
    EXPECT_TRUE(nothingWritten());
}

TEST_F(News, WithNothingNewAndNothingStoredNothingIsShown)
{
    settings = "tNewsSettings = { \r\n\tiLastID = 7,\r\n}\r\n";
    server = {{"counter.txt", {"1|7"}}};
    EXPECT_EQ(fetch(), std::nullopt);
}

TEST_F(News, AGapIsSkipped)
{
    settings = "tNewsSettings = { \r\n\tiLastID = 2,\r\n}\r\n";
    server = {{"counter.txt", {"7|7"}}, {"7.txt", {"04/05/06|bolt|New version|Fetch it now"}}};
    EXPECT_EQ(fetch(), newVersion);
    EXPECT_EQ(asked, (Strings{"counter.txt", "7.txt"}));
}

TEST_F(News, ADeletedArticleDoesNotComeBack)
{
    server = {{"counter.txt", {"1|2"}}, {"1.txt", {"d1|s1|h1|t1"}}, {"2.txt", {"d2|s2|h2|t2"}}};
    fetch();
    auto rows = loadNews(hub.files);
    rows.erase(rows.begin());
    saveNews(hub.files, rows);
    fetch();
    EXPECT_EQ(asked, Strings{"counter.txt"});
    EXPECT_EQ(loadNews(hub.files), rows);
}

TEST_F(News, AnErrorPageEndsTheFetchingAndKeepsWhatCameBefore)
{
    server = {
        {"counter.txt", {"1|3"}}, {"1.txt", {"d1|s1|h1|t1"}}, {"2.txt", {errorPage}}, {"3.txt", {"d|s|h|t"}}};
    EXPECT_EQ(fetch(), (NewsArticle{"d1", "h1", "t1", "s1", "1"}));
    EXPECT_EQ(asked, (Strings{"counter.txt", "1.txt", "2.txt"}));
    EXPECT_TRUE(sameBytes(settings, "tNewsSettings = { \r\n\tiLastID = 1,\r\n}\r\n"));
    EXPECT_TRUE(sameBytes(news, "tNews = {\r\n\t[1] = \"d1|s1|h1|t1\",\r\n}\r\n"));
    fetch();
    EXPECT_EQ(asked, (Strings{"counter.txt", "2.txt"})) << "the next start tries it again";
}

TEST_F(News, AnErrorPageForTheFirstNewArticleShowsTheLastStoredOne)
{
    settings = "tNewsSettings = { \r\n\tiLastID = 3,\r\n}\r\n";
    news = std::string("tNews = {\r\n") + oldRow + "}\r\n";
    server = {{"counter.txt", {"1|4"}}, {"4.txt", {errorPage}}};
    EXPECT_EQ(fetch(), oldArticle);
    EXPECT_TRUE(nothingWritten());
}

TEST_F(News, AnErrorStatusCountsAsAnErrorPageWhateverItsText)
{
    for (const char* body : {"Not Found", "", "<html>d|s|h|t</html>"}) {
        settings.clear();
        server = {{"counter.txt", {"1|2"}}, {"1.txt", {"d1|s1|h1|t1"}}, {"2.txt", {body, true}}};
        fetch();
        EXPECT_TRUE(sameBytes(settings, "tNewsSettings = { \r\n\tiLastID = 1,\r\n}\r\n"));
    }
}

TEST_F(News, OnlyTheExactFirstFiveCharactersMakeAnErrorPage)
{
    server = {{"counter.txt", {"1|1"}}, {"1.txt", {"<!DO|s|h|t"}}};
    EXPECT_EQ(fetch(), (NewsArticle{"<!DO", "h", "t", "s", "1"}));
}

TEST_F(News, WithoutANetworkNothingIsWrittenOrShown)
{
    news = std::string("tNews = {\r\n") + oldRow + "}\r\n";
    EXPECT_EQ(fetch(), std::nullopt);
    EXPECT_EQ(asked, Strings{"counter.txt"});
    EXPECT_TRUE(nothingWritten());
}

TEST_F(News, ACounterThatIsNoCounterEndsTheStep)
{
    for (const char* counter : {"", "5", "|", "1|", "|5", "a|b", "1|5x", "--1|5", "1|9007199254740993",
                                "1|9999999999999999999999", "-99999999999999999999|5", errorPage}) {
        server = {{"counter.txt", {counter}}, {"1.txt", {"d|s|h|t"}}};
        EXPECT_EQ(fetch(), std::nullopt) << counter;
        EXPECT_EQ(asked, Strings{"counter.txt"}) << counter;
    }
    EXPECT_TRUE(nothingWritten());
}

TEST_F(News, TheLastNumberIsReadAsAnyNumberIs)
{
    for (const char* last : {"2", "2.0", "2.9", "+2", "\"2\"", "0002", "2e0", "2 -- the last one"}) {
        settings = std::string("tNewsSettings = { \r\n\tiLastID = ") + last + ",\r\n}\r\n";
        server = {{"counter.txt", {"1|3"}}, {"3.txt", {"d|s|h|t"}}};
        EXPECT_TRUE(fetch()) << last;
        EXPECT_EQ(asked, (Strings{"counter.txt", "3.txt"})) << last;
        EXPECT_TRUE(sameBytes(settings, "tNewsSettings = { \r\n\tiLastID = 3,\r\n}\r\n"));
    }
}

TEST_F(News, BlanksBeforeTheLastNumberDontCount)
{
    settings = "tNewsSettings = { \r\n\tiLastID = \"  7\",\r\n}\r\n";
    server = {{"counter.txt", {"1|8"}}, {"8.txt", {"d|s|h|t"}}};
    fetch();
    EXPECT_EQ(asked, (Strings{"counter.txt", "8.txt"}));
}

TEST_F(News, ALastNumberThatIsNoneCountsAsZero)
{
    for (const char* last : {"", "none", "info", "nan"}) {
        settings = std::string("tNewsSettings = { \r\n\tiLastID = ") + last + ",\r\n}\r\n";
        server = {{"counter.txt", {"0|1"}}, {"1.txt", {"d|s|h|t"}}};
        EXPECT_TRUE(fetch()) << last;
        EXPECT_EQ(asked, (Strings{"counter.txt", "1.txt"})) << last;
    }
}

TEST_F(News, ALastNumberBelowZeroIsOne)
{
    settings = "tNewsSettings = { \r\n\tiLastID = -3,\r\n}\r\n";
    server = {{"counter.txt", {"-9|-1"}}, {"-2.txt", {"d2|s|h|t"}}, {"-1.txt", {"d1|s|h|t"}}};
    EXPECT_EQ(fetch(), (NewsArticle{"d1", "h", "t", "s", "-1"}));
    EXPECT_EQ(asked, (Strings{"counter.txt", "-2.txt", "-1.txt"}));
    EXPECT_TRUE(sameBytes(settings, "tNewsSettings = { \r\n\tiLastID = -1,\r\n}\r\n"));
}

TEST_F(News, ALastNumberThatIsTooLargeEndsTheStep)
{
    news = std::string("tNews = {\r\n") + oldRow + "}\r\n";
    for (const std::string& last : {std::string("99999999999999999999"), std::string("9007199254740993"),
                                    std::string("-1e20"), std::string("1e999"), std::string(400, '9')}) {
        settings = "tNewsSettings = { \r\n\tiLastID = " + last + ",\r\n}\r\n";
        server = {{"counter.txt", {"1|3"}}, {"1.txt", {"d|s|h|t"}}};
        EXPECT_EQ(fetch(), std::nullopt) << last;
        EXPECT_EQ(asked, Strings()) << last;
    }
    EXPECT_TRUE(nothingWritten());
}

TEST_F(News, ACounterMayHaveSignsAndDecimals)
{
    for (const char* counter : {"-3|2", "+1|+2", "1.0|2.0", " 1|2.5 \r\n", "0|2e0"}) {
        settings.clear();
        server = {{"counter.txt", {counter}}, {"1.txt", {"d|s|h|t"}}, {"2.txt", {"d|s|h|t"}}};
        EXPECT_TRUE(fetch()) << counter;
        EXPECT_EQ(asked, (Strings{"counter.txt", "1.txt", "2.txt"})) << counter;
    }
}

TEST_F(News, AnErrorStatusForTheCounterIsNoCounter)
{
    news = std::string("tNews = {\r\n") + oldRow + "}\r\n";
    server = {{"counter.txt", {"1|3", true}}, {"1.txt", {"d|s|h|t"}}};
    EXPECT_EQ(fetch(), std::nullopt);
    EXPECT_EQ(asked, Strings{"counter.txt"});
    EXPECT_TRUE(nothingWritten());
}

TEST_F(News, ACounterMayStandBehindBlanksAndLineEnds)
{
    server = {{"counter.txt", {"\r\n 1|\t1"}}, {"1.txt", {"d|s|h|t"}}};
    fetch();
    EXPECT_EQ(asked, (Strings{"counter.txt", "1.txt"}));
}

TEST_F(News, ACounterMayEndInALineEndOrFurtherFields)
{
    server = {{"counter.txt", {"1|1\r\n"}}, {"1.txt", {"d|s|h|t"}}};
    EXPECT_TRUE(fetch());
    settings.clear();
    server["counter.txt"] = {" 1 | 1 |9"};
    EXPECT_TRUE(fetch());
}

TEST_F(News, AnArticleThatIsCutOffEndsTheStepAndNothingIsWritten)
{
    settings = "tNewsSettings = { \r\n\tiLastID = 3,\r\n}\r\n";
    server = {{"counter.txt", {"1|5"}}, {"4.txt", {"d4|s4|h4|t4"}}, {"5.txt", {""}}};
    EXPECT_EQ(fetch(), (NewsArticle{"d4", "h4", "t4", "s4", "4"})) << "it was shown before the error";
    EXPECT_TRUE(nothingWritten());
    fetch();
    EXPECT_EQ(asked[1], "4.txt") << "a later start tries again";
}

TEST_F(News, AnArticleWithoutAllItsFieldsEndsTheStepAndNothingIsWritten)
{
    for (const char* text : {"d", "d|s", "d|s|h"}) {
        server = {{"counter.txt", {"1|1"}}, {"1.txt", {text}}};
        EXPECT_EQ(fetch(), std::nullopt) << text;
    }
    EXPECT_TRUE(nothingWritten());
}

TEST_F(News, AnEmptyFieldIsAField)
{
    server = {{"counter.txt", {"1|1"}}, {"1.txt", {"|||"}}};
    EXPECT_EQ(fetch(), (NewsArticle{"", "", "", "", "1"}));
}

TEST_F(News, ABarInAStoryDropsTheRestOfIt)
{
    server = {{"counter.txt", {"1|1"}}, {"1.txt", {"d|s|h|one|two|three"}}};
    EXPECT_EQ(fetch()->story, "one");
    EXPECT_TRUE(sameBytes(news, "tNews = {\r\n\t[1] = \"d|s|h|one\",\r\n}\r\n"));
}

TEST_F(News, ATextComesBackCutAtItsEqualsSign)
{
    server = {{"counter.txt", {"1|2"}}, {"1.txt", {"d|s|h|a = b"}}, {"2.txt", {"d|s|1+1=2|story"}}};
    EXPECT_EQ(fetch()->headline, "1+1=2") << "as fetched";
    const auto stored = loadNews(hub.files);
    ASSERT_EQ(stored.size(), 2U);
    EXPECT_EQ(stored[0], (NewsArticle{"d", "h", "a", "s", "1"}));
    EXPECT_EQ(stored[1], (NewsArticle{"d", "1+1", "", "s", "2"}));
}

TEST_F(News, AnEmptyBaseAddressFetchesNothing)
{
    news = std::string("tNews = {\r\n") + oldRow + "}\r\n";
    const auto never = [](const std::string& address) {
        ADD_FAILURE() << address;
        return FetchedText();
    };
    EXPECT_EQ(fetchNews(hub.files, "", never), std::nullopt);
    EXPECT_TRUE(nothingWritten());
}

TEST_F(News, AFolderThatCannotBeWrittenCostsTheArchiveAlone)
{
    server = {{"counter.txt", {"1|1"}}, {"1.txt", {"d|s|h|t"}}};
    hub.store.failingCall = 0;
    EXPECT_EQ(fetch(), (NewsArticle{"d", "h", "t", "s", "1"}));
}

TEST_F(News, WhatComesTooLateIsLeftToTheNextStart)
{
    server = {{"counter.txt", {"1|9000000000000000"}}, {"1.txt", {"d|s|h|t"}}, {"2.txt", {"", false, true}}};
    EXPECT_TRUE(fetch());
    EXPECT_EQ(asked.back(), "2.txt");
    EXPECT_TRUE(sameBytes(settings, "tNewsSettings = { \r\n\tiLastID = 1,\r\n}\r\n"));
}

TEST_F(News, TextOfALimitsSizeIsTheLastOfAStart)
{
    const std::string fields = "d|s|h|";
    const std::size_t limit = std::size_t{16} << 20U;
    for (const std::size_t size : {limit - 1, limit}) {
        server = {{"counter.txt", {"1|2"}},
                  {"1.txt", {fields + std::string(size - fields.size(), 'x')}},
                  {"2.txt", {"d|s|h|t"}}};
        settings.clear();
        asked.clear();
        fetch();
        EXPECT_EQ(asked.back(), size < limit ? "2.txt" : "1.txt");
    }
}

TEST_F(News, OneStartTakesNoMoreTextThanItsLimit)
{
    server["counter.txt"] = {"1|9000000000000000"};
    const std::string story(std::size_t{1} << 20U, 'x');
    for (int number = 1; number <= 20; ++number)
        server[std::to_string(number) + ".txt"] = {"d|s|h|" + story};
    fetch();
    EXPECT_EQ(asked.back(), "16.txt");
    EXPECT_TRUE(sameBytes(settings, "tNewsSettings = { \r\n\tiLastID = 16,\r\n}\r\n"));
}

TEST_F(News, TheVersionIsTheFirstFieldOfItsText)
{
    EXPECT_EQ(versionAddress("http://maker/scripts/updates/"), "http://maker/scripts/updates/quillfen.txt");
    EXPECT_EQ(readVersion({"5.3.0*http://maker/*x"}), "5.3.0");
    EXPECT_EQ(readVersion({"5.3.0"}), "5.3.0");
    EXPECT_EQ(readVersion({"*x"}), "");
    EXPECT_EQ(readVersion({}), std::nullopt);
    EXPECT_EQ(readVersion({errorPage}), std::nullopt);
    EXPECT_EQ(readVersion({"Not Found", true}), std::nullopt);
}

TEST_F(News, TheDownloadIsOfferedWhenTheTreesVersionDiffersFromTheProgram)
{
    hub.file("General/Globals/Version.tbl") = "tVersion = {\r\n\tsVersion = \"5.2.0\",\r\n}\r\n";
    EXPECT_FALSE(offersDownload(hub.files, "5.2.0"));
    EXPECT_TRUE(offersDownload(hub.files, "5.2.1"));
    hub.file("General/Globals/Version.tbl").clear();
    EXPECT_TRUE(offersDownload(hub.files, "5.2.0"));
}

} // namespace
} // namespace quillfen
