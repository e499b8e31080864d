// Hubs that say very much at once.
#include "portal/portaltest.h"

namespace quillfen {
namespace {

using test::Portal;

class Burst : public Portal
{
protected:
    /// Relays this many lines that come in pieces of this size.
    void relay(int lines, std::size_t piece)
    {
        std::string burst;
        for (int line = 0; line < lines; ++line)
            burst += "<user> line " + std::to_string(line) + '|';
        two.hub.sent.clear();
        for (std::size_t at = 0; at < burst.size(); at += piece)
            hear(Link::One, std::string_view(burst).substr(at, piece));
        EXPECT_EQ(two.hub.sent.size(), static_cast<std::size_t>(lines));
        EXPECT_EQ(two.hub.sent.front(), "<bot> <user> line 0|");
        EXPECT_EQ(two.hub.sent.back(), "<bot> <user> line " + std::to_string(lines - 1) + '|');
    }
};

TEST_F(Burst, ManyLinesInOneGoAreAllRelayed)
{
    logInBoth();
    relay(100'000, std::string::npos);
}

TEST_F(Burst, ManyLinesByteByByteAreAllRelayed)
{
    logInBoth();
    relay(100'000, 1);
}

TEST_F(Burst, OneLongMessageByteByByteIsSearchedOnce)
{
    connect(Link::One);
    // A search of the whole buffer for each byte would take hours.
    for (int byte = 0; byte < 1'000'000; ++byte)
        hear(Link::One, "x");
    EXPECT_EQ(links.waiting(Link::One).size(), 1'000'000U);
}

TEST_F(Burst, ManyOperatorsAndDeparturesTakeNoSquare)
{
    connect(Link::One);
    std::string list = "$OpList ";
    std::string departures;
    for (int nick = 0; nick < 100'000; ++nick) {
        list += "op" + std::to_string(nick) + "$$";
        departures += "$Quit op" + std::to_string(99'999 - nick) + "|$Quit nobody|";
    }
    hear(Link::One, list + '|');
    EXPECT_EQ(form.yields, 100'000);
    hear(Link::One, departures);
    EXPECT_TRUE(links.colOpNicks().empty());
}

} // namespace
} // namespace quillfen
