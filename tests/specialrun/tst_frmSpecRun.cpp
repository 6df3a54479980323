#include "platform/clock.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "platform/support/file_locker.h"
#include "platform/support/recording_script.h"
#include "servers/server_files.h"
#include "shell/shared_state.h"
#include "specialrun/frmSpecRun.h"
#include "specialrun/stand_in.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

namespace {
const QByteArray Sap1 = serverRecord("sap1.corp", "PRD", "100", "00");
const QByteArray Sap2 = serverRecord("sap2.corp", "QAS", "200", "01");
const QByteArray Sap1Again = serverRecord("sap1.corp", "PRD", "300", "00");
// written by another tool: a one-character instance
const QByteArray Host1 = serverRecord("host", "DEV", "000", "1");

const QString Today = QStringLiteral("20261123");
const QString Yesterday = QStringLiteral("20261122");
} // namespace

// The clock stands at 2026-11-23 12:00:00.
class TestFrmSpecRun : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_serverFile = m_console.binDir + QStringLiteral("/qd7server.dat");
        ConsoleFixture::setValue("StatiInput", m_serverFile);
        QVERIFY(ConsoleFixture::startWithFirstPage());
        MDIMainForm->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(MDIMainForm));
        m_listFile = m_console.binDir + QStringLiteral("/qd7SpecRunServList.dat");
        m_collector = m_console.binDir + QStringLiteral("/qd7stati.exe");
    }

    void init()
    {
        Clock::setFixed(QDateTime(QDate(2026, 11, 23), QTime(12, 0, 0)));
        BinDir = m_console.binDir;
        writeBytes(m_serverFile, Sap1 + Sap2 + Sap1Again + Host1);
        QFile::remove(m_listFile);
        QFile::remove(m_collector + QStringLiteral(".args"));
        for (const char* name : { "DB", "StatiDebug", "LoadDebug" })
            ConsoleFixture::setValue(name, QString());
        frmSpecRun->Show();
        frmSpecRun->cmdCancel_Click();
        m_boxes.calls.clear();
    }

    void cleanup() { Clock::reset(); }

    void checksRefuseInOrder_data()
    {
        QTest::addColumn<QStringList>("entries"); // start date, start time, end date, end time
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("focus");
        const QString none;
        QTest::newRow("start date tomorrow") << QStringList { "20261124", "000000", Today, "000000" } << "KQM7007E"
                                             << "txtStartDate";
        QTest::newRow("start time later today")
            << QStringList { Today, "120001", Today, "120000" } << "KQM7008E" << "txtStartTime";
        QTest::newRow("end date short") << QStringList { Yesterday, "000000", "2026112", "000000" } << "KQM7009E"
                                        << "txtEndDate";
        // before the end time is looked at
        QTest::newRow("end before start") << QStringList { Today, "000000", Yesterday, "999999" } << "KQM7039E"
                                          << "txtEndDate";
        // the clock is asked only when the end date is today
        QTest::newRow("end time later today")
            << QStringList { Today, "000000", Today, "130000" } << "KQM7010E" << "txtEndTime";
        QTest::newRow("start after end, same day")
            << QStringList { Yesterday, "100000", Yesterday, "090000" } << "KQM7041E" << "txtEndTime";
    }
    void checksRefuseInOrder()
    {
        QFETCH(QStringList, entries);
        QFETCH(QString, message);
        QFETCH(QString, focus);
        enter(entries);
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        frmSpecRun->txtEndTime->SetFocus();
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.calls.size(), 1);
        QVERIFY(m_boxes.calls[0].text.startsWith(message));
        QCOMPARE(m_boxes.calls[0].title, QStringLiteral("KQM7049I Orvanta Monitor 5.1.0 - Vantrel"));
        QCOMPARE(QApplication::focusWidget()->objectName(), focus);
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7070E Status: Error"));
        QCOMPARE(status(), QStringLiteral("KQM7050E Status: Action failed"));
        QVERIFY(!QFile::exists(m_listFile));
    }

    void noServerChosenLeavesTheFocus()
    {
        enter({ Yesterday, "000000", Yesterday, "000000" });
        frmSpecRun->txtStartTime->SetFocus();
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList { QStringLiteral("KQM7040E No servers selected for special run") });
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("txtStartTime"));
    }

    void acceptedPeriods_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("yesterday, last second") << QStringList { Yesterday, "235959", Yesterday, "235959" };
        QTest::newRow("hour 24") << QStringList { Yesterday, "000000", Yesterday, "245959" };
        QTest::newRow("negative time") << QStringList { Yesterday, "-12345", Yesterday, "000000" };
        QTest::newRow("a run of no length, now") << QStringList { Today, "120000", Today, "120000" };
        QTest::newRow("start after end, other days") << QStringList { Yesterday, "230000", Today, "010000" };
    }
    void acceptedPeriods()
    {
        QFETCH(QStringList, entries);
        enter(entries);
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap2.corp 01"));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList());
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7049I Status: Submitted"));
        QCOMPARE(readBytes(m_listFile), Sap2);
    }

    void unconvertibleTimeTakesTheFailurePath()
    {
        enter({ Yesterday, "1e+002", Yesterday, "000000" });
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap2.corp 01"));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(),
            QStringList { QStringLiteral("KQM7001E Error encountered Type mismatch , KQM7002E  Error number = 13") });
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7048I Status: Running"));
        QCOMPARE(status(), QStringLiteral("KQM7050E Status: Action failed"));
    }

    // Records in server-file order, every matching pair written; a one-character instance never matches.
    void listFileHoldsTheChosenRecords()
    {
        enter({ Yesterday, "000000", Yesterday, "010000" });
        for (const char* entry : { "sap2.corp 01", "host 1", "sap1.corp 00" })
            frmSpecRun->lstSvrsToAgg->AddItem(QString::fromLatin1(entry));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(readBytes(m_listFile), Sap1 + Sap2 + Sap1Again);
        QVERIFY(MDIMainForm->isEnabled());
    }

    void nothingMatchedLeavesAnEmptyList()
    {
        writeBytes(m_serverFile, QByteArray());
        enter({ Yesterday, "000000", Yesterday, "010000" });
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        QVERIFY(writeRecordingScript(m_collector));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList { QStringLiteral("KQM7036E Error processing special run.") });
        QCOMPARE(readBytes(m_listFile), QByteArray());
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7049I Status: Submitted"));
        QVERIFY(MDIMainForm->isEnabled());
        QTest::qWait(200);
        QVERIFY(!QFile::exists(m_collector + QStringLiteral(".args")));
    }

    void collectorGetsItsCommandLine_data()
    {
        QTest::addColumn<QString>("stati");
        QTest::addColumn<QString>("load");
        QTest::addColumn<QString>("db");
        QTest::addColumn<QStringList>("switches");
        QTest::newRow("both") << "True" << "True" << "Oracle" << QStringList { "-d", "-ld" };
        QTest::newRow("collector") << "True" << "true" << "Oracle" << QStringList { "-d" };
        QTest::newRow("loader") << "TRUE" << "True" << "Oracle" << QStringList { "-ld" };
        QTest::newRow("neither, no database") << "" << "" << "" << QStringList();
    }
    void collectorGetsItsCommandLine()
    {
        QFETCH(QString, stati);
        QFETCH(QString, load);
        QFETCH(QString, db);
        QFETCH(QStringList, switches);
        ConsoleFixture::setValue("StatiDebug", stati);
        ConsoleFixture::setValue("LoadDebug", load);
        ConsoleFixture::setValue("DB", db);
        QVERIFY(writeRecordingScript(m_collector));
        enter({ Yesterday, "080000", Today, "110000" });
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        frmSpecRun->cmdOK_Click();
        const QString bin = m_console.binDir;
        const QStringList expected = QStringList { "-np" } + switches
            + QStringList { "-if", bin + "/qd7SpecRunServList.dat", "-of", bin + "/qd7stati.dat", "-st", "080000",
                  "-sd", Yesterday, "-et", "110000", "-ed", Today, "-bindir", bin, "-dbtype" }
            + (db.isEmpty() ? QStringList() : QStringList { db.toUpper() });
        QCOMPARE(linesOf(m_collector + QStringLiteral(".args")), expected);
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7049I Status: Submitted"));
    }

    // Only the program's path is quoted; the other paths split at the blank.
    void binDirWithBlankSplitsTheBarePaths()
    {
        BinDir = m_console.dir.filePath(QStringLiteral("my bin"));
        QDir().mkpath(BinDir);
        const QString collector = BinDir + QStringLiteral("/qd7stati.exe");
        QVERIFY(writeRecordingScript(collector));
        enter({ Yesterday, "080000", Yesterday, "090000" });
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        frmSpecRun->cmdOK_Click();
        const QStringList arguments = linesOf(collector + QStringLiteral(".args"));
        QCOMPARE(arguments.mid(1, 3),
            (QStringList { QStringLiteral("-if"), m_console.dir.filePath(QStringLiteral("my")),
                QStringLiteral("bin/qd7SpecRunServList.dat") }));
        QCOMPARE(readBytes(BinDir + QStringLiteral("/qd7SpecRunServList.dat")), Sap1 + Sap1Again);
    }

    void missingCollectorStartsNothing()
    {
        QFile::remove(m_collector);
        enter({ Yesterday, "080000", Yesterday, "090000" });
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap2.corp 01"));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList());
        QCOMPARE(readBytes(m_listFile), Sap2);
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7049I Status: Submitted"));
    }

    void runningCollectorRefuses()
    {
        enter({ Yesterday, "080000", Yesterday, "090000" });
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap2.corp 01"));
        {
            const StandIn upper(QStringLiteral("/OPT/QD7STATI.EXE"));
            frmSpecRun->cmdOK_Click();
            QCOMPARE(m_boxes.texts(), QStringList());
            QVERIFY(QFile::exists(m_listFile));
        }
        QFile::remove(m_listFile);
        const StandIn collector(QStringLiteral("/opt/bin/qd7stati.exe -np"));
        frmSpecRun->lblStatus->SetCaption(QStringLiteral("before"));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList { QStringLiteral("KQM7042E Special run already running") });
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("before"));
        QVERIFY(!QFile::exists(m_listFile));
    }

    // The failure is to be logged on a channel that isn't open: that second failure ends the run
    // in the page's failure path, with the frame left disabled.
    void heldListFileLeavesTheFrameDisabled()
    {
        writeBytes(m_listFile, Sap2);
        const FileLocker locker(m_listFile);
        QVERIFY(locker.isLocked());
        enter({ Yesterday, "080000", Yesterday, "090000" });
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(),
            QStringList {
                QStringLiteral("KQM7001E Error encountered Bad file name or number , KQM7002E  Error number = 52") });
        QCOMPARE(readBytes(m_listFile), Sap2);
        QVERIFY(!MDIMainForm->isEnabled());
        MDIMainForm->SetEnabled(true);
    }

    void movesBetweenTheLists()
    {
        ListBox* available = frmSpecRun->lstServers;
        ListBox* chosen = frmSpecRun->lstSvrsToAgg;
        QCOMPARE(items(available), (QStringList { "sap1.corp 00", "sap2.corp 01", "sap1.corp 00", "host 1" }));
        available->SetListIndex(1);
        frmSpecRun->cmdAddSvr_Click();
        QCOMPARE(items(chosen), QStringList { "sap2.corp 01" });
        QVERIFY(chosen->HorizontalExtent() > 0);
        frmSpecRun->cmdAddAllSvrs_Click();
        QCOMPARE(available->ListCount(), 0);
        QCOMPARE(items(chosen), (QStringList { "sap2.corp 01", "sap1.corp 00", "sap1.corp 00", "host 1" }));
        chosen->SetListIndex(0);
        frmSpecRun->cmdRemoveSvr_Click();
        frmSpecRun->cmdRemoveSvr_Click(); // nothing selected any more
        QCOMPARE(items(available), QStringList { "sap2.corp 01" });
        // a chosen server stays out of the available list when the page comes back
        frmSpecRun->Form_Activate();
        QCOMPARE(items(available), QStringList { "sap2.corp 01" });
        frmSpecRun->cmdRemoveAllSvrs_Click();
        QCOMPARE(chosen->ListCount(), 0);
        QCOMPARE(available->ListCount(), 4);
    }

    // The key goes down before its character lands: the eighth digit stays in the date.
    void fullFieldPassesTheFocusOn()
    {
        frmSpecRun->txtStartDate->SetFocus();
        QTest::keyClicks(frmSpecRun->txtStartDate, QStringLiteral("20261122"));
        QCOMPARE(frmSpecRun->txtStartDate->Text(), QStringLiteral("20261122"));
        QCOMPARE(QApplication::focusWidget(), frmSpecRun->txtStartTime);
        QTest::keyClicks(frmSpecRun->txtStartTime, QStringLiteral("080000"));
        QCOMPARE(QApplication::focusWidget(), frmSpecRun->txtEndDate);
        QTest::keyClick(frmSpecRun->txtEndDate, Qt::Key_Return);
        QCOMPARE(m_boxes.texts().size(), 1);
    }

    void cancelClearsTheEntries()
    {
        enter({ Yesterday, "080000", Yesterday, "090000" });
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap2.corp 01"));
        frmSpecRun->cmdCancel_Click();
        QCOMPARE(frmSpecRun->txtStartDate->Text(), QString());
        QCOMPARE(frmSpecRun->lstSvrsToAgg->ListCount(), 0);
        QCOMPARE(frmSpecRun->lstServers->ListCount(), 4);
        QCOMPARE(status(), QStringLiteral("KQM7054W Action cancelled"));
    }

private:
    static void enter(const QStringList& entries)
    {
        frmSpecRun->txtStartDate->SetText(entries[0]);
        frmSpecRun->txtStartTime->SetText(entries[1]);
        frmSpecRun->txtEndDate->SetText(entries[2]);
        frmSpecRun->txtEndTime->SetText(entries[3]);
    }

    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes;
    QString m_serverFile;
    QString m_listFile;
    QString m_collector;
};

QTEST_MAIN(TestFrmSpecRun)
#include "tst_frmSpecRun.moc"
