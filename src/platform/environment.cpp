#include "environment.h"

#include <QtGlobal>

QString environmentValue(const QString& name)
{
    // A name with "=" or NUL can't be a variable, and getenv would misread it.
    if (name.isEmpty() || name.contains(QLatin1Char('=')) || name.contains(QChar(0)))
        return {};
    return qEnvironmentVariable(name.toLocal8Bit().constData());
}
