// The qd7gd tool as installers and scripts run it: exact output, Latin-1 arguments, statuses.
#include "registry_util.h"

class TestTool : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(QFileInfo(qEnvironmentVariable("QD7_TOOL")).isExecutable(), "QD7_TOOL is unset"); }

    void setThenGet_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("stored"); // Latin-1, as the library holds it
        QTest::newRow("outer blanks") << QString(" 08:00 17:30 ") << QByteArray(" 08:00 17:30 ");
        QTest::newRow("Latin-1 letters") << QString::fromUtf8("Zürich é") << QByteArray("Z\xfcrich \xe9");
        QTest::newRow("punctuation") << QString("a;b=c \"q\" #x [s] \\ %1") << QByteArray("a;b=c \"q\" #x [s] \\ %1");
        QTest::newRow("empty") << QString() << QByteArray();
        QTest::newRow("255") << QString(255, 'x') << QByteArray(255, 'x');
        QTest::newRow("300 is cut") << QString(300, 'y') << QByteArray(255, 'y');
    }
    void setThenGet()
    {
        QFETCH(QString, value);
        QFETCH(QByteArray, stored);
        TempStore store;
        const ToolRun set = runTool({ "set", "BinDir", value });
        QCOMPARE(set.status, 0);
        QCOMPARE(set.out, QByteArray());
        QCOMPARE(readReg("BinDir"), stored);
        const ToolRun get = runTool({ "get", "BinDir" });
        QCOMPARE(get.status, 0);
        QCOMPARE(get.out, QString::fromLatin1(stored).toUtf8() + '\n');
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
        const QByteArray corrupt = "A=1\nbroken\n";
        row("list: last line of a name", { "list" }, values, 0, "User= sys \nNotation=\xc3\xa9\nDB=Other\n");
        row("get absent", { "get", "Absent" }, values, 0, "\n");
        row("encrypt", { "encrypt", "Secret pw" }, {}, 0, "zGqu'FSU0\n");
        row("decrypt", { "decrypt", "zGqu'FSU0" }, {}, 0, "Secret pw\n");
        row("encrypt Latin-1", { "encrypt", QString::fromUtf8("pa55 wörd") }, {}, 0, "9CC8AI\xc3\x8aW{\n");
        row("decrypt Latin-1", { "decrypt", QString::fromUtf8("9CC8AIÊW{") }, {}, 0, "pa55 w\xc3\xb6rd\n");
        row("no command", {}, {}, 87, {}, "usage:");
        row("unknown command", { "delete", "A" }, {}, 87, {}, "unknown command");
        row("outside Latin-1", { "set", "A", QString::fromUtf8("5 €") }, {}, 87, {}, "Latin-1");
        row("unmappable text", { "decrypt", "pw " }, {}, 87, {}, "no blank at either end");
        row("empty name", { "set", "", "x" }, {}, 87, {}, "name is empty");
        row("corrupt store, get", { "get", "A" }, corrupt, 1, {}, "corrupt");
        row("corrupt store, list", { "list" }, corrupt, 1, {}, "corrupt");
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
};

QTEST_GUILESS_MAIN(TestTool)
#include "tst_qd7gd_tool.moc"
