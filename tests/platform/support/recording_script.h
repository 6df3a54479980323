#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <QTest>

// A shell script standing in for a started program: it writes one argument a line to
// `<script>.args`, and to `<script>.proc` its process id, session id and what its stdin is.
// The file appears whole (renamed into place), so a test can wait for it.
inline bool writeRecordingScript(const QString& scriptPath)
{
    QFile script(scriptPath);
    if (!script.open(QIODevice::WriteOnly))
        return false;
    script.write("#!/bin/sh\n"
                 "out=\"$0.args\"\n"
                 "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > \"$out.tmp\"\n"
                 "stat=$(cat /proc/$$/stat)\n"
                 "set -- ${stat##*) }\n"
                 "printf '%s\\n%s\\n%s\\n' $$ \"$4\" \"$(readlink /proc/$$/fd/0)\" > \"$0.proc\"\n"
                 "mv \"$out.tmp\" \"$out\"\n");
    script.close();
    return script.setPermissions(script.permissions() | QFileDevice::ExeOwner | QFileDevice::ExeUser);
}

inline bool waitForFile(const QString& path)
{
    return QTest::qWaitFor([&] { return QFile::exists(path); }, 30000);
}

inline QStringList linesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return { QStringLiteral("<unreadable>") };
    QStringList lines = QString::fromLocal8Bit(file.readAll()).split(QLatin1Char('\n'));
    if (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}
