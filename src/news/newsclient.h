#pragma once

#include "news/httpfetch.h"
#include "news/statuspanel.h"

#include <QObject>

class QStatusBar;

namespace quillfen {

class SettingsFiles;

/// Where the maker's web server keeps its files. An address ends with its slash; an empty one is not asked.
struct WebFolders
{
    std::string newsBase{};
    std::string updatesBase{};
};

/// The four panels of the main window's status bar, and what fills them: the news at the start, and the
/// current version once a minute.
class NewsClient : public QObject
{
    Q_OBJECT

public:
    /// Lays out the status bar, whose child it becomes. The files must live as long.
    NewsClient(QStatusBar& statusBar, const SettingsFiles& files, std::string programVersion,
               WebFolders folders, std::chrono::milliseconds timeLimit = std::chrono::seconds(5));

    /// The start's part: fetches what is new and shows the newest article. Takes no longer than `wholeLimit`,
    /// and one fetch more; what is left comes at the next start.
    void runStart(std::chrono::milliseconds wholeLimit = std::chrono::seconds(20));

private:
    void updateVersion();
    void showVersion(const FetchedText& fetched);
    void offerDownload();

    const SettingsFiles& m_files;
    std::string m_programVersion;
    WebFolders m_folders;
    HttpFetch m_fetch;
    std::unique_ptr<HttpRequest> m_versionRequest; ///< the last one; goes before what it fetches with
    StatusPanel* m_current;
    StatusPanel* m_newsShort;
    StatusPanel* m_newsLong;
};

} // namespace quillfen
