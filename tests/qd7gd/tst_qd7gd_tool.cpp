// The qd7gd tool as installers and scripts run it: exact output, Latin-1 arguments, statuses.
#include "registry_util.h"
#include "tool_util.h"

#include <QDir>

class TestTool : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(QFileInfo(qEnvironmentVariable("QD7_TOOL")).isExecutable(), "QD7_TOOL names no tool (ctest sets it)"); }
    void setThenGet_data();
    void setThenGet();
    void listAndCipher();
    void failures_data();
    void failures();
};

void TestTool::setThenGet_data()
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

void TestTool::setThenGet()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, stored);
    TempStore store;
    const ToolRun set = runTool({"set", "BinDir", value});
    QCOMPARE(set.status, 0);
    QCOMPARE(set.out, QByteArray());
    QCOMPARE(readReg("BinDir").value, stored);
    const ToolRun get = runTool({"get", "BinDir"});
    QCOMPARE(get.status, 0);
    QCOMPARE(get.out, QString::fromLatin1(stored).toUtf8() + '\n');
}

void TestTool::listAndCipher()
{
    TempStore store;
    QCOMPARE(setReg("DB", "Oracle"), 0);
    QCOMPARE(setReg("User", " sys "), 0);
    QCOMPARE(setReg("Notation", "\xe9"), 0);
    const ToolRun list = runTool({"list"});
    QCOMPARE(list.status, 0);
    QCOMPARE(list.out, QByteArray("DB=Oracle\nUser= sys \nNotation=\xc3\xa9\n"));
    QCOMPARE(runTool({"get", "Absent"}).out, QByteArray("\n"));

    const ToolRun e = runTool({"encrypt", "Secret pw"});
    QCOMPARE(e.status, 0);
    QCOMPARE(e.out, QByteArray("zGqu'FSU0\n"));
    const ToolRun d = runTool({"decrypt", "zGqu'FSU0"});
    QCOMPARE(d.out, QByteArray("Secret pw\n"));
    const QString latin = QString::fromUtf8("pa55 wörd");
    QCOMPARE(runTool({"decrypt", QString::fromUtf8(runTool({"encrypt", latin}).out.chopped(1))}).out, latin.toUtf8() + '\n');
}

void TestTool::failures_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QByteArray>("file"); // written to the store first when not null
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message"); // part of stderr
    const QByteArray none;
    QTest::newRow("no command") << QStringList() << none << 87 << "usage:";
    QTest::newRow("unknown command") << QStringList{"delete", "A"} << none << 87 << "unknown command";
    QTest::newRow("missing operand") << QStringList{"set", "A"} << none << 87 << "usage:";
    QTest::newRow("outside Latin-1") << QStringList{"set", "A", QString::fromUtf8("5 €")} << none << 87 << "outside Latin-1";
    QTest::newRow("unmappable text") << QStringList{"encrypt", " pw"} << none << 87 << "no blank at either end";
    QTest::newRow("empty name") << QStringList{"set", "", "x"} << none << 87 << "name is empty";
    QTest::newRow("corrupt store, get") << QStringList{"get", "A"} << QByteArray("A=1\nbroken\n") << 1 << "corrupt";
    QTest::newRow("corrupt store, set") << QStringList{"set", "A", "2"} << QByteArray("A=1\nbroken\n") << 1 << "corrupt";
    QTest::newRow("corrupt store, list") << QStringList{"list"} << QByteArray("A=\\q\n") << 1 << "corrupt";
}

void TestTool::failures()
{
    QFETCH(QStringList, args);
    QFETCH(QByteArray, file);
    QFETCH(int, status);
    QFETCH(QString, message);
    TempStore store;
    if (!file.isNull()) {
        QDir().mkpath(QFileInfo(store.path).path());
        writeBytes(store.path, file);
    }
    const ToolRun r = runTool(args);
    QCOMPARE(r.status, status);
    QCOMPARE(r.out, QByteArray());
    QVERIFY2(r.err.contains(message.toUtf8()), r.err.constData());
    QCOMPARE(fileBytes(store.path), file.isNull() ? QByteArray() : file);
}

QTEST_GUILESS_MAIN(TestTool)
#include "tst_qd7gd_tool.moc"
