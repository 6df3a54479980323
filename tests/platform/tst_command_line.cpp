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

    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("blanks only") << " \t " << QStringList();
    QTest::newRow("plain") << "prog a b" << QStringList { "prog", "a", "b" };
    QTest::newRow("runs of blanks and tabs") << "  prog \t a  \t\tb  " << QStringList { "prog", "a", "b" };
    QTest::newRow("collector line, blank in BinDir")
        << R"("/opt/my bin/qd7stati.exe" -np -d -if /opt/my bin/list.dat)"
        << QStringList { "/opt/my bin/qd7stati.exe", "-np", "-d", "-if", "/opt/my", "bin/list.dat" };
    QTest::newRow("collector line, two blanks where a switch is off")
        << R"("/x/qd7stati.exe" -np -d  -if /x/l.dat -dbtype )"
        << QStringList { "/x/qd7stati.exe", "-np", "-d", "-if", "/x/l.dat", "-dbtype" };
    QTest::newRow("quoted part inside an argument") << R"(p a"b c"d)" << QStringList { "p", "ab cd" };
    QTest::newRow("empty quoted argument") << R"(p "" x)" << QStringList { "p", "", "x" };
    QTest::newRow("empty quotes at the end") << R"(p "")" << QStringList { "p", "" };
    QTest::newRow("unclosed quote runs to the end") << R"(p "a b  )" << QStringList { "p", "a b  " };
    QTest::newRow("backslashes without quote are literal")
        << R"(p a\\b\ c\)" << QStringList { "p", R"(a\\b\)", R"(c\)" };
    QTest::newRow("backslash quote is a literal quote") << R"(p a\"b)" << QStringList { "p", R"(a"b)" };
    QTest::newRow("2 backslashes and quote") << R"(p "a\\" b)" << QStringList { "p", R"(a\)", "b" };
    QTest::newRow("3 backslashes and quote") << R"(p a\\\"b)" << QStringList { "p", R"(a\"b)" };
    QTest::newRow("4 backslashes and quote") << R"(p "a\\\\" b)" << QStringList { "p", R"(a\\)", "b" };
    QTest::newRow("5 backslashes and quote") << R"(p a\\\\\"b)" << QStringList { "p", R"(a\\"b)" };
    QTest::newRow("doubled quote inside quotes") << R"(p "a""b" c)" << QStringList { "p", R"(a"b)", "c" };
    QTest::newRow("doubled quote, part goes on") << R"(p "a "" b")" << QStringList { "p", R"(a " b)" };
    QTest::newRow("three quotes") << R"(p """)" << QStringList { "p", R"(")" };
    QTest::newRow("program ends in backslash") << R"("C:\dir\" -x)" << QStringList { R"(C:\dir\)", "-x" };
    QTest::newRow("program keeps backslash quote") << R"(a\"b c" d)" << QStringList { R"(a\b c)", "d" };
    QTest::newRow("program quoted in the middle") << R"(/opt/"my bin"/p x)" << QStringList { "/opt/my bin/p", "x" };
    QTest::newRow("program alone, unclosed") << R"("/opt/my bin)" << QStringList { "/opt/my bin" };
    QTest::newRow("tab inside quotes kept") << "p \"a\tb\"" << QStringList { "p", "a\tb" };
    QTest::newRow("other characters untouched") << "p 'a b' $HOME;|*" << QStringList { "p", "'a", "b'", "$HOME;|*" };
}

void TestCommandLine::split()
{
    QFETCH(QString, commandLine);
    QFETCH(QStringList, arguments);
    QCOMPARE(splitWindowsCommandLine(commandLine), arguments);
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_command_line.moc"
