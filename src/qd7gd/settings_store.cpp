#include "settings_store.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QSaveFile>
#include <QThread>

#include <algorithm>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qd7gd {

namespace {

bool isAccessError(int err) { return err == EACCES || err == EPERM || err == EROFS; }

StoreStatus writeFailure(int err)
{
    if (isAccessError(err))
        return StoreAccessDenied;
    return err == ENOMEM ? StoreOutOfMemory : StoreCannotWrite;
}

// No write permission bit at all makes a file or directory read-only for everybody, root
// included; otherwise the kernel decides for the caller.
bool isReadOnly(const QByteArray& path, const struct stat& st, int accessMode)
{
    if ((st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0)
        return true;
    return ::access(path.constData(), accessMode) != 0 && isAccessError(errno);
}

QByteArray parentOf(const QByteArray& path)
{
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0)
        return ".";
    return slash == 0 ? QByteArray("/") : path.left(slash);
}

// Writers take turns by an exclusive flock on "<store>.lock". The kernel drops it when its holder
// ends, so a crashed writer leaves no stale lock; and unlike QLockFile it costs no disk flush of
// its own, so a write pays for one flush only, the store's.
class StoreLock
{
public:
    explicit StoreLock(const QByteArray& path)
        : m_fd(::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666))
    {
    }
    ~StoreLock()
    {
        if (m_fd >= 0)
            ::close(m_fd); // releases the lock
    }
    StoreLock(const StoreLock&) = delete;
    StoreLock& operator=(const StoreLock&) = delete;

    // Polls every few milliseconds, so every waiting writer gets its turn soon.
    StoreStatus take(int timeoutMs)
    {
        if (m_fd < 0)
            return writeFailure(errno);
        QDeadlineTimer deadline(timeoutMs);
        for (int pause = 1;; pause = std::min(pause * 2, 4)) {
            if (::flock(m_fd, LOCK_EX | LOCK_NB) == 0)
                return StoreOk;
            if (errno != EWOULDBLOCK && errno != EINTR)
                return writeFailure(errno);
            if (deadline.hasExpired())
                return StoreCannotWrite;
            QThread::msleep(std::min<qint64>(pause, std::max<qint64>(deadline.remainingTime(), 0)));
        }
    }

private:
    int m_fd;
};

} // namespace

SettingsStore::SettingsStore(QByteArray path, int lockTimeoutMs)
    : m_path(std::move(path)), m_lockTimeoutMs(lockTimeoutMs)
{
}

SettingsStore SettingsStore::fromEnvironment()
{
    QByteArray path = qgetenv(kPathVariable);
    return SettingsStore(path.isEmpty() ? QByteArray(kDefaultPath) : path);
}

StoreStatus SettingsStore::checkName(QByteArrayView name) const
{
    if (name.isEmpty())
        return StoreInvalidParameter;
    return name.size() > kMaxNameLength ? StoreBadName : StoreOk;
}

// The whole file in one go; a missing store reads as an empty one.
StoreStatus SettingsStore::readFile(QByteArray* bytes) const
{
    bytes->clear();
    const int fd = ::open(m_path.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        const int err = errno;
        if (err == ENOENT || err == ENOTDIR)
            return StoreOk;
        return isAccessError(err) ? StoreAccessDenied : StoreCannotRead;
    }
    StoreStatus status = StoreOk;
    struct stat st;
    if (::fstat(fd, &st) != 0) {
        status = StoreCannotRead;
    } else if (S_ISDIR(st.st_mode)) {
        status = StoreAccessDenied;
    } else {
        // st_size is a hint: the loop reads up to the end whatever the size turns out to be.
        bytes->resize(qsizetype(st.st_size) + 1);
        qsizetype filled = 0;
        for (;;) {
            if (filled == bytes->size())
                bytes->resize(filled * 2);
            const ssize_t n = ::read(fd, bytes->data() + filled, size_t(bytes->size() - filled));
            if (n > 0) {
                filled += n;
            } else if (n == 0) {
                break;
            } else if (errno != EINTR) {
                status = StoreCannotRead;
                break;
            }
        }
        bytes->resize(status == StoreOk ? filled : 0);
    }
    ::close(fd);
    return status;
}

