#include "platform/clock.h"
#include "platform/date_text.h"
#include "platform/format_pattern.h"
#include "platform/locale_name.h"
#include "platform/numeric.h"
#include "platform/text.h"
#include "support/failure_of.h"

#include <QTest>

#include <cmath>

class TestTextAndNumbers : public QObject
{
    Q_OBJECT

private slots:
    void trimsBlanksOnlyAndSlicesClamp()
    {
        QCOMPARE(Text::LTrim("  a "), "a ");
        QCOMPARE(Text::RTrim("  a "), "  a");
        QCOMPARE(Text::Trim(QStringLiteral("\t\u00A0x\t ")), QStringLiteral("\t\u00A0x\t"));
        QCOMPARE(Text::Trim(QStringLiteral("   ")), QString());

        const QString entry = QStringLiteral("08:00 Scheduled run");
        QCOMPARE(Text::Right(entry, 99), entry);
        QCOMPARE(Text::Mid(entry, 17, 10), "run");
        QCOMPARE(Text::fixedField("PRD", 6), "PRD   ");
        QCOMPARE(Text::fixedField("sap1.corp", 4), "sap1");
        QCOMPARE(failureOf([&] { Text::Mid(entry, 0); }).Number, 5); // positions count from 1
    }

    void latin1Text()
    {
        QCOMPARE(Text::UCase(QStringLiteral("prd sap1_9 àéõüçæøþ")), QStringLiteral("PRD SAP1_9 ÀÉÕÜÇÆØÞ"));
        // No upper-case Latin-1 letter of their own: they stay as they are.
        QCOMPARE(Text::UCase(QStringLiteral("ßÿµ÷ăω")), QStringLiteral("ßÿµ÷ăω"));

        QByteArray every(256, '\0');
        for (int i = 0; i < 256; ++i)
            every[i] = char(i);
        QVERIFY(Text::isLatin1(Text::fromLatin1Bytes(every)));
        QCOMPARE(Text::toLatin1Bytes(Text::fromLatin1Bytes(every)), every);
        QVERIFY(!Text::isLatin1(QStringLiteral("a\u20ACb")));
        QCOMPARE(Text::toLatin1Bytes(QStringLiteral("a\u20ACb")), QByteArray("a?b"));
    }

    void isNumeric()
    {
        for (const char* text : { " 0300 ", "-12345", "+5", "1.", ".5", "1e2", "1e+002", "-1.5E-3" })
            QVERIFY2(Numeric::isNumeric(QString::fromLatin1(text)), text);
        for (const char* text : { "", " ", "-", ".", "1e", "1e+", "e2", "1.2.3", "- 1", "1,000", "\t1", "&H10" })
            QVERIFY2(!Numeric::isNumeric(QString::fromLatin1(text)), text);
        QVERIFY(!Numeric::isNumeric(QStringLiteral("\u0661"))); // a digit, but not an ASCII one
    }

    // 16- and 32-bit conversions round a half to even before checking the range.
    void conversions()
    {
        struct Case
        {
            const char* text;
            int bits; // 0: toDouble, else toInt16 or toInt32
            double value;
            int error;
        };
        const Case cases[]
            = { { " -1.5E-3 ", 0, -0.0015, 0 }, { "1e-400", 0, 0, 0 }, { "-1e99999999999999999999", 0, 0, 6 },
                  { "2.5", 16, 2, 0 }, { "3.5", 16, 4, 0 }, { "1e+002", 16, 100, 0 }, { "-32768.5", 16, -32768, 0 },
                  { "32767.5", 16, 0, 6 }, { "", 16, 0, 13 }, { "1e", 32, 0, 13 }, { "2147483647.5", 32, 0, 6 } };
        for (const Case& expected : cases) {
            const QString text = QString::fromLatin1(expected.text);
            double result = 0;
            const int error = failureOf([&] {
                if (expected.bits == 0)
                    result = Numeric::toDouble(text);
                else
                    result = expected.bits == 16 ? Numeric::toInt16(text) : Numeric::toInt32(text);
            }).Number;
            QVERIFY2(error == expected.error && result == expected.value, expected.text);
        }
    }

