#include "platform/command_line.h"
#include "platform/processes.h"
#include "platform/text_viewer.h"
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
    void splitsWindowsCommandLines();
    void startsDetachedWithoutAShell();
    void unstartableProgramIsError53();
    void startsTextViewer();

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

void TestProcesses::splitsWindowsCommandLines()
{
    const std::pair<QString, QStringList> cases[] = {
        { " \t ", {} },
        { R"(  "/opt/my bin/qd7stati.exe" -np -d  -if /opt/my bin/list.dat)",
            { "/opt/my bin/qd7stati.exe", "-np", "-d", "-if", "/opt/my", "bin/list.dat" } },
        { R"("C:\dir\" -x)", { R"(C:\dir\)", "-x" } }, // the program keeps its backslashes
        { "p a\"b\tc\"d", { "p", "ab\tcd" } }, // a quoted part inside an argument
        { R"(p "" x)", { "p", "", "x" } }, // an empty argument
        { R"(p "a b  )", { "p", "a b  " } }, // an unclosed quote runs to the end
        { R"(p a\\b\)", { "p", R"(a\\b\)" } }, // backslashes without a quote
        { R"(p "a\\\\" b)", { "p", R"(a\\)", "b" } }, // 2n backslashes and a quote
        { R"(p a\\\"b)", { "p", R"(a\"b)" } }, // 2n+1
        { R"(p "a""b" c)", { "p", R"(a"b)", "c" } }, // a doubled quote inside quotes
    };
    for (const auto& [commandLine, arguments] : cases)
        QCOMPARE(splitWindowsCommandLine(commandLine), arguments);
}

void TestProcesses::startsDetachedWithoutAShell()
{
    const qint64 pid = startDetached(
        QLatin1Char('"') + m_script + QStringLiteral(R"(" -np -d  -if /opt/my bin/list.dat "$HOME" ; `id` | "a b")"));
    QCOMPARE(linesOf(m_script + QStringLiteral(".args")),
        QStringList({ "-np", "-d", "-if", "/opt/my", "bin/list.dat", "$HOME", ";", "`id`", "|", "a b" }));
    // The id is the program's own; it leads a session of its own, stdin on /dev/null.
    QCOMPARE(linesOf(m_script + QStringLiteral(".proc")), QStringList { QStringLiteral("%1 %1 /dev/null").arg(pid) });
    // The intermediate child is reaped already and the program is init's: no zombie of ours.
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
}

void TestProcesses::unstartableProgramIsError53()
{
    // The recording script no longer executable, and a script whose interpreter is missing.
    QVERIFY(QFile::setPermissions(m_script, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
    QFile broken(m_dir->filePath(QStringLiteral("broken.sh")));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("#!/nonexistent/sh\n") > 0);
    QVERIFY(broken.setPermissions(broken.permissions() | QFileDevice::ExeOwner));
    broken.close();

    for (const QString& path : { m_dir->filePath(QStringLiteral("my bin/missing.exe")), m_script, broken.fileName(),
             QStringLiteral("qd7-no-such-program") }) {
        const RuntimeError error
            = failureOf([&] { startDetached(QLatin1Char('"') + path + QStringLiteral("\" -np")); });
        QCOMPARE(error.Number, 53);
        QVERIFY2(error.Context.contains(path), qPrintable(error.Context));
    }
    QVERIFY(!QFile::exists(m_script + QStringLiteral(".proc")));
    QCOMPARE(failureOf([] { startDetached(QStringLiteral(" \t")); }).Number, 5);
}

// Started detached as one program with the file as its one argument, never through a shell.
void TestProcesses::startsTextViewer()
{
    QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("bin dir")));
    QVERIFY(writeRecordingScript(m_dir->filePath(QStringLiteral("bin dir/my viewer"))));
    QVERIFY(writeRecordingScript(m_dir->filePath(QStringLiteral("bin dir/xdg-open"))));
    qputenv("PATH", QFile::encodeName(m_dir->filePath(QStringLiteral("bin dir"))) + ":/usr/bin:/bin");

    const QString file = QStringLiteral("/opt/my bin/trace_qd7stati.log; $(id)");
    // QD7_TEXT_VIEWER (empty: unset), the program started (empty: error 53)
    const std::pair<const char*, const char*> cases[] = { { "bin dir/my viewer", "bin dir/my viewer" },
        { "", "bin dir/xdg-open" }, { "bin dir/missing", "" }, { "bin dir/my viewer -x", "" } };
    for (const auto& [viewer, started] : cases) {
        if (*viewer)
            qputenv("QD7_TEXT_VIEWER", QFile::encodeName(m_dir->filePath(QLatin1String(viewer))));
        else
            qunsetenv("QD7_TEXT_VIEWER");
        const RuntimeError error = failureOf([&] { openInTextViewer(file); });
        if (*started) {
            QCOMPARE(error.Number, 0);
            QCOMPARE(linesOf(m_dir->filePath(QLatin1String(started)) + QStringLiteral(".args")), QStringList { file });
        } else {
            QCOMPARE(error.Number, 53);
            QVERIFY2(error.Context.contains(file), qPrintable(error.Context));
        }
    }
}

QTEST_GUILESS_MAIN(TestProcesses)
#include "tst_processes.moc"
