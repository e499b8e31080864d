#pragma once

#include "portal/linksockets.h"

#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>

namespace quillfen {

/// A hub's TCP connection. Its events are queued and raised from the event loop alone, in the order in which
/// they came, so that a yield in the middle of one raises the next. What a hub sent before it hung up is
/// raised before its hanging up.
class TcpHubSocket : public QObject, public HubSocket
{
    Q_OBJECT

public:
    explicit TcpHubSocket(const QString& name, QObject* parent = nullptr);

    SocketState State() const override { return m_state; }
    void Connect(std::string_view host, std::string_view port) override;
    void SendData(std::string_view bytes) override;
    std::string GetData() override;
    void Close() override;

    /// Raises DataArrival once more, also without anything new.
    void raiseDataArrival() { post(&TcpHubSocket::DataArrival); }

signals:
    void DataArrival();
    void Closed(); ///< the hub hung up; the state is closed by then, as after an error
    void Error();

private:
    using Event = void (TcpHubSocket::*)();

    void take();
    void post(Event arrival);

    QTcpSocket m_socket;
    SocketState m_state = SocketState::Closed;
    std::string m_arrived;
    int m_connection = 0; ///< counts them: what an earlier one queued is not raised any more
};

/// Takes the client port and accepts nobody.
class TcpListener : public ListenSocket
{
public:
    explicit TcpListener(const QString& name) { m_server.setObjectName(name); }

    SocketState State() const override;
    void Listen(std::string_view port) override;
    void Close() override { m_server.close(); }

private:
    QTcpServer m_server;
};

/// The UDP socket on the client port.
class UdpPort : public QObject, public DatagramSocket
{
    Q_OBJECT

public:
    explicit UdpPort(const QString& name, QObject* parent = nullptr);

    SocketState State() const override;
    void Bind(std::string_view port) override;
    std::string GetData() override;
    void Close() override;

signals:
    void DataArrival();

private:
    QUdpSocket m_socket;
};

} // namespace quillfen
