#include "tool/TemporaryFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

QString lockPath(const QString &folder)
{
    return folder + QLatin1String("/lock");
}

std::unique_ptr<QLockFile> takeLock(const QString &folder)
{
    auto lock = std::make_unique<QLockFile>(lockPath(folder));
    // However old it is: only the end of its process makes a lock void. The system's own lock on the file
    // decides, so that another process with the same number changes nothing.
    lock->setStaleLockTime(0);
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

bool isOurs(const QFileInfo &folder)
{
#ifdef Q_OS_UNIX
    return folder.ownerId() == ::geteuid();
#else
    Q_UNUSED(folder) // the folder of temporary files is the user's own
    return true;
#endif
}

/// Removes what dead processes left beside @p own and under the same name but for its random end.
void removeFoldersOfTheDead(const QFileInfo &own)
{
    constexpr int kRandomCharacters = 6;
    const QString pattern = own.fileName().chopped(kRandomCharacters) + QLatin1String("??????");
    const QFileInfoList found = own.dir().entryInfoList(QStringList(pattern), QDir::Dirs | QDir::NoSymLinks);
    for (const QFileInfo &folder : found) {
        const QString path = folder.absoluteFilePath();
        if (!isOurs(folder) || !QFileInfo::exists(lockPath(path))) {
            continue;
        }
        if (const std::unique_ptr<QLockFile> lock = takeLock(path)) {
            // An open file cannot be removed everywhere. Without its lock the folder is nobody else's to
            // remove.
            lock->unlock();
            QDir(path).removeRecursively();
        }
    }
}

} // namespace

TemporaryFolder::TemporaryFolder()
{
    if (m_folder.isValid()) {
        m_lock = takeLock(m_folder.path());
        removeFoldersOfTheDead(QFileInfo(m_folder.path()));
    }
}

TemporaryFolder::~TemporaryFolder()
{
    remove();
}

QString TemporaryFolder::path() const
{
    return m_folder.path();
}

QString TemporaryFolder::errorString() const
{
    return m_folder.errorString();
}

void TemporaryFolder::remove()
{
    m_lock.reset();
    m_folder.remove();
}
