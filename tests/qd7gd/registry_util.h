#pragma once
// The store through the C interface as the console calls it.
#include "qd7gd.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>

// The buffer holds the value, a NUL and blanks; a 255-byte value fills it without a NUL.
inline int32_t setReg(const QByteArray& name, const QByteArray& value)
{
    const QByteArray buffer = (value + '\0').leftJustified(255, ' ', true);
    return UpdateRegistry(name.constData(), buffer.constData());
}

// A count that disagrees with the NUL after the value, or a byte past the buffer, reads as "<bad buffer>".
inline QByteArray readReg(const QByteArray& name)
{
    char buffer[256];
    std::memset(buffer, '#', sizeof buffer);
    const int32_t n = ReadRegistry(name.constData(), buffer);
    if (n < 0 || n > 255 || (n < 255 && buffer[n] != '\0') || buffer[255] != '#')
        return "<bad buffer>";
    return QByteArray(buffer, n);
}

inline QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
}

// A fresh store for each test case, in a directory not made yet; child processes inherit it.
struct TempStore
{
    QTemporaryDir dir;
    QString path = dir.path() + "/etc/qd7gd.ini";
    TempStore() { qputenv("QD7_REGISTRY", QFile::encodeName(path)); }
};
