// Several processes on one store: the next read sees another's write at once, same-size rewrites
// included; writers of different names lose nothing; a writer without the lock gives up.
#include "registry_util.h"

#include <QElapsedTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

class TestProcesses : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(QFileInfo(qEnvironmentVariable("QD7_TOOL")).isExecutable(), "QD7_TOOL is unset"); }

    // Another writer rewrites the file with one of the same size and modification time (one
    // timestamp tick, forced here): a cache keyed on size and time, as QSettings keeps, would
    // read the old value or write it back.
    void sameSizeRewritesInOneTick()
    {
        TempStore store;
        QCOMPARE(setReg("Seq", "v1000"), 0);
        const QByteArray path = QFile::encodeName(store.path);
        struct stat first;
        QCOMPARE(::stat(path.constData(), &first), 0);
        const struct timespec times[2] = { first.st_atim, first.st_mtim };
        for (int i = 1001; i <= 1100; ++i) {
            const QByteArray value = "v" + QByteArray::number(i);
            writeBytes(store.path, "Seq=" + value + "\nMine=x\n");
            QCOMPARE(::utimensat(AT_FDCWD, path.constData(), times, 0), 0);
            QCOMPARE(readReg("Seq"), value);
            QCOMPARE(setReg("Mine", "y"), 0);
            QCOMPARE(fileBytes(store.path), "Seq=" + value + "\nMine=y\n");
        }
    }

    // This process sets Seq with the tool, same-size values flipping, and adds C0, C1...; a shell
    // loop of the tool adds A1..A30 meanwhile. Each value is seen by the very next read, never
    // torn by the other's renames, and no writer loses another's names.
    void concurrentWriters()
    {
        TempStore store;
        QProcess names;
        names.start(
            "/bin/sh", { "-c", "i=1; while [ $i -le 30 ]; do \"$QD7_TOOL\" set A$i v$i || exit 1; i=$((i+1)); done" });
        int n = 0;
        for (; n < 40 || names.state() != QProcess::NotRunning; ++n) {
            const QByteArray value = QByteArray::number(1000 + n % 2);
            QCOMPARE(runTool({ "set", "Seq", QString::fromLatin1(value) }).status, 0);
            QCOMPARE(readReg("Seq"), value);
            QCOMPARE(setReg("C" + QByteArray::number(n), value), 0); // must not bring back an older Seq
            QCOMPARE(readReg("Seq"), value);
            names.waitForFinished(0);
        }
        QCOMPARE(names.exitCode(), 0);
        for (int i = 1; i <= 30; ++i)
            QCOMPARE(readReg("A" + QByteArray::number(i)), "v" + QByteArray::number(i));
        for (int i = 0; i < n; ++i)
            QCOMPARE(readReg("C" + QByteArray::number(i)), QByteArray::number(1000 + i % 2));
        qInfo("%d writes of this process meanwhile", n);
    }

    // The lock is held elsewhere (a flock of its own conflicts even within this process).
    void lockNotObtained()
    {
        TempStore store;
        QCOMPARE(setReg("A", "1"), 0);
        const int held = ::open(QFile::encodeName(store.path + ".lock").constData(), O_RDWR | O_CLOEXEC);
        QVERIFY(held >= 0 && ::flock(held, LOCK_EX | LOCK_NB) == 0);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(setReg("A", "2"), 5);
        QVERIFY(timer.elapsed() >= 5000);
        QCOMPARE(setReg("A", "1"), 0); // unchanged: no lock needed
        ::close(held);
        QCOMPARE(setReg("A", "2"), 0);
        QCOMPARE(readReg("A"), "2");
    }
};

QTEST_GUILESS_MAIN(TestProcesses)
#include "tst_qd7gd_processes.moc"
