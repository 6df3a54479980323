#include "platform/support/failure_of.h"
#include "platform/support/file_locker.h"
#include "server_files.h"
#include "servers/server_file.h"
#include "shell/shared_state.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class TestServerFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        BinDir = m_dir->path();
        m_path = m_dir->filePath(QStringLiteral("share/qd7server.dat"));
        QDir().mkpath(m_dir->filePath(QStringLiteral("share")));
        // rows 1 and 2 share an entry, row 3 has no instance
        ServerCount = 3;
        ServerTable.redim(3, ServerColumn::Last);
        for (int row = 1; row <= 3; ++row) {
            ServerTable(row, ServerColumn::Server) = QStringLiteral("sap%1.corp").arg(row == 3 ? 3 : 1);
            ServerTable(row, ServerColumn::Client) = QString::number(row);
            ServerTable(row, ServerColumn::Instance) = row == 3 ? QString() : QStringLiteral("00");
        }
    }

    void cleanup() { Clock::reset(); }

    // The clock of the day read as HHMMSS: the wait ends when the number reaches its start plus the
    // seconds, so across a minute it ends at the next minute, and at the day's end never.
    void waitForSeconds_data()
    {
        QTest::addColumn<QTime>("start");
        QTest::addColumn<int>("readings");
        QTest::newRow("within a minute") << QTime(12, 0, 0) << 5;
        QTest::newRow("across a minute") << QTime(12, 0, 59) << 5;
        QTest::newRow("last second of the day") << QTime(23, 59, 59) << -1;
    }

    void waitForSeconds()
    {
        QFETCH(QTime, start);
        QFETCH(int, readings);
        // each reading moves on a quarter second; a wait that runs on is broken off after a while
        int count = 0;
        Clock::setSource([&] {
            if (++count > 100)
                throw RuntimeError(RuntimeError::Overflow, QStringLiteral("still waiting"));
            return QDateTime(QDate(2002, 10, 1), start).addMSecs(250 * (count - 1));
        });
        const RuntimeError failure = failureOf([] { WaitForSeconds(1); });
        QCOMPARE(failure.Number, readings < 0 ? 6 : 0);
        if (readings > 0)
            QCOMPARE(count, readings); // the start, then each quarter up to the next second
    }

    // The first row of each entry, in list order; an entry of no row is left out, and so is a row
    // without an instance, as list texts come trimmed.
    void rowsForEntries()
    {
        const QStringList entries { "sap3.corp", "sap1.corp 00", "sap3.corp ", "sap1.corp 00", "sap9.corp 00" };
        QCOMPARE(RowsForEntries(entries), (QList<int> { 1, 3, 1 }));
    }

    void saveReplacesTheFileAndKeepsTheOld()
    {
        writeBytes(m_path, "old servers");
        writeBytes(ServerBackupPath(), "older servers");
        SaveServerFile(m_path, { 2, 1 });
        QCOMPARE(readBytes(ServerBackupPath()), QByteArray("old servers"));
        const QByteArray saved = readBytes(m_path);
        QCOMPARE(saved.size(), 2 * 183);
        QVERIFY(saved.startsWith("sap1.corp "));
        QCOMPARE(saved.mid(163, 3), QByteArray("2  "));
        QCOMPARE(saved.mid(183 + 163, 3), QByteArray("1  "));

        SaveServerFile(m_dir->filePath(QStringLiteral("new.dat")), {}); // no old file: the backup stays
        QCOMPARE(readBytes(ServerBackupPath()), QByteArray("old servers"));
        QCOMPARE(readBytes(m_dir->filePath(QStringLiteral("new.dat"))), QByteArray());
    }

    // The last box of the console names the step, the file and what is left.
    void failedSaveSaysWhatIsLeft_data()
    {
        QTest::addColumn<QString>("held");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("context");
        QTest::newRow("file held") << "share/qd7server.dat" << 70 << "Copying %1 to %2.\nThe server file was not changed.";
        QTest::newRow("backup held") << "qd7server.bak" << 70 << "Copying %1 to %2.\nThe server file was not changed.";
        QTest::newRow("a folder in its place") << "" << 75 << "Opening %1.\nThe server file is missing or incomplete.";
    }

    void failedSaveSaysWhatIsLeft()
    {
        QFETCH(QString, held);
        QFETCH(int, number);
        QFETCH(QString, context);
        std::unique_ptr<FileLocker> locker;
        if (held.isEmpty()) {
            QDir().mkpath(m_path);
        } else {
            writeBytes(m_path, "old servers");
            locker = std::make_unique<FileLocker>(m_dir->filePath(held));
            QVERIFY(locker->isLocked());
        }
        const RuntimeError failure = failureOf([this] { SaveServerFile(m_path, { 1 }); });
        QCOMPARE(failure.Number, number);
        context.replace(QStringLiteral("%1"), m_path).replace(QStringLiteral("%2"), ServerBackupPath());
        QCOMPARE(failure.Context, QStringLiteral("Saving the server list failed: ") + context);
        if (!held.isEmpty())
            QCOMPARE(readBytes(m_path), QByteArray("old servers"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
};

QTEST_GUILESS_MAIN(TestServerFile)
#include "tst_server_file.moc"
