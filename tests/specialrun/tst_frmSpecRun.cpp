#include "platform/clock.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "platform/support/file_locker.h"
#include "platform/support/recording_script.h"
#include "servers/server_files.h"
#include "settings/registry_values.h"
#include "shell/shared_state.h"
#include "specialrun/collector_command.h"
#include "specialrun/frmSpecRun.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QProcess>

namespace {
const QByteArray Sap1 = serverRecord("sap1.corp", "PRD", "100", "00");
const QByteArray Sap2 = serverRecord("sap2.corp", "QAS", "200", "01");
const QByteArray Sap1Again = serverRecord("sap1.corp", "PRD", "300", "00");
// written by another tool: a one-character instance
const QByteArray Host1 = serverRecord("host", "DEV", "000", "1");

// start date, start time, end date and end time, separated by blanks
void enter(const QString& entries)
{
    const QStringList values = entries.split(QLatin1Char(' '));
    TextBox* fields[]
        = { frmSpecRun->txtStartDate, frmSpecRun->txtStartTime, frmSpecRun->txtEndDate, frmSpecRun->txtEndTime };
    for (int i = 0; i < 4; ++i)
        fields[i]->SetText(values[i]);
}
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

    // no collector installed unless a case writes one
    void init()
    {
        Clock::setFixed(QDateTime(QDate(2026, 11, 23), QTime(12, 0, 0)));
        BinDir = m_console.binDir;
        writeBytes(m_serverFile, Sap1 + Sap2 + Sap1Again + Host1);
        for (const QString& path : { m_listFile, m_collector, m_collector + QStringLiteral(".args") })
            QFile::remove(path);
        for (const char* name : { "DB", "StatiDebug", "LoadDebug" })
            ConsoleFixture::setValue(name, QString());
        frmSpecRun->Show();
        frmSpecRun->cmdCancel_Click();
        m_boxes.calls.clear();
    }

    void cleanup() { Clock::reset(); }

