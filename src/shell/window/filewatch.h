#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

#include <set>
#include <string>

namespace quillfen {

/// Notices that files on the disk are made, changed, replaced or deleted, by whomever.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject* parent = nullptr);

    /// From now on watches these files and no others, also those that aren't there yet.
    void follow(const std::set<std::string>& files);

signals:
    /// One of the files may have changed. Comes once for a burst of changes, when it is over.
    void changed();

private:
    void watch();
    void tell();

    QStringList m_files;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
};

} // namespace quillfen
