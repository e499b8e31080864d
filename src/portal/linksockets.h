#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace quillfen {

/// What a socket is about, as far as a link asks.
enum class SocketState
{
    Closed = 0,
    Open = 2, ///< listening, bound, or on its way to a connection
    Connected = 7
};

/// A socket call that failed: the platform's number and words.
class SocketError : public std::runtime_error
{
public:
    SocketError(int number, const std::string& description)
        : std::runtime_error(description),
          m_number(number)
    {
    }

    int number() const { return m_number; }

private:
    int m_number;
};

/// What all three sockets of a link have in common.
class LinkSocket
{
public:
    LinkSocket() = default;
    LinkSocket(const LinkSocket&) = delete;
    LinkSocket& operator=(const LinkSocket&) = delete;
    virtual ~LinkSocket() = default;

    virtual SocketState State() const = 0;

    /// Closes; a closed socket stays closed. It raises no event of what came before.
    virtual void Close() = 0;
};

/// The TCP connection to a hub. It raises DataArrival, Close and Error, which its owner hands to PortalLinks.
class HubSocket : public LinkSocket
{
public:
    /// Begins to connect; the port is a text as the user wrote it. Throws SocketError for one that is no
    /// port.
    virtual void Connect(std::string_view host, std::string_view port) = 0;

    /// Sends and forgets. Throws SocketError unless connected.
    virtual void SendData(std::string_view bytes) = 0;

    /// All that has been received and not yet been taken.
    virtual std::string GetData() = 0;
};

/// Listens on the client port; hubs announce it, but no connection is ever accepted.
class ListenSocket : public LinkSocket
{
public:
    /// Throws SocketError for a text that is no port, or a port that is not to be had.
    virtual void Listen(std::string_view port) = 0;
};

/// The UDP socket on the client port. It raises DataArrival.
class DatagramSocket : public LinkSocket
{
public:
    /// Throws as ListenSocket::Listen.
    virtual void Bind(std::string_view port) = 0;

    /// The next datagram. Throws SocketError.
    virtual std::string GetData() = 0;
};

} // namespace quillfen
