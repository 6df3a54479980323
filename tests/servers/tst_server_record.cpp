#include "server_files.h"
#include "servers/server_checks.h"
#include "servers/server_record.h"

class TestServerRecord : public QObject
{
    Q_OBJECT

private slots:
    void bytesOfARecord_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<QString>("sid");
        QTest::addColumn<QByteArray>("bytes");
        const QString full = QString(99, QLatin1Char('s')) + QLatin1Char('!');
        QTest::newRow("full fields, no blank between") << full << "PRD" << serverRecord(full.toLatin1(), "PRD");
        QTest::newRow("longer values cut")
            << full + QStringLiteral("cut") << "PRDX" << serverRecord(full.toLatin1(), "PRD");
        QTest::newRow("padded, latin-1 kept") << QString::fromLatin1(" s\xfc\x80.corp") << QString::fromLatin1("\xe4")
                                              << serverRecord(" s\xfc\x80.corp", "\xe4");
    }
    void bytesOfARecord()
    {
        QFETCH(QString, server);
        QFETCH(QString, sid);
        QFETCH(QByteArray, bytes);
        const ServerRecordBuffer record { server, QStringLiteral("QD7MON"), QStringLiteral("x1-"), sid,
            QStringLiteral("100"), QStringLiteral("00"), QStringLiteral("000000"), QStringLiteral("240000"),
            QStringLiteral("E") };
        QCOMPARE(record.toBytes(), bytes);
        const ServerRecordBuffer back = ServerRecordBuffer::fromBytes(bytes);
        QCOMPARE(back.Server, QString::fromLatin1(bytes.left(100)));
        QCOMPARE(back.toBytes(), bytes);
    }

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

QTEST_GUILESS_MAIN(TestServerRecord)
#include "tst_server_record.moc"
