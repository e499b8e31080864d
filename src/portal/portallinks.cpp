#include "portal/portallinks.h"

#include <algorithm>

namespace quillfen {
namespace {

constexpr Link linkOf(std::size_t row)
{
    return row == 0 ? Link::One : Link::Two;
}

constexpr std::size_t rowOf(Link link)
{
    return static_cast<std::size_t>(link);
}

constexpr Link otherThan(Link link)
{
    return link == Link::One ? Link::Two : Link::One;
}

std::string upperCased(std::string_view word)
{
    std::string upper(word);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char character) {
        return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
    });
    return upper;
}

/// The speaker of a chat line: what stands before its first ">", without the character in front.
std::string_view speakerOf(std::string_view line)
{
    const auto end = line.find('>');
    return end == std::string_view::npos || end == 0 ? std::string_view() : line.substr(1, end - 1);
}

/// Holds the busy flag while a message loop runs, however the loop ends.
class Busy
{
public:
    explicit Busy(bool& flag) : m_flag(flag) { m_flag = true; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() { m_flag = false; }

private:
    bool& m_flag;
};

} // namespace

/// What a link answers to. Every other command changes nothing and sends nothing, $HubName, $To:, $Search,
/// $ForceMove and $BadPass among them: the link stays where it is and with whom it is.
constexpr PortalLinks::Command PortalLinks::commands[] = {
    {"$LOCK", &PortalLinks::hearLock},         {"$GETPASS", &PortalLinks::hearGetPass},
    {"$GETINFO", &PortalLinks::hearGetInfo},   {"$HELLO", &PortalLinks::hearHello},
    {"$LOGEDIN", &PortalLinks::hearLogedIn},   {"$OPLIST", &PortalLinks::hearOpList},
    {"$QUIT", &PortalLinks::hearQuit},         {"$MYINFO", &PortalLinks::hearMyInfo},
    {"$NICKLIST", &PortalLinks::hearNickList}, {"$VALIDATEDENIDE", &PortalLinks::hearValidateDenide},
};

PortalLinks::PortalLinks(PortalForm& form, LinkSockets one, LinkSockets two)
    : m_form(form),
      m_links{LinkState{one}, LinkState{two}}
{
}

void PortalLinks::OpenLink(std::size_t selectedRow)
{
    if (!mayOpen(selectedRow)) {
        if (!m_ended)
            m_form.uncheck(selectedRow);
        return;
    }
    try {
        connectLink(selectedRow);
    } catch (const SocketError& error) {
        const Link link = linkOf(selectedRow);
        at(link).sockets.datagrams.Close();
        CloseLink(link); // it may have been logged in before
        if (m_ended)
            return;
        m_form.uncheck(selectedRow);
        m_form.tellOpenFailure(error);
    }
}

bool PortalLinks::mayOpen(std::size_t selectedRow)
{
    if (m_form.anyFieldEmpty()) {
        m_form.tellMissingFields();
        return false;
    }
    std::size_t others = 0;
    for (std::size_t row = 0; row < m_form.hubCount(); ++row)
        others += row != selectedRow && m_form.isChecked(row) ? 1U : 0U;
    return others != 2;
}

void PortalLinks::connectLink(std::size_t row)
{
    const LinkSockets& sockets = at(linkOf(row)).sockets;
    closeAll(sockets);
    waitUntilClosed(sockets.hub, sockets.listener, sockets.datagrams);
    if (m_ended)
        return;
    const auto port = m_form.hub(row, HubColumn::Port);
    sockets.listener.Listen(port);
    sockets.datagrams.Bind(port);
    const auto address = m_form.hub(row, HubColumn::Address);
    sockets.hub.Connect(TextBefore(address, ":"), TextAfter(address, ":"));
}

void PortalLinks::closeAll(const LinkSockets& sockets)
{
    sockets.hub.Close();
    sockets.listener.Close();
    sockets.datagrams.Close();
}

