#include "servers/server_checks.h"
#include "servers/server_record.h"
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
        QTest::newRow("dots only in the hops") << "/H/gw.corp/S/3299/H/sap1" << false;
        QTest::newRow("ends in a slash") << "sap1.corp/" << false;
        QTest::newRow("no dot") << "sap1" << false;
        QTest::newRow("address") << "10.0.0.7" << false;
        QTest::newRow("exponent is a number") << "1.2e3" << false;
        QTest::newRow("signed number") << "-1.5" << false;
        QTest::newRow("letters after digits") << "10.0.0.7a" << true;
        QTest::newRow("outer blanks kept") << " sap1.corp " << true;
        QTest::newRow("backslash is no hop") << "gw\\10.1" << true;
    }

    void qualifiedHosts()
    {
        QFETCH(QString, server);
        QFETCH(bool, qualified);
        QCOMPARE(IsFullyQualified(server), qualified);
    }

    // Server and SID in any case, client and instance as they stand; ID, password and language
    // play no part; the row being edited is no twin of itself.
    void duplicates_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("fields");
        QTest::addColumn<int>("twin");
        QTest::newRow("new, same in other case") << 0 << QStringList { " SAP1.Corp", "prd ", "100", "00" } << 1;
        QTest::newRow("new, other instance") << 0 << QStringList { "sap1.corp", "PRD", "100", "01" } << 0;
        QTest::newRow("new, other client") << 0 << QStringList { "sap1.corp", "PRD", "010", "00" } << 0;
        QTest::newRow("edited over itself") << 1 << QStringList { "sap1.corp", "PRD", "100", "00" } << 0;
        QTest::newRow("edited into another") << 2 << QStringList { "sap1.corp", "PRD", "100", "00" } << 1;
        QTest::newRow("client not padded") << 0 << QStringList { "sap2.corp", "QAS", "1", "00" } << 0;
    }

    void duplicates()
    {
        QFETCH(int, row);
        QFETCH(QStringList, fields);
        QFETCH(int, twin);
        ServerCount = 2;
        ServerTable.redim(2, ServerColumn::Last);
        ServerTable(1, ServerColumn::Server) = QStringLiteral("sap1.corp ");
        ServerTable(1, ServerColumn::SID) = QStringLiteral("PRD");
        ServerTable(1, ServerColumn::Client) = QStringLiteral("100");
        ServerTable(1, ServerColumn::Instance) = QStringLiteral("00");
        ServerTable(2, ServerColumn::Server) = QStringLiteral("sap2.corp");
        ServerTable(2, ServerColumn::SID) = QStringLiteral("QAS");
        ServerTable(2, ServerColumn::Client) = QStringLiteral("001");
        ServerTable(2, ServerColumn::Instance) = QStringLiteral("00");
        QCOMPARE(DuplicateServerRow(row, fields[0], fields[1], fields[2], fields[3]), twin);
    }
};

QTEST_GUILESS_MAIN(TestServerChecks)
#include "tst_server_checks.moc"
