#include "platform/numeric.h"
#include "platform/runtime_error.h"

#include <QTest>

#include <cmath>
#include <functional>

// The run-time error number a call throws, 0 when it returns.
static int errorOf(const std::function<void()>& call)
{
    try {
        call();
    } catch (const RuntimeError& error) {
        return error.Number;
    }
    return 0;
}

class TestNumeric : public QObject
{
    Q_OBJECT

private slots:
    void isNumeric()
    {
        for (const char* text : { " 0300 ", "-12345", "+5", "1.", ".5", "1e2", "1e+002", "-1.5E-3" })
            QVERIFY2(Numeric::isNumeric(QString::fromLatin1(text)), text);
        for (const char* text : { "", " ", "-", ".", "1e", "1e+", "e2", "1.2.3", "- 1", "1,000", "\t1" })
            QVERIFY2(!Numeric::isNumeric(QString::fromLatin1(text)), text);
        QVERIFY(!Numeric::isNumeric(QStringLiteral("\u0661"))); // a digit, but not an ASCII one
    }

    void conversions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("bits"); // 0: toDouble, else toInt16 or toInt32
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
        row("1e+002", 16, 100, 0);
        row("-32768.5", 16, -32768, 0);
        row("32767.5", 16, 0, 6);
        row("", 16, 0, 13);
        row("1e", 32, 0, 13);
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
        QCOMPARE(result, value);
    }

    void rounding()
    {
        QCOMPARE(Numeric::roundHalfEven(-3.5), -4.0);
        QCOMPARE(Numeric::roundHalfEven(2.5001), 3.0);
        QCOMPARE(errorOf([] { Numeric::toInt16(std::nan("")); }), 6);
        // Whole records: a trailing piece of more than half a record counts, a half goes to even.
        QCOMPARE(Numeric::recordCount(183 + 92, 183), 2);
        QCOMPARE(Numeric::recordCount(100, 40), 2);
        QCOMPARE(Numeric::recordCount(3 * 22 + 11, 22), 4);
        QCOMPARE(errorOf([] { Numeric::recordCount(32768 * 6, 6); }), 6);
        QCOMPARE(errorOf([] { Numeric::recordCount(10, 0); }), 5);
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
};

QTEST_GUILESS_MAIN(TestNumeric)
#include "tst_numeric.moc"
