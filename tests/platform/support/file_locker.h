#pragma once

#include <QProcess>
#include <QString>

// Runs the locker helper, a stand-in collector holding flock(LOCK_EX) on a file, for as long as
// the object lives or until release().
class FileLocker
{
public:
    explicit FileLocker(const QString& path)
    {
        m_process.start(QStringLiteral(QD7_TEST_LOCKER), { path });
        while (m_process.waitForReadyRead(30000)) {
            m_output += m_process.readAll();
            if (m_output.contains("locked\n"))
                break;
        }
    }

    ~FileLocker() { release(); }

    FileLocker(const FileLocker&) = delete;
    FileLocker& operator=(const FileLocker&) = delete;

    bool isLocked() const { return m_output.contains("locked\n") && m_process.state() == QProcess::Running; }

    void release()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(30000))
            m_process.kill();
        m_process.waitForFinished(30000);
    }

private:
    QProcess m_process;
    QByteArray m_output;
};
