#include "path_search.h"

#include "platform/environment.h"
#include "platform/runtime_error.h"

#include <QFile>

#include <cerrno>
#include <sys/stat.h>

namespace {

// An existing regular file, or a link to one. A name the system can't take is error 52 (bad file
// name); a missing or unsearchable directory is no failure, only no file; anything else is 75.
bool isNormalFile(const QString& path)
{
    struct stat info = {};
    if (::stat(QFile::encodeName(path).constData(), &info) == 0)
        return S_ISREG(info.st_mode);
    const QString context = QStringLiteral("Looking for %1").arg(path);
    switch (errno) {
    case ENOENT:
    case ENOTDIR:
    case EACCES:
    case ELOOP:
        return false;
    case ENAMETOOLONG:
        throw RuntimeError(RuntimeError::BadFileNameOrNumber, context);
    default:
        throw RuntimeError(RuntimeError::PathFileAccessError, context);
    }
}

} // namespace

bool FindOnPath(const QString& file)
{
    const QString path = environmentValue(QStringLiteral("PATH"));
    qsizetype position = 0;
    for (;;) {
        const qsizetype separator = path.indexOf(QLatin1Char(':'), position);
        // none left, or an empty item: the search ends here
        if (separator <= position)
            return false;
        try {
            if (isNormalFile(path.mid(position, separator - position) + QLatin1Char('/') + file))
                return true;
        } catch (const RuntimeError& failure) {
            if (failure.Number != RuntimeError::BadFileNameOrNumber)
                return false;
        }
        position = separator + 1;
    }
}
