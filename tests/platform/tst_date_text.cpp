#include "platform/date_text.h"

#include <QTest>

class TestDateText : public QObject
{
    Q_OBJECT

private slots:
    void accepted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("date"); // null: the text holds no date
        QTest::addColumn<QTime>("time");
        const auto row = [](const char* text, QDate date, QTime time) {
            QTest::addRow("'%s'", text) << QString::fromLatin1(text) << date << time;
        };
        row(" 8:5 ", {}, QTime(8, 5));
        row("1:30 PM", {}, QTime(13, 30));
        row("12:00 AM", {}, QTime(0, 0));
        row("10/01/2002", QDate(2002, 10, 1), QTime(0, 0));
        row("13/01/2002", QDate(2002, 1, 13), QTime(0, 0)); // only a day can be over 12
        row("2-29-2004", QDate(2004, 2, 29), QTime(0, 0));
        row("2/29/2000", QDate(2000, 2, 29), QTime(0, 0)); // 1900 is no leap year, 2000 is
        row("1/2/29", QDate(2029, 1, 2), QTime(0, 0));
        row("1/2/30", QDate(1930, 1, 2), QTime(0, 0));
        row("10/01/2002  1:30 PM", QDate(2002, 10, 1), QTime(13, 30));
    }
    void accepted()
    {
        QFETCH(QString, text);
        QFETCH(QDate, date);
        QFETCH(QTime, time);
        const RecognisedDateTime result = recogniseDateTime(text);
        QVERIFY(result.ok);
        QCOMPARE(result.hasDate, !date.isNull());
        QCOMPARE(result.date, date);
        QCOMPARE(result.time, time);
    }

    void refused()
    {
        for (const char* text :
            { "24:00", "12:60", "12:00:60", "008:05", "8:", "8", "0300", "13:00 PM", "0:30 AM", "2/30/2002",
                "2/29/1900", "13/13/2002", "1/1/200", "1/2-2002", "10/01", "8:05 10/01/2002", "", "\t8:05" })
            QVERIFY2(!isDateText(QString::fromLatin1(text)), text);
        QVERIFY(!isDateText(QStringLiteral("\u0668:\u0660\u0665"))); // digits, but not ASCII ones
    }
};

QTEST_GUILESS_MAIN(TestDateText)
#include "tst_date_text.moc"
