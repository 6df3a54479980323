#include "platform/support/failure_of.h"
#include "platform/support/file_locker.h"
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
        m_path = m_dir.filePath(QStringLiteral("share/qd7server.dat"));
        QDir(m_path).removeRecursively();
        QDir().mkpath(m_dir.filePath(QStringLiteral("share")));
        writeBytes(m_path, "old servers");
        ServerCount = 1;
        ServerTable.redim(1, ServerColumn::Last);
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

    // What the console's last box tells: the step, the file, and what is left.
    void failedSaveSaysWhatIsLeft_data()
    {
        QTest::addColumn<bool>("held");
        QTest::addColumn<QString>("context");
        QTest::newRow("held by a collector") << true << "Copying %1 to %2.\nThe server file was not changed.";
        QTest::newRow("a folder in its place") << false << "Opening %1.\nThe server file is missing or incomplete.";
    }

    void failedSaveSaysWhatIsLeft()
    {
        QFETCH(bool, held);
        QFETCH(QString, context);
        if (!held) {
            QFile::remove(m_path);
            QDir().mkpath(m_path);
        }
        const FileLocker collector(held ? m_path : m_dir.filePath(QStringLiteral("other")));
        const RuntimeError failure = failureOf([this] { SaveServerFile(m_path, { 1 }); });
        QCOMPARE(failure.Number, held ? 70 : 75);
        context.replace(QStringLiteral("%1"), m_path).replace(QStringLiteral("%2"), ServerBackupPath());
        QCOMPARE(failure.Context, QStringLiteral("Saving the server list failed: ") + context);
        if (held)
            QCOMPARE(readBytes(m_path), QByteArray("old servers"));
    }

private:
    QTemporaryDir m_dir;
    QString m_path;
};

QTEST_GUILESS_MAIN(TestServerFile)
#include "tst_server_file.moc"
