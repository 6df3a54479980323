#include "platform/processes.h"
#include "support/failure_of.h"
#include "support/recording_script.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <unistd.h>

class TestProcesses : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void runningCommandLinesShowChild();
    void startsWithSplitArguments_data();
    void startsWithSplitArguments();
    void startsDetached();
    void unstartableProgramIsError53_data();
    void unstartableProgramIsError53();

private:
    QString m_script;
    std::unique_ptr<QTemporaryDir> m_dir;
};

// True when some process still has this one as its parent.
static bool childrenLeft()
{
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString& entry : entries) {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(entry));
        if (!stat.open(QIODevice::ReadOnly))
            continue;
        const QByteArray text = stat.readAll();
        const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 1 && fields.at(1).toLongLong() == ::getpid())
            return true;
    }
    return false;
}

void TestProcesses::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("my bin")));
    m_script = m_dir->filePath(QStringLiteral("my bin/qd7stati.exe"));
    QVERIFY(writeRecordingScript(m_script));
}

void TestProcesses::runningCommandLinesShowChild()
{
    const QString marker = QStringLiteral("qd7stati-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
    QProcess child;
    child.start(QStringLiteral("/bin/sh"), { QStringLiteral("-c"), QStringLiteral("read line"), marker });
    QVERIFY(child.waitForStarted());

    const QString expected = QStringLiteral("/bin/sh -c read line ") + marker;
    QVERIFY(QTest::qWaitFor([&] { return runningCommandLines().contains(expected); }, 30000));
    QVERIFY(!runningCommandLines().contains(QString()));

    child.closeWriteChannel();
    QVERIFY(child.waitForFinished());
    QVERIFY(!runningCommandLines().contains(expected));
}

void TestProcesses::startsWithSplitArguments_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QStringList>("recorded");

    QTest::newRow("collector line") << "-np -d  -if /opt/my bin/list.dat -dbtype ORACLE"
                                    << QStringList { "-np", "-d", "-if", "/opt/my", "bin/list.dat", "-dbtype",
                                           "ORACLE" };
    QTest::newRow("no arguments") << "" << QStringList();
    QTest::newRow("no shell") << R"("$HOME" ; `id` | "a b")" << QStringList { "$HOME", ";", "`id`", "|", "a b" };
}

void TestProcesses::startsWithSplitArguments()
{
    QFETCH(QString, arguments);
    QFETCH(QStringList, recorded);

    QVERIFY(startDetached(QLatin1Char('"') + m_script + QStringLiteral("\" ") + arguments) > 0);
    QVERIFY(waitForFile(m_script + QStringLiteral(".args")));
    QCOMPARE(linesOf(m_script + QStringLiteral(".args")), recorded);
}

void TestProcesses::startsDetached()
{
    // Found on PATH, in a session of its own, stdin on /dev/null, no zombie left behind.
    const QByteArray oldPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(m_dir->filePath(QStringLiteral("my bin"))) + ":/usr/bin:/bin");
    const qint64 pid = startDetached(QStringLiteral("qd7stati.exe"), { QStringLiteral("one argument") });
    qputenv("PATH", oldPath);

    QVERIFY(waitForFile(m_script + QStringLiteral(".args")));
    QCOMPARE(linesOf(m_script + QStringLiteral(".args")), QStringList { "one argument" });
    const QStringList proc = linesOf(m_script + QStringLiteral(".proc"));
    QCOMPARE(proc, (QStringList { QString::number(pid), QString::number(pid), QStringLiteral("/dev/null") }));
    QVERIFY(QTest::qWaitFor([] { return !childrenLeft(); }, 30000));
}

void TestProcesses::unstartableProgramIsError53_data()
{
    QTest::addColumn<QString>("program");

    QTest::newRow("missing") << "my bin/missing.exe";
    QTest::newRow("missing directory") << "nowhere/qd7stati.exe";
    QTest::newRow("not executable") << "plain.sh";
    QTest::newRow("directory") << "my bin";
    QTest::newRow("not on PATH") << "qd7-no-such-program";
}

void TestProcesses::unstartableProgramIsError53()
{
    QFETCH(QString, program);

    QFile plain(m_dir->filePath(QStringLiteral("plain.sh")));
    QVERIFY(plain.open(QIODevice::WriteOnly));
    plain.write("#!/bin/sh\ntouch \"$0.ran\"\n");
    plain.close();

    const QString path = program.startsWith(QLatin1String("qd7-")) ? program : m_dir->filePath(program);
    const RuntimeError error = failureOf([&] { startDetached(QLatin1Char('"') + path + QStringLiteral("\" -np")); });
    QCOMPARE(error.Number, 53);
    QVERIFY2(error.Context.contains(path), qPrintable(error.Context));
    QVERIFY(!QFile::exists(plain.fileName() + QStringLiteral(".ran")));
    QCOMPARE(failureOf([] { startDetached(QStringLiteral(" \t")); }).Number, 5);
}

QTEST_GUILESS_MAIN(TestProcesses)
#include "tst_processes.moc"
