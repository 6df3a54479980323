#include "platform/line_file.h"
#include "support/failing_device.h"
#include "support/failure_of.h"
#include "support/file_locker.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestLineFile : public QObject
{
    Q_OBJECT

private slots:
    void readsLines_data();
    void readsLines();
    void writesCrLfInLatin1AndDiskFull();
    void lockedOutputEmptiesNothing();

private:
    QString fileWith(const QByteArray& bytes);

    QTemporaryDir m_dir;
};

QString TestLineFile::fileWith(const QByteArray& bytes)
{
    QFile file(m_dir.filePath(QStringLiteral("lines.dat")));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot prepare %s", qPrintable(file.fileName()));
    return file.fileName();
}

void TestLineFile::readsLines_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");

    const QByteArray chunk(4095, 'a'); // a CR on the last byte of a read chunk, its LF on the next
    QTest::newRow("empty file") << QByteArray() << QStringList();
    QTest::newRow("last line with CR LF")
        << QByteArray("ZTEST01\r\n\r\nSM50  \r\n") << QStringList { "ZTEST01", "", "SM50  " };
    QTest::newRow("last line without end") << QByteArray("ZTEST01\r\nSM50") << QStringList { "ZTEST01", "SM50" };
    QTest::newRow("LF only") << QByteArray("a\nb\n") << QStringList { "a", "b" };
    QTest::newRow("lone CR before CR LF") << QByteArray("a\r\r\nb") << QStringList { "a", "", "b" };
    QTest::newRow("CR LF across chunks") << chunk + "\r\nend" << QStringList { QString::fromLatin1(chunk), "end" };
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

void TestLineFile::writesCrLfInLatin1AndDiskFull()
{
    const QString name = fileWith("old text that must go\r\n");
    LineFile(name, LineFile::Mode::Output).writeLine(QStringLiteral("Gr\u00fc\u00df"));
    {
        LineFile file(name, LineFile::Mode::Append);
        file.writeLine(QString());
        file.writeLine(QStringLiteral("\u20ac ")); // beyond ISO-8859-1
        QCOMPARE(failureOf([&] { file.readLine(); }).Number, 54);
    }
    QFile written(name);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), QByteArray("Gr\xfc\xdf\r\n\r\n? \r\n"));

    auto device = std::make_unique<FailingDevice>(8);
    const FailingDevice& memory = *device;
    LineFile file(std::move(device), LineFile::Mode::Output, QStringLiteral("/full/log.dat"));
    file.writeLine(QStringLiteral("abc"));
    QCOMPARE(failureOf([&] { file.writeLine(QStringLiteral("defg")); }).Number, 61);
    QCOMPARE(memory.contents(), QByteArray("abc\r\ndef"));
}

void TestLineFile::lockedOutputEmptiesNothing()
{
    const QString name = fileWith("held\r\n");
    {
        FileLocker collector(name);
        QVERIFY(collector.isLocked());
        for (auto mode : { LineFile::Mode::Input, LineFile::Mode::Append, LineFile::Mode::Output })
            QCOMPARE(failureOf([&] { LineFile file(name, mode); }).Number, 70);
    }
    LineFile file(name, LineFile::Mode::Input);
    QCOMPARE(file.readLine(), QStringLiteral("held"));
}

QTEST_GUILESS_MAIN(TestLineFile)
#include "tst_line_file.moc"
