#include "platform/file_errors.h"
#include "platform/file_system.h"
#include "support/failure_of.h"
#include "support/file_locker.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

class TestFileSystem : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void errnoNumbers_data();
    void errnoNumbers();
    void fileExists_data();
    void fileExists();
    void copyDeleteAndLength();
    void failures_data();
    void failures();
    void heldFileIsError70ThenWorks();
    void unreadableSourceIsError70();

private:
    QString path(const QString& name) const { return m_dir->filePath(name); }
    void makeFile(const QString& name, const QByteArray& bytes);

    std::unique_ptr<QTemporaryDir> m_dir;
};

static QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void TestFileSystem::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    makeFile(QStringLiteral("file.dat"), "0123456789");
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(QFile::link(path(QStringLiteral("file.dat")), path(QStringLiteral("link.dat"))));
    QVERIFY(QFile::link(path(QStringLiteral("folder")), path(QStringLiteral("folder-link"))));
}

void TestFileSystem::makeFile(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

void TestFileSystem::errnoNumbers_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");

    // The cases that no test can provoke as root or on a roomy disk.
    QTest::newRow("ENOENT, directory there") << ENOENT << "missing.dat" << 53;
    QTest::newRow("EACCES") << EACCES << "x" << 70;
    QTest::newRow("EROFS") << EROFS << "x" << 70;
    QTest::newRow("EDQUOT") << EDQUOT << "x" << 61;
    QTest::newRow("EBADF") << EBADF << "x" << 52;
}

void TestFileSystem::errnoNumbers()
{
    QFETCH(int, error);
    QFETCH(QString, name);
    QFETCH(int, number);

    QCOMPARE(fileErrorNumber(error, path(name)), number);
}

void TestFileSystem::fileExists_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("exists");

    QTest::newRow("file") << "file.dat" << true;
    QTest::newRow("link to a file") << "link.dat" << true;
    QTest::newRow("missing") << "missing.dat" << false;
    QTest::newRow("directory") << "folder" << false;
    QTest::newRow("link to a directory") << "folder-link" << false;
    QTest::newRow("below a file") << "file.dat/x" << false;
    QTest::newRow("case differs") << "FILE.DAT" << false;
}

void TestFileSystem::fileExists()
{
    QFETCH(QString, name);
    QFETCH(bool, exists);
    QCOMPARE(::fileExists(path(name)), exists);
}

void TestFileSystem::copyDeleteAndLength()
{
    const QString file = path(QStringLiteral("file.dat"));
    const QString target = path(QStringLiteral("copy of file.dat"));
    makeFile(QStringLiteral("copy of file.dat"), "a much longer text that must go entirely");
    copyFile(file, target);
    QCOMPARE(contents(target), QByteArray("0123456789"));
    QCOMPARE(fileLength(target), 10);

    const QByteArray large(200000, 'x');
    makeFile(QStringLiteral("large.dat"), large);
    copyFile(path(QStringLiteral("large.dat")), target);
    QCOMPARE(contents(target), large);

    copyFile(path(QStringLiteral("link.dat")), file); // the same file: nothing changes
    QCOMPARE(contents(file), QByteArray("0123456789"));

    deleteFile(path(QStringLiteral("link.dat"))); // the link goes, its target stays
    QVERIFY(QFile::exists(file));
    deleteFile(file);
    QVERIFY(!QFile::exists(file));
}

void TestFileSystem::failures_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("number");

    QTest::newRow("copy from missing file") << "copy"
                                            << "missing.dat"
                                            << "out.dat" << 53;
    QTest::newRow("copy from missing directory") << "copy"
                                                 << "nowhere/a.dat"
                                                 << "out.dat" << 76;
    QTest::newRow("copy into missing directory") << "copy"
                                                 << "file.dat"
                                                 << "nowhere/out.dat" << 76;
    QTest::newRow("copy from directory") << "copy"
                                         << "folder"
                                         << "out.dat" << 75;
    QTest::newRow("copy onto directory") << "copy"
                                         << "file.dat"
                                         << "folder" << 75;
    QTest::newRow("delete missing file") << "delete"
                                         << "missing.dat"
                                         << "" << 53;
    QTest::newRow("delete in missing directory") << "delete"
                                                 << "nowhere/a.dat"
                                                 << "" << 76;
    QTest::newRow("delete directory") << "delete"
                                      << "folder"
                                      << "" << 75;
    QTest::newRow("length of missing file") << "length"
                                            << "missing.dat"
                                            << "" << 53;
    QTest::newRow("length below a file") << "length"
                                         << "file.dat/a.dat"
                                         << "" << 76;
    QTest::newRow("length of directory") << "length"
                                         << "folder"
                                         << "" << 53;
}

void TestFileSystem::failures()
{
    QFETCH(QString, operation);
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(int, number);

    const RuntimeError error = failureOf([&] {
        if (operation == QLatin1String("copy"))
            copyFile(path(first), path(second));
        else if (operation == QLatin1String("delete"))
            deleteFile(path(first));
        else
            fileLength(path(first));
    });
    QCOMPARE(error.Number, number);
    QVERIFY2(error.Context.contains(path(first)), qPrintable(error.Context));
    // Nothing was made or lost on the way.
    QVERIFY(!QFile::exists(path(QStringLiteral("out.dat"))));
    QCOMPARE(contents(path(QStringLiteral("file.dat"))), QByteArray("0123456789"));
    QVERIFY(QFileInfo(path(QStringLiteral("folder"))).isDir());
}

void TestFileSystem::heldFileIsError70ThenWorks()
{
    const QString held = path(QStringLiteral("qd7SpecRunServList.dat"));
    const QString other = path(QStringLiteral("file.dat"));
    const QString out = path(QStringLiteral("out.dat"));
    makeFile(QStringLiteral("qd7SpecRunServList.dat"), "held by a collector");
    {
        FileLocker collector(held);
        QVERIFY(collector.isLocked());
        QCOMPARE(failureOf([&] { deleteFile(held); }).Number, 70);
        QCOMPARE(failureOf([&] { copyFile(held, out); }).Number, 70);
        QCOMPARE(failureOf([&] { copyFile(other, held); }).Number, 70);
        QCOMPARE(contents(held), QByteArray("held by a collector"));
        QVERIFY(!QFile::exists(out));
        // Existence and length don't open the file.
        QVERIFY(::fileExists(held));
        QCOMPARE(fileLength(held), 19);
    }
    copyFile(held, out);
    QCOMPARE(contents(out), QByteArray("held by a collector"));
    copyFile(other, held);
    QCOMPARE(contents(held), QByteArray("0123456789"));
    deleteFile(held);
    QVERIFY(!QFile::exists(held));
}

void TestFileSystem::unreadableSourceIsError70()
{
    if (::geteuid() == 0)
        QSKIP("root reads every file; errnoNumbers covers EACCES");
    const QString secret = path(QStringLiteral("secret.dat"));
    makeFile(QStringLiteral("secret.dat"), "s");
    QVERIFY(::chmod(QFile::encodeName(secret).constData(), 0) == 0);
    QCOMPARE(failureOf([&] { copyFile(secret, path(QStringLiteral("out.dat"))); }).Number, 70);
    deleteFile(secret); // the directory decides, not the file's mode
    QVERIFY(!QFile::exists(secret));
}

QTEST_GUILESS_MAIN(TestFileSystem)
#include "tst_file_system.moc"
