#pragma once

#include "portal/platformsockets.h"
#include "portal/portallinks.h"

namespace quillfen {

/// The two links on the platform's sockets. They may outlive the form that hosts them by a moment: when it
/// goes in the middle of a yield, what runs must come back to something.
class LiveLinks : public QObject
{
    Q_OBJECT

public:
    explicit LiveLinks(PortalForm& form);

    void OpenLink(int row);
    void leaveHub(int row);

    /// Closes every socket; the form is not asked for anything any more.
    void end() { m_links.end(); }

    /// Ends, and deletes itself as soon as nothing of it runs.
    void release();

    bool isLoggedIn(Link link) const { return m_links.isLoggedIn(link); }
    bool udpSeen() const { return m_links.udpSeen(); }

private:
    void follow(TcpHubSocket& hub, UdpPort& datagrams, Link link);
    void hearHub(Link link);
    TcpHubSocket& hubOf(Link link) { return link == Link::One ? wskHubConnection_1 : wskHubConnection_2; }
    template <typename Operation>
    void run(Operation operation);

    TcpHubSocket wskHubConnection_1{"wskHubConnection_1", this};
    TcpHubSocket wskHubConnection_2{"wskHubConnection_2", this};
    TcpListener wskListen_1{"wskListen_1"};
    TcpListener wskListen_2{"wskListen_2"};
    UdpPort UDPSock_1{"UDPSock_1", this};
    UdpPort UDPSock_2{"UDPSock_2", this};
    PortalLinks m_links;
    int m_running = 0;
    int m_loops = 0;                       ///< message loops, one in another's yields
    std::array<bool, 2> m_passedOver = {}; ///< the links that heard something in a loop's yields
    bool m_released = false;
};

} // namespace quillfen
