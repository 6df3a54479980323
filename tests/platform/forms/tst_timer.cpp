#include "platform/forms/do_events.h"
#include "platform/forms/form.h"
#include "platform/forms/timer.h"

#include <QElapsedTimer>
#include <QTest>

class TestTimer : public QObject
{
    Q_OBJECT

private slots:
    // A handler that spins with yields is not entered again by its own timer.
    void neverFiresIntoItsRunningHandler()
    {
        Form form(QStringLiteral("frmSplash"), Form::Kind::Window);
        auto* timer = new Timer(&form, QStringLiteral("tmrSplash"));
        int entered = 0;
        int depth = 0;
        int deepest = 0;
        timer->TimerEvent.connect([&] {
            ++entered;
            deepest = qMax(deepest, ++depth);
            QElapsedTimer spin;
            spin.start();
            while (spin.elapsed() < 60)
                DoEvents();
            --depth;
            if (entered == 2)
                timer->SetTimerEnabled(false);
        });
        timer->SetInterval(10);
        timer->SetTimerEnabled(true);
        QTRY_COMPARE(entered, 2);
        QTest::qWait(50);
        QCOMPARE(entered, 2);
        QCOMPARE(deepest, 1);
    }
};

QTEST_MAIN(TestTimer)
#include "tst_timer.moc"
