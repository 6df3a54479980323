#include "platform/clock.h"

#include <QTest>

class TestClock : public QObject
{
    Q_OBJECT

private slots:
    void setByTest();
};

void TestClock::setByTest()
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

QTEST_GUILESS_MAIN(TestClock)
#include "tst_clock.moc"
