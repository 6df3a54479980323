#include "platform/file_system.h"
#include "platform/line_file.h"
#include "platform/record_file.h"
#include "support/failing_device.h"
#include "support/failure_of.h"
#include "support/file_locker.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void recordLayoutByteForByte();
    void readsAcrossBlocks();
    void readFaultKeepsTheRecordsBefore();
    void recordCountRounds();
    void diskFullKeepsWhatWasWritten();
    void readsLines();
    void writesCrLfInLatin1();
    void existsCopyDeleteAndLength();
    void failuresByNumber();
    void foreignFlockIsError70();

private:
    QString path(const char* name) const { return m_dir->filePath(QLatin1String(name)); }
    QByteArray contents(const char* name) const;
    QString makeFile(const char* name, const QByteArray& bytes) const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestFiles::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    makeFile("file.dat", "0123456789");
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(QFile::link(path("file.dat"), path("link.dat")));
    QVERIFY(QFile::link(path("folder"), path("folder-link")));
}

QByteArray TestFiles::contents(const char* name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

QString TestFiles::makeFile(const char* name, const QByteArray& bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot prepare %s", qPrintable(file.fileName()));
    return file.fileName();
}

void TestFiles::recordLayoutByteForByte()
{
    const QString file = path("records.dat");
    {
        RecordFile records(file, 6); // creates the file
        records.write(1, "abc");
        records.write(3, "1234567890"); // cut; record 2 is a gap of zero bytes
        QCOMPARE(records.read(2), QByteArray(6, '\0'));
        records.write(2, "xy\r\n");
        records.write(1, "ABCDEF");
        QCOMPARE(records.read(4), QByteArray());
    }
    QCOMPARE(contents("records.dat"), QByteArray("ABCDEFxy\r\n  123456"));
    makeFile("records.dat", "ABCDEFxy\r\n  123456tail");
    RecordFile records(file, 6, RecordFile::Access::Read);
    QCOMPARE(records.read(4), QByteArray("tail")); // a partial last record comes back short
    QCOMPARE(records.read(3), QByteArray("123456"));
}

// Records of a file longer than a block come back whole and in place; a write is read back at once.
void TestFiles::readsAcrossBlocks()
{
    const int recordLength = 183;
    const int count = 1000;
    QByteArray contents;
    for (int n = 1; n <= count; ++n)
        contents += QByteArray::number(n).leftJustified(recordLength, '.');
    contents += "half";
    RecordFile records(std::make_unique<FailingDevice>(1 << 20, contents), recordLength, QStringLiteral("memory"));
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
}

void TestFiles::readFaultKeepsTheRecordsBefore()
{
    auto device = std::make_unique<FailingDevice>(0, QByteArray(10 * 4, 'r'));
    device->setBadSectorAt(7 * 4 + 2);
    RecordFile records(std::move(device), 4, QStringLiteral("/bad/disk.dat"));
    for (int n = 1; n <= 7; ++n)
        QCOMPARE(records.read(n), QByteArray("rrrr"));
    QCOMPARE(failureOf([&] { records.read(8); }).Number, int(RuntimeError::PathFileAccessError));
    QCOMPARE(records.read(2), QByteArray("rrrr"));
}

void TestFiles::recordCountRounds()
{
    // record length, file length, count (-1: overflow); a half goes to the even count
    const int cases[][3] = { { 14, 7, 0 }, { 14, 21, 2 }, { 183, 183 * 2 + 100, 3 }, { 183, 183 * 2 + 91, 2 },
        { 1, 32767, 32767 }, { 1, 32768, -1 } };
    for (const auto& [recordLength, fileLength, count] : cases) {
        const RecordFile records(
            std::make_unique<FailingDevice>(0, QByteArray(fileLength, ' ')), recordLength, QStringLiteral("memory"));
        if (count >= 0)
            QCOMPARE(records.recordCount(), count);
        else
            QCOMPARE(failureOf([&] { records.recordCount(); }).Number, 6);
    }
}

void TestFiles::diskFullKeepsWhatWasWritten()
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
    records.close();
    QCOMPARE(failureOf([&] { records.read(1); }).Number, 52);

    auto device = std::make_unique<FailingDevice>(8);
    const FailingDevice& memory = *device;
    LineFile lines(std::move(device), LineFile::Mode::Output, QStringLiteral("/full/log.dat"));
    lines.writeLine(QStringLiteral("abc"));
    QCOMPARE(failureOf([&] { lines.writeLine(QStringLiteral("defg")); }).Number, 61);
    QCOMPARE(memory.contents(), QByteArray("abc\r\ndef"));
}

void TestFiles::readsLines()
{
    const QByteArray chunk(4095, 'a'); // a CR on the last byte of a read chunk, its LF on the next
    const std::pair<QByteArray, QStringList> cases[] = {
        { "", {} },
        { "ZTEST01\r\n\r\nSM50  \r\n", { "ZTEST01", "", "SM50  " } },
        { "ZTEST01\r\nSM50", { "ZTEST01", "SM50" } }, // the last line needs no end
        { "a\nb\r\r\nc", { "a", "b", "", "c" } },
        { chunk + "\r\nend", { QString::fromLatin1(chunk), "end" } },
    };
    for (const auto& [bytes, lines] : cases) {
        LineFile file(makeFile("lines.dat", bytes), LineFile::Mode::Input);
        QStringList read;
        while (!file.atEnd())
            read << file.readLine();
        QCOMPARE(read, lines);
        const RuntimeError error = failureOf([&] { file.readLine(); });
        QCOMPARE(error.Number, 62);
        QCOMPARE(error.Context, QStringLiteral("Reading %1").arg(path("lines.dat")));
        file.close();
        QCOMPARE(failureOf([&] { file.readLine(); }).Number, 52);
    }
}

