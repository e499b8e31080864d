#pragma once

#include <QHash>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace quillfen::test {

/// A web server on a loopback port of its own that answers each path with the bytes that the test laid down.
class WebServer
{
public:
    WebServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { accept(); });
    }

    /// "http://127.0.0.1:port/", with a folder behind it if one is given.
    QString base(const QString& folder = {}) const
    {
        return QStringLiteral("http://127.0.0.1:%1/%2").arg(m_server.serverPort()).arg(folder);
    }

    /// A page with this text.
    void serve(const QString& path, const QByteArray& text, const QByteArray& status = "200 OK")
    {
        answers["/" + path] = "HTTP/1.1 " + status + "\r\nContent-Type: text/plain\r\nContent-Length: " +
                              QByteArray::number(text.size()) + "\r\nConnection: close\r\n\r\n" + text;
    }

    void redirect(const QString& path, const QString& target)
    {
        answers["/" + path] = "HTTP/1.1 302 Found\r\nLocation: " + target.toUtf8() +
                              "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
    }

    void close() { m_server.close(); }

    /// Whether nobody is connected any more.
    bool isAlone() const { return m_connected == 0; }

    QHash<QString, QByteArray> answers; ///< by path, head and all; an unknown path gets a 404 of plain text
    QStringList silent;                 ///< paths that get no answer at all
    QStringList endless;                ///< paths whose answer goes on for ever
    QStringList dripping;               ///< paths whose answer comes a byte at a time and never ends
    QStringList asked;                  ///< the paths in the order in which they were asked for

private:
    void accept()
    {
        while (auto* socket = m_server.nextPendingConnection()) {
            ++m_connected;
            QObject::connect(socket, &QTcpSocket::disconnected, &m_server, [this, socket] {
                --m_connected;
                socket->deleteLater();
            });
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(*socket); });
        }
    }

    void answer(QTcpSocket& socket)
    {
        if (!socket.canReadLine())
            return;
        const QString path = QString::fromUtf8(socket.readLine().split(' ').value(1));
        socket.readAll();
        asked.append(path);
        if (silent.contains(path))
            return;
        if (endless.contains(path) || dripping.contains(path)) {
            socket.write("HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\n\r\n");
            const bool drips = dripping.contains(path);
            auto* more = new QTimer(&socket);
            QObject::connect(more, &QTimer::timeout, &socket, [&socket, drips] {
                if (socket.bytesToWrite() < 1 << 20)
                    socket.write(QByteArray(drips ? 1 : 1 << 18, 'x'));
            });
            more->start(drips ? 20 : 0);
            return;
        }
        socket.write(answers.value(
            path, "HTTP/1.1 404 Not Found\r\nContent-Length: 9\r\nConnection: close\r\n\r\nNot Found"));
        socket.disconnectFromHost();
    }

    int m_connected = 0;
    QTcpServer m_server;
};

} // namespace quillfen::test
