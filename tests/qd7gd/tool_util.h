#pragma once
// Runs the built qd7gd tool ($QD7_TOOL) and collects what it printed.
#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <QTest>

struct ToolRun {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

inline ToolRun runTool(const QStringList& args)
{
    QProcess p;
    p.start(qEnvironmentVariable("QD7_TOOL"), args);
    ToolRun r;
    if (!p.waitForFinished(30000) || p.exitStatus() != QProcess::NormalExit)
        return r;
    r.status = p.exitCode();
    r.out = p.readAllStandardOutput();
    r.err = p.readAllStandardError();
    return r;
}
