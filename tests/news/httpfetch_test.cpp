#include "news/httpfetch.h"
#include "support/webserver.h"

#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

namespace quillfen {
namespace {

using std::chrono::milliseconds;

class HttpFetchTest : public testing::Test
{
protected:
    FetchedText fetched(const QString& path, milliseconds limit = std::chrono::seconds(5))
    {
        HttpFetch fetch(limit);
        QElapsedTimer timer;
        timer.start();
        const auto text = fetch((server.base() + path).toStdString());
        took = milliseconds(timer.elapsed());
        return text;
    }

    test::WebServer server;
    milliseconds took{};
};

TEST_F(HttpFetchTest, GivesTheTextAsItStands)
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    server.serve("all.txt", bytes);
    const auto text = fetched("all.txt");
    EXPECT_EQ(text.text, bytes.toStdString());
    EXPECT_FALSE(text.isError);
}

TEST_F(HttpFetchTest, AnEmptyPageIsEmpty)
{
    server.serve("empty.txt", "");
    EXPECT_EQ(fetched("empty.txt").text, "");
    EXPECT_FALSE(fetched("empty.txt").isError);
}

TEST_F(HttpFetchTest, AnErrorStatusIsToldWithItsText)
{
    EXPECT_EQ(fetched("missing.txt").text, "Not Found");
    EXPECT_TRUE(fetched("missing.txt").isError);
    server.serve("broken.txt", "<!DOCTYPE html>oops", "500 Internal Server Error");
    EXPECT_EQ(fetched("broken.txt").text, "<!DOCTYPE html>oops");
    EXPECT_TRUE(fetched("broken.txt").isError);
}

TEST_F(HttpFetchTest, ASilentServerCostsTheTimeLimit)
{
    server.silent = {"/silent.txt"};
    EXPECT_EQ(fetched("silent.txt", milliseconds(300)).text, "");
    EXPECT_GE(took, milliseconds(290));
    EXPECT_LT(took, milliseconds(3000));
}

TEST_F(HttpFetchTest, ADrippingServerCostsNoMore)
{
    server.dripping = {"/drip.txt"};
    EXPECT_EQ(fetched("drip.txt", milliseconds(300)).text, "");
    EXPECT_LT(took, milliseconds(3000));
}

TEST_F(HttpFetchTest, ADeadServerCostsLess)
{
    server.close();
    EXPECT_EQ(fetched("counter.txt").text, "");
    EXPECT_LT(took, milliseconds(4000));
}

TEST_F(HttpFetchTest, ACutConnectionGivesNothing)
{
    server.answers["/cut.txt"] =
        "HTTP/1.1 200 OK\r\nContent-Length: 100\r\nConnection: close\r\n\r\nd|s|h|story";
    EXPECT_EQ(fetched("cut.txt").text, "");
    server.answers["/none.txt"] = "";
    EXPECT_EQ(fetched("none.txt").text, "");
    server.answers["/noise.txt"] = "this is no web server";
    EXPECT_EQ(fetched("noise.txt").text, "");
}

TEST_F(HttpFetchTest, TheSizeLimitIsOneMebibyte)
{
    server.serve("most.txt", QByteArray(1 << 20, 'x'));
    EXPECT_EQ(fetched("most.txt").text.size(), std::size_t{1} << 20U);
    server.serve("more.txt", QByteArray((1 << 20) + 1, 'x'));
    EXPECT_EQ(fetched("more.txt").text, "");
}

TEST_F(HttpFetchTest, AnEndlessBodyIsLeftAtTheSizeLimit)
{
    server.endless = {"/endless.txt"};
    EXPECT_EQ(fetched("endless.txt", std::chrono::seconds(60)).text, "");
    EXPECT_LT(took, std::chrono::seconds(30));
}

TEST_F(HttpFetchTest, ARedirectOnTheSameHostIsFollowed)
{
    server.redirect("old.txt", "/new.txt");
    server.serve("new.txt", "moved");
    EXPECT_EQ(fetched("old.txt").text, "moved");
}

TEST_F(HttpFetchTest, ARedirectToAnotherPortOfTheSameHostIsFollowed)
{
    test::WebServer other;
    other.serve("new.txt", "next door");
    server.redirect("old.txt", other.base() + "new.txt");
    EXPECT_EQ(fetched("old.txt").text, "next door");
}

TEST_F(HttpFetchTest, AnErrorStatusBehindARedirectIsToldWithItsText)
{
    server.redirect("old.txt", "/new.txt");
    server.serve("new.txt", "gone", "410 Gone");
    const FetchedText answer = fetched("old.txt");
    EXPECT_EQ(answer.text, "gone");
    EXPECT_TRUE(answer.isError);
}

TEST_F(HttpFetchTest, ARedirectToAnotherHostIsNot)
{
    test::WebServer other;
    other.serve("new.txt", "elsewhere");
    server.redirect("old.txt", other.base().replace("127.0.0.1", "localhost") + "new.txt");
    EXPECT_EQ(fetched("old.txt", milliseconds(6000)).text, "");
    EXPECT_EQ(other.asked, QStringList());
    EXPECT_LT(took, milliseconds(3000)) << "it is not waited for";
}

TEST_F(HttpFetchTest, ARedirectToAFileIsNot)
{
    server.redirect("old.txt", "file:///etc/hostname");
    EXPECT_EQ(fetched("old.txt", milliseconds(1000)).text, "");
}

TEST_F(HttpFetchTest, ARedirectInACircleEnds)
{
    server.redirect("a.txt", "/b.txt");
    server.redirect("b.txt", "/a.txt");
    EXPECT_EQ(fetched("a.txt").text, "");
    EXPECT_EQ(server.asked, (QStringList{"/a.txt", "/b.txt", "/a.txt", "/b.txt", "/a.txt", "/b.txt"}));
    EXPECT_LT(took, milliseconds(4000));
}

TEST_F(HttpFetchTest, ARequestThatIsDroppedSaysNothingMore)
{
    server.silent = {"/silent.txt"};
    server.serve("short.txt", "short");
    HttpFetch fetch(std::chrono::seconds(5));
    auto dropped = fetch.begin((server.base() + "silent.txt").toStdString());
    QObject::connect(dropped.get(), &HttpRequest::finished, dropped.get(), [] { ADD_FAILURE(); });
    ASSERT_TRUE(QTest::qWaitFor([this] { return !server.asked.isEmpty(); }));
    EXPECT_TRUE(dropped->isRunning());
    dropped.reset();
    EXPECT_EQ(fetch((server.base() + "short.txt").toStdString()).text, "short");
}

TEST_F(HttpFetchTest, WhatIsNoWebAddressIsNotFetched)
{
    HttpFetch fetch;
    for (const char* address : {"", "nonsense", "file:///etc/hostname", "ftp://127.0.0.1/x", "http://"})
        EXPECT_EQ(fetch(address).text, "") << address;
}

} // namespace
} // namespace quillfen