    // Each refusal moves the focus to its field, but for the missing server's, which leaves it.
    void checksRefuseInOrder_data()
    {
        QTest::addColumn<QString>("entries");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("focus");
        QTest::newRow("start date tomorrow") << "20261124 000000 20261123 000000" << "KQM7007E" << "txtStartDate";
        QTest::newRow("no such leap day") << "20250229 000000 20261122 000000" << "KQM7007E" << "txtStartDate";
        QTest::newRow("start time later today") << "20261123 120001 20261123 120000" << "KQM7008E" << "txtStartTime";
        QTest::newRow("start hour 25") << "20261122 250000 20261122 260000" << "KQM7008E" << "txtStartTime";
        QTest::newRow("end date short") << "20261122 000000 2026112 000000" << "KQM7009E" << "txtEndDate";
        // before the end time is looked at
        QTest::newRow("end before start") << "20261123 000000 20261122 999999" << "KQM7039E" << "txtEndDate";
        // the clock is asked only when the end date is today
        QTest::newRow("end time later today") << "20261123 000000 20261123 130000" << "KQM7010E" << "txtEndTime";
        QTest::newRow("end minute 60") << "20261122 000000 20261122 106000" << "KQM7010E" << "txtEndTime";
        QTest::newRow("no server chosen") << "20261122 000000 20261122 000000" << "KQM7040E" << "lstServers";
        QTest::newRow("start after end, same day") << "20261122 100000 20261122 090000" << "KQM7041E" << "txtEndTime";
    }
    void checksRefuseInOrder()
    {
        QFETCH(QString, entries);
        QFETCH(QString, message);
        QFETCH(QString, focus);
        enter(entries);
        if (message != QLatin1String("KQM7040E")) // no server chosen
            frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        frmSpecRun->lstServers->SetFocus();
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.calls.size(), 1);
        QVERIFY(m_boxes.calls[0].text.startsWith(message));
        QCOMPARE(m_boxes.calls[0].title, QStringLiteral("KQM7049I Orvanta Monitor 5.1.0 - Vantrel"));
        QCOMPARE(QApplication::focusWidget()->objectName(), focus);
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7070E Status: Error"));
        QCOMPARE(status(), QStringLiteral("KQM7050E Status: Action failed"));
        QVERIFY(!QFile::exists(m_listFile));
    }

    void acceptedPeriods_data()
    {
        QTest::addColumn<QString>("entries");
        QTest::newRow("yesterday, last second") << "20261122 235959 20261122 235959";
        QTest::newRow("hour 24") << "20261122 000000 20261122 245959";
        QTest::newRow("negative time") << "20261122 -12345 20261122 000000";
        QTest::newRow("a run of no length, now") << "20261123 120000 20261123 120000";
        QTest::newRow("start after end, other days") << "20261122 230000 20261123 010000";
        QTest::newRow("leap day") << "20240229 000000 20261122 000000";
        QTest::newRow("month 13 read as a day") << "20021301 000000 20261122 000000";
    }
    void acceptedPeriods()
    {
        QFETCH(QString, entries);
        enter(entries);
        for (const char* entry : { "sap2.corp 01", "host 1", "sap1.corp 00" })
            frmSpecRun->lstSvrsToAgg->AddItem(QString::fromLatin1(entry));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(), QStringList());
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7049I Status: Submitted"));
        QCOMPARE(readBytes(m_listFile), Sap1 + Sap2 + Sap1Again);
        QVERIFY(MDIMainForm->isEnabled());
    }

    void unconvertibleTimeTakesTheFailurePath()
    {
        enter(QStringLiteral("20261122 1e+002 20261122 000000"));
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap2.corp 01"));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(),
            QStringList { QStringLiteral("KQM7001E Error encountered Type mismatch , KQM7002E  Error number = 13") });
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7048I Status: Running"));
        QCOMPARE(status(), QStringLiteral("KQM7050E Status: Action failed"));
    }

    void nothingMatchedLeavesAnEmptyList()
    {
        writeBytes(m_serverFile, QByteArray());
        enter(QStringLiteral("20261122 000000 20261122 010000"));
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

    // Two blanks where a switch is off. Only the program's path is quoted, so the collector gets
    // the line split at every other blank, a blank in BinDir among them.
    void collectorCommandLine_data()
    {
        QTest::addColumn<QString>("bin");
        QTest::addColumn<QString>("StatiDebug");
        QTest::addColumn<QString>("LoadDebug");
        QTest::addColumn<QString>("DB");
        QTest::addColumn<QString>("switches");
        QTest::newRow("both") << "bin" << "True" << "True" << "Oracle" << " -np -d -ld -if ";
        QTest::newRow("collector") << "bin" << "True" << "true" << "Oracle" << " -np -d  -if ";
        QTest::newRow("loader") << "bin" << "TRUE" << "True" << "Oracle" << " -np -ld -if ";
        QTest::newRow("neither, no database") << "bin" << "" << "" << "" << " -np  -if ";
        QTest::newRow("blank in BinDir") << "my bin" << "" << "" << "DB2" << " -np  -if ";
    }
    void collectorCommandLine()
    {
        QFETCH(QString, bin);
        QFETCH(QString, switches);
        ConsoleFixture::storeColumns({ "StatiDebug", "LoadDebug", "DB" });
        BinDir = m_console.dir.filePath(bin);
        QVERIFY(QDir().mkpath(BinDir));
        const QString collector = BinDir + QStringLiteral("/qd7stati.exe");
        QVERIFY(writeRecordingScript(collector));
        enter(QStringLiteral("20261122 080000 20261123 110000"));
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(frmSpecRun->lblStatus->Caption(), QStringLiteral("KQM7049I Status: Submitted"));
        QCOMPARE(readBytes(BinDir + QStringLiteral("/qd7SpecRunServList.dat")), Sap1 + Sap1Again);
        const QString db = ReadRegValue(QStringLiteral("DB")).toUpper();
        const QString line = QStringLiteral("\"%1/qd7stati.exe\"%2%1/qd7SpecRunServList.dat -of %1/qd7stati.dat "
                                            "-st 080000 -sd 20261122 -et 110000 -ed 20261123 -bindir %1 -dbtype %3")
                                 .arg(BinDir, switches, db);
        const CollectorRun run { BinDir, switches.contains(QLatin1String(" -d ")),
            switches.contains(QLatin1String("-ld")), QStringLiteral("20261122"), QStringLiteral("080000"),
            QStringLiteral("20261123"), QStringLiteral("110000"), db };
        QCOMPARE(CollectorCommandLine(run), line);
        QCOMPARE(linesOf(collector + QStringLiteral(".args")),
            line.mid(line.indexOf(QLatin1String("\" ")) + 2).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }

    // A real process holding the name in its command line: a refusal touches no file.
    void runningCheck_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<bool>("refused");
        QTest::newRow("collector") << "/opt/bin/qd7stati.exe -np" << true;
        QTest::newRow("collector in upper case") << "/OPT/QD7STATI.EXE" << false;
        QTest::newRow("loader") << "trace_qd7loadsnap.log" << true;
    }
    void runningCheck()
    {
        QFETCH(QString, commandLine);
        QFETCH(bool, refused);
        QProcess standIn; // the trailing ":" keeps the shell from replacing itself with the read
        standIn.start(QStringLiteral("/bin/sh"), { QStringLiteral("-c"), QStringLiteral("read line; :"), commandLine });
        QVERIFY(standIn.waitForStarted());
        enter(QStringLiteral("20261122 080000 20261122 090000"));
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap2.corp 01"));
        frmSpecRun->lblStatus->SetCaption(QStringLiteral("before"));
        frmSpecRun->cmdOK_Click();
        standIn.closeWriteChannel();
        QVERIFY(standIn.waitForFinished());
        QCOMPARE(m_boxes.texts(), refused ? QStringList { "KQM7042E Special run already running" } : QStringList());
        QCOMPARE(frmSpecRun->lblStatus->Caption() == QLatin1String("before"), refused);
        QCOMPARE(QFile::exists(m_listFile), !refused);
    }

    // The failure is to be logged on a channel that isn't open: that second failure ends the run
    // in the page's failure path, with the frame left disabled.
    void heldListFileLeavesTheFrameDisabled()
    {
        writeBytes(m_listFile, Sap2);
        const FileLocker locker(m_listFile);
        QVERIFY(locker.isLocked());
        enter(QStringLiteral("20261122 080000 20261122 090000"));
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        frmSpecRun->cmdOK_Click();
        QCOMPARE(m_boxes.texts(),
            QStringList {
                QStringLiteral("KQM7001E Error encountered Bad file name or number , KQM7002E  Error number = 52") });
        QCOMPARE(readBytes(m_listFile), Sap2);
        QVERIFY(!MDIMainForm->isEnabled());
        MDIMainForm->SetEnabled(true);
    }

    void movesBetweenTheListsAndCancel()
    {
        ListBox* available = frmSpecRun->lstServers;
        ListBox* chosen = frmSpecRun->lstSvrsToAgg;
        QCOMPARE(items(available), (QStringList { "sap1.corp 00", "sap2.corp 01", "sap1.corp 00", "host 1" }));
        available->SetListIndex(1);
        frmSpecRun->cmdAddSvr_Click();
        frmSpecRun->cmdAddAllSvrs_Click();
        QCOMPARE(available->ListCount(), 0);
        QCOMPARE(items(chosen), (QStringList { "sap2.corp 01", "sap1.corp 00", "sap1.corp 00", "host 1" }));
        chosen->SetListIndex(0);
        frmSpecRun->cmdRemoveSvr_Click();
        frmSpecRun->cmdRemoveSvr_Click(); // nothing selected any more
        // a chosen server stays out of the available list when the page comes back
        frmSpecRun->Form_Activate();
        QCOMPARE(items(available), QStringList { "sap2.corp 01" });
        frmSpecRun->cmdRemoveAllSvrs_Click();
        QCOMPARE(chosen->ListCount(), 0);
        QCOMPARE(available->ListCount(), 4);

        enter(QStringLiteral("20261122 080000 20261122 090000"));
        available->SetListIndex(0);
        frmSpecRun->cmdAddSvr_Click();
        frmSpecRun->cmdCancel_Click();
        QCOMPARE(frmSpecRun->txtStartDate->Text(), QString());
        QCOMPARE(chosen->ListCount(), 0);
        QCOMPARE(available->ListCount(), 4);
        QCOMPARE(status(), QStringLiteral("KQM7054W Action cancelled"));
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
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes;
    QString m_serverFile;
    QString m_listFile;
    QString m_collector;
};

QTEST_MAIN(TestFrmSpecRun)
#include "tst_frmSpecRun.moc"
