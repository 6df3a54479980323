#include "platform/clock.h"

#include <QTest>

class TestClock : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Clock::reset(); }

    void secondsSinceMidnight_data();
    void secondsSinceMidnight();
    void sourceIsAskedEachTime();
};

void TestClock::secondsSinceMidnight_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<double>("seconds");

    QTest::newRow("midnight") << QTime(0, 0) << 0.0;
    QTest::newRow("milliseconds as fraction") << QTime(12, 34, 56, 250) << 45296.25;
    QTest::newRow("last millisecond") << QTime(23, 59, 59, 999) << 86399.999;
}

void TestClock::secondsSinceMidnight()
{
    QFETCH(QTime, time);
    QFETCH(double, seconds);

    const QDateTime moment(QDate(2002, 10, 1), time);
    Clock::setFixed(moment);
    QCOMPARE(Clock::now(), moment);
    QCOMPARE(Clock::secondsSinceMidnight(), seconds);
}

void TestClock::sourceIsAskedEachTime()
{
    QDateTime moment(QDate(2002, 10, 1), QTime(23, 59, 59));
    Clock::setSource([&moment] { return moment; });
    QCOMPARE(Clock::secondsSinceMidnight(), 86399.0);
    moment = moment.addSecs(1);
    QCOMPARE(Clock::now().date(), QDate(2002, 10, 2));
    QCOMPARE(Clock::secondsSinceMidnight(), 0.0);

    // A source in UTC still gives local time.
    const QDateTime noonUtc(QDate(2020, 1, 1), QTime(12, 0), Qt::UTC);
    Clock::setSource([&] { return noonUtc; });
    QCOMPARE(Clock::now().timeSpec(), Qt::LocalTime);
    QCOMPARE(Clock::now(), noonUtc);

    Clock::reset();
    QVERIFY(Clock::now().date().year() >= 2024);
}

QTEST_GUILESS_MAIN(TestClock)
#include "tst_clock.moc"
