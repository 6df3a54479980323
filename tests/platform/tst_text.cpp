#include "platform/runtime_error.h"
#include "platform/text.h"

#include <QTest>

class TestText : public QObject
{
    Q_OBJECT

private slots:
    void trimsBlanksOnly()
    {
        QCOMPARE(Text::LTrim("  a "), "a ");
        QCOMPARE(Text::RTrim("  a "), "  a");
        QCOMPARE(Text::Trim(QStringLiteral("\t\u00A0x\t ")), QStringLiteral("\t\u00A0x\t"));
        QCOMPARE(Text::Trim(QStringLiteral("  a b  ")), QStringLiteral("a b"));
        QCOMPARE(Text::Trim(QStringLiteral("   ")), QString());
    }

    void slicesClampAsClassic()
    {
        const QString entry = QStringLiteral("08:00 Scheduled run");
        QCOMPARE(Text::Right(entry, 99), entry);
        QCOMPARE(Text::Mid(entry, 17, 10), "run");
        QCOMPARE(Text::fixedField("PRD", 6), "PRD   ");
        QCOMPARE(Text::fixedField("sap1.corp", 4), "sap1");
        try {
            Text::Mid(entry, 0);
            QFAIL("no error");
        } catch (const RuntimeError& error) {
            QCOMPARE(error.Number, 5); // positions count from 1
        }
    }

    void upperCaseKeepsLength()
    {
        QCOMPARE(Text::UCase(QStringLiteral("prd sap1_9 àéõüçæøþ")), QStringLiteral("PRD SAP1_9 ÀÉÕÜÇÆØÞ"));
        // No upper-case Latin-1 letter of their own: they stay as they are.
        QCOMPARE(Text::UCase(QStringLiteral("ßÿµ÷ăω")), QStringLiteral("ßÿµ÷ăω"));
    }

    void latin1RoundTrip()
    {
        QByteArray every(256, '\0');
        for (int i = 0; i < 256; ++i)
            every[i] = char(i);
        QVERIFY(Text::isLatin1(Text::fromLatin1Bytes(every)));
        QCOMPARE(Text::toLatin1Bytes(Text::fromLatin1Bytes(every)), every);
        QVERIFY(!Text::isLatin1(QStringLiteral("a\u20ACb")));
        QCOMPARE(Text::toLatin1Bytes(QStringLiteral("a\u20ACb")), QByteArray("a?b"));
    }
};

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
