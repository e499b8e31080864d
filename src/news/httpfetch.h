#pragma once

#include "news/news.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

#include <chrono>
#include <memory>

namespace quillfen {

/// One fetch of a text over HTTP, which runs beside all else. It has a time limit and a size limit, and
/// follows no redirect to another host. It ends with its object, whose manager must live as long.
class HttpRequest : public QObject
{
    Q_OBJECT

public:
    HttpRequest(QNetworkAccessManager& network, const std::string& address,
                std::chrono::milliseconds timeLimit);

    bool isRunning() const { return m_limit.isActive(); }

signals:
    /// The text behind the address; empty if it was not to be had. Comes once, and from the event loop.
    void finished(const quillfen::FetchedText& text);

private:
    void get(const QUrl& url);
    void takeReply();
    FetchedText answer() const;

    struct Later
    {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

    QNetworkAccessManager& m_network;
    std::unique_ptr<QNetworkReply, Later> m_reply;
    QUrl m_url;
    int m_redirects = 0;
    QTimer m_limit;
};

/// Fetches texts over HTTP.
class HttpFetch
{
public:
    explicit HttpFetch(std::chrono::milliseconds timeLimit = std::chrono::seconds(5)) : m_timeLimit(timeLimit)
    {
    }

    /// The text behind an address. Waits for it: the window is painted meanwhile but takes no input.
    FetchedText operator()(const std::string& address);

    /// Begins to fetch, and doesn't wait.
    std::unique_ptr<HttpRequest> begin(const std::string& address);

    static constexpr qint64 sizeLimit = 1 << 20;

private:
    QNetworkAccessManager m_network;
    std::chrono::milliseconds m_timeLimit;
};

} // namespace quillfen
