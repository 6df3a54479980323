#include "server_files.h"
#include "servers/server_record.h"
#include "shell/text_table.h"

#include <QTest>

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
        QTest::newRow("fields filled to the brim") << full << "PRD" << serverRecord(full.toLatin1(), "PRD");
        QTest::newRow("longer values cut") << full + QStringLiteral("cut") << "PRDX" << serverRecord(full.toLatin1(), "PRD");
        QTest::newRow("short values padded") << " sap1.corp" << "P" << serverRecord(" sap1.corp", "P");
        QTest::newRow("latin-1 bytes kept") << QString::fromLatin1("s\xfc\x80\xff.corp") << QString::fromLatin1("P\xe4")
                                            << serverRecord("s\xfc\x80\xff.corp", "P\xe4");
    }

    void bytesOfARecord()
    {
        QFETCH(QString, server);
        QFETCH(QString, sid);
        QFETCH(QByteArray, bytes);
        ServerRecordBuffer record { server, QStringLiteral("QD7MON"), QStringLiteral("x1-"), sid,
            QStringLiteral("100"), QStringLiteral("00"), QStringLiteral("000000"), QStringLiteral("240000"),
            QStringLiteral("E") };
        QCOMPARE(record.toBytes(), bytes);
        QCOMPARE(bytes.size(), ServerRecordBuffer::Length);
        // no blank between a full field and the next
        if (server.size() >= 100)
            QCOMPARE(bytes.mid(99, 2), QByteArray("!Q"));

        const ServerRecordBuffer back = ServerRecordBuffer::fromBytes(bytes);
        QCOMPARE(back.Server, QString::fromLatin1(bytes.left(100)));
        QCOMPARE(back.SID, QString::fromLatin1(bytes.mid(160, 3)));
        QCOMPARE(back.toBytes(), bytes);
    }

    // The trailing piece of a file: what it reaches, the rest empty.
    void shortRecordGivesShortFields()
    {
        const ServerRecordBuffer record = ServerRecordBuffer::fromBytes(serverRecord("sap1.corp").left(105));
        QCOMPARE(record.Server, QString::fromLatin1(QByteArray("sap1.corp").leftJustified(100, ' ')));
        QCOMPARE(record.ID, QStringLiteral("QD7MO"));
        QVERIFY(record.Password.isEmpty() && record.Instance.isEmpty() && record.Language.isEmpty());
        QCOMPARE(ServerEntry(record.Server, record.Instance), QStringLiteral("sap1.corp "));
    }

    void rowsAndEntries()
    {
        TextTable table;
        table.redim(1, ServerColumn::Last);
        PutRecordInRow(ServerRecordBuffer::fromBytes(serverRecord("  sap1.corp", "PRD", "100", " 7")), table, 1);
        QCOMPARE(table(1, ServerColumn::Instance), QStringLiteral(" 7"));
        QCOMPARE(table(1, 0), QString());
        QCOMPARE(ServerRowEntry(table, 1), QStringLiteral("sap1.corp 7"));
        QCOMPARE(RecordFromRow(table, 1).toBytes(), serverRecord("  sap1.corp", "PRD", "100", " 7"));
    }

    void languageLettersByListPosition()
    {
        QString letters;
        for (int i = -1; i <= ServerLanguage::Count; ++i)
            letters += ServerLanguage::letter(i) + QLatin1Char('|');
        QCOMPARE(letters, QStringLiteral("|E|D|J|F|I|S|P|K|T|C||"));
        QCOMPARE(ServerLanguage::listIndex(QStringLiteral("T")), 8); // Simplified Chinese
        QCOMPARE(ServerLanguage::listIndex(QStringLiteral("C")), 9); // Traditional Chinese
        for (const char* outside : { "", "e", "X", "EE" })
            QCOMPARE(ServerLanguage::listIndex(QString::fromLatin1(outside)), -1);
    }
};

QTEST_GUILESS_MAIN(TestServerRecord)
#include "tst_server_record.moc"
