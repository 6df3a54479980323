#include "platform/support/failure_of.h"
#include "server_files.h"
#include "servers/server_file.h"
#include "shell/shared_state.h"

#include <QDir>
#include <QTemporaryDir>

class TestServerFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        BinDir = m_dir.path();
        m_path = m_dir.filePath(QStringLiteral("qd7server.dat"));
    }

    void cleanup() { Clock::reset(); }

    // The clock read as HHMMSS, a quarter second a reading: the wait ends when the number reaches
    // its start plus one, so across a minute at the next minute, and at the day's end never.
    void waitForSeconds_data()
    {
        QTest::addColumn<QTime>("start");
        QTest::addColumn<bool>("ends");
        QTest::newRow("within a minute") << QTime(12, 0, 0) << true;
        QTest::newRow("across a minute") << QTime(12, 0, 59) << true;
        QTest::newRow("last second of the day") << QTime(23, 59, 59) << false;
    }

    void waitForSeconds()
    {
        QFETCH(QTime, start);
        QFETCH(bool, ends);
        int readings = 0;
        Clock::setSource([&] {
            if (++readings > 100) // a wait that runs on is broken off
                throw RuntimeError(RuntimeError::Overflow);
            return QDateTime(QDate(2002, 10, 1), start).addMSecs(250 * (readings - 1));
        });
        QCOMPARE(failureOf([] { WaitForSeconds(1); }).Number, ends ? 0 : 6);
        if (ends)
            QCOMPARE(readings, 5);
    }

    // No file to back up, none written: the console's last box says which step failed, on which file.
    void saveOverAFolder()
    {
        QDir().mkpath(m_path);
        const RuntimeError failure = failureOf([this] { SaveServerFile(m_path, {}); });
        QCOMPARE(failure.Number, 75);
        QCOMPARE(failure.Context,
            QStringLiteral("Saving the server list failed: Opening %1.\nThe server file is missing or incomplete.")
                .arg(m_path));
    }

private:
    QTemporaryDir m_dir;
    QString m_path;
};

QTEST_GUILESS_MAIN(TestServerFile)
#include "tst_server_file.moc"
