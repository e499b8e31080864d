#pragma once

#include "portal/linksockets.h"
#include "portal/nmdc.h"
#include "portal/opnicks.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quillfen {

/// The two links, by the row of the hub list that drives them.
enum class Link
{
    One,
    Two
};

/// A column of the hub list.
enum class HubColumn
{
    Address,
    Password,
    Port,
    HubName ///< hidden: the address once more on a row that was loaded, empty on one that was added
};

/// What the links ask of the form that hosts them. Each text is read when it is needed, so that an edit takes
/// effect at once, also on a running link. Texts are code page bytes.
class PortalForm
{
public:
    PortalForm() = default;
    PortalForm(const PortalForm&) = delete;
    PortalForm& operator=(const PortalForm&) = delete;
    virtual ~PortalForm() = default;

    virtual std::string username() const = 0;
    virtual std::string description() const = 0;
    virtual std::string email() const = 0;
    virtual bool anyFieldEmpty() const = 0; ///< of the three above and the client IP

    /// A cell of the hub list, rows counted from 0; empty if there is no such row.
    virtual std::string hub(std::size_t row, HubColumn column) const = 0;
    virtual std::size_t hubCount() const = 0;
    virtual bool isChecked(std::size_t row) const = 0;

    /// Takes a row's tick away; the links hear nothing of it.
    virtual void uncheck(std::size_t row) = 0;

    /// Whether a nick stands in the list of nicks that are not relayed, exactly and with case.
    virtual bool isIgnored(std::string_view nick) const = 0;

    /// The box that asks for all fields to be filled in.
    virtual void tellMissingFields() = 0;

    /// A link that could not be opened, and why.
    virtual void tellOpenFailure(const SocketError& error) = 0;

    /// A datagram that could not be read, and why.
    virtual void tellDatagramFailure(const SocketError& error) = 0;

    /// Lets the event loop run once. Anything may happen in it: events of both links, the user's actions, the
    /// end of the form.
    virtual void yield() = 0;
};

/// The sockets of one link.
struct LinkSockets
{
    HubSocket& hub;
    ListenSocket& listener;
    DatagramSocket& datagrams;
};

/// Logs one bot in to two hubs and relays each hub's main chat to the other, spoken by that bot. Has no
/// clock, no thread and no sockets of its own: all runs in the events that its owner hands over.
class PortalLinks
{
public:
    PortalLinks(PortalForm& form, LinkSockets one, LinkSockets two);

    /// A row of the hub list was ticked: opens the link of the selected row, unless a field is empty or two
    /// other rows are ticked.
    void OpenLink(std::size_t selectedRow);

    /// A row's tick was taken away: says "$Quit" to the hub of the selected row and closes its link.
    void leaveHub(std::size_t selectedRow);

    /// Closes connection and listener. The receive buffer and the UDP socket stay as they are.
    void CloseLink(Link link);

    /// The form is gone: closes every socket. Nothing is sent, and whatever is running ends.
    void end();

    // The sockets' events.
    void hubDataArrived(Link link);
    void hubClosed(Link link) { CloseLink(link); }
    void hubFailed(Link link) { CloseLink(link); }
    void datagramArrived(Link link);

    /// Relays a line that was heard on a link to the other one.
    void RelayChatLine(std::string_view line, Link link);
    void SendMyInfo(Link link);

    void AddOpNick(std::string_view nick);
    void AddPlainNick(std::string_view nick);
    void RemoveNick(std::string_view nick);
    void RequestNickInfo(std::string_view nick);
    void ResetNickCounters() { m_nickCount = 0; }

    /// Answers true whatever it is given: the links keep no list of users, so no nick is ever new to them.
    static bool NickKnown(std::string_view nick);

    bool isLoggedIn(Link link) const { return at(link).loggedIn; }
    const OpNicks& colOpNicks() const { return m_opNicks; }
    std::size_t nickCount() const { return m_nickCount; }
    /// What a link has received and not yet handled.
    std::string_view waiting(Link link) const { return at(link).buffer.waiting(); }

    /// Whether a datagram with any text ever came.
    bool udpSeen() const { return m_udpSeen; }

private:
    struct LinkState
    {
        LinkSockets sockets;
        ReceiveBuffer buffer{};
        bool loggedIn = false;
    };

    LinkState& at(Link link) { return m_links[static_cast<std::size_t>(link)]; }
    const LinkState& at(Link link) const { return m_links[static_cast<std::size_t>(link)]; }

    using Answer = void (PortalLinks::*)(std::string_view parameters, Link link);
    struct Command
    {
        std::string_view word;
        Answer answer;
    };

    static const Command commands[];

    bool mayOpen(std::size_t selectedRow);
    void connectLink(std::size_t row);
    void closeAll(const LinkSockets& sockets);
    template <typename... Sockets>
    void waitUntilClosed(const Sockets&... sockets);
    void ProcessLinkBuffer(Link link);
    void handleMessages(Link link);
    void handleMessage(const std::string& message, Link link);

    void hearLock(std::string_view parameters, Link link);
    void hearGetPass(std::string_view parameters, Link link);
    void hearGetInfo(std::string_view parameters, Link link);
    void hearHello(std::string_view parameters, Link link);
    void hearLogedIn(std::string_view parameters, Link link);
    void hearOpList(std::string_view parameters, Link link);
    void hearQuit(std::string_view parameters, Link link);
    void hearMyInfo(std::string_view parameters, Link link);
    void hearNickList(std::string_view parameters, Link link);
    void hearValidateDenide(std::string_view parameters, Link link);

    void send(Link link, std::string_view message) { at(link).sockets.hub.SendData(message); }
    void logIn(Link link);
    template <typename Add>
    void eachNick(std::string_view nicks, Add add);

    PortalForm& m_form;
    std::array<LinkState, 2> m_links;
    OpNicks m_opNicks;
    std::size_t m_nickCount = 0;
    bool bLinkBusy = false; // one flag for both links
    bool m_udpSeen = false;
    bool m_ended = false;
};

} // namespace quillfen
