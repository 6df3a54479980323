#include "file_system.h"

#include "file_errors.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Closes the descriptor, and with it the shared lock, on every way out.
class Descriptor
{
public:
    explicit Descriptor(int fd)
        : m_fd(fd)
    { }
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return m_fd; }

private:
    int m_fd;
};

struct stat statOf(int fd)
{
    struct stat info = {};
    ::fstat(fd, &info);
    return info;
}

int openLocked(const QString& path, int flags, const QString& context)
{
    // Non-blocking, so that a FIFO where a file should be cannot hang the console.
    const int fd = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NONBLOCK, 0666);
    if (fd < 0)
        throwFileError(errno, path, context);
    if (!S_ISREG(statOf(fd).st_mode)) {
        ::close(fd);
        throwFileError(EISDIR, path, context);
    }
    if (!takeSharedLock(fd)) {
        ::close(fd);
        throwFileError(EWOULDBLOCK, path, context);
    }
    return fd;
}

void writeAll(int fd, const char* data, ssize_t size, const QString& path, const QString& context)
{
    while (size > 0) {
        const ssize_t put = ::write(fd, data, size_t(size));
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            throwFileError(put < 0 ? errno : ENOSPC, path, context);
        data += put;
        size -= put;
    }
}

} // namespace

bool fileExists(const QString& path)
{
    struct stat info = {};
    return !path.isEmpty() && ::stat(QFile::encodeName(path).constData(), &info) == 0 && !S_ISDIR(info.st_mode);
}

void copyFile(const QString& from, const QString& to)
{
    const QString context = QStringLiteral("Copying %1 to %2").arg(from, to);
    const Descriptor source(openLocked(from, O_RDONLY, context));
    // Not truncated at open: a target that a collector holds must come through untouched.
    const Descriptor target(openLocked(to, O_WRONLY | O_CREAT, context));

    const struct stat sourceInfo = statOf(source.get());
    const struct stat targetInfo = statOf(target.get());
    if (sourceInfo.st_dev == targetInfo.st_dev && sourceInfo.st_ino == targetInfo.st_ino)
        return;

    if (::ftruncate(target.get(), 0) != 0)
        throwFileError(errno, to, context);
    char buffer[65536];
    for (;;) {
        const ssize_t got = ::read(source.get(), buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throwFileError(errno, from, context);
        if (got == 0)
            break;
        writeAll(target.get(), buffer, got, to, context);
    }
}

void deleteFile(const QString& path)
{
    const QString context = QStringLiteral("Deleting %1").arg(path);
    const QByteArray name = QFile::encodeName(path);
    const int fd = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    // A file we may not read can't be asked for its lock; the unlink below decides.
    if (fd < 0 && errno != EACCES)
        throwFileError(errno, path, context);
    const Descriptor file(fd);
    if (fd >= 0) {
        if (S_ISDIR(statOf(fd).st_mode))
            throwFileError(EISDIR, path, context);
        if (!takeSharedLock(fd))
            throwFileError(EWOULDBLOCK, path, context);
    }
    if (::unlink(name.constData()) != 0)
        throwFileError(errno, path, context);
}

qint64 fileLength(const QString& path)
{
    struct stat info = {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        throwFileError(errno, path, QStringLiteral("Measuring %1").arg(path));
    if (S_ISDIR(info.st_mode))
        throwFileError(ENOENT, path, QStringLiteral("Measuring %1").arg(path));
    return info.st_size;
}
