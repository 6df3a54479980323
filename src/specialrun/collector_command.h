#pragma once

#include <QString>

// What a special run hands the collector.
struct CollectorRun {
    QString binDir;
    bool statiDebug = false;
    bool loadDebug = false;
    QString startDate;
    QString startTime;
    QString endDate;
    QString endTime;
    QString dbType; // the DB value in upper case
};

// The collector's command line in the collector's own form: only the program's path is quoted,
// the other paths go out bare (a BinDir with a blank splits them), the entries as typed. The debug
// switches "-d " and "-ld" leave two blanks where one of them is off.
QString CollectorCommandLine(const CollectorRun& run);

// BinDir/qd7stati.exe, the program CollectorCommandLine starts.
QString CollectorProgramPath(const QString& binDir);