    void roundingAndRecordCount()
    {
        QCOMPARE(Numeric::roundHalfEven(-3.5), -4.0);
        QCOMPARE(Numeric::roundHalfEven(2.5001), 3.0);
        QCOMPARE(failureOf([] { Numeric::toInt16(std::nan("")); }).Number, 6);
        QCOMPARE(Numeric::recordCount(183 + 92, 183), 2);
        QCOMPARE(Numeric::recordCount(3 * 22 + 11, 22), 4);
        QCOMPARE(failureOf([] { Numeric::recordCount(32768 * 6, 6); }).Number, 6);
        QCOMPARE(failureOf([] { Numeric::recordCount(10, 0); }).Number, 5);
    }

    void valAndText()
    {
        const std::pair<const char*, double> cases[]
            = { { " 1 2", 12 }, { "CLEAR", 0 }, { "1e2x", 100 }, { "1e", 1 }, { "- 1.5kg", -1.5 } };
        for (const auto& [text, value] : cases)
            QCOMPARE(Numeric::val(QString::fromLatin1(text)), value);
        QCOMPARE(Numeric::toText(-0.0), "0");
        QCOMPARE(Numeric::toText(0.1 + 0.2), "0.3");
        QCOMPARE(Numeric::toText(1e15), "1E+15");
        QCOMPARE(Numeric::str(31), " 31");
    }

