#include "platform/file_system.h"
#include "support/failure_of.h"
#include "support/file_locker.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestFileSystem : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void existsCopyDeleteAndLength();
    void failures_data();
    void failures();
    void heldFileIsError70ThenWorks();

private:
    QString path(const char* name) const { return m_dir->filePath(QLatin1String(name)); }
    QByteArray contents(const char* name) const;
    void makeFile(const char* name, const QByteArray& bytes);

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestFileSystem::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    makeFile("file.dat", "0123456789");
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(QFile::link(path("file.dat"), path("link.dat")));
    QVERIFY(QFile::link(path("folder"), path("folder-link")));
}

QByteArray TestFileSystem::contents(const char* name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void TestFileSystem::makeFile(const char* name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

void TestFileSystem::existsCopyDeleteAndLength()
{
    // Links count as what they point to; directories are no files.
    QVERIFY(fileExists(path("file.dat")) && fileExists(path("link.dat")) && !fileExists(path("missing.dat")));
    QVERIFY(!fileExists(path("folder")) && !fileExists(path("folder-link")));

    const QByteArray large(200000, 'x'); // more than one buffer
    makeFile("large.dat", large);
    copyFile(path("large.dat"), path("copy.dat"));
    QCOMPARE(contents("copy.dat"), large);
    copyFile(path("file.dat"), path("copy.dat")); // the longer old contents go entirely
    QCOMPARE(contents("copy.dat"), QByteArray("0123456789"));
    QCOMPARE(fileLength(path("copy.dat")), 10);

    copyFile(path("link.dat"), path("file.dat")); // the same file: emptying it first would lose it
    QCOMPARE(contents("file.dat"), QByteArray("0123456789"));

    deleteFile(path("link.dat")); // the link goes, its target stays
    QVERIFY(QFile::exists(path("file.dat")));
    deleteFile(path("file.dat"));
    QVERIFY(!QFile::exists(path("file.dat")));
}

void TestFileSystem::failures_data()
{
    QTest::addColumn<QString>("call"); // the operation and its files
    QTest::addColumn<int>("number");

    QTest::newRow("copy from missing file") << "copy missing.dat out.dat" << 53;
    QTest::newRow("copy into missing directory") << "copy file.dat nowhere/out.dat" << 76;
    QTest::newRow("copy onto directory") << "copy file.dat folder" << 75;
    QTest::newRow("delete missing file") << "delete missing.dat" << 53;
    QTest::newRow("delete in missing directory") << "delete nowhere/a.dat" << 76;
    QTest::newRow("delete directory") << "delete folder" << 75;
    QTest::newRow("length of directory") << "length folder" << 53;
}

void TestFileSystem::failures()
{
    QFETCH(QString, call);
    QFETCH(int, number);

    const QStringList words = call.split(QLatin1Char(' '));
    const QString first = m_dir->filePath(words[1]);
    const RuntimeError error = failureOf([&] {
        if (words[0] == QLatin1String("copy"))
            copyFile(first, m_dir->filePath(words[2]));
        else if (words[0] == QLatin1String("delete"))
            deleteFile(first);
        else
            fileLength(first);
    });
    QCOMPARE(error.Number, number);
    QVERIFY2(error.Context.contains(first), qPrintable(error.Context));
    // Nothing was made or lost on the way.
    QVERIFY(!QFile::exists(path("out.dat")));
    QCOMPARE(contents("file.dat"), QByteArray("0123456789"));
    QVERIFY(QDir(path("folder")).exists());
}

void TestFileSystem::heldFileIsError70ThenWorks()
{
    makeFile("held.dat", "held by a collector");
    {
        FileLocker collector(path("held.dat"));
        QVERIFY(collector.isLocked());
        QCOMPARE(failureOf([&] { deleteFile(path("held.dat")); }).Number, 70);
        QCOMPARE(failureOf([&] { copyFile(path("held.dat"), path("out.dat")); }).Number, 70);
        QCOMPARE(failureOf([&] { copyFile(path("file.dat"), path("held.dat")); }).Number, 70);
        QCOMPARE(contents("held.dat"), QByteArray("held by a collector"));
        QVERIFY(!QFile::exists(path("out.dat")));
    }
    copyFile(path("file.dat"), path("held.dat"));
    QCOMPARE(contents("held.dat"), QByteArray("0123456789"));
    deleteFile(path("held.dat"));
    QVERIFY(!QFile::exists(path("held.dat")));
}

QTEST_GUILESS_MAIN(TestFileSystem)
#include "tst_file_system.moc"
