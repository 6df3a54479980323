#include "processes.h"

#include "command_line.h"
#include "runtime_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

QString commandLineOf(const QString& pid)
{
    QFile file(QStringLiteral("/proc/%1/cmdline").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return {}; // ended meanwhile, or not ours to read
    QByteArray bytes = file.readAll();
    while (bytes.endsWith('\0'))
        bytes.chop(1);
    bytes.replace('\0', ' ');
    return QFile::decodeName(bytes);
}

QString resolveProgram(const QString& program)
{
    if (program.contains(QLatin1Char('/'))) {
        const QFileInfo info(program);
        return info.isFile() && info.isExecutable() ? info.absoluteFilePath() : QString();
    }
    return program.isEmpty() ? QString() : QStandardPaths::findExecutable(program);
}

bool readAll(int fd, void* data, size_t size)
{
    auto* bytes = static_cast<char*>(data);
    while (size > 0) {
        const ssize_t got = ::read(fd, bytes, size);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        bytes += got;
        size -= size_t(got);
    }
    return true;
}

// Runs in the forked children: async-signal-safe calls only.
[[noreturn]] void execDetached(const char* path, char* const* argv, int reportFd)
{
    ::setsid();
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    struct sigaction defaults = {};
    defaults.sa_handler = SIG_DFL;
    ::sigaction(SIGPIPE, &defaults, nullptr);

    const int null = ::open("/dev/null", O_RDWR);
    if (null >= 0) {
        ::dup2(null, STDIN_FILENO);
        ::dup2(null, STDOUT_FILENO);
        ::dup2(null, STDERR_FILENO);
        if (null > STDERR_FILENO)
            ::close(null);
    }
    // The console's own descriptors (and the locks on them) stay with the console.
    ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);

    ::execv(path, argv);
    const int error = errno;
    [[maybe_unused]] const ssize_t written = ::write(reportFd, &error, sizeof error);
    ::_exit(127);
}

} // namespace

QStringList runningCommandLines()
{
    QStringList lines;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        bool isPid = false;
        entry.toLongLong(&isPid);
        if (!isPid)
            continue;
        const QString line = commandLineOf(entry);
        if (!line.isEmpty())
            lines << line;
    }
    return lines;
}

qint64 startDetached(const QString& program, const QStringList& arguments)
{
    const QString context = QStringLiteral("Starting %1").arg(program);
    const QString path = resolveProgram(program);
    if (path.isEmpty())
        throw RuntimeError(RuntimeError::FileNotFound, context);

    // Everything the children need is made before the fork.
    const QByteArray pathBytes = QFile::encodeName(path);
    std::vector<QByteArray> argumentBytes;
    argumentBytes.push_back(QFile::encodeName(program));
    for (const QString& argument : arguments)
        argumentBytes.push_back(QFile::encodeName(argument));
    std::vector<char*> argv;
    for (QByteArray& bytes : argumentBytes)
        argv.push_back(bytes.data());
    argv.push_back(nullptr);

    // Two pipes: the child reports the grandchild's id, the grandchild a failed exec.
    int idPipe[2];
    int execPipe[2];
    if (::pipe2(idPipe, O_CLOEXEC) != 0)
        throw RuntimeError(RuntimeError::PathFileAccessError, context);
    if (::pipe2(execPipe, O_CLOEXEC) != 0) {
        ::close(idPipe[0]);
        ::close(idPipe[1]);
        throw RuntimeError(RuntimeError::PathFileAccessError, context);
    }

    // Fork twice: the grandchild is adopted by init, and the child is reaped here at once.
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(idPipe[0]);
        ::close(execPipe[0]);
        const pid_t grandchild = ::fork();
        if (grandchild == 0)
            execDetached(pathBytes.constData(), argv.data(), execPipe[1]);
        [[maybe_unused]] const ssize_t written = ::write(idPipe[1], &grandchild, sizeof grandchild);
        ::_exit(0);
    }
    ::close(idPipe[1]);
    ::close(execPipe[1]);
    if (child > 0) {
        while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) { }
    }

    pid_t grandchild = -1;
    int execError = 0;
    const bool started = child > 0 && readAll(idPipe[0], &grandchild, sizeof grandchild) && grandchild > 0;
    // The pipe closes without a word when exec succeeds.
    const bool execFailed = started && readAll(execPipe[0], &execError, sizeof execError);
    ::close(idPipe[0]);
    ::close(execPipe[0]);
    if (!started)
        throw RuntimeError(RuntimeError::PathFileAccessError, context);
    if (execFailed)
        throw RuntimeError(RuntimeError::FileNotFound,
            QStringLiteral("%1: %2").arg(context, QString::fromLocal8Bit(::strerror(execError))));
    return grandchild;
}

qint64 startDetached(const QString& windowsStyleCommandLine)
{
    QStringList arguments = splitWindowsCommandLine(windowsStyleCommandLine);
    if (arguments.isEmpty())
        throw RuntimeError(RuntimeError::InvalidProcedureCall,
            QStringLiteral("Starting the empty command line \"%1\"").arg(windowsStyleCommandLine));
    const QString program = arguments.takeFirst();
    return startDetached(program, arguments);
}
