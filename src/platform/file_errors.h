#pragma once

#include <QIODevice>
#include <QString>

#include <memory>

// How the console opens its data files, and how a failed file operation becomes the run-time error
// number its routines expect. The lock protocol shared with the collectors is in docs/locking.md.

// The number for errno `error` of an operation on `path`. ENOENT is 53 when the file's directory
// exists and 76 when it does not.
int fileErrorNumber(int error, const QString& path);

[[noreturn]] void throwFileError(int error, const QString& path, const QString& context);

// Takes a shared, non-blocking flock on an open descriptor; it lasts until the descriptor is closed.
// False when another process holds the file exclusively, which is error 70 to every caller. A file
// system without flock counts as not held: the console would rather work than refuse.
bool takeSharedLock(int fd);

// The bytes under a record or line file: a file descriptor in the console, a device that fails on
// purpose in tests. lastError() is the errno of the last failed read or write, so both give the
// same run-time errors.
class FileDevice : public QIODevice
{
public:
    int lastError() const { return m_lastError; }

protected:
    void setLastError(int error) { m_lastError = error; }

private:
    int m_lastError = 0;
};

enum class DataFileMode {
    Input, // read only; a missing file is 53
    Random, // read and write, created when missing; read only when writing is refused
    Output, // write only, created when missing, emptied once the lock is taken
    Append, // write only at the end, created when missing
};

// Opens `path`, takes the shared lock and returns the open device; throws RuntimeError with
// `context` ("Opening /x/bin/qd7server.dat") on failure.
std::unique_ptr<FileDevice> openDataFile(const QString& path, DataFileMode mode, const QString& context);
