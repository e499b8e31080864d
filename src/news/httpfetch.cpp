#include "news/httpfetch.h"

#include <QEventLoop>

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

HttpRequest::HttpRequest(QNetworkAccessManager& network, const std::string& address,
                         std::chrono::milliseconds timeLimit)
    : m_network(network)
{
    m_limit.setSingleShot(true);
    m_limit.setTimerType(Qt::PreciseTimer); // another would cut a fetch up to a twentieth short
    connect(&m_limit, &QTimer::timeout, this, [this] { m_reply->abort(); });
    const QUrl url(QString::fromStdString(address));
    if (!isWebAddress(url)) {
        const auto nothing = [this] { emit finished({}); };
        QMetaObject::invokeMethod(this, nothing, Qt::QueuedConnection);
        return;
    }
    m_limit.start(timeLimit);
    get(url);
}

void HttpRequest::get(const QUrl& url)
{
    m_url = url;
    m_reply.reset(m_network.get(requestOf(url)));
    connect(m_reply.get(), &QNetworkReply::readyRead, this, [this] {
        if (m_reply->bytesAvailable() > HttpFetch::sizeLimit)
            m_reply->abort();
    });
    connect(m_reply.get(), &QNetworkReply::finished, this, &HttpRequest::takeReply);
}

/// Follows redirects itself: of Qt's own ways one stops at another port of the same host, and the one that
/// asks first sends each request that comes after a second redirect several times.
void HttpRequest::takeReply()
{
    const auto target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    const QUrl next = m_url.resolved(target);
    const bool isWhole = m_reply->error() == QNetworkReply::NoError; // and not cut by one of the limits
    if (!target.isEmpty() && isWhole && mayFollow(m_url, next) && ++m_redirects <= mostRedirects) {
        get(next);
        return;
    }
    m_limit.stop();
    emit finished(target.isEmpty() ? answer() : FetchedText());
}

FetchedText HttpRequest::answer() const
{
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool isError = status >= 400;
    if ((m_reply->error() != QNetworkReply::NoError && !isError) ||
        m_reply->bytesAvailable() > HttpFetch::sizeLimit)
        return {};
    return {m_reply->readAll().toStdString(), isError};
}

FetchedText HttpFetch::operator()(const std::string& address)
{
    const auto request = begin(address);
    FetchedText result;
    QEventLoop loop;
    QObject::connect(request.get(), &HttpRequest::finished, &loop, [&](const FetchedText& text) {
        result = text;
        loop.quit();
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return result;
}

std::unique_ptr<HttpRequest> HttpFetch::begin(const std::string& address)
{
    return std::make_unique<HttpRequest>(m_network, address, m_timeLimit);
}

} // namespace quillfen
