#include "startup.h"

void StartConsole(const QString& commandLine)
{
    Q_UNUSED(commandLine);
}
