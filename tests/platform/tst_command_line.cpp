#include "platform/command_line.h"

#include <QTest>

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void split_data();
    void split();
};

void TestCommandLine::split_data()
{
    QTest::addColumn<QString>("commandLine");
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("blanks only") << " \t " << QStringList();
    QTest::newRow("collector line, blank in the program's path")
        << R"(  "/opt/my bin/qd7stati.exe" -np -d  -if /opt/my bin/list.dat)"
        << QStringList { "/opt/my bin/qd7stati.exe", "-np", "-d", "-if", "/opt/my", "bin/list.dat" };
    QTest::newRow("program keeps its backslashes") << R"("C:\dir\" -x)" << QStringList { R"(C:\dir\)", "-x" };
    QTest::newRow("quoted part inside an argument") << "p a\"b\tc\"d" << QStringList { "p", "ab\tcd" };
    QTest::newRow("empty quoted argument") << R"(p "" x)" << QStringList { "p", "", "x" };
    QTest::newRow("unclosed quote runs to the end") << R"(p "a b  )" << QStringList { "p", "a b  " };
    QTest::newRow("backslashes without quote") << R"(p a\\b\)" << QStringList { "p", R"(a\\b\)" };
    QTest::newRow("2n backslashes and quote") << R"(p "a\\\\" b)" << QStringList { "p", R"(a\\)", "b" };
    QTest::newRow("2n+1 backslashes and quote") << R"(p a\\\"b)" << QStringList { "p", R"(a\"b)" };
    QTest::newRow("doubled quote inside quotes") << R"(p "a""b" c)" << QStringList { "p", R"(a"b)", "c" };
}

void TestCommandLine::split()
{
    QFETCH(QString, commandLine);
    QFETCH(QStringList, arguments);
    QCOMPARE(splitWindowsCommandLine(commandLine), arguments);
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_command_line.moc"
