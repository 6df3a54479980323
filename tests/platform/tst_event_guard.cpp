#include "platform/event_guard.h"
#include "platform/forms/do_events.h"
#include "platform/runtime_error.h"
#include "support/msg_box_recorder.h"

#include <QTest>
#include <QTimer>

class TestEventGuard : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_exitStatuses.clear();
        EventGuard::setTerminateHandler([this](int status) { m_exitStatuses << status; });
        EventGuard::setProductTitleSource([] { return QStringLiteral("Product title"); });
    }

    void cleanup() { EventGuard::setTerminateHandler({}); }

    void unhandledFailureShowsTheBoxAndEnds()
    {
        MsgBoxRecorder boxes;
        EventGuard::raise([] { throw RuntimeError(RuntimeError::Overflow); });
        EventGuard::raise([] { throw RuntimeError(RuntimeError::PermissionDenied, QStringLiteral("Deleting /x")); });
        EventGuard::raise([] { throw std::bad_alloc(); });
        // parked by Qt's frames, and nobody to hand it to
        EventGuard::raise([] { EventGuard::raiseFromQt([] { throw RuntimeError(RuntimeError::FileNotFound); }); });
        QCOMPARE(boxes.texts(),
            QStringList({ "Run-time error '6': Overflow", "Run-time error '70': Permission denied\n\nDeleting /x",
                "Run-time error '7': Out of memory", "Run-time error '53': File not found" }));
        QCOMPARE(boxes.calls.first().title, QStringLiteral("Product title"));
        QCOMPARE(m_exitStatuses, QList<int>({ 1, 1, 1, 1 }));
        QVERIFY(!EventGuard::inHandler());
    }

    // An inner failure reaches the outer handler's failure path; one from inside Qt's frames must not
    // unwind through them, so it waits until the outer handler's own code is back in charge.
    void innerFailuresReachTheOuterHandler()
    {
        MsgBoxRecorder boxes;
        QList<int> caught;
        bool qtCallReturned = false;
        EventGuard::raise([&] {
            try {
                EventGuard::raise([] { throw RuntimeError(RuntimeError::TypeMismatch); });
            } catch (const RuntimeError& error) {
                caught << error.Number;
            }
            try {
                EventGuard::raiseFromQt([] { throw RuntimeError(RuntimeError::Overflow); });
                qtCallReturned = true;
                EventGuard::rethrowParked();
            } catch (const RuntimeError& error) {
                caught << error.Number;
            }
        });
        QVERIFY(qtCallReturned);
        QCOMPARE(caught, QList<int>({ 13, 6 }));
        QVERIFY(boxes.calls.isEmpty());
        QVERIFY(m_exitStatuses.isEmpty());
    }

    // Events that a yield delivers are outermost events of their own.
    void yieldStartsAFreshOutermostLevel()
    {
        MsgBoxRecorder boxes;
        bool outerCarriedOn = false;
        QTimer::singleShot(0, [] { EventGuard::raiseFromQt([] { throw RuntimeError(RuntimeError::Overflow); }); });
        EventGuard::raise([&] {
            DoEvents();
            QVERIFY(EventGuard::inHandler());
            outerCarriedOn = true;
        });
        QVERIFY(outerCarriedOn);
        QCOMPARE(boxes.calls.size(), 1);
        QCOMPARE(m_exitStatuses, QList<int> { 1 });
    }

private:
    QList<int> m_exitStatuses;
};

QTEST_MAIN(TestEventGuard)
#include "tst_event_guard.moc"
