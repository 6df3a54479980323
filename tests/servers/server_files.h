#pragma once

#include "platform/clock.h"

#include <QByteArray>
#include <QFile>
#include <QTest>

// Server records built by hand, as a collector writes them, rather than by the code under test.
inline QByteArray serverRecord(const QByteArray& server, const QByteArray& sid = "PRD", const QByteArray& client = "100",
    const QByteArray& instance = "00", const QByteArray& password = "x1-", const QByteArray& language = "E")
{
    const auto field = [](const QByteArray& value, int width) { return value.leftJustified(width, ' ', true); };
    return field(server, 100) + field("QD7MON", 30) + field(password, 30) + field(sid, 3) + field(client, 3)
        + field(instance, 2) + "000000240000" + field(language, 1) + "\r\n";
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(path));
    QCOMPARE(file.write(bytes), bytes.size());
}

inline QByteArray readBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

// A clock that moves on a second at each reading, so that a wait on it costs no time.
inline void useSteppingClock()
{
    Clock::setSource([moment = QDateTime(QDate(2002, 10, 1), QTime(12, 0))]() mutable {
        moment = moment.addSecs(1);
        return moment;
    });
}
