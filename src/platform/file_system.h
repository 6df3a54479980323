#pragma once

#include <QString>

// Whole-file services. Failures throw RuntimeError: 53 a missing file, 76 a missing directory,
// 70 a file that another process holds (docs/locking.md) or that may not be touched, 75 a
// directory where a file should be, 61 a full disk.

// True for an existing file or a link to one; directories don't count.
bool fileExists(const QString& path);

// Copies `from` over `to`, replacing what `to` held. Copying a file onto itself changes nothing.
void copyFile(const QString& from, const QString& to);

// Deletes the file after making sure that no collector holds it.
void deleteFile(const QString& path);

qint64 fileLength(const QString& path);
