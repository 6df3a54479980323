// Several processes on one store: what one process writes, the next read of another sees at
// once, same-size rewrites included; concurrent writers of different names lose nothing.
#include "registry_util.h"
#include "tool_util.h"

#include <QSaveFile>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

class TestProcesses : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(QFileInfo(qEnvironmentVariable("QD7_TOOL")).isExecutable(), "QD7_TOOL names no tool (ctest sets it)"); }
    void toolWriteSeenByNextRead();
    void sameSizeRewritesInOneTick();
    void readsFollowAnotherWriter();
    void concurrentWritersLoseNothing();
};

void TestProcesses::toolWriteSeenByNextRead()
{
    TempStore store;
    QCOMPARE(setReg("Other", "kept"), 0);
    for (int i = 0; i < 40; ++i) {
        const QByteArray value = QByteArray::number(1000 + i % 2); // same size, flipping
        QCOMPARE(runTool({"set", "Probe", QString::fromLatin1(value)}).status, 0);
        QCOMPARE(readReg("Probe").value, value);
        // and this process's write does not bring back an older value of the tool's name
        QCOMPARE(setReg("Mine", QByteArray::number(i)), 0);
        QCOMPARE(readReg("Probe").value, value);
    }
    QCOMPARE(readReg("Other").value, QByteArray("kept"));
}

// Another writer replaces the file with one of the same size and the same modification time
// (a rewrite inside one timestamp tick, forced here): a reader or writer that trusted size and
// time to skip re-reading, as QSettings does, would read the old value or write it back.
void TestProcesses::sameSizeRewritesInOneTick()
{
    TempStore store;
    QCOMPARE(setReg("Seq", "v1000"), 0);
    const QByteArray path = QFile::encodeName(store.path);
    struct stat first;
    QCOMPARE(::stat(path.constData(), &first), 0);
    for (int i = 1001; i <= 1100; ++i) {
        const QByteArray value = "v" + QByteArray::number(i);
        QSaveFile other(store.path);
        QVERIFY(other.open(QIODevice::WriteOnly));
        other.write("Seq=" + value + "\nMine=x\n");
        QVERIFY(other.commit());
        const struct timespec times[2] = {first.st_atim, first.st_mtim};
        QCOMPARE(::utimensat(AT_FDCWD, path.constData(), times, 0), 0);
        QCOMPARE(readReg("Seq").value, value);
        QCOMPARE(setReg("Mine", "y"), 0);
        QCOMPARE(fileBytes(store.path), "Seq=" + value + "\nMine=y\n");
    }
}

// A shell loop of tool processes rewrites one value with same-size text as fast as it can;
// reads here never see a torn or empty value, and never go back to an older one.
void TestProcesses::readsFollowAnotherWriter()
{
    TempStore store;
    QCOMPARE(setReg("Seq", "v100"), 0);
    QProcess writer;
    writer.start("/bin/sh", {"-c", "i=101; while [ $i -le 160 ]; do \"$QD7_TOOL\" set Seq v$i || exit 1; i=$((i+1)); done"});
    QVERIFY(writer.waitForStarted());
    int last = 100, reads = 0;
    while (writer.state() != QProcess::NotRunning) {
        writer.waitForFinished(0);
        const QByteArray value = readReg("Seq").value;
        QVERIFY2(value.size() == 4 && value.startsWith('v'), value.constData());
        const int seq = value.mid(1).toInt();
        QVERIFY2(seq >= last, qPrintable(QString("read %1 after %2").arg(seq).arg(last)));
        last = seq;
        ++reads;
    }
    QCOMPARE(writer.exitCode(), 0);
    QCOMPARE(readReg("Seq").value, QByteArray("v160"));
    qInfo("%d reads during the writer's run", reads);
}

void TestProcesses::concurrentWritersLoseNothing()
{
    TempStore store;
    const int count = 30;
    QList<QProcess*> writers;
    for (const char* prefix : {"A", "B"}) {
        auto* p = new QProcess(this);
        p->start("/bin/sh", {"-c", QString("i=1; while [ $i -le %1 ]; do \"$QD7_TOOL\" set %2$i v$i || exit 1; i=$((i+1)); done")
                                      .arg(count).arg(prefix)});
        writers.append(p);
    }
    // this process writes too, as long as the others run
    const auto running = [&] { return std::any_of(writers.begin(), writers.end(), [](QProcess* p) { return p->state() != QProcess::NotRunning; }); };
    int mine = 0;
    while (mine < count || running()) {
        ++mine;
        QCOMPARE(setReg("C" + QByteArray::number(mine), "v" + QByteArray::number(mine)), 0);
        for (QProcess* p : writers)
            p->waitForFinished(0);
    }
    for (QProcess* p : writers) {
        QVERIFY(p->state() == QProcess::NotRunning || p->waitForFinished(60000));
        QCOMPARE(p->exitCode(), 0);
    }
    qInfo("%d writes of this process meanwhile", mine);
    for (int i = 1; i <= mine; ++i) {
        const QByteArray expected = "v" + QByteArray::number(i);
        if (i <= count) {
            QCOMPARE(readReg("A" + QByteArray::number(i)).value, expected);
            QCOMPARE(readReg("B" + QByteArray::number(i)).value, expected);
        }
        QCOMPARE(readReg("C" + QByteArray::number(i)).value, expected);
    }
}

QTEST_GUILESS_MAIN(TestProcesses)
#include "tst_qd7gd_processes.moc"