template <typename... Sockets>
void PortalLinks::waitUntilClosed(const Sockets&... sockets)
{
    while (!m_ended && ((sockets.State() != SocketState::Closed) || ...))
        m_form.yield();
}

void PortalLinks::leaveHub(std::size_t selectedRow)
{
    const Link link = linkOf(selectedRow);
    try {
        // Hubs have always been told their own address here, and not the nick that leaves.
        send(link, "$Quit " + m_form.hub(selectedRow, HubColumn::Address) + messageEnd);
        CloseLink(link);
        if (!m_ended)
            at(link).sockets.datagrams.Close();
    } catch (const SocketError&) {
        // A link that was closed before can't say "$Quit": the steps behind are left out, and its UDP socket
        // stays bound until the link is opened again.
        return;
    }
}

void PortalLinks::CloseLink(Link link)
{
    ResetNickCounters();
    at(link).loggedIn = false;
    const LinkSockets& sockets = at(link).sockets;
    sockets.hub.Close();
    sockets.listener.Close();
    waitUntilClosed(sockets.hub, sockets.listener);
}

void PortalLinks::end()
{
    m_ended = true;
    for (const LinkState& link : m_links)
        closeAll(link.sockets);
}

void PortalLinks::hubDataArrived(Link link)
{
    HubSocket& hub = at(link).sockets.hub;
    if (hub.State() != SocketState::Connected)
        return;
    at(link).buffer.append(hub.GetData());
    try {
        ProcessLinkBuffer(link);
    } catch (const SocketError&) {
        // A hub hung up while it was being answered, and the loop ends; the socket's own event closes the
        // link.
        return;
    }
}

void PortalLinks::datagramArrived(Link link)
{
    try {
        if (!at(link).sockets.datagrams.GetData().empty())
            m_udpSeen = true;
    } catch (const SocketError& error) {
        m_form.tellDatagramFailure(error);
    }
}

/// One flag serves both links. While either loop runs, at its yields, new data of both waits in the buffers:
/// the running link takes up its own, the other link's stays until that link's next DataArrival.
void PortalLinks::ProcessLinkBuffer(Link link)
{
    if (bLinkBusy)
        return;
    const Busy busy(bLinkBusy);
    handleMessages(link);
}

void PortalLinks::handleMessages(Link link)
{
    while (!m_ended && bLinkBusy) {
        const auto message = at(link).buffer.takeMessage();
        if (!message)
            return;
        handleMessage(*message, link);
    }
}

void PortalLinks::handleMessage(const std::string& message, Link link)
{
    const auto command = TextBefore(message, " ");
    const auto parameters = TextAfter(message, " ");
    std::string line;
    line.append(command).append(" ").append(parameters) += messageEnd; // a line without a blank gets one here
    RelayChatLine(line, link);

    const auto word = upperCased(command);
    const auto* known = std::find_if(std::begin(commands), std::end(commands),
                                     [&word](const Command& candidate) { return candidate.word == word; });
    if (known != std::end(commands))
        (this->*known->answer)(parameters, link);
}

void PortalLinks::hearLock(std::string_view parameters, Link link)
{
    std::string lock(parameters);
    send(link, "$Key " + LockToKey(lock) + messageEnd);
    send(link, "$ValidateNick " + m_form.username() + messageEnd);
}

/// A hub that keeps denying the nick gets the same nick again, for ever.
void PortalLinks::hearValidateDenide(std::string_view /*parameters*/, Link link)
{
    send(link, "$ValidateNick " + m_form.username() + messageEnd);
}

/// Both links send the password of row 1, be it empty: link 1 if the row has a port, link 2 if there is a
/// description.
void PortalLinks::hearGetPass(std::string_view /*parameters*/, Link link)
{
    const bool answers =
        link == Link::One ? !m_form.hub(0, HubColumn::Port).empty() : !m_form.description().empty();
    if (answers)
        send(link, "$MyPass " + m_form.hub(0, HubColumn::Password) + messageEnd);
}

