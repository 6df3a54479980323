#include "single_instance.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

// An flock on an open file rather than a QLockFile: the kernel lets go of it when the owner dies,
// so no stale lock needs judging, and taking it costs no flush to disk on every start.
bool earlierInstanceRunning()
{
    static int heldLock = -1;
    if (heldLock >= 0)
        return false;

    const QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (directory.isEmpty())
        return false; // no place to ask: better two consoles than none
    const QByteArray path = QFile::encodeName(QDir(directory).filePath(QStringLiteral("qd7console.lock")));
    const int lock = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (lock < 0)
        return false;
    if (::flock(lock, LOCK_EX | LOCK_NB) == 0) {
        heldLock = lock; // kept open, and so held, for the life of the process
        return false;
    }
    const bool held = errno == EWOULDBLOCK;
    ::close(lock);
    return held;
}
