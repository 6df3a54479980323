#include "platform/runtime_error.h"
#include "platform/text.h"

#include <QTest>

class TestText : public QObject
{
    Q_OBJECT

private slots:
    void trimsBlanksOnly()
    {
        QCOMPARE(Text::Trim("  a b  "), "a b");
        QCOMPARE(Text::LTrim("  a "), "a ");
        QCOMPARE(Text::RTrim("  a "), "  a");
        QCOMPARE(Text::Trim("\tx\t "), "\tx\t");
        QCOMPARE(Text::Trim(QStringLiteral("\u00A0x ")), QStringLiteral("\u00A0x"));
    }

    void slicesClampAsClassic()
    {
        const QString entry = QStringLiteral("08:00 Scheduled run");
        QCOMPARE(Text::Left(entry, 5), "08:00");
        QCOMPARE(Text::Right(entry, 99), entry);
        QCOMPARE(Text::Mid(entry, 7, 5), "Sched");
        QCOMPARE(Text::Mid(entry, 17, 10), "run");
        QCOMPARE(Text::Mid(entry, 20), "");
        QCOMPARE(Text::fixedField("PRD", 6), "PRD   ");
        QCOMPARE(Text::fixedField("sap1.corp", 4), "sap1");
        const std::initializer_list<void (*)()> calls = { [] { Text::Left({}, -1); }, [] { Text::Mid({}, 1, -1); },
            [] { Text::Mid({}, 0); }, [] { Text::Space(-1); } };
        for (const auto call : calls) {
            try {
                call();
                QFAIL("no error");
            } catch (const RuntimeError& error) {
                QCOMPARE(error.Number, 5);
            }
        }
    }

    void upperCaseKeepsLength()
    {
        QCOMPARE(Text::UCase("prd sap1_9"), "PRD SAP1_9");
        QCOMPARE(Text::UCase(QStringLiteral("àéõüçæøþ")), QStringLiteral("ÀÉÕÜÇÆØÞ"));
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
