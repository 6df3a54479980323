#include "servers/server_checks.h"
#include "shell/shared_state.h"

#include <QTest>

class TestServerChecks : public QObject
{
    Q_OBJECT

private slots:
    void qualifiedHosts_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<bool>("qualified");
        QTest::newRow("plain") << "sap1.corp" << true;
        QTest::newRow("router string") << "/H/gw.corp/S/3299/H/sap1.corp" << true;
        QTest::newRow("letters after digits") << "10.0.0.7a" << true;
        QTest::newRow("dots only in the hops") << "/H/gw.corp/S/3299/H/sap1" << false;
        QTest::newRow("ends in a slash") << "sap1.corp/" << false;
        QTest::newRow("address") << "10.0.0.7" << false;
        QTest::newRow("exponent is a number") << "1.2e3" << false;
    }

    void qualifiedHosts()
    {
        QFETCH(QString, server);
        QFETCH(bool, qualified);
        QCOMPARE(IsFullyQualified(server), qualified);
    }

    // Server and SID in any case, client and instance trimmed; the edited row is no twin of itself.
    void duplicates()
    {
        ServerCount = 2;
        ServerTable.redim(2, ServerColumn::Last);
        for (int row = 1; row <= 2; ++row) {
            ServerTable(row, ServerColumn::Server) = QStringLiteral("sap1.corp ");
            ServerTable(row, ServerColumn::SID) = QStringLiteral("PRD");
            ServerTable(row, ServerColumn::Client) = QStringLiteral("00%1").arg(row);
            ServerTable(row, ServerColumn::Instance) = QStringLiteral("00");
        }
        QCOMPARE(DuplicateServerRow(0, QStringLiteral(" SAP1.Corp"), QStringLiteral("prd "), QStringLiteral("002"),
                     QStringLiteral("00")), 2);
        QCOMPARE(DuplicateServerRow(2, QStringLiteral("sap1.corp"), QStringLiteral("PRD"), QStringLiteral("002"),
                     QStringLiteral("00")), 0);
        QCOMPARE(DuplicateServerRow(2, QStringLiteral("sap1.corp"), QStringLiteral("PRD"), QStringLiteral("001"),
                     QStringLiteral("00")), 1);
        QCOMPARE(DuplicateServerRow(0, QStringLiteral("sap1.corp"), QStringLiteral("PRD"), QStringLiteral("1"),
                     QStringLiteral("00")), 0);
    }
};

QTEST_GUILESS_MAIN(TestServerChecks)
#include "tst_server_checks.moc"
