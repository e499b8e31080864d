#include "news/httpfetch.h"

#include <QEventLoop>
#include <QNetworkReply>
#include <QTimer>

#include <memory>

namespace quillfen {
namespace {

bool isWebAddress(const QUrl& address)
{
    return address.isValid() && (address.scheme() == "http" || address.scheme() == "https");
}

QNetworkRequest requestOf(const QUrl& address)
{
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(5);
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
    const QUrl url(QString::fromStdString(address));
    if (!isWebAddress(url))
        return {};
    const std::unique_ptr<QNetworkReply> reply(m_network.get(requestOf(url)));
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::redirected, &loop, [&](const QUrl& target) {
        if (mayFollow(url, target))
            emit reply->redirectAllowed();
    });
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, [&] {
        if (reply->bytesAvailable() > sizeLimit)
            reply->abort();
    });
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(m_timeLimit, reply.get(), &QNetworkReply::abort);
    if (!reply->isFinished())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return answer(*reply);
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
