#include "portal/livelinks.h"

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
    connect(&hub, &TcpHubSocket::DataArrival, this,
            [this, link] { run([&] { m_links.hubDataArrived(link); }); });
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
