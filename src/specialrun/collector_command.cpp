#include "collector_command.h"

QString CollectorProgramPath(const QString& binDir)
{
    return binDir + QStringLiteral("/qd7stati.exe");
}

QString CollectorCommandLine(const CollectorRun& run)
{
    const QLatin1Char quote('"');
    return quote + CollectorProgramPath(run.binDir) + quote + QStringLiteral(" -np ")
        + (run.statiDebug ? QStringLiteral("-d ") : QString()) + (run.loadDebug ? QStringLiteral("-ld") : QString())
        + QStringLiteral(" -if ") + run.binDir + QStringLiteral("/qd7SpecRunServList.dat") + QStringLiteral(" -of ")
        + run.binDir + QStringLiteral("/qd7stati.dat") + QStringLiteral(" -st ") + run.startTime
        + QStringLiteral(" -sd ") + run.startDate + QStringLiteral(" -et ") + run.endTime + QStringLiteral(" -ed ")
        + run.endDate + QStringLiteral(" -bindir ") + run.binDir + QStringLiteral(" -dbtype ") + run.dbType;
}
