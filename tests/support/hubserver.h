#pragma once

#include <QHostAddress>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace quillfen::test {

/// An NMDC hub on a loopback port of its own. It logs everybody in, as its fields say, and then leaves the
/// talking to the test.
class HubServer
{
public:
    HubServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { accept(); });
    }

    QByteArray address() const { return "127.0.0.1:" + QByteArray::number(m_server.serverPort()); }

    void greet() const { say("$Lock EXTENDEDPROTOCOLABCABCABCABCABCABC Pk=Test|$HubName A hub|"); }

    void say(const QByteArray& bytes) const
    {
        if (!m_user)
            return;
        m_user->write(bytes);
        m_user->flush();
    }

    /// Says something a byte at a time, each in a packet of its own as far as the platform lets it.
    void sayByteByByte(const QByteArray& bytes) const
    {
        if (!m_user)
            return;
        m_user->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        for (const char& byte : bytes) {
            m_user->write(&byte, 1);
            m_user->flush();
            if (m_user->bytesToWrite() > 0)
                QTest::qWait(0);
        }
    }

    bool waitFor(const QByteArray& bytes) const
    {
        return QTest::qWaitFor([&] { return heard.contains(bytes); });
    }

    bool waitForLogin() const { return waitFor("$GetNickList|"); }
    bool isConnected() const { return m_user && m_user->state() == QAbstractSocket::ConnectedState; }
    void hangUp() const { m_user->disconnectFromHost(); }
    void slam() const { m_user->abort(); }
    void refuse() { m_server.close(); }

    QByteArray password; ///< what it asks for; empty for none
    int denials = 0;     ///< how often it denies the nick
    bool greets = true;  ///< whether it opens the dialogue
    QByteArray heard;    ///< all that was said to it
    bool lists = false;  ///< whether it tells its nicks and operators
    int connections = 0;

private:
    void accept()
    {
        while (auto* socket = m_server.nextPendingConnection()) {
            ++connections;
            m_user = socket;
            m_taken = heard.size();
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                heard += socket->readAll();
                answer();
            });
            if (greets)
                greet();
        }
    }

    void answer()
    {
        for (auto end = heard.indexOf('|', m_taken); end >= 0; end = heard.indexOf('|', m_taken)) {
            const QByteArray message = heard.mid(m_taken, end - m_taken);
            m_taken = end + 1;
            if (message.startsWith("$ValidateNick "))
                m_nick = message.mid(14);
            if (message.startsWith("$ValidateNick ") && denials > 0) {
                --denials;
                say("$ValidateDenide " + m_nick + '|');
            } else if (message.startsWith("$ValidateNick ")) {
                say(password.isEmpty() ? "$Hello " + m_nick + '|' : QByteArray("$GetPass|"));
            } else if (message.startsWith("$MyPass ")) {
                say(message.mid(8) == password ? "$LogedIn " + m_nick + "|$Hello " + m_nick + '|'
                                               : QByteArray("$BadPass|"));
            } else if (message == "$GetNickList" && lists) {
                say("$NickList " + m_nick + "$$op$$|$OpList op$$|");
            }
        }
    }

    QTcpServer m_server;
    QPointer<QTcpSocket> m_user;
    QByteArray m_nick;
    qsizetype m_taken = 0;
};

} // namespace quillfen::test
