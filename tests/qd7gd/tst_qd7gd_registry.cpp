// The settings store through the C interface, in one process: bytes kept, buffer limits,
// statuses of bad stores, and what a write leaves on disk.
#include "registry_util.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>

class TestRegistry : public QObject {
    Q_OBJECT

private slots:
    void valuesKeepEveryByte_data();
    void valuesKeepEveryByte();
    void readCutsLongValueAt255();
    void namesAndArguments();
    void deleteValue();
    void unchangedWriteLeavesFileAlone();
    void badStores_data();
    void badStores();
};

void TestRegistry::valuesKeepEveryByte_data()
{
    QTest::addColumn<QByteArray>("value");
    QByteArray high;
    for (int b = 0x80; b <= 0xFF; ++b)
        high.append(char(b));
    QTest::newRow("leading blank") << QByteArray(" 31");
    QTest::newRow("trailing blank") << QByteArray("08:00 17:30 ");
    QTest::newRow("blanks only") << QByteArray("   ");
    QTest::newRow("ini punctuation") << QByteArray("a;b=c \"q\" #x [s] \\ %1");
    QTest::newRow("starts like a comment") << QByteArray(";x=1");
    QTest::newRow("escape lookalike") << QByteArray("\\x41\\\\");
    QTest::newRow("bytes 0x80-0xFF") << high;
    QTest::newRow("control bytes") << QByteArray("a\tb\rc\nd\x01\x1f\x7f");
    QTest::newRow("254 bytes") << QByteArray(254, 'v');
    QTest::newRow("255 bytes, no NUL") << QByteArray(255, 'w');
}

void TestRegistry::valuesKeepEveryByte()
{
    QFETCH(QByteArray, value);
    TempStore store;
    QCOMPARE(setReg("Value", value), 0);
    const ReadResult r = readReg("Value");
    QCOMPARE(r.count, int32_t(value.size()));
    QCOMPARE(r.value, value);
    QCOMPARE(r.terminated, value.size() < 255);
    QVERIFY(r.guardIntact);
    // the writer's file is plain ASCII, one line a value
    for (const char c : fileBytes(store.path))
        QVERIFY2(c == '\n' || (c >= 0x20 && c < 0x7F), qPrintable(QString::number(uchar(c), 16)));
}

void TestRegistry::readCutsLongValueAt255()
{
    TempStore store;
    QDir().mkpath(QFileInfo(store.path).path());
    const QByteArray value = QByteArray(150, 'a') + QByteArray(150, 'b');
    writeBytes(store.path, "Long=" + value + "\n");
    const ReadResult r = readReg("Long");
    QCOMPARE(r.count, 255);
    QCOMPARE(r.value, value.left(255));
    QVERIFY(r.guardIntact);
}

void TestRegistry::namesAndArguments()
{
    TempStore store;
    QCOMPARE(setReg("Probe", "upper"), 0);
    QCOMPARE(setReg("probe", "lower"), 0);
    QCOMPARE(readReg("Probe").value, QByteArray("upper"));
    QCOMPARE(readReg("probe").value, QByteArray("lower"));
    const ReadResult absent = readReg("PROBE");
    QCOMPARE(absent.count, 0);
    QVERIFY(absent.terminated);
    QCOMPARE(setReg("Empty", ""), 0);
    QCOMPARE(readReg("Empty").count, 0);
    QCOMPARE(setReg("a=b [c]; #d", "odd name"), 0);
    QCOMPARE(readReg("a=b [c]; #d").value, QByteArray("odd name"));

    char buffer[255] = "x";
    QCOMPARE(ReadRegistry(nullptr, buffer), 0);
    QCOMPARE(buffer[0], '\0');
    QCOMPARE(ReadRegistry("Probe", nullptr), 0);
    QCOMPARE(UpdateRegistry(nullptr, buffer), 87);
    QCOMPARE(UpdateRegistry("", buffer), 87);
    QCOMPARE(UpdateRegistry("Probe", nullptr), 87);
    QCOMPARE(DeleteRegistry(nullptr), 87);
    QCOMPARE(DeleteRegistry(""), 87);
    QCOMPARE(setReg(QByteArray(255, 'n'), "longest name"), 0);
    QCOMPARE(readReg(QByteArray(255, 'n')).value, QByteArray("longest name"));
    QCOMPARE(setReg(QByteArray(256, 'n'), "too long"), 2);
    QCOMPARE(readReg(QByteArray(256, 'n')).count, 0);
}

