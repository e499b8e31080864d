#include "portal/platformsockets.h"

#include "shell/kit/codepagetext.h"

#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QSignalBlocker>

#include <utility>

namespace quillfen {
namespace {

/// Received in one piece, so that a burst is handled in pieces and the window lives on between them.
constexpr qint64 pieceSize = qint64{64} * 1024;

/// A hub that leaves so much of what it is sent is not there any more.
constexpr qint64 unsentLimit = qint64{64} * 1024 * 1024;

quint16 portNumber(std::string_view text)
{
    bool isPort = false;
    const auto port = fromBytes(text).trimmed().toUShort(&isPort);
    if (!isPort) {
        const QString reason = QStringLiteral("\"%1\" is no port").arg(fromBytes(text));
        throw SocketError(QAbstractSocket::SocketAddressNotAvailableError, reason.toStdString());
    }
    return port;
}

SocketError portError(std::string_view port, int number, const QString& reason)
{
    return {number, QStringLiteral("port %1: %2").arg(fromBytes(port), reason).toStdString()};
}

} // namespace

TcpHubSocket::TcpHubSocket(const QString& name, QObject* parent) : QObject(parent)
{
    setObjectName(name);
    m_socket.setReadBufferSize(pieceSize);
    m_socket.setProxy(QNetworkProxy::NoProxy);
    connect(&m_socket, &QTcpSocket::connected, this, [this] { m_state = SocketState::Connected; });
    connect(&m_socket, &QTcpSocket::readyRead, this, &TcpHubSocket::take);
    connect(&m_socket, &QTcpSocket::disconnected, this, [this] {
        take();
        post(&TcpHubSocket::Closed);
    });
    connect(&m_socket, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
        if (error != QAbstractSocket::RemoteHostClosedError) // which is no error, and tells itself
            post(&TcpHubSocket::Error);
    });
}

void TcpHubSocket::Connect(std::string_view host, std::string_view port)
{
    const auto number = portNumber(port);
    m_state = SocketState::Open;
    m_socket.connectToHost(fromBytes(host), number);
}

void TcpHubSocket::take()
{
    const bool raised = !m_arrived.empty(); // and not yet handled
    m_arrived += m_socket.readAll().toStdString();
    if (!raised && !m_arrived.empty())
        post(&TcpHubSocket::DataArrival);
}

void TcpHubSocket::post(Event arrival)
{
    const auto raised = [this, arrival, connection = m_connection] {
        if (connection != m_connection)
            return;
        const bool isOver = arrival != &TcpHubSocket::DataArrival; // from here on neither read nor written
        m_state = isOver ? SocketState::Closed : m_state;
        emit(this->*arrival)();
    };
    QMetaObject::invokeMethod(this, raised, Qt::QueuedConnection);
}

void TcpHubSocket::SendData(std::string_view bytes)
{
    if (m_state != SocketState::Connected)
        throw SocketError(QAbstractSocket::OperationError, "Socket is not connected");
    // A hub that has just hung up loses it, as it would on the wire.
    m_socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
    if (m_socket.bytesToWrite() > unsentLimit)
        post(&TcpHubSocket::Error);
}

std::string TcpHubSocket::GetData()
{
    return std::exchange(m_arrived, {});
}

void TcpHubSocket::Close()
{
    ++m_connection;
    m_state = SocketState::Closed;
    m_arrived.clear();
    const QSignalBlocker noEvents(m_socket);
    m_socket.flush(); // a farewell goes out as far as the hub takes it
    m_socket.abort();
}

SocketState TcpListener::State() const
{
    return m_server.isListening() ? SocketState::Open : SocketState::Closed;
}

void TcpListener::Listen(std::string_view port)
{
    if (!m_server.listen(QHostAddress::Any, portNumber(port)))
        throw portError(port, m_server.serverError(), m_server.errorString());
    m_server.pauseAccepting();
}

UdpPort::UdpPort(const QString& name, QObject* parent) : QObject(parent)
{
    setObjectName(name);
    // Not queued: Qt raises the next datagram only to who reads this one at once.
    connect(&m_socket, &QUdpSocket::readyRead, this, &UdpPort::DataArrival);
}

SocketState UdpPort::State() const
{
    return m_socket.state() == QAbstractSocket::UnconnectedState ? SocketState::Closed : SocketState::Open;
}

void UdpPort::Bind(std::string_view port)
{
    if (!m_socket.bind(QHostAddress::Any, portNumber(port), QUdpSocket::DontShareAddress))
        throw portError(port, m_socket.error(), m_socket.errorString());
}

std::string UdpPort::GetData()
{
    const QNetworkDatagram datagram = m_socket.receiveDatagram();
    if (!datagram.isValid())
        throw SocketError(m_socket.error(), m_socket.errorString().toStdString());
    return datagram.data().toStdString();
}

void UdpPort::Close()
{
    const QSignalBlocker noEvents(m_socket);
    m_socket.abort();
}

} // namespace quillfen
