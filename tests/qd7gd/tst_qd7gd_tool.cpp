// The qd7gd tool as installers and scripts run it, and several processes on one store.
#include "registry_util.h"

#include <QProcess>

struct ToolRun
{
    int status = -1;
    QByteArray out, err;
};

static ToolRun runTool(const QStringList& args)
{
    QProcess p;
    p.start(qEnvironmentVariable("QD7_TOOL"), args);
    if (!p.waitForFinished(30000) || p.exitStatus() != QProcess::NormalExit)
        return {};
    return { p.exitCode(), p.readAllStandardOutput(), p.readAllStandardError() };
}

class TestTool : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(QFileInfo(qEnvironmentVariable("QD7_TOOL")).isExecutable(), "QD7_TOOL is unset"); }

    // Arguments as UTF-8, held as Latin-1 by the library, cut to the 255-byte buffer.
    void setThenGet()
    {
        const std::pair<QString, QByteArray> values[] = { { QStringLiteral(" 08:00 17:30 "), " 08:00 17:30 " },
            { QString::fromUtf8("Zürich é"), "Z\xfcrich \xe9" }, { QString(), QByteArray() },
            { QString(300, QLatin1Char('y')), QByteArray(255, 'y') } };
        for (const auto& [value, stored] : values) {
            TempStore store;
            QCOMPARE(runTool({ "set", "BinDir", value }).status, 0);
            QCOMPARE(readReg("BinDir"), stored);
            const ToolRun get = runTool({ "get", "BinDir" });
            QCOMPARE(get.status, 0);
            QCOMPARE(get.out, QString::fromLatin1(stored).toUtf8() + '\n');
        }
    }

    // Every run but set leaves the store as it was; a failure prints nothing on stdout.
    void runs_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QByteArray>("file"); // the store, when not null
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("out");
        QTest::addColumn<QString>("message"); // part of stderr
        const auto row = [](const char* tag, const QStringList& args, const QByteArray& file, int status,
                             const QByteArray& out, const char* message = "") {
            QTest::newRow(tag) << args << file << status << out << QString(message);
        };
        const QByteArray values = "DB=Oracle\nUser= sys \n; comment\nNotation=\\xE9\nDB=Other\n";
        row("list: last line of a name", { "list" }, values, 0, "User= sys \nNotation=\xc3\xa9\nDB=Other\n");
        row("get absent", { "get", "Absent" }, values, 0, "\n");
        row("encrypt", { "encrypt", "Secret pw" }, {}, 0, "zGqu'FSU0\n");
        row("decrypt", { "decrypt", "zGqu'FSU0" }, {}, 0, "Secret pw\n");
        row("encrypt Latin-1", { "encrypt", QString::fromUtf8("pa55 wörd") }, {}, 0, "9CC8AI\xc3\x8aW{\n");
        row("unknown command", { "delete", "A" }, {}, 87, {}, "unknown command");
        row("outside Latin-1", { "set", "A", QString::fromUtf8("5 €") }, {}, 87, {}, "Latin-1");
        row("unmappable text", { "decrypt", "pw " }, {}, 87, {}, "no blank at either end");
        row("corrupt store", { "get", "A" }, "A=1\nbroken\n", 1, {}, "corrupt");
    }
    void runs()
    {
        QFETCH(QStringList, args);
        QFETCH(QByteArray, file);
        QFETCH(int, status);
        QFETCH(QByteArray, out);
        QFETCH(QString, message);
        TempStore store;
        if (!file.isNull())
            writeBytes(store.path, file);
        const ToolRun r = runTool(args);
        QCOMPARE(r.status, status);
        QCOMPARE(r.out, out);
        QVERIFY2(status == 0 ? r.err.isEmpty() : r.err.contains(message.toUtf8()), r.err.constData());
        QCOMPARE(fileBytes(store.path), file);
    }

    // This process sets Seq with the tool and adds C0, C1... while a shell loop of the tool adds
    // A1..A30: each value is seen by the very next read, and no writer loses another's names.
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
    }
};

QTEST_GUILESS_MAIN(TestTool)
#include "tst_qd7gd_tool.moc"
