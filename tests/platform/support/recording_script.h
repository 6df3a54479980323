#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <QTest>

// A stand-in for a started program: writes its process id, session id and stdin to `<script>.proc`,
// then its arguments, one a line, to `<script>.args`, renamed into place so that a test can wait for it.
inline bool writeRecordingScript(const QString& path)
{
    QFile script(path);
    return script.open(QIODevice::WriteOnly)
        && script.write("#!/bin/sh\n"
                        "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > \"$0.tmp\"\n"
                        "stat=$(cat /proc/$$/stat); set -- ${stat##*) }\n"
                        "echo $$ $4 $(readlink /proc/$$/fd/0) > \"$0.proc\"\n"
                        "mv \"$0.tmp\" \"$0.args\"\n")
        > 0
        && script.setPermissions(script.permissions() | QFileDevice::ExeOwner);
}

// The non-empty lines of a file, once it exists.
inline QStringList linesOf(const QString& path)
{
    QFile file(path);
    if (!QTest::qWaitFor([&] { return file.exists(); }, 30000) || !file.open(QIODevice::ReadOnly))
        return { QStringLiteral("<missing>") };
    return QString::fromLocal8Bit(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
