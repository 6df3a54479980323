#include "server_files.h"
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

    void languageLettersByListPosition()
    {
        QString letters;
        for (int i = -1; i <= ServerLanguage::Count; ++i)
            letters += ServerLanguage::letter(i);
        QCOMPARE(letters, QStringLiteral("EDJFISPKTC")); // T Simplified, C Traditional Chinese
        QCOMPARE(ServerLanguage::listIndex(QStringLiteral("C")), 9);
        QCOMPARE(ServerLanguage::listIndex(QStringLiteral("e")), -1);
    }
};

QTEST_GUILESS_MAIN(TestServerRecord)
#include "tst_server_record.moc"
