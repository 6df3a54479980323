#include "platform/command_line.h"
#include "specialrun/collector_command.h"

#include <QTest>

class TestCollectorCommand : public QObject
{
    Q_OBJECT

private slots:
    void debugSwitches_data()
    {
        QTest::addColumn<bool>("stati");
        QTest::addColumn<bool>("load");
        QTest::addColumn<QString>("middle");
        QTest::newRow("both") << true << true << " -np -d -ld -if ";
        QTest::newRow("collector only") << true << false << " -np -d  -if ";
        QTest::newRow("loader only") << false << true << " -np -ld -if ";
        QTest::newRow("neither") << false << false << " -np  -if ";
    }
    void debugSwitches()
    {
        QFETCH(bool, stati);
        QFETCH(bool, load);
        QFETCH(QString, middle);
        CollectorRun run { QStringLiteral("/opt/bin"), stati, load, QStringLiteral("20021001"),
            QStringLiteral("080000"), QStringLiteral("20021001"), QStringLiteral("170000"), QStringLiteral("ORACLE") };
        QCOMPARE(CollectorCommandLine(run),
            QStringLiteral("\"/opt/bin/qd7stati.exe\"") + middle
                + QStringLiteral("/opt/bin/qd7SpecRunServList.dat -of /opt/bin/qd7stati.dat -st 080000 -sd 20021001"
                                 " -et 170000 -ed 20021001 -bindir /opt/bin -dbtype ORACLE"));
    }

    void unsetDatabaseEndsInTheSwitch()
    {
        const CollectorRun run { QStringLiteral("/b"), false, false, QStringLiteral("1"), QStringLiteral("2"),
            QStringLiteral("3"), QStringLiteral("4"), QString() };
        QVERIFY(CollectorCommandLine(run).endsWith(QLatin1String(" -dbtype ")));
    }

    // Only the program is quoted: a blank in BinDir splits the other paths.
    void binDirWithBlankSplitsTheBarePaths()
    {
        const CollectorRun run { QStringLiteral("/opt/my bin"), false, false, QStringLiteral("20021001"),
            QStringLiteral("080000"), QStringLiteral("20021001"), QStringLiteral("170000"), QStringLiteral("DB2") };
        const QStringList arguments = splitWindowsCommandLine(CollectorCommandLine(run));
        QCOMPARE(arguments.first(), QStringLiteral("/opt/my bin/qd7stati.exe"));
        QCOMPARE(arguments.mid(2, 3),
            (QStringList { QStringLiteral("-if"), QStringLiteral("/opt/my"), QStringLiteral("bin/qd7SpecRunServList.dat") }));
        QCOMPARE(arguments.mid(arguments.size() - 4),
            (QStringList { QStringLiteral("/opt/my"), QStringLiteral("bin"), QStringLiteral("-dbtype"), QStringLiteral("DB2") }));
    }
};

QTEST_GUILESS_MAIN(TestCollectorCommand)
#include "tst_collector_command.moc"
