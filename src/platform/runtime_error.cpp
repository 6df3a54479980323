#include "runtime_error.h"

RuntimeError::RuntimeError(int number, QString context)
    : RuntimeError(number, describe(number), std::move(context))
{
}

RuntimeError::RuntimeError(int number, QString description, QString context)
    : Number(number)
    , Description(std::move(description))
    , Context(std::move(context))
    , m_what(QStringLiteral("Run-time error '%1': %2").arg(number).arg(Description).toLocal8Bit())
{
}

QString RuntimeError::describe(int number)
{
    switch (number) {
    case InvalidProcedureCall:
        return QStringLiteral("Invalid procedure call or argument");
    case Overflow:
        return QStringLiteral("Overflow");
    case SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case TypeMismatch:
        return QStringLiteral("Type mismatch");
    case BadFileNameOrNumber:
        return QStringLiteral("Bad file name or number");
    case FileNotFound:
        return QStringLiteral("File not found");
    case BadFileMode:
        return QStringLiteral("Bad file mode");
    case DiskFull:
        return QStringLiteral("Disk full");
    case InputPastEndOfFile:
        return QStringLiteral("Input past end of file");
    case BadRecordNumber:
        return QStringLiteral("Bad record number");
    case TooManyFiles:
        return QStringLiteral("Too many files");
    case PermissionDenied:
        return QStringLiteral("Permission denied");
    case PathFileAccessError:
        return QStringLiteral("Path/File access error");
    case PathNotFound:
        return QStringLiteral("Path not found");
    case InvalidPropertyValue:
        return QStringLiteral("Invalid property value");
    default:
        return QStringLiteral("Application-defined or object-defined error");
    }
}

const char* RuntimeError::what() const noexcept
{
    return m_what.constData();
}
