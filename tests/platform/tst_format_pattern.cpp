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
        row("2.5", "####", "3"); // half away from zero, unlike the integer conversions
        row("-0.4", "####", ""); // no sign on a zero
        row("7", "00", "07");
        row("-999999.5", "#,00", "-1,000,000");
        row("0.5", "#.00", ".50");
        row("1.005", "#.00", "1.01"); // rounded as it reads, not as its binary value
        row("9.999", "#.00", "10.00");
        row("5", "#.##", "5.");
        row("8:5", "hh:mm", "08:05");
        row("1:30 PM", "hh:mm", "13:30");
        row("13/01/2002", "yyyymmdd", "20020113");
        row("8:5:3", "HHMMSS", "080503");
        row("8:05", "yyyymmdd", "18991230"); // a time alone stands on day zero
        row("37530.25", "yyyymmdd hh:mm", "20021001 06:00"); // numbers are date serials
        row("-1.5", "yyyymmdd hh:mm", "18991229 12:00");
        row("0.99999999", "yyyymmdd hhmmss", "18991231 000000");
        row("8:07:09", "mm:ss", "07:09");
        row("12:00", "#.00", ".50"); // and date texts are numbers
        // Neither number nor date, or beyond what the pattern can show: left as it stands.
        row("1e", "####", "1e");
        row("24:00", "hh:mm", "24:00");
        row("3000000", "yyyymmdd", "3000000");
        row("12", "", "12");
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
        QCOMPARE(FormatPattern::formatNumber(0.1 + 0.2, "#.00"), ".30");
        QCOMPARE(FormatPattern::formatNumber(2.5, ""), "2.5");
        // Cut, not rounded: the clock must never read a second ahead.
        const QDateTime lastSecond(QDate(2002, 1, 13), QTime(23, 59, 59, 999));
        QCOMPARE(FormatPattern::formatDateTime(lastSecond, "yyyymmdd hhmmss"), "20020113 235959");
        QCOMPARE(FormatPattern::formatDateTime(QDateTime(), "hh:mm"), "");
    }
};

QTEST_GUILESS_MAIN(TestFormatPattern)
#include "tst_format_pattern.moc"
