#include "specialrun/collector_window.h"

#include "specialrun/stand_in.h"

#include <QTest>

class TestCollectorWindow : public QObject
{
    Q_OBJECT

private slots:
    void findsTitlesByExactCase()
    {
        QVERIFY(!FindCollectorWindow(QStringLiteral("qd7stati")));
        QVERIFY(!CollectorOrLoaderRunning());
        {
            const StandIn upper(QStringLiteral("C:/ORVANTA/QD7STATI.EXE"));
            QVERIFY(QTest::qWaitFor([] { return FindCollectorWindow(QStringLiteral("QD7STATI")); }));
            QVERIFY(!FindCollectorWindow(QStringLiteral("qd7stati")));
            QVERIFY(!CollectorOrLoaderRunning());
        }
        {
            const StandIn collector(QStringLiteral("/opt/orvanta/bin/qd7stati.exe -np"));
            QVERIFY(QTest::qWaitFor([] { return FindCollectorWindow(QStringLiteral("qd7stati")); }));
            QVERIFY(CollectorOrLoaderRunning());
        }
        {
            const StandIn loader(QStringLiteral("trace_qd7loadsnap.log"));
            QVERIFY(QTest::qWaitFor([] { return CollectorOrLoaderRunning(); }));
        }
    }
};

QTEST_MAIN(TestCollectorWindow)
#include "tst_collector_window.moc"
