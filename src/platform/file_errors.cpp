#include "file_errors.h"

#include "runtime_error.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool directoryExists(const QString& path)
{
    struct stat info = {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 && S_ISDIR(info.st_mode);
}

class DescriptorDevice : public FileDevice
{
public:
    DescriptorDevice(int fd, OpenMode mode)
        : m_fd(fd)
    {
        QIODevice::open(mode | QIODevice::Unbuffered);
    }

    ~DescriptorDevice() override { DescriptorDevice::close(); }

    bool isSequential() const override { return false; }

    qint64 size() const override
    {
        struct stat info = {};
        return m_fd >= 0 && ::fstat(m_fd, &info) == 0 ? info.st_size : 0;
    }

    bool seek(qint64 pos) override
    {
        if (m_fd < 0 || !QIODevice::seek(pos))
            return false;
        if (::lseek(m_fd, pos, SEEK_SET) < 0) {
            setLastError(errno);
            return false;
        }
        return true;
    }

    void close() override
    {
        if (m_fd < 0)
            return;
        QIODevice::close();
        ::close(m_fd); // releases the shared lock
        m_fd = -1;
    }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        for (;;) {
            const ssize_t got = ::read(m_fd, data, size_t(maxSize));
            if (got >= 0)
                return got;
            if (errno != EINTR) {
                setLastError(errno);
                return -1;
            }
        }
    }

    qint64 writeData(const char* data, qint64 size) override
    {
        qint64 written = 0;
        while (written < size) {
            const ssize_t put = ::write(m_fd, data + written, size_t(size - written));
            if (put > 0) {
                written += put;
            } else if (put < 0 && errno == EINTR) {
                continue;
            } else {
                // A regular file that takes no byte has run out of room.
                setLastError(put < 0 ? errno : ENOSPC);
                return written > 0 ? written : -1;
            }
        }
        return written;
    }

private:
    int m_fd;
};

int openFlags(DataFileMode mode)
{
    switch (mode) {
    case DataFileMode::Input:
        return O_RDONLY;
    case DataFileMode::Random:
        return O_RDWR | O_CREAT;
    case DataFileMode::Output:
        return O_WRONLY | O_CREAT;
    case DataFileMode::Append:
        return O_WRONLY | O_CREAT | O_APPEND;
    }
    return O_RDONLY;
}

QIODevice::OpenMode deviceMode(int flags)
{
    switch (flags & O_ACCMODE) {
    case O_RDONLY:
        return QIODevice::ReadOnly;
    case O_WRONLY:
        return (flags & O_APPEND) ? QIODevice::WriteOnly | QIODevice::Append : QIODevice::WriteOnly;
    default:
        return QIODevice::ReadWrite;
    }
}

} // namespace

int fileErrorNumber(int error, const QString& path)
{
    switch (error) {
    case ENOENT:
        return directoryExists(QFileInfo(path).absolutePath()) ? RuntimeError::FileNotFound
                                                               : RuntimeError::PathNotFound;
    case ENOTDIR:
        return RuntimeError::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
    case EWOULDBLOCK:
        return RuntimeError::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return RuntimeError::DiskFull;
    case EBADF:
    case ENAMETOOLONG:
        return RuntimeError::BadFileNameOrNumber;
    case EMFILE:
    case ENFILE:
        return RuntimeError::TooManyFiles;
    default:
        return RuntimeError::PathFileAccessError;
    }
}

void throwFileError(int error, const QString& path, const QString& context)
{
    throw RuntimeError(fileErrorNumber(error, path), context);
}

bool takeSharedLock(int fd)
{
    for (;;) {
        if (::flock(fd, LOCK_SH | LOCK_NB) == 0)
            return true;
        if (errno != EINTR)
            return errno != EWOULDBLOCK;
    }
}

std::unique_ptr<FileDevice> openDataFile(const QString& path, DataFileMode mode, const QString& context)
{
    const QByteArray name = QFile::encodeName(path);
    // Non-blocking, so that a FIFO where a file should be cannot hang the console.
    int flags = openFlags(mode) | O_CLOEXEC | O_NONBLOCK;
    int fd = ::open(name.constData(), flags, 0666);
    if (fd < 0 && mode == DataFileMode::Random && (errno == EACCES || errno == EROFS || errno == ETXTBSY)) {
        // A random-access open without an access clause settles for reading.
        flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK;
        fd = ::open(name.constData(), flags);
    }
    if (fd < 0)
        throwFileError(errno, path, context);

    struct stat info = {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(fd);
        throwFileError(EISDIR, path, context);
    }
    if (!takeSharedLock(fd)) {
        ::close(fd);
        throwFileError(EWOULDBLOCK, path, context);
    }
    // Emptied only now, so a file that a collector holds loses nothing.
    if (mode == DataFileMode::Output && ::ftruncate(fd, 0) != 0) {
        const int error = errno;
        ::close(fd);
        throwFileError(error, path, context);
    }
    return std::make_unique<DescriptorDevice>(fd, deviceMode(flags));
}
