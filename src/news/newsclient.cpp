#include "news/newsclient.h"

#include "shell/kit/codepagetext.h"
#include "shell/kit/messages.h"
#include "shell/kit/units.h"

#include <QStatusBar>
#include <QTimer>

namespace quillfen {
namespace {

constexpr QLatin1String downloadOffer("Click to download new version");

} // namespace

NewsClient::NewsClient(QStatusBar& statusBar, const SettingsFiles& files, std::string programVersion,
                       WebFolders folders, std::chrono::milliseconds timeLimit)
    : QObject(&statusBar),
      m_files(files),
      m_programVersion(std::move(programVersion)),
      m_folders(std::move(folders)),
      m_fetch(timeLimit),
      m_current(new StatusPanel("CURRENT", "Current Version = Unknown")),
      m_newsShort(new StatusPanel("NEWS:SHORT", {})),
      m_newsLong(new StatusPanel("NEWS:LONG", {}))
{
    statusBar.addWidget(new StatusPanel("INSTALLED", "Installed Version = " + fromBytes(m_programVersion)));
    statusBar.addWidget(m_current);
    statusBar.addWidget(m_newsShort);
    statusBar.addWidget(m_newsLong, 1);
    m_current->setFocusPolicy(Qt::TabFocus);
    connect(m_current, &StatusPanel::clicked, this, &NewsClient::offerDownload);

    auto* tmrUpdate = new QTimer(this);
    tmrUpdate->setObjectName("tmrUpdate");
    connect(tmrUpdate, &QTimer::timeout, this, &NewsClient::updateVersion);
    tmrUpdate->start(std::chrono::minutes(1));
}

void NewsClient::runStart(std::chrono::milliseconds wholeLimit)
{
    const auto end = std::chrono::steady_clock::now() + wholeLimit;
    const auto article = fetchNews(m_files, m_folders.newsBase, [&](const std::string& address) {
        return std::chrono::steady_clock::now() < end ? m_fetch(address) : FetchedText{{}, false, true};
    });
    if (!article)
        return;
    m_newsShort->setLine(fromBytes(article->headline));
    m_newsShort->setToolTip("Click to read news");
    m_newsLong->setLine(fromBytes(article->story));
}

void NewsClient::updateVersion()
{
    if (m_folders.updatesBase.empty() || (m_versionRequest && m_versionRequest->isRunning()))
        return;
    m_versionRequest = m_fetch.begin(versionAddress(m_folders.updatesBase));
    connect(m_versionRequest.get(), &HttpRequest::finished, this, &NewsClient::showVersion);
}

void NewsClient::showVersion(const FetchedText& fetched)
{
    const auto version = readVersion(fetched);
    if (!version)
        return;
    m_current->setLine("Current Version = " + fromBytes(*version));
    m_current->setMinimumWidth(twips(2200));
    m_current->setToolTip(downloadOffer);
}

void NewsClient::offerDownload()
{
    if (offersDownload(m_files, m_programVersion))
        notify(m_current->window(), downloadOffer, downloadOffer, QMessageBox::NoIcon);
}

} // namespace quillfen
