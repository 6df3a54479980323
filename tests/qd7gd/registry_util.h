#pragma once
// The settings store through the C interface, called as the console calls it: a 255-byte
// buffer holding the value, a NUL and blanks; a 255-byte buffer to read into. Each test case
// gets its own store in a temporary directory.
#include "qd7gd.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>
#include <QtGlobal>

#include <cstring>

inline int32_t setReg(const QByteArray& name, const QByteArray& value)
{
    QByteArray buffer(255, ' ');
    const QByteArray terminated = value + '\0';
    std::memcpy(buffer.data(), terminated.constData(), size_t(qMin(terminated.size(), qsizetype(255))));
    return UpdateRegistry(name.constData(), buffer.constData());
}

struct ReadResult {
    int32_t count;
    QByteArray value;   // the first `count` bytes of the buffer
    bool terminated;    // a NUL follows them inside the buffer
    bool guardIntact;   // nothing was written past byte 255
};

inline ReadResult readReg(const QByteArray& name)
{
    char buffer[256];
    std::memset(buffer, '#', sizeof buffer);
    const int32_t n = ReadRegistry(name.constData(), buffer);
    const int count = qBound(0, int(n), 255);
    return {n, QByteArray(buffer, count), count < 255 && buffer[count] == '\0', buffer[255] == '#'};
}

inline QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        f.write(bytes);
}

// A fresh store path for one test case, put into QD7_REGISTRY (child processes inherit it).
struct TempStore {
    QTemporaryDir dir;
    QString path = dir.path() + "/etc/qd7gd.ini";
    TempStore() { qputenv("QD7_REGISTRY", QFile::encodeName(path)); }
};