void PortalLinks::hearGetInfo(std::string_view parameters, Link link)
{
    if (TextBefore(parameters, " ") == m_form.username())
        SendMyInfo(link);
}

/// The first "$Hello" counts as our own, whoever it greets.
void PortalLinks::hearHello(std::string_view parameters, Link link)
{
    if (isLoggedIn(link))
        AddPlainNick(parameters);
    else
        logIn(link);
}

void PortalLinks::hearLogedIn(std::string_view /*parameters*/, Link link)
{
    if (!isLoggedIn(link))
        logIn(link);
}

void PortalLinks::logIn(Link link)
{
    send(link, "$Version 1.0091|");
    SendMyInfo(link);
    m_form.yield();
    if (m_ended)
        return;
    send(link, "$GetNickList|");
    at(link).loggedIn = true;
}

void PortalLinks::SendMyInfo(Link link)
{
    send(link, "$MyINFO $ALL " + m_form.username() + ' ' + m_form.description() + "$A$Bot\x08$" +
                   m_form.email() + "$0$|");
}

template <typename Add>
void PortalLinks::eachNick(std::string_view nicks, Add add)
{
    while (!nicks.empty()) {
        m_form.yield();
        if (m_ended)
            return;
        const auto nick = TextBefore(nicks, "$$");
        nicks = TextAfter(nicks, "$$");
        if (!nick.empty())
            add(nick);
    }
}

void PortalLinks::hearOpList(std::string_view parameters, Link /*link*/)
{
    eachNick(parameters, [this](std::string_view nick) { AddOpNick(nick); });
}

void PortalLinks::hearNickList(std::string_view parameters, Link /*link*/)
{
    ResetNickCounters();
    eachNick(parameters, [this](std::string_view nick) { AddPlainNick(nick); });
}

void PortalLinks::hearQuit(std::string_view parameters, Link /*link*/)
{
    RemoveNick(parameters);
}

/// Read as any client would, and dropped: the links keep no list of users.
void PortalLinks::hearMyInfo(std::string_view parameters, Link /*link*/)
{
    readMyInfo(parameters);
}

bool PortalLinks::NickKnown(std::string_view /*nick*/)
{
    return true;
}

void PortalLinks::AddOpNick(std::string_view nick)
{
    if (!NickKnown(nick))
        RequestNickInfo(nick);
    m_opNicks.append(nick);
}

void PortalLinks::AddPlainNick(std::string_view nick)
{
    if (NickKnown(nick) || m_opNicks.contains(nick))
        return;
    ++m_nickCount;
    RequestNickInfo(nick);
}

void PortalLinks::RequestNickInfo(std::string_view nick)
{
    for (const Link link : {Link::One, Link::Two}) {
        if (isLoggedIn(link))
            send(link, "$GetINFO " + std::string(nick) + ' ' + m_form.username() + messageEnd);
    }
}

/// The yield stands for one at each nick that a walk would pass: the busy flag keeps every other loop out, so
/// nothing can change between them.
void PortalLinks::RemoveNick(std::string_view nick)
{
    if (m_opNicks.empty())
        return;
    m_form.yield();
    m_opNicks.removeFirst(nick);
}

void PortalLinks::RelayChatLine(std::string_view line, Link link)
{
    if (line.starts_with('<' + m_form.username() + '>'))
        return; // our own words come back from every hub
    if (line.ends_with(messageEnd))
        line.remove_suffix(1);
    if (line.starts_with('$'))
        return;
    const auto nick = speakerOf(line);
    if (m_form.isIgnored(nick))
        return;
    const Link other = otherThan(link);
    if (isLoggedIn(other) && m_form.hub(rowOf(other), HubColumn::HubName) != nick)
        send(other, '<' + m_form.username() + "> " + std::string(line) + messageEnd);
}

} // namespace quillfen
