#include "platform/forms/menu_item.h"
#include "platform/support/recording_script.h"
#include "settings/registry_values.h"
#include "shell/MDIMainForm.h"
#include "shell/navigation.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QMenu>
#include <QStatusBar>

// The nine log commands open their file in the viewer, from the menu and from the tree alike; the debug
// switches beside them.
class TestLogFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(writeRecordingScript(m_viewer));
        qputenv("QD7_TEXT_VIEWER", QFile::encodeName(m_viewer));
        QVERIFY(ConsoleFixture::startWithFirstPage());
        // a blank in the installation path: the path still reaches the viewer as one argument
        BinDir = m_console.dir.path() + QStringLiteral("/opt orvanta");
        QVERIFY(QDir().mkpath(BinDir));
        QTest::qWait(100); // the start's last activations set their status first
    }

    void init() { MDIMainForm->staMainStatusBar->showMessage(QStringLiteral("as it was")); }

    void commands_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("file");
        QTest::newRow("1") << "mnuDVXstatiLog" << "ndDVXstatiLog" << "trace_qd7statisum.log";
        QTest::newRow("2") << "mnuDVXsnapLog" << "ndDVXsnapLog" << "trace_qd7snapsum.log";
        QTest::newRow("3") << "mnustatiLog" << "ndStatiLog" << "trace_qd7stati.log";
        QTest::newRow("4") << "mnusnapLog" << "ndSnapLog" << "trace_qd7snap.log";
        QTest::newRow("5") << "mnuLoadStatiLog" << "ndLoadStatiLog" << "trace_qd7_load_stati.log";
        QTest::newRow("6") << "mnuLoadSnapLog" << "ndLoadSnapLog" << "trace_qd7_load_snap.log";
        QTest::newRow("7") << "mnuAggStatiLog" << "ndAggStatiLog" << "trace_qd7_agg_stati.log";
        QTest::newRow("8") << "mnuAggSnapLog" << "ndAggSnapLog" << "trace_qd7_agg_snap.log";
        QTest::newRow("9") << "mnuLoaderLog" << "ndLoaderLog" << "trace_qd7ldr.log";
    }
    void commands()
    {
        QFETCH(QString, item);
        QFETCH(QString, node);
        QFETCH(QString, file);
        const QString path = BinDir + QLatin1Char('/') + file;
        QVERIFY(QFile(path).open(QIODevice::WriteOnly)); // an empty log opens too
        MDIMainForm->findChild<MenuItem*>(item)->trigger();
        QCOMPARE(linesOf(m_args), QStringList { path });
        QFile::remove(m_args);
        ShowPageForNode(node);
        QCOMPARE(linesOf(m_args), QStringList { path });
        QVERIFY(QFile::remove(m_args) && QFile::remove(path));
        QCOMPARE(MDIMainForm->staMainStatusBar->currentMessage(), QStringLiteral("as it was"));
    }

    // No file, then a directory of that name: neither is a log.
    void missingLog()
    {
        for (int round = 0; round < 2; ++round) {
            QVERIFY(round == 0 || QDir(BinDir).mkdir(QStringLiteral("trace_qd7snap.log")));
            m_boxes.calls.clear();
            MDIMainForm->mnusnapLog->trigger();
            QCOMPARE(m_boxes.texts(), QStringList { "KQM7043W Log does not exist" });
            QCOMPARE(m_boxes.calls.first().flags, 0);
            QCOMPARE(MDIMainForm->staMainStatusBar->currentMessage(), QStringLiteral("KQM7050E Status: Action failed"));
        }
        QTest::qWait(200);
        QVERIFY(!QFile::exists(m_args));
    }

    void marks_data()
    {
        QTest::addColumn<QString>("SnapDebug"); // null: not stored
        QTest::addColumn<QString>("LoadDebug");
        QTest::addColumn<bool>("traceMark");
        QTest::addColumn<bool>("haltMark");
        QTest::newRow("True") << "True" << "True" << true << true;
        QTest::newRow("true, TRUE") << "true" << "TRUE" << false << false;
        QTest::newRow("missing") << QString() << QString() << false << false;
        QTest::newRow("blank around") << "True " << " True" << false << false;
    }
    void marks()
    {
        QFETCH(bool, traceMark);
        QFETCH(bool, haltMark);
        ConsoleFixture::storeColumns({ "SnapDebug", "LoadDebug" });
        ConsoleFixture::setValue("StatiDebug", QStringLiteral("True")); // never consulted for the mark
        emit MDIMainForm->mnuOptions->menu()->aboutToShow();
        QCOMPARE(MDIMainForm->mnuDebugLogFiles->Checked(), traceMark);
        QCOMPARE(MDIMainForm->mnuLoaderHalt->Checked(), haltMark);
    }

    // A click goes by the check mark, not by the store: two clicks from SnapDebug "False" leave
    // both trace values "False", whatever StatiDebug held; LoadDebug set meanwhile is set again.
    void clicksWriteAtOnce()
    {
        ConsoleFixture::setValue("SnapDebug", QStringLiteral("False"));
        ConsoleFixture::setValue("StatiDebug", QStringLiteral("True"));
        DeleteRegistry("LoadDebug");
        MDIMainForm->mnuOptions_Click();
        ConsoleFixture::setValue("LoadDebug", QStringLiteral("True"));
        QStringList seen;
        for (int click = 0; click < 2; ++click) {
            MDIMainForm->mnuDebugLogFiles->trigger();
            MDIMainForm->mnuLoaderHalt->trigger();
            for (const char* name : { "SnapDebug", "StatiDebug", "LoadDebug" })
                seen << ReadRegValue(QString::fromLatin1(name));
        }
        QCOMPARE(seen, QStringList({ "True", "True", "True", "False", "False", "False" }));
        QVERIFY(!MDIMainForm->mnuDebugLogFiles->Checked() && !MDIMainForm->mnuLoaderHalt->Checked());
    }

    // Starting the viewer has no failure path: a viewer that isn't there ends the console.
    void missingViewerEndsTheConsole()
    {
        qputenv("QD7_TEXT_VIEWER", "/nonexistent/viewer");
        QVERIFY(QFile(BinDir + QStringLiteral("/trace_qd7ldr.log")).open(QIODevice::WriteOnly));
        m_boxes.calls.clear();
        MDIMainForm->mnuLoaderLog->trigger();
        QVERIFY(m_boxes.texts().value(0).startsWith(QLatin1String("Run-time error '53'")));
        QCOMPARE(m_console.exitStatuses, QList<int> { 1 });
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes;
    const QString m_viewer = m_console.dir.path() + QStringLiteral("/viewer");
    const QString m_args = m_viewer + QStringLiteral(".args");
};

QTEST_MAIN(TestLogFiles)
#include "tst_log_files.moc"
