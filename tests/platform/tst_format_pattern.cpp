#include "platform/format_pattern.h"

#include <QTest>

class TestFormatPattern : public QObject
{
    Q_OBJECT

private slots:
    void formatText_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("formatted");
        const auto row = [](const char* value, const char* pattern, const char* formatted) {
            QTest::addRow("'%s' %s", value, pattern)
                << QString::fromLatin1(value) << QString::fromLatin1(pattern) << QString::fromLatin1(formatted);
        };
        row("0300", "####", "300");
        row("0", "####", ""); // zero is the empty text
        row("12.6", "####", "13");
        row("2.5", "####", "3"); // half away from zero, unlike the integer conversions
        row("-0.4", "####", ""); // no sign on a zero
        row("-5", "####", "-5");
        row("1e+002", "####", "100");
        row("090", "###", "90");
        row("7", "00", "07");
        row("123", "00", "123");
        row("1", "000", "001");
        row("1.5", "000", "002");
        row("2.5", "#,00", "03");
        row("1234.5", "#,00", "1,235");
        row("-999999.5", "#,00", "-1,000,000");
        row("2.5", "#.00", "2.50");
        row("0.5", "#.00", ".50");
        row("1.005", "#.00", "1.01"); // rounded as it reads, not as its binary value
        row("9.999", "#.00", "10.00");
        row("5", "#.##", "5.");
        row("8:5", "hh:mm", "08:05");
        row("1:30 PM", "hh:mm", "13:30");
        row("10/01/2002", "hh:mm", "00:00");
        row("13/01/2002", "yyyymmdd", "20020113");
        row("8:5:3", "HHMMSS", "080503");
        row("8:05", "yyyymmdd", "18991230"); // a time alone stands on day zero
        row("0.5", "hh:mm", "12:00"); // numbers are date serials
        row("37530.25", "yyyymmdd hh:mm", "20021001 06:00");
        row("-1.5", "yyyymmdd hh:mm", "18991229 12:00");
        row("0.99999999", "yyyymmdd hhmmss", "18991231 000000");
        row("8:07:09", "mm:ss", "07:09");
        row("12:00", "#.00", ".50"); // and date texts are numbers
        // Neither number nor date, or beyond what the pattern can show: left as it stands.
        row("abc", "####", "abc");
        row("", "####", "");
        row("1e", "####", "1e");
        row("1,000", "####", "1,000");
        row("24:00", "hh:mm", "24:00");
        row("1e400", "####", "1e400");
        row("3000000", "yyyymmdd", "3000000");
        row("12", "", "12");
        row("12", "#.#.#", "12");
    }
    void formatText()
    {
        QFETCH(QString, value);
        QFETCH(QString, pattern);
        QFETCH(QString, formatted);
        QCOMPARE(FormatPattern::formatText(value, pattern), formatted);
    }

    void formatNumberAndClock()
    {
        QCOMPARE(FormatPattern::formatNumber(0.5, "#####"), "1");
        QCOMPARE(FormatPattern::formatNumber(0.1 + 0.2, "#.00"), ".30");
        QCOMPARE(FormatPattern::formatNumber(2.5, ""), "2.5");

        // Cut, not rounded: the clock must never read a second ahead.
        const QDateTime lastSecond(QDate(2002, 1, 13), QTime(23, 59, 59, 999));
        QCOMPARE(FormatPattern::formatDateTime(lastSecond, "yyyymmdd"), "20020113");
        QCOMPARE(FormatPattern::formatDateTime(lastSecond, "hhmmss"), "235959");
        QCOMPARE(FormatPattern::formatDateTime(lastSecond, "hh:mm"), "23:59");
        QCOMPARE(FormatPattern::formatDateTime(QDateTime(), "hh:mm"), "");
    }
};

QTEST_GUILESS_MAIN(TestFormatPattern)
#include "tst_format_pattern.moc"
