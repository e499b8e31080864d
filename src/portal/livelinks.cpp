#include "portal/livelinks.h"

#include <utility>

namespace quillfen {

LiveLinks::LiveLinks(PortalForm& form)
    : m_links(form, {wskHubConnection_1, wskListen_1, UDPSock_1},
              {wskHubConnection_2, wskListen_2, UDPSock_2})
{
    follow(wskHubConnection_1, UDPSock_1, Link::One);
    follow(wskHubConnection_2, UDPSock_2, Link::Two);
}

void LiveLinks::follow(TcpHubSocket& hub, UdpPort& datagrams, Link link)
{
    connect(&hub, &TcpHubSocket::DataArrival, this, [this, link] { run([&] { hearHub(link); }); });
    connect(&hub, &TcpHubSocket::Closed, this, [this, link] { run([&] { m_links.hubClosed(link); }); });
    connect(&hub, &TcpHubSocket::Error, this, [this, link] { run([&] { m_links.hubFailed(link); }); });
    connect(&datagrams, &UdpPort::DataArrival, this,
            [this, link] { run([&] { m_links.datagramArrived(link); }); });
}

template <typename Operation>
void LiveLinks::run(Operation operation)
{
    ++m_running;
    operation();
    if (--m_running == 0 && m_released)
        deleteLater();
}

/// What comes while a loop yields is laid aside by the links until that hub speaks again. One that waits for
/// our answer never does, so its socket is made to.
void LiveLinks::hearHub(Link link)
{
    m_passedOver[static_cast<std::size_t>(link)] = m_loops > 0;
    ++m_loops;
    m_links.hubDataArrived(link);
    if (--m_loops > 0)
        return;
    for (const Link each : {Link::One, Link::Two}) {
        if (std::exchange(m_passedOver[static_cast<std::size_t>(each)], false))
            hubOf(each).raiseDataArrival();
    }
}

void LiveLinks::OpenLink(int row)
{
    run([&] { m_links.OpenLink(static_cast<std::size_t>(row)); });
}

void LiveLinks::leaveHub(int row)
{
    run([&] { m_links.leaveHub(static_cast<std::size_t>(row)); });
}

void LiveLinks::release()
{
    end();
    m_released = true;
    if (m_running == 0)
        delete this;
}

} // namespace quillfen
