#pragma once

#include "support/portalfakes.h"

#include <gtest/gtest.h>
#include <ostream>
#include <utility>

namespace quillfen {

inline std::ostream& operator<<(std::ostream& out, Link link)
{
    return out << "link " << (link == Link::One ? 1 : 2);
}

namespace test {

using Strings = std::vector<std::string>;
inline constexpr Link both[] = {Link::One, Link::Two};
inline constexpr const char* myInfo = "$MyINFO $ALL bot The bot$A$Bot\x08$bot@hub$0$|";

/// Two links whose hubs are fakes.
class Portal : public testing::Test, public PortalFixture
{
protected:
    /// What a link says to its hub when the hub says this.
    Strings answer(Link link, std::string_view bytes)
    {
        sockets(link).hub.sent.clear();
        hear(link, bytes);
        return std::exchange(sockets(link).hub.sent, {});
    }

    void logInBoth()
    {
        logIn(Link::One);
        logIn(Link::Two);
    }

    /// What hub 2 gets to hear when somebody speaks in hub 1.
    std::string relayed(std::string_view line)
    {
        two.hub.sent.clear();
        hear(Link::One, line);
        EXPECT_EQ(one.hub.sent, Strings());
        return two.hub.all();
    }
};

} // namespace test
} // namespace quillfen
