#include "app/hubdata.h"

#include "settings/paths.h"

#include <QCryptographicHash>
#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

namespace quillfen {
namespace {

/// A name for people to know the hub by, and digits so that no other hub has it.
QString hubName(const QString& programFolder)
{
    const QDir folder(programFolder);
    const QString path = folder.canonicalPath().isEmpty() ? folder.absolutePath() : folder.canonicalPath();
    static const QRegularExpression unsafe("[^A-Za-z0-9_-]");
    const QString hub = QFileInfo(QFileInfo(path).path()).fileName().left(40).replace(unsafe, "_");
    const auto digits = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return hub + '-' + QString::fromLatin1(digits);
}

} // namespace

QString HubData::usualDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

HubData::HubData(DiskStore& disk, const QString& programFolder, const QString& dataFolder)
    : m_disk(disk),
      m_settingsRoot(SettingsPaths(programFolder.toStdString()).settingsRoot()),
      m_folder((dataFolder + "/hubs/" + hubName(programFolder)).toStdString()),
      m_versions(m_privateDisk, m_folder + "/versions"),
      m_history(disk, m_settingsRoot, m_versions),
      m_isOnlyEditor(lock())
{
}

/// Where the mark can't be made, nobody else's can either.
bool HubData::lock()
{
    try {
        makeFolderAndThoseAbove(m_privateDisk, m_folder);
    } catch (const StoreError&) {
        return true;
    }
    m_lock = std::make_unique<QLockFile>(QString::fromStdString(m_folder + "/running"));
    m_lock->setStaleLockTime(0); // an editor may run for days; one that crashed is told by its process
    return m_lock->tryLock(0) || m_lock->error() != QLockFile::LockFailedError;
}

void HubData::sweep()
{
    if (!m_isOnlyEditor)
        return;
    m_disk.sweep(m_settingsRoot);
    m_privateDisk.sweep(m_folder);
    m_versions.sweep();
}

} // namespace quillfen
