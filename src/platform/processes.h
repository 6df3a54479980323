#pragma once

#include <QString>
#include <QStringList>

// The command lines of the running processes, arguments joined by one blank; processes without a
// command line (kernel threads) are left out. They stand in for the titles of top-level windows.
QStringList runningCommandLines();

// Starts a program detached: no shell, a new session, stdin, stdout and stderr on /dev/null, not
// waited for and leaving no zombie. A program without "/" is looked for on PATH. Returns its
// process id. A program that is missing or not executable is error 53, and nothing starts.
qint64 startDetached(const QString& program, const QStringList& arguments);

// The same for a command line split by splitWindowsCommandLine.
qint64 startDetached(const QString& windowsStyleCommandLine);
