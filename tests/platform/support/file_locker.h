#pragma once

#include <QProcess>
#include <QString>

// A stand-in collector: the locker helper holds flock(LOCK_EX) on `path` while this object lives.
class FileLocker
{
public:
    explicit FileLocker(const QString& path)
    {
        m_process.start(QStringLiteral(QD7_TEST_LOCKER), { path });
        while (!m_process.canReadLine() && m_process.waitForReadyRead(30000)) { }
        m_locked = m_process.readLine() == "locked\n";
    }

    // A closed stdin ends the helper, and with it the lock.
    ~FileLocker()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(30000);
    }

    bool isLocked() const { return m_locked; }

private:
    QProcess m_process;
    bool m_locked = false;
};