void TestFiles::writesCrLfInLatin1()
{
    const QString name = makeFile("lines.dat", "old text that must go\r\n");
    LineFile(name, LineFile::Mode::Output).writeLine(QStringLiteral("Gr\u00fc\u00df"));
    LineFile file(name, LineFile::Mode::Append);
    file.writeLine(QString());
    file.writeLine(QStringLiteral("\u20ac ")); // beyond ISO-8859-1
    QCOMPARE(failureOf([&] { file.readLine(); }).Number, 54);
    file.close();
    QCOMPARE(contents("lines.dat"), QByteArray("Gr\xfc\xdf\r\n\r\n? \r\n"));
}

void TestFiles::existsCopyDeleteAndLength()
{
    // Links count as what they point to; directories are no files.
    QVERIFY(fileExists(path("file.dat")) && fileExists(path("link.dat")) && !fileExists(path("missing.dat")));
    QVERIFY(!fileExists(path("folder")) && !fileExists(path("folder-link")));

    const QByteArray large(200000, 'x'); // more than one buffer
    makeFile("large.dat", large);
    copyFile(path("large.dat"), path("copy.dat"));
    QCOMPARE(contents("copy.dat"), large);
    copyFile(path("file.dat"), path("copy.dat")); // the longer old contents go entirely
    QCOMPARE(fileLength(path("copy.dat")), 10);

    copyFile(path("link.dat"), path("file.dat")); // the same file: emptying it first would lose it
    QCOMPARE(contents("file.dat"), QByteArray("0123456789"));

    deleteFile(path("link.dat")); // the link goes, its target stays
    QVERIFY(QFile::exists(path("file.dat")));
    deleteFile(path("file.dat"));
    QVERIFY(!QFile::exists(path("file.dat")));
}

void TestFiles::failuresByNumber()
{
    // the operation, its files, the error
    const std::pair<const char*, int> cases[] = { { "open missing.dat", 53 }, { "open nowhere/a.dat", 76 },
        { "open folder", 75 }, { "copy missing.dat out.dat", 53 }, { "copy file.dat nowhere/out.dat", 76 },
        { "copy file.dat folder", 75 }, { "delete missing.dat", 53 }, { "delete nowhere/a.dat", 76 },
        { "delete folder", 75 }, { "length folder", 53 } };
    for (const auto& [call, number] : cases) {
        const QStringList words = QString::fromLatin1(call).split(QLatin1Char(' '));
        const QString first = m_dir->filePath(words[1]);
        const RuntimeError error = failureOf([&] {
            if (words[0] == QLatin1String("open"))
                RecordFile(first, 10, RecordFile::Access::Read);
            else if (words[0] == QLatin1String("copy"))
                copyFile(first, m_dir->filePath(words[2]));
            else if (words[0] == QLatin1String("delete"))
                deleteFile(first);
            else
                fileLength(first);
        });
        QCOMPARE(error.Number, number);
        QVERIFY2(error.Context.contains(first), qPrintable(error.Context));
    }
    QCOMPARE(failureOf([&] { RecordFile(path("missing.dat"), 0); }).Number, 5);
    // Nothing was made or lost on the way.
    QVERIFY(!QFile::exists(path("out.dat")) && !QFile::exists(path("missing.dat")));
    QCOMPARE(contents("file.dat"), QByteArray("0123456789"));
    QVERIFY(QDir(path("folder")).exists());
}

// While a collector holds its exclusive flock every open, copy and delete is 70 and changes nothing.
void TestFiles::foreignFlockIsError70()
{
    const QString held = makeFile("held.dat", "held\r\n");
    {
        FileLocker collector(held);
        QVERIFY(collector.isLocked());
        const std::function<void()> operations[] = {
            [&] { RecordFile(held, 2); },
            [&] { RecordFile(held, 2, RecordFile::Access::Read); },
            [&] { LineFile(held, LineFile::Mode::Input); },
            [&] { LineFile(held, LineFile::Mode::Append); },
            [&] { LineFile(held, LineFile::Mode::Output); },
            [&] { deleteFile(held); },
            [&] { copyFile(held, path("out.dat")); },
            [&] { copyFile(path("file.dat"), held); },
        };
        for (const auto& operation : operations)
            QCOMPARE(failureOf(operation).Number, 70);
        QVERIFY(!QFile::exists(path("out.dat")));
    }
    QCOMPARE(LineFile(held, LineFile::Mode::Input).readLine(), QStringLiteral("held"));
    QCOMPARE(RecordFile(held, 2).read(1), QByteArray("he"));
    copyFile(path("file.dat"), held);
    QCOMPARE(contents("held.dat"), QByteArray("0123456789"));
}

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