void TestRegistry::deleteValue()
{
    TempStore store;
    QCOMPARE(DeleteRegistry("Gone"), 0);
    QVERIFY2(!QFile::exists(store.path), "deleting from a missing store creates nothing");
    QCOMPARE(setReg("Keep", "1"), 0);
    QCOMPARE(setReg("Gone", "2"), 0);
    QCOMPARE(DeleteRegistry("Gone"), 0);
    QCOMPARE(readReg("Gone").count, 0);
    QCOMPARE(readReg("Keep").value, QByteArray("1"));
    QCOMPARE(DeleteRegistry("Gone"), 0);
}

static ino_t inodeOf(const QString& path)
{
    struct stat st;
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_ino : 0;
}

void TestRegistry::unchangedWriteLeavesFileAlone()
{
    TempStore store;
    QCOMPARE(setReg("Notation", "1.234,5"), 0);
    const ino_t before = inodeOf(store.path);
    QCOMPARE(setReg("Notation", "1.234,5"), 0);
    QCOMPARE(inodeOf(store.path), before);
    QCOMPARE(setReg("Notation", "1,234.5"), 0);
    QVERIFY(inodeOf(store.path) != before); // replaced by rename, never rewritten in place
    QVERIFY(QFile::exists(store.path + ".lock")); // the lock is the flock on it, gone with its holder
}

enum class Setup { Missing, DirectoryAtPath, ReadOnlyFile, ReadOnlyDirectory, ParentIsFile, Corrupt, BadEscape };

void TestRegistry::badStores_data()
{
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<QByteArray>("expectedRead");
    QTest::addColumn<int>("writeStatus");
    QTest::addColumn<int>("deleteStatus");
    QTest::newRow("missing store and directory") << Setup::Missing << QByteArray() << 0 << 0;
    QTest::newRow("directory at the path") << Setup::DirectoryAtPath << QByteArray() << 8 << 8;
    QTest::newRow("read-only file") << Setup::ReadOnlyFile << QByteArray("old") << 8 << 8;
    QTest::newRow("read-only directory") << Setup::ReadOnlyDirectory << QByteArray("old") << 8 << 8;
    QTest::newRow("parent is a file") << Setup::ParentIsFile << QByteArray() << 3 << 0;
    QTest::newRow("line without =") << Setup::Corrupt << QByteArray() << 1 << 1;
    QTest::newRow("bad escape") << Setup::BadEscape << QByteArray() << 1 << 1;
}

void TestRegistry::badStores()
{
    QFETCH(Setup, setup);
    QFETCH(QByteArray, expectedRead);
    QFETCH(int, writeStatus);
    QFETCH(int, deleteStatus);
    TempStore store;
    const QString dir = QFileInfo(store.path).path();
    QString path = store.path;
    QDir().mkpath(dir);
    switch (setup) {
    case Setup::Missing:
        QDir(dir).removeRecursively();
        break;
    case Setup::DirectoryAtPath:
        QDir().mkpath(path);
        break;
    case Setup::ReadOnlyFile:
        writeBytes(path, "Value=old\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
        break;
    case Setup::ReadOnlyDirectory:
        writeBytes(path, "Value=old\n");
        QFile::setPermissions(dir, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
        break;
    case Setup::ParentIsFile:
        writeBytes(dir + "/file", "x");
        path = dir + "/file/sub/qd7gd.ini";
        qputenv("QD7_REGISTRY", QFile::encodeName(path));
        break;
    case Setup::Corrupt:
        writeBytes(path, "Value=old\nno equals sign here\n");
        break;
    case Setup::BadEscape:
        writeBytes(path, "Value=old\nOther=a\\qb\n");
        break;
    }
    const QByteArray before = fileBytes(path);

    QCOMPARE(readReg("Value").value, expectedRead);
    QCOMPARE(setReg("Value", "new"), writeStatus);
    if (writeStatus == 0) {
        QCOMPARE(readReg("Value").value, QByteArray("new"));
    } else {
        QCOMPARE(fileBytes(path), before);
        QCOMPARE(readReg("Value").value, expectedRead);
        QCOMPARE(DeleteRegistry("Value"), deleteStatus);
        QCOMPARE(fileBytes(path), before);
    }
    QFile::setPermissions(dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QTEST_APPLESS_MAIN(TestRegistry)
#include "tst_qd7gd_registry.moc"
