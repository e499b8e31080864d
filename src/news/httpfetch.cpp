#include "news/httpfetch.h"

#include <QEventLoop>
#include <QNetworkReply>
#include <QTimer>

#include <algorithm>

namespace quillfen {
namespace {

constexpr int mostRedirects = 5;

bool isWebAddress(const QUrl& address)
{
    return address.isValid() && (address.scheme() == "http" || address.scheme() == "https");
}

QNetworkRequest requestOf(const QUrl& address)
{
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setRawHeader("Accept-Encoding", "identity"); // so that the size limit is that of the text
    request.setHeader(QNetworkRequest::UserAgentHeader, "Quillfen");
    return request;
}

/// The same host, and not from a secure connection to an open one.
bool mayFollow(const QUrl& from, const QUrl& to)
{
    return isWebAddress(to) && to.host() == from.host() &&
           (from.scheme() == to.scheme() || to.scheme() == "https");
}

} // namespace

FetchedText HttpFetch::operator()(const std::string& address)
{
    const auto end = std::chrono::steady_clock::now() + m_timeLimit;
    QUrl url(QString::fromStdString(address));
    for (int redirects = 0; isWebAddress(url) && redirects <= mostRedirects; ++redirects) {
        const auto left = end - std::chrono::steady_clock::now();
        const auto reply = finished(url, std::chrono::ceil<std::chrono::milliseconds>(left));
        const auto target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        if (target.isEmpty())
            return answer(*reply);
        const QUrl next = url.resolved(target);
        if (!mayFollow(url, next))
            return {};
        url = next;
    }
    return {};
}

std::unique_ptr<QNetworkReply> HttpFetch::finished(const QUrl& url, std::chrono::milliseconds timeLimit)
{
    std::unique_ptr<QNetworkReply> reply(m_network.get(requestOf(url)));
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, [&reply] {
        if (reply->bytesAvailable() > sizeLimit)
            reply->abort();
    });
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(std::max(timeLimit, std::chrono::milliseconds(0)), reply.get(), &QNetworkReply::abort);
    if (!reply->isFinished())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return reply;
}

FetchedText HttpFetch::answer(QNetworkReply& reply) const
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool isError = status >= 400;
    if ((reply.error() != QNetworkReply::NoError && !isError) || reply.bytesAvailable() > sizeLimit)
        return {};
    return {reply.readAll().toStdString(), isError};
}

} // namespace quillfen
