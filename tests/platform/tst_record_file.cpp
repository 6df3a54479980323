#include "platform/record_file.h"
#include "platform/runtime_error.h"
#include "support/failing_device.h"
#include "support/failure_of.h"
#include "support/file_locker.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestRecordFile : public QObject
{
    Q_OBJECT

private slots:
    void layoutByteForByte();
    void readsAcrossBlocks();
    void readFaultKeepsTheRecordsBefore();
    void recordCountRounds_data();
    void recordCountRounds();
    void openFailures_data();
    void openFailures();
    void diskFullKeepsWhatWasWritten();
    void lockedByAnotherProcess();

private:
    QTemporaryDir m_dir;
};

void TestRecordFile::layoutByteForByte()
{
    const QString file = m_dir.filePath(QStringLiteral("records.dat"));
    {
        RecordFile records(file, 6); // creates the file
        records.write(1, "abc");
        records.write(3, "1234567890"); // cut; record 2 is a gap of zero bytes
        QCOMPARE(records.read(2), QByteArray(6, '\0'));
        records.write(2, "xy\r\n");
        records.write(1, "ABCDEF");
        QCOMPARE(records.read(4), QByteArray());
    }
    QFile raw(file);
    QVERIFY(raw.open(QIODevice::ReadWrite));
    QCOMPARE(raw.readAll(), QByteArray("ABCDEFxy\r\n  123456"));
    QCOMPARE(raw.write("tail"), 4);
    raw.close();
    RecordFile records(file, 6, RecordFile::Access::Read);
    QCOMPARE(records.read(4), QByteArray("tail")); // a partial last record comes back short
    QCOMPARE(records.read(3), QByteArray("123456"));
}

// Records come from blocks read ahead: every record of a file longer than a block, whatever the
// record length, comes back whole and in place; a write through the file is read back at once.
void TestRecordFile::readsAcrossBlocks()
{
    const int recordLength = 183;
    const int count = 1000;
    QByteArray contents;
    for (int n = 1; n <= count; ++n)
        contents += QByteArray::number(n).leftJustified(recordLength, '.');
    contents += "half";
    auto device = std::make_unique<FailingDevice>(1 << 20, contents);
    RecordFile records(std::move(device), recordLength, QStringLiteral("memory"));
    for (int n = 1; n <= count; ++n) {
        if (records.read(n) != contents.mid((n - 1) * recordLength, recordLength))
            QFAIL(qPrintable(QStringLiteral("record %1").arg(n)));
    }
    QCOMPARE(records.read(count + 1), QByteArray("half"));
    QCOMPARE(records.read(count + 2), QByteArray());
    QCOMPARE(records.read(2).left(3), QByteArray("2.."));
    records.write(3, "changed");
    QCOMPARE(records.read(3), QByteArray("changed").leftJustified(recordLength, ' '));
    records.write(count + 1, "whole");
    QCOMPARE(records.read(count + 1), QByteArray("whole").leftJustified(recordLength, ' '));
    QCOMPARE(failureOf([&] { records.read(0); }).Number, 63);
}

// A fault in the middle of the file: the records before it are read, the one that holds it fails.
void TestRecordFile::readFaultKeepsTheRecordsBefore()
{
    auto device = std::make_unique<FailingDevice>(0, QByteArray(10 * 4, 'r'));
    device->setBadSectorAt(7 * 4 + 2);
    RecordFile records(std::move(device), 4, QStringLiteral("/bad/disk.dat"));
    for (int n = 1; n <= 7; ++n)
        QCOMPARE(records.read(n), QByteArray("rrrr"));
    QCOMPARE(failureOf([&] { records.read(8); }).Number, int(RuntimeError::PathFileAccessError));
    QCOMPARE(records.read(2), QByteArray("rrrr"));
}

void TestRecordFile::recordCountRounds_data()
{
    QTest::addColumn<int>("recordLength");
    QTest::addColumn<int>("fileLength");
    QTest::addColumn<int>("count"); // -1: overflow

    QTest::newRow("0.5 to even 0") << 14 << 7 << 0;
    QTest::newRow("1.5 to even 2") << 14 << 21 << 2;
    QTest::newRow("183x2+100") << 183 << 183 * 2 + 100 << 3;
    QTest::newRow("183x2+91") << 183 << 183 * 2 + 91 << 2;
    QTest::newRow("largest") << 1 << 32767 << 32767;
    QTest::newRow("beyond 16 bits") << 1 << 32768 << -1;
}

void TestRecordFile::recordCountRounds()
{
    QFETCH(int, recordLength);
    QFETCH(int, fileLength);
    QFETCH(int, count);

    const RecordFile records(
        std::make_unique<FailingDevice>(0, QByteArray(fileLength, ' ')), recordLength, QStringLiteral("memory"));
    if (count >= 0)
        QCOMPARE(records.recordCount(), count);
    else
        QCOMPARE(failureOf([&] { records.recordCount(); }).Number, 6);
}

void TestRecordFile::openFailures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("recordLength");
    QTest::addColumn<int>("number");

    QTest::newRow("missing file, read access") << "absent.dat" << 10 << 53;
    QTest::newRow("missing directory") << "nowhere/absent.dat" << 10 << 76;
    QTest::newRow("directory as file") << "folder" << 10 << 75;
    QTest::newRow("record length 0") << "absent.dat" << 0 << 5;
}

void TestRecordFile::openFailures()
{
    QFETCH(QString, name);
    QFETCH(int, recordLength);
    QFETCH(int, number);

    QVERIFY(QDir(m_dir.path()).mkpath(QStringLiteral("folder")));
    const QString path = m_dir.filePath(name);
    const RuntimeError error = failureOf([&] { RecordFile(path, recordLength, RecordFile::Access::Read); });
    QCOMPARE(error.Number, number);
    QVERIFY(error.Context.contains(path));
    QVERIFY(!QFile::exists(m_dir.filePath(QStringLiteral("absent.dat"))));
}

void TestRecordFile::diskFullKeepsWhatWasWritten()
{
    RecordFile records(std::make_unique<FailingDevice>(10), 4, QStringLiteral("/full/disk.dat"));
    records.write(1, "aaaa");
    records.write(2, "bbbb");
    const RuntimeError error = failureOf([&] { records.write(3, "cccc"); });
    QCOMPARE(error.Number, 61);
    QCOMPARE(error.Context, QStringLiteral("Writing /full/disk.dat"));
    QCOMPARE(records.read(1) + records.read(2), QByteArray("aaaabbbb"));
    // Record numbers whose offset would overflow are refused before any seek.
    for (qint64 number : { qint64(0), std::numeric_limits<qint64>::max() })
        QCOMPARE(failureOf([&] { records.read(number); }).Number, 63);
}

void TestRecordFile::lockedByAnotherProcess()
{
    const QString file = m_dir.filePath(QStringLiteral("qd7server.dat"));
    RecordFile(file, 2).write(1, "he");
    {
        FileLocker collector(file);
        QVERIFY(collector.isLocked());
        for (auto access : { RecordFile::Access::ReadWrite, RecordFile::Access::Read })
            QCOMPARE(failureOf([&] { RecordFile(file, 2, access); }).Number, 70);
    }
    QCOMPARE(RecordFile(file, 2).read(1), QByteArray("he"));
}

QTEST_GUILESS_MAIN(TestRecordFile)
#include "tst_record_file.moc"
