#include "servers/server_checks.h"

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
};

QTEST_GUILESS_MAIN(TestServerChecks)
#include "tst_server_checks.moc"
