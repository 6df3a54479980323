#include "platform/clock.h"
#include "platform/runtime_error.h"
#include "specialrun/run_entries.h"

#include <QTest>

// The clock stands at 2026-11-23 12:00:00 throughout.
class TestRunEntries : public QObject
{
    Q_OBJECT

private slots:
    void init() { Clock::setFixed(QDateTime(QDate(2026, 11, 23), QTime(12, 0, 0))); }
    void cleanup() { Clock::reset(); }

    void dates_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<bool>("valid");
        QTest::newRow("today") << "20261123" << true;
        QTest::newRow("yesterday") << "20261122" << true;
        QTest::newRow("tomorrow") << "20261124" << false;
        QTest::newRow("leap day") << "20240229" << true;
        QTest::newRow("no such leap day") << "20250229" << false;
        QTest::newRow("short") << "2026112" << false;
        QTest::newRow("letters") << "2026ab23" << false;
        QTest::newRow("empty") << "" << false;
        // read as 13/01/2002, which the date recognition takes as the 13th of January
        QTest::newRow("month 13 read as a day") << "20021301" << true;
        QTest::newRow("neither a month nor a day") << "20021313" << false;
        QTest::newRow("numeric, no date") << "1.5e+003" << false;
    }
    void dates()
    {
        QFETCH(QString, date);
        QFETCH(bool, valid);
        QCOMPARE(RunEntries::isValidDate(date), valid);
    }

    void times_data()
    {
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("date");
        QTest::addColumn<bool>("valid");
        QTest::newRow("earlier today") << "115959" << "20261123" << true;
        QTest::newRow("now") << "120000" << "20261123" << true;
        QTest::newRow("later today") << "120001" << "20261123" << false;
        QTest::newRow("yesterday, last second") << "235959" << "20261122" << true;
        QTest::newRow("hour 24 passes") << "245959" << "20261122" << true;
        QTest::newRow("hour 25") << "250000" << "20261122" << false;
        QTest::newRow("minute 60") << "106000" << "20261122" << false;
        QTest::newRow("second 60") << "100060" << "20261122" << false;
        QTest::newRow("short") << "12000" << "20261122" << false;
        QTest::newRow("letters") << "12ab00" << "20261122" << false;
        // "-1" is an hour below 25
        QTest::newRow("negative") << "-12345" << "20261122" << true;
        QTest::newRow("negative today") << "-12345" << "20261123" << true;
    }
    void times()
    {
        QFETCH(QString, time);
        QFETCH(QString, date);
        QFETCH(bool, valid);
        QCOMPARE(RunEntries::isValidTime(time, date), valid);
    }

    void numericTimeWhosePiecesDoNotConvertThrows()
    {
        try {
            RunEntries::isValidTime(QStringLiteral("1e+002"), QStringLiteral("20261122"));
            QFAIL("no failure");
        } catch (const RuntimeError& error) {
            QCOMPARE(error.Number, int(RuntimeError::TypeMismatch));
        }
    }
};

QTEST_GUILESS_MAIN(TestRunEntries)
#include "tst_run_entries.moc"
