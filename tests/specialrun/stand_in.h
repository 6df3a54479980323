#pragma once

#include <QProcess>
#include <QString>

// A child shell whose command line carries `title` stands in for a program's window while the
// object lives.
class StandIn
{
public:
    explicit StandIn(const QString& title)
    {
        // the trailing ":" keeps the shell from replacing itself with the read
        m_process.start(QStringLiteral("/bin/sh"), { QStringLiteral("-c"), QStringLiteral("read line; :"), title });
        m_process.waitForStarted();
    }
    ~StandIn()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;

private:
    QProcess m_process;
};
