#include "specialrun/collector_window.h"

#include <QApplication>
#include <QProcess>
#include <QTest>

// A child shell whose command line carries `title` stands in for a program's window.
class StandIn
{
public:
    explicit StandIn(const QString& title)
    {
        // the trailing ":" keeps the shell from replacing itself with the read
        m_process.start(QStringLiteral("/bin/sh"), { QStringLiteral("-c"), QStringLiteral("read line; :"), title });
        m_process.waitForStarted();
    }
    ~StandIn()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

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
