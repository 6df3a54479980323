#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// Two real consoles on one desktop: the second goes through its start and ends without a word.
class TestSecondConsole : public QObject
{
    Q_OBJECT

private slots:
    void secondConsoleEndsSilently()
    {
        QTemporaryDir dir;
        const QString run = dir.filePath(QStringLiteral("run"));
        QDir().mkpath(run);
        QFile::setPermissions(run, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv("QD7_REGISTRY", QFile::encodeName(dir.filePath(QStringLiteral("registry.ini"))));
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(run));
        QProcess first;
        first.start(QStringLiteral(QD7_CONSOLE), { QStringLiteral("-D") });
        // the first holds the instance lock once its frame has loaded
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(run + QStringLiteral("/qd7console.lock")), 20000);

        QProcess second;
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
