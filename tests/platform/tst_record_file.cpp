#include "platform/record_file.h"
#include "support/failing_device.h"
#include "support/failure_of.h"
#include "support/file_locker.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

class TestRecordFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void layoutByteForByte();
    void recordCountRounds_data();
    void recordCountRounds();
    void failures_data();
    void failures();
    void diskFullKeepsWhatWasWritten();
    void lockedByAnotherProcess();
    void holdsSharedLockUntilClosed();

private:
    QString path(const QString& name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

static QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void TestRecordFile::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("folder")));
    QFile plain(path(QStringLiteral("plain")));
    QVERIFY(plain.open(QIODevice::WriteOnly));
}

void TestRecordFile::layoutByteForByte()
{
    const QString file = path(QStringLiteral("records.dat"));
    {
        RecordFile records(file, 6); // creates the file
        QCOMPARE(records.read(1), QByteArray());
        records.write(1, "abc");
        records.write(3, "1234567890"); // cut; record 2 is a gap of zero bytes
        QCOMPARE(records.read(2), QByteArray(6, '\0'));
        records.write(2, "xy\r\n");
        records.write(1, "ABCDEF");
        QCOMPARE(records.length(), 18);
        QCOMPARE(records.read(3), QByteArray("123456"));
        QCOMPARE(records.read(4), QByteArray());
    }
    QCOMPARE(contents(file), QByteArray("ABCDEFxy\r\n  123456"));

    QFile raw(file);
    QVERIFY(raw.open(QIODevice::Append));
    raw.write("tail");
    raw.close();
    RecordFile records(file, 6, RecordFile::Access::Read);
    QCOMPARE(records.read(4), QByteArray("tail")); // a partial last record comes back short
    QCOMPARE(records.read(1), QByteArray("ABCDEF"));
}

void TestRecordFile::recordCountRounds_data()
{
    QTest::addColumn<int>("recordLength");
    QTest::addColumn<int>("fileLength");
    QTest::addColumn<int>("count"); // -1: overflow

    QTest::newRow("empty") << 183 << 0 << 0;
    QTest::newRow("0.5 to even 0") << 14 << 7 << 0;
    QTest::newRow("1.5 to even 2") << 14 << 21 << 2;
    QTest::newRow("2.5 to even 2") << 14 << 35 << 2;
    QTest::newRow("183x2+100") << 183 << 183 * 2 + 100 << 3;
    QTest::newRow("183x2+92") << 183 << 183 * 2 + 92 << 3;
    QTest::newRow("183x2+91") << 183 << 183 * 2 + 91 << 2;
    QTest::newRow("largest") << 1 << 32767 << 32767;
    QTest::newRow("beyond 16 bits") << 1 << 32768 << -1;
}

void TestRecordFile::recordCountRounds()
{
    QFETCH(int, recordLength);
    QFETCH(int, fileLength);
    QFETCH(int, count);

    const RecordFile records(std::make_unique<FailingDevice>(0, ENOSPC, QByteArray(fileLength, ' ')), recordLength,
        QStringLiteral("memory"));
    if (count >= 0)
        QCOMPARE(records.recordCount(), count);
    else
        QCOMPARE(failureOf([&] { records.recordCount(); }).Number, 6);
}

void TestRecordFile::failures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("recordLength");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<int>("number");

    QTest::newRow("missing file, read access") << "absent.dat" << 10 << true << 53;
    QTest::newRow("missing directory") << "nowhere/file.dat" << 10 << false << 76;
    QTest::newRow("file as directory") << "plain/file.dat" << 10 << false << 76;
    QTest::newRow("directory as file") << "folder" << 10 << false << 75;
    QTest::newRow("record length 0") << "absent.dat" << 0 << false << 5;
}

void TestRecordFile::failures()
{
    QFETCH(QString, name);
    QFETCH(int, recordLength);
    QFETCH(bool, readOnly);
    QFETCH(int, number);

    const RuntimeError error = failureOf([&] {
        RecordFile(path(name), recordLength, readOnly ? RecordFile::Access::Read : RecordFile::Access::ReadWrite);
    });
    QCOMPARE(error.Number, number);
    QVERIFY(error.Context.contains(path(name)));
    QVERIFY(!QFile::exists(path(QStringLiteral("absent.dat"))));
}

void TestRecordFile::diskFullKeepsWhatWasWritten()
{
    RecordFile records(std::make_unique<FailingDevice>(10), 4, QStringLiteral("/full/disk.dat"));
    records.write(1, "aaaa");
    records.write(2, "bbbb");
    const RuntimeError error = failureOf([&] { records.write(3, "cccc"); });
    QCOMPARE(error.Number, 61);
    QCOMPARE(error.Context, QStringLiteral("Writing /full/disk.dat"));
    QCOMPARE(failureOf([&] { records.write(4, "dddd"); }).Number, 61);
    QCOMPARE(records.read(1) + records.read(2), QByteArray("aaaabbbb"));

    for (qint64 number : { qint64(0), qint64(-1), std::numeric_limits<qint64>::max() })
        QCOMPARE(failureOf([&] { records.read(number); }).Number, 63);
    records.close();
    QCOMPARE(failureOf([&] { records.read(1); }).Number, 52);
}

void TestRecordFile::lockedByAnotherProcess()
{
    const QString file = path(QStringLiteral("qd7server.dat"));
    RecordFile(file, 2).write(1, "he");
    {
        FileLocker collector(file);
        QVERIFY(collector.isLocked());
        for (auto access : { RecordFile::Access::ReadWrite, RecordFile::Access::Read }) {
            const RuntimeError error = failureOf([&] { RecordFile(file, 183, access); });
            QCOMPARE(error.Number, 70);
            QCOMPARE(error.Context, QStringLiteral("Opening %1").arg(file));
        }
    }
    QCOMPARE(RecordFile(file, 2).read(1), QByteArray("he"));
}

void TestRecordFile::holdsSharedLockUntilClosed()
{
    // A collector's exclusive lock has to wait while the console has the file open.
    const QString file = path(QStringLiteral("shared.dat"));
    const int fd = ::open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT, 0666);
    QVERIFY(fd >= 0);
    {
        RecordFile records(file, 10);
        QCOMPARE(::flock(fd, LOCK_EX | LOCK_NB), -1);
        records.close();
        QCOMPARE(::flock(fd, LOCK_EX | LOCK_NB), 0);
        QCOMPARE(::flock(fd, LOCK_UN), 0);
        RecordFile again(file, 10);
    }
    QCOMPARE(::flock(fd, LOCK_EX | LOCK_NB), 0); // the destructor let go
    ::close(fd);
}

QTEST_GUILESS_MAIN(TestRecordFile)
#include "tst_record_file.moc"
