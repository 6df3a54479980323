#include "platform/numeric.h"
#include "platform/runtime_error.h"

#include <QTest>

#include <cmath>
#include <functional>

namespace {

// The run-time error number a call throws, 0 when it returns.
int errorOf(const std::function<void()>& call)
{
    try {
        call();
    } catch (const RuntimeError& error) {
        return error.Number;
    }
    return 0;
}

} // namespace

class TestNumeric : public QObject
{
    Q_OBJECT

private slots:
    void isNumeric()
    {
        for (const char* text : { "7", " 0300 ", "-12345", "+5", "1.", ".5", "1e2", "1e+002", "-1.5E-3" })
            QVERIFY2(Numeric::isNumeric(QString::fromLatin1(text)), text);
        for (const char* text : { "", " ", "+", "-", ".", "e", "1e", "1e+", "e2", "1.2.3", "--1", "- 1", "1 2", "1,000",
                 "&H10", "1e2.5", "\t1", "12abc", "8:05" })
            QVERIFY2(!Numeric::isNumeric(QString::fromLatin1(text)), text);
        QVERIFY(!Numeric::isNumeric(QStringLiteral("\u0661"))); // a digit, but not an ASCII one
    }

    // bits 0 is toDouble, 16 and 32 the integer conversions.
    void conversions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("bits");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("error");
        const auto row = [](const char* text, int bits, double value, int error) {
            QTest::addRow("'%s' %d", text, bits) << QString::fromLatin1(text) << bits << value << error;
        };
        row(" -1.5E-3 ", 0, -0.0015, 0);
        row("1e-400", 0, 0, 0);
        row("-1e99999999999999999999", 0, 0, 6);
        row("2.5", 16, 2, 0);
        row("3.5", 16, 4, 0);
        row("-2.5", 16, -2, 0);
        row("1e+002", 16, 100, 0);
        row("-32768.5", 16, -32768, 0);
        row("32767.5", 16, 0, 6);
        row("32768", 16, 0, 6);
        row("abc", 16, 0, 13);
        row("", 16, 0, 13);
        row("1e", 32, 0, 13);
        row("-12345", 32, -12345, 0);
        row("245959", 32, 245959, 0);
        row("235959", 32, 235959, 0);
        row("2147483647.5", 32, 0, 6);
    }
    void conversions()
    {
        QFETCH(QString, text);
        QFETCH(int, bits);
        QFETCH(double, value);
        QFETCH(int, error);
        double result = 0;
        QCOMPARE(errorOf([&] {
            result = bits == 0 ? Numeric::toDouble(text) : bits == 16 ? Numeric::toInt16(text) : Numeric::toInt32(text);
        }),
            error);
        QCOMPARE(result, error == 0 ? value : 0.0);
    }

    void roundsHalfToEven()
    {
        QCOMPARE(Numeric::roundHalfEven(0.5), 0.0);
        QCOMPARE(Numeric::roundHalfEven(2.5), 2.0);
        QCOMPARE(Numeric::roundHalfEven(-3.5), -4.0);
        QCOMPARE(Numeric::roundHalfEven(2.5001), 3.0);
        QCOMPARE(errorOf([] { Numeric::toInt16(std::nan("")); }), 6);
        QCOMPARE(errorOf([] { Numeric::toInt32(-HUGE_VAL); }), 6);
        QCOMPARE(Numeric::wrapInt16(32768), qint16(-32768));
        QCOMPARE(Numeric::wrapInt16(-32769), qint16(32767));
    }

    void recordCount()
    {
        QCOMPARE(Numeric::recordCount(183 + 91, 183), 1);
        QCOMPARE(Numeric::recordCount(183 + 92, 183), 2); // more than half a record counts
        QCOMPARE(Numeric::recordCount(5 * 39 / 2, 39), 2); // 2.5 records
        QCOMPARE(Numeric::recordCount(3 * 22 + 11, 22), 4); // 3.5 records
        QCOMPARE(Numeric::recordCount(32767 * 6, 6), 32767);
        QCOMPARE(errorOf([] { Numeric::recordCount(32768 * 6, 6); }), 6);
        QCOMPARE(errorOf([] { Numeric::recordCount(10, 0); }), 5);
    }

    void val()
    {
        const std::pair<const char*, double> cases[]
            = { { "12abc", 12 }, { " 1 2", 12 }, { "\t1\n2", 12 }, { "CLEAR", 0 }, { "", 0 }, { "1e2x", 100 },
                  { "1e", 1 }, { "3e-x", 3 }, { "- 1.5kg", -1.5 }, { "1.2.3", 1.2 }, { "-", 0 }, { "1e-999", 0 } };
        for (const auto& [text, value] : cases)
            QCOMPARE(Numeric::val(QString::fromLatin1(text)), value);
    }

    void toText()
    {
        QCOMPARE(Numeric::toText(2500 / 1000.0), "2.5");
        QCOMPARE(Numeric::toText(-0.0), "0");
        QCOMPARE(Numeric::toText(0.1 + 0.2), "0.3");
        QCOMPARE(Numeric::toText(123456789012345.0), "123456789012345");
        QCOMPARE(Numeric::toText(1e15), "1E+15");
        QCOMPARE(Numeric::toText(1e-5), "1E-05");
        QCOMPARE(Numeric::str(31), " 31");
        QCOMPARE(Numeric::str(-2), "-2");
    }
};

QTEST_GUILESS_MAIN(TestNumeric)
#include "tst_numeric.moc"