    void formatText()
    {
        // value, pattern, formatted
        const char* const cases[][3] = { { "0300", "####", "300" }, { "0", "####", "" }, // zero is the empty text
            { "2.5", "####", "3" }, // half away from zero, unlike the integer conversions
            { "-0.4", "####", "" }, // no sign on a zero
            { "7", "00", "07" }, { "-999999.5", "#,00", "-1,000,000" }, { "0.5", "#.00", ".50" },
            { "1.005", "#.00", "1.01" }, // rounded as it reads, not as its binary value
            { "9.999", "#.00", "10.00" }, { "5", "#.##", "5." }, { "8:5", "hh:mm", "08:05" },
            { "13/01/2002", "yyyymmdd", "20020113" }, { "8:5:3", "HHMMSS", "080503" },
            { "8:05", "yyyymmdd", "18991230" }, // a time alone stands on day zero
            { "37530.25", "yyyymmdd hh:mm", "20021001 06:00" }, // numbers are date serials
            { "-1.5", "yyyymmdd hh:mm", "18991229 12:00" }, { "0.99999999", "yyyymmdd hhmmss", "18991231 000000" },
            { "8:07:09", "mm:ss", "07:09" }, { "12:00", "#.00", ".50" }, // and date texts are numbers
            // Neither number nor date, or beyond what the pattern can show: left as it stands.
            { "1e", "####", "1e" }, { "24:00", "hh:mm", "24:00" }, { "3000000", "yyyymmdd", "3000000" },
            { "12", "", "12" } };
        for (const auto& [value, pattern, formatted] : cases)
            QCOMPARE(FormatPattern::formatText(QString::fromLatin1(value), QString::fromLatin1(pattern)),
                QString::fromLatin1(formatted));
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

    void settableClock()
    {
        QDateTime moment(QDate(2002, 10, 1), QTime(23, 59, 59, 250));
        Clock::setSource([&moment] { return moment; });
        QCOMPARE(Clock::now(), moment);
        QCOMPARE(Clock::secondsSinceMidnight(), 86399.25);
        moment = moment.addMSecs(750); // the source is asked each time
        QCOMPARE(Clock::now().date(), QDate(2002, 10, 2));
        QCOMPARE(Clock::secondsSinceMidnight(), 0.0);

        const QDateTime noonUtc(QDate(2020, 1, 1), QTime(12, 0), Qt::UTC);
        Clock::setFixed(noonUtc);
        QCOMPARE(Clock::now().timeSpec(), Qt::LocalTime);
        QCOMPARE(Clock::now(), noonUtc);

        Clock::reset();
        QVERIFY(Clock::now().date().year() >= 2024);
    }

    void dateTextAccepted()
    {
        struct Case
        {
            const char* text;
            QDate date; // null: the text holds no date
            QTime time;
        };
        const Case cases[] = {
            { " 8:5 ", {}, QTime(8, 5) },
            { "1:30 PM", {}, QTime(13, 30) },
            { "12:00 AM", {}, QTime(0, 0) },
            { "10/01/2002", QDate(2002, 10, 1), QTime(0, 0) },
            { "13/01/2002", QDate(2002, 1, 13), QTime(0, 0) }, // only a day can be over 12
            { "2-29-2004", QDate(2004, 2, 29), QTime(0, 0) },
            { "2/29/2000", QDate(2000, 2, 29), QTime(0, 0) }, // 1900 is no leap year, 2000 is
            { "1/2/29", QDate(2029, 1, 2), QTime(0, 0) },
            { "1/2/30", QDate(1930, 1, 2), QTime(0, 0) },
            { "10/01/2002  1:30 PM", QDate(2002, 10, 1), QTime(13, 30) },
        };
        for (const Case& expected : cases) {
            const RecognisedDateTime result = recogniseDateTime(QString::fromLatin1(expected.text));
            QVERIFY2(result.ok, expected.text);
            QCOMPARE(result.hasDate, !expected.date.isNull());
            QCOMPARE(result.date, expected.date);
            QCOMPARE(result.time, expected.time);
        }
    }

    void dateTextRefused()
    {
        for (const char* text :
            { "24:00", "12:60", "12:00:60", "008:05", "8:", "8", "0300", "13:00 PM", "0:30 AM", "2/30/2002",
                "2/29/1900", "13/13/2002", "1/1/200", "1/2-2002", "10/01", "8:05 10/01/2002", "", "\t8:05" })
            QVERIFY2(!isDateText(QString::fromLatin1(text)), text);
        QVERIFY(!isDateText(QStringLiteral("\u0668:\u0660\u0665"))); // digits, but not ASCII ones
    }

    void localeAbbreviations()
    {
        // locale, its abbreviation, the default sublanguage's (the classic fallbacks, not the obvious ones)
        // clang-format off
        const char* const cases[][3] = {
            {"en_US", "ENU", "ENU"}, {"de_CH", "DES", "DEU"}, {"de_CH.UTF-8", "DES", "DEU"},
            {"de_AT.ISO-8859-15@euro", "DEA", "DEU"}, {"EN-gb", "ENG", "ENU"}, {"de", "DEU", "DEU"},
            {"es_MX", "ESM", "ESP"}, {"zh_CN", "CHS", "CHT"}, {"pt_PT", "PTG", "PTB"}, {"nn_NO", "NON", "NOR"},
            {"en_XX", "", "ENU"}, {"xx_YY", "", ""}, {"C", "", ""}, {"POSIX", "", ""}, {"", "", ""},
        };
        // clang-format on
        for (const auto& [locale, abbreviation, fallback] : cases) {
            QCOMPARE(languageAbbreviation(QString::fromLatin1(locale)), QString::fromLatin1(abbreviation));
            QCOMPARE(defaultSublanguageAbbreviation(QString::fromLatin1(locale)), QString::fromLatin1(fallback));
        }
    }

    void currentLocaleFromTheEnvironment()
    {
        // LC_ALL, LC_MESSAGES, LANG (empty counts as unset), the locale
        const char* const cases[][4] = { { "de_CH.UTF-8", "fr_FR", "en_US", "de_CH" },
            { "", "fr_CA.UTF-8@x", "en_US", "fr_CA" }, { "", "", "it_CH@euro", "it_CH" }, { "", "", "", "" } };
        for (const auto& variables : cases) {
            qputenv("LC_ALL", variables[0]);
            qputenv("LC_MESSAGES", variables[1]);
            qputenv("LANG", variables[2]);
            QCOMPARE(currentLocaleName(), QString::fromLatin1(variables[3]));
        }
    }
};

QTEST_GUILESS_MAIN(TestTextAndNumbers)
#include "tst_text_and_numbers.moc"
