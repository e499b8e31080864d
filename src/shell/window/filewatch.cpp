#include "shell/window/filewatch.h"

#include <QFileInfo>
#include <QSet>

namespace quillfen {

FileWatch::FileWatch(QObject* parent) : QObject(parent)
{
    constexpr int restMilliseconds = 200;
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMilliseconds);
    connect(&m_rest, &QTimer::timeout, this, &FileWatch::tell);
    const auto start = qOverload<>(&QTimer::start);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_rest, start);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_rest, start);
}

void FileWatch::follow(const std::set<std::string>& files)
{
    QStringList paths;
    for (const std::string& file : files)
        paths.append(QString::fromStdString(file));
    if (paths == m_files)
        return;
    m_files = paths;
    watch();
}

/// A folder tells of files that come, go and are replaced; a file of bytes that are written into it. A file
/// that was replaced is watched no longer, so this is done again after each change.
void FileWatch::watch()
{
    QSet<QString> wanted;
    for (const QString& file : m_files) {
        const QFileInfo info(file);
        if (info.exists())
            wanted.insert(file);
        if (QFileInfo::exists(info.path()))
            wanted.insert(info.path());
    }
    const QStringList watchedNow = m_watcher.files() + m_watcher.directories();
    const QSet<QString> watched(watchedNow.begin(), watchedNow.end());
    const QStringList gone = (watched - wanted).values();
    const QStringList come = (wanted - watched).values();
    if (!gone.isEmpty())
        m_watcher.removePaths(gone);
    if (!come.isEmpty())
        m_watcher.addPaths(come);
}

void FileWatch::tell()
{
    watch();
    emit changed();
}

} // namespace quillfen