StoreStatus SettingsStore::read(QByteArrayView name, QByteArray* value) const
{
    value->clear();
    if (const StoreStatus s = checkName(name))
        return s;
    QByteArray bytes;
    if (const StoreStatus s = readFile(&bytes))
        return s;
    if (lookupValue(bytes, name, value) == Lookup::Corrupt) {
        value->clear();
        return StoreCorrupt;
    }
    return StoreOk;
}

StoreStatus SettingsStore::list(QList<StoreEntry>* entries) const
{
    entries->clear();
    QByteArray bytes;
    if (const StoreStatus s = readFile(&bytes))
        return s;
    const auto doc = StoreDocument::parse(std::move(bytes));
    if (!doc)
        return StoreCorrupt;
    *entries = doc->effectiveEntries();
    return StoreOk;
}

// Refuses up front what could not be written: a directory at the path, a read-only store, a
// read-only directory. Checked before anything else, so a read-only store refuses a write
// whether or not it would change the value.
StoreStatus SettingsStore::checkWritable() const
{
    struct stat st;
    if (::stat(m_path.constData(), &st) == 0) {
        if (S_ISDIR(st.st_mode) || isReadOnly(m_path, st, W_OK))
            return StoreAccessDenied;
    } else if (isAccessError(errno)) {
        return StoreAccessDenied;
    }
    const QByteArray dir = parentOf(m_path);
    if (::stat(dir.constData(), &st) == 0 && S_ISDIR(st.st_mode) && isReadOnly(dir, st, W_OK | X_OK))
        return StoreAccessDenied;
    return StoreOk;
}

// Creates the store's directory and the missing ones above it.
StoreStatus SettingsStore::makeDirectory() const
{
    const QByteArray dir = parentOf(m_path);
    struct stat st;
    if (::stat(dir.constData(), &st) == 0)
        return S_ISDIR(st.st_mode) ? StoreOk : StoreCannotOpen;
    for (qsizetype slash = dir.indexOf('/', 1);; slash = dir.indexOf('/', slash + 1)) {
        const QByteArray part = slash < 0 ? dir : dir.left(slash);
        if (::mkdir(part.constData(), 0777) != 0) {
            const int err = errno;
            if (err != EEXIST)
                return isAccessError(err) ? StoreAccessDenied : StoreCannotOpen;
            if (::stat(part.constData(), &st) != 0 || !S_ISDIR(st.st_mode))
                return StoreCannotOpen;
        }
        if (slash < 0)
            return StoreOk;
    }
}

// Temporary file in the same directory, then rename: a reader sees the old file or the new one.
StoreStatus SettingsStore::save(const QByteArray& bytes) const
{
    QSaveFile file(QFile::decodeName(m_path));
    if (!file.open(QIODevice::WriteOnly))
        return writeFailure(errno);
    if (file.write(bytes) != bytes.size()) {
        const int err = errno;
        file.cancelWriting();
        return writeFailure(err);
    }
    if (!file.commit())
        return writeFailure(errno);
    return StoreOk;
}

StoreStatus SettingsStore::modify(QByteArrayView name, std::optional<QByteArrayView> value)
{
    if (const StoreStatus s = checkName(name))
        return s;
    if (const StoreStatus s = checkWritable())
        return s;

    // First without the lock: a write that changes nothing costs no more than a read.
    QByteArray bytes, current;
    if (const StoreStatus s = readFile(&bytes))
        return s;
    const Lookup found = lookupValue(bytes, name, &current);
    if (found == Lookup::Corrupt)
        return StoreCorrupt;
    if (value ? found == Lookup::Found && current == *value : found == Lookup::Absent)
        return StoreOk;

    if (const StoreStatus s = makeDirectory())
        return s;
    StoreLock lock(m_path + ".lock");
    if (const StoreStatus s = lock.take(m_lockTimeoutMs))
        return s;

    // Under the lock, again from the file: another process may have written since.
    if (const StoreStatus s = readFile(&bytes))
        return s;
    auto doc = StoreDocument::parse(std::move(bytes));
    if (!doc)
        return StoreCorrupt;
    const bool changed = value ? doc->setValue(name, *value) : doc->remove(name);
    return changed ? save(doc->bytes()) : StoreOk;
}

StoreStatus SettingsStore::write(QByteArrayView name, QByteArrayView value)
{
    return modify(name, value);
}

StoreStatus SettingsStore::remove(QByteArrayView name)
{
    return modify(name, std::nullopt);
}

} // namespace qd7gd
