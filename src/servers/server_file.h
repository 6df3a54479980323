#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The server file on disk and the parts of its handling that need no page. Its path in force is
// ServerFilePath when set, else the settings value StatiInput; the backup always lies in BinDir.

QString DefaultServerFilePath(); // BinDir/qd7server.dat
QString ServerBackupPath(); // BinDir/qd7server.bak

// Waits on the clock of the day read as the number HHMMSS until it reaches its start plus
// `seconds`. Busy, on purpose: nothing may run meanwhile. The number wraps at midnight, so a wait
// begun in the day's last second does not end.
void WaitForSeconds(int seconds);

// The rows of ServerTable that list entries stand for, in list order: for each entry the first
// row whose entry equals it. An entry that matches no row is left out, and two entries that
// match the same row give it twice.
QList<int> RowsForEntries(const QStringList& entries);

// Replaces the file at `path` by the given rows of ServerTable, as records 1, 2, ... in that
// order. An existing file is first copied to the backup and deleted; there is no temporary file.
// A failure rises as RuntimeError whose Context says which step failed on which file and what
// the failure left behind.
void SaveServerFile(const QString& path, const QList<int>& rows);
