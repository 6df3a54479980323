#include "platform/processes.h"
#include "support/failure_of.h"
#include "support/recording_script.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <cerrno>
#include <sys/wait.h>

class TestProcesses : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void runningCommandLinesShowChild();
    void startsDetached_data();
    void startsDetached();
    void unstartableProgramIsError53_data();
    void unstartableProgramIsError53();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_script;
};

void TestProcesses::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("my bin")));
    m_script = m_dir->filePath(QStringLiteral("my bin/qd7stati.exe"));
    QVERIFY(writeRecordingScript(m_script));
}

void TestProcesses::runningCommandLinesShowChild()
{
    const QString marker = QUuid::createUuid().toString(QUuid::WithoutBraces);
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

void TestProcesses::startsDetached_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QStringList>("recorded");

    QTest::newRow("collector line") << "-np -d  -if /opt/my bin/list.dat"
                                    << QStringList { "-np", "-d", "-if", "/opt/my", "bin/list.dat" };
    QTest::newRow("no shell") << R"("$HOME" ; `id` | "a b")" << QStringList { "$HOME", ";", "`id`", "|", "a b" };
}

void TestProcesses::startsDetached()
{
    QFETCH(QString, arguments);
    QFETCH(QStringList, recorded);

    const qint64 pid = startDetached(QLatin1Char('"') + m_script + QStringLiteral("\" ") + arguments);
    QCOMPARE(linesOf(m_script + QStringLiteral(".args")), recorded);
    // The id is the program's own; it leads a session of its own, stdin on /dev/null.
    QCOMPARE(linesOf(m_script + QStringLiteral(".proc")), QStringList { QStringLiteral("%1 %1 /dev/null").arg(pid) });
    // The intermediate child is reaped already and the program is init's: no zombie of ours.
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
}

void TestProcesses::unstartableProgramIsError53_data()
{
    QTest::addColumn<QString>("program");

    QTest::newRow("missing") << "my bin/missing.exe";
    QTest::newRow("not executable") << "my bin/qd7stati.exe";
    QTest::newRow("exec fails: no interpreter") << "broken.sh";
    QTest::newRow("not on PATH") << "qd7-no-such-program";
}

void TestProcesses::unstartableProgramIsError53()
{
    QFETCH(QString, program);

    // The recording script no longer executable, and a script whose interpreter is missing.
    QVERIFY(QFile::setPermissions(m_script, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
    QFile broken(m_dir->filePath(QStringLiteral("broken.sh")));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("#!/nonexistent/sh\n") > 0);
    QVERIFY(broken.setPermissions(broken.permissions() | QFileDevice::ExeOwner));
    broken.close();

    const QString path = program.startsWith(QLatin1String("qd7-")) ? program : m_dir->filePath(program);
    const RuntimeError error = failureOf([&] { startDetached(QLatin1Char('"') + path + QStringLiteral("\" -np")); });
    QCOMPARE(error.Number, 53);
    QVERIFY2(error.Context.contains(path), qPrintable(error.Context));
    QVERIFY(!QFile::exists(m_script + QStringLiteral(".proc")));
    QCOMPARE(failureOf([] { startDetached(QStringLiteral(" \t")); }).Number, 5);
}

QTEST_GUILESS_MAIN(TestProcesses)
#include "tst_processes.moc"
