#include "platform/single_instance.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <iostream>
#include <string>

// With this argument the test program plays another console: it asks once, prints "running" or
// "alone", and keeps whatever it holds until its stdin closes.
static const QByteArray InstanceArgument = "--be-an-instance";

class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void onlyLiveInstancesCount()
    {
        static QTemporaryDir runtime; // outlives the instance lock, which is let go at exit
        QVERIFY(QFile::setPermissions(
            runtime.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));

        QProcess first;
        QCOMPARE(startInstance(first), QByteArray("alone"));
        QVERIFY(earlierInstanceRunning());
        first.kill(); // dies without letting go of its lock file
        QVERIFY(first.waitForFinished(30000));
        QVERIFY(QFile::exists(runtime.filePath(QStringLiteral("qd7console.lock"))));
        QVERIFY(!earlierInstanceRunning());
        QVERIFY(!earlierInstanceRunning()); // this process holds it now

        QProcess later;
        QCOMPARE(startInstance(later), QByteArray("running"));
        later.closeWriteChannel();
        QVERIFY(later.waitForFinished(30000));
    }

private:
    static QByteArray startInstance(QProcess& instance)
    {
        instance.start(QCoreApplication::applicationFilePath(), { QString::fromLatin1(InstanceArgument) });
        QByteArray answer;
        while (!answer.contains('\n') && instance.waitForReadyRead(30000))
            answer += instance.readAll();
        return answer.trimmed();
    }
};

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 2 && argv[1] == InstanceArgument) {
        std::cout << (earlierInstanceRunning() ? "running" : "alone") << std::endl;
        for (std::string line; std::getline(std::cin, line);) { }
        return 0;
    }
    TestSingleInstance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_single_instance.moc"
