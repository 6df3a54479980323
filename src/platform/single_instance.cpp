#include "single_instance.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

#include <memory>

bool earlierInstanceRunning()
{
    static std::unique_ptr<QLockFile> lock;
    if (lock && lock->isLocked())
        return false;

    const QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (directory.isEmpty())
        return false; // no place to ask: better two consoles than none
    lock = std::make_unique<QLockFile>(QDir(directory).filePath(QStringLiteral("qd7console.lock")));
    lock->setStaleLockTime(0); // only a dead owner makes a lock stale, never its age
    if (lock->tryLock(0))
        return false;
    return lock->error() == QLockFile::LockFailedError;
}
