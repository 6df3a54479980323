#include "platform/line_file.h"
#include "support/failing_device.h"
#include "support/failure_of.h"
#include "support/file_locker.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestLineFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void readsLines_data();
    void readsLines();
    void writesCrLfInLatin1();
    void failures_data();
    void failures();
    void diskFull();
    void lockedByAnotherProcess();

private:
    QString fileWith(const QByteArray& bytes);

    std::unique_ptr<QTemporaryDir> m_dir;
};

static QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void TestLineFile::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

QString TestLineFile::fileWith(const QByteArray& bytes)
{
    const QString name = m_dir->filePath(QStringLiteral("lines.dat"));
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot prepare %s", qPrintable(name));
    return name;
}

void TestLineFile::readsLines_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");

    const QByteArray chunk(4095, 'a'); // puts a CR on the last byte of a read chunk, its LF on the next
    QTest::newRow("empty file") << QByteArray() << QStringList();
    QTest::newRow("last line with CR LF") << QByteArray("ZTEST01\r\nSM50\r\n") << QStringList { "ZTEST01", "SM50" };
    QTest::newRow("last line without end") << QByteArray("ZTEST01\r\nSM50") << QStringList { "ZTEST01", "SM50" };
    QTest::newRow("LF, CR alone") << QByteArray("a\nb\rc") << QStringList { "a", "b", "c" };
    QTest::newRow("empty lines, blanks kept") << QByteArray("\r\n\r\nID01   \r\n") << QStringList { "", "", "ID01   " };
    QTest::newRow("CR CR LF") << QByteArray("a\r\r\nb") << QStringList { "a", "", "b" };
    QTest::newRow("across chunks") << chunk + "\r\n" + QByteArray(10000, 'b') + "\r\nend"
                                   << QStringList { QString::fromLatin1(chunk), QString(10000, 'b'), "end" };
}

void TestLineFile::readsLines()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);

    const QString name = fileWith(bytes);
    LineFile file(name, LineFile::Mode::Input);
    QStringList read;
    while (!file.atEnd())
        read << file.readLine();
    QCOMPARE(read, lines);
    const RuntimeError error = failureOf([&] { file.readLine(); });
    QCOMPARE(error.Number, 62);
    QCOMPARE(error.Context, QStringLiteral("Reading %1").arg(name));
}

void TestLineFile::writesCrLfInLatin1()
{
    const QString name = fileWith("old text that must go\r\n");
    const QString accents = QStringLiteral("Gr\u00fc\u00dfe \u00e9t\u00e9");
    {
        LineFile file(name, LineFile::Mode::Output);
        file.writeLine(accents);
    }
    {
        LineFile file(name, LineFile::Mode::Append);
        file.writeLine(QString());
        file.writeLine(QStringLiteral("\u20ac ")); // beyond ISO-8859-1
        QCOMPARE(failureOf([&] { file.readLine(); }).Number, 54);
    }
    QCOMPARE(contents(name),
        QByteArray("Gr\xfc\xdf"
                   "e \xe9t\xe9\r\n\r\n? \r\n"));
    LineFile file(name, LineFile::Mode::Input);
    QCOMPARE(file.readLine(), accents);
}

void TestLineFile::failures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<LineFile::Mode>("mode");
    QTest::addColumn<int>("number");

    QTest::newRow("missing file") << "absent.dat" << LineFile::Mode::Input << 53;
    QTest::newRow("missing directory") << "nowhere/absent.dat" << LineFile::Mode::Input << 76;
    QTest::newRow("missing directory, append") << "nowhere/log.dat" << LineFile::Mode::Append << 76;
    QTest::newRow("directory, input") << "folder" << LineFile::Mode::Input << 75;
    QTest::newRow("directory, output") << "folder" << LineFile::Mode::Output << 75;
}

void TestLineFile::failures()
{
    QFETCH(QString, name);
    QFETCH(LineFile::Mode, mode);
    QFETCH(int, number);

    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("folder")));
    const QString path = m_dir->filePath(name);
    const RuntimeError error = failureOf([&] { LineFile file(path, mode); });
    QCOMPARE(error.Number, number);
    QCOMPARE(error.Context, QStringLiteral("Opening %1").arg(path));
    QVERIFY(!QFile::exists(m_dir->filePath(QStringLiteral("absent.dat"))));
}

void TestLineFile::diskFull()
{
    auto device = std::make_unique<FailingDevice>(8);
    const FailingDevice& memory = *device;
    LineFile file(std::move(device), LineFile::Mode::Output, QStringLiteral("/full/log.dat"));
    file.writeLine(QStringLiteral("abc"));
    QCOMPARE(failureOf([&] { file.writeLine(QStringLiteral("defg")); }).Number, 61);
    QCOMPARE(memory.contents(), QByteArray("abc\r\ndef"));
    file.close();
    QCOMPARE(failureOf([&] { file.writeLine(QString()); }).Number, 52);
}

void TestLineFile::lockedByAnotherProcess()
{
    const QString name = fileWith("held\r\n");
    {
        FileLocker collector(name);
        QVERIFY(collector.isLocked());
        for (auto mode : { LineFile::Mode::Input, LineFile::Mode::Append, LineFile::Mode::Output })
            QCOMPARE(failureOf([&] { LineFile file(name, mode); }).Number, 70);
    }
    // The refused output open emptied nothing.
    LineFile file(name, LineFile::Mode::Input);
    QCOMPARE(file.readLine(), QStringLiteral("held"));
}

QTEST_GUILESS_MAIN(TestLineFile)
#include "tst_line_file.moc"
