#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "qd7gd.h"

// Two real consoles on one desktop: the second goes through its start and ends without a word.
class TestSecondConsole : public QObject
{
    Q_OBJECT

private slots:
    void secondConsoleEndsSilently()
    {
        QTemporaryDir dir;
        QDir().mkpath(dir.filePath(QStringLiteral("bin")));
        QDir().mkpath(dir.filePath(QStringLiteral("run")));
        QFile::setPermissions(dir.filePath(QStringLiteral("run")), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QD7_REGISTRY"), dir.filePath(QStringLiteral("registry.ini")));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir.filePath(QStringLiteral("run")));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));

        QProcess first;
        first.setProcessEnvironment(environment);
        first.start(QStringLiteral(QD7_CONSOLE), { QStringLiteral("-D") });
        QVERIFY(first.waitForStarted());
        // the first holds the instance lock once its frame has loaded
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(dir.filePath(QStringLiteral("run/qd7console.lock"))), 20000);

        QProcess second;
        second.setProcessEnvironment(environment);
        second.start(QStringLiteral(QD7_CONSOLE), { QStringLiteral("-D") });
        QVERIFY(second.waitForFinished(20000));
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(second.readAllStandardOutput(), QByteArray());
        QVERIFY(!second.readAllStandardError().contains("Run-time error"));

        QCOMPARE(first.state(), QProcess::Running);
        first.kill();
        first.waitForFinished();
    }
};

QTEST_GUILESS_MAIN(TestSecondConsole)
#include "tst_second_console.moc"
