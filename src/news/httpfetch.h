#pragma once

#include "news/news.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <chrono>
#include <memory>

namespace quillfen {

/// Fetches texts over HTTP, one at a time, and waits for each: the window is painted meanwhile but takes no
/// input. Each fetch has a time limit and a size limit, and follows no redirect to another host.
class HttpFetch
{
public:
    explicit HttpFetch(std::chrono::milliseconds timeLimit = std::chrono::seconds(5)) : m_timeLimit(timeLimit)
    {
    }

    /// The text behind an address; empty if it was not to be had.
    FetchedText operator()(const std::string& address);

    static constexpr qint64 sizeLimit = 1 << 20;

private:
    std::unique_ptr<QNetworkReply> finished(const QUrl& url, std::chrono::milliseconds timeLimit);
    FetchedText answer(QNetworkReply& reply) const;

    QNetworkAccessManager m_network;
    std::chrono::milliseconds m_timeLimit;
};

} // namespace quillfen
