#include "platform/forms/list_box.h"
#include "platform/support/file_locker.h"
#include "server_files.h"
#include "servers/frmServers.h"
#include "servers/server_lists.h"
#include "shell/MDIMainForm.h"
#include "shell/frmCurrentConfig.h"
#include "shell/shared_state.h"
#include "specialrun/frmSpecRun.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QDir>
#include <QStatusBar>

namespace {

const QByteArray TwoServers = serverRecord("  sap1.corp", "PRD", "100", "00") + serverRecord("sap2.corp", "QAS", "200", "01");

QStringList items(ListBox* list)
{
    QStringList texts;
    for (int i = 0; i < list->ListCount(); ++i)
        texts << list->List(i);
    return texts;
}

QString status()
{
    return MDIMainForm->staMainStatusBar->currentMessage();
}

void loadForServerPage()
{
    frmServers->lstServer->Clear();
    LoadServerFile(QStringLiteral("frmServers"));
}

} // namespace

class TestServerLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        StartConsole(QStringLiteral("qd7console -D"));
        QTRY_VERIFY_WITH_TIMEOUT(ConsoleFixture::shown(QStringLiteral("frmCurrentConfig")), 10000);
        m_path = m_console.binDir + QStringLiteral("/qd7server.dat");
    }

    // each case starts from a good load of two servers
    void init()
    {
        ConsoleFixture::setValue("StatiInput", m_path);
        writeBytes(m_path, TwoServers);
        loadForServerPage();
        QCOMPARE(ServerCount, 2);
    }

    void cleanup() { Clock::reset(); }

    void recordCountRoundsHalfToEven_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("empty file") << QByteArray() << QStringList();
        QTest::newRow("100 bytes over: a short record")
            << TwoServers + serverRecord("sap3.corp").left(100) << QStringList { "sap1.corp 00", "sap2.corp 01", "sap3.corp " };
        QTest::newRow("91 bytes over: dropped") << TwoServers + serverRecord("sap3.corp").left(91)
                                                << QStringList { "sap1.corp 00", "sap2.corp 01" };
    }

    void recordCountRoundsHalfToEven()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, entries);
        writeBytes(m_path, file);
        loadForServerPage();
        QCOMPARE(ServerCount, entries.size());
        QCOMPARE(items(frmServers->lstServer), entries);
        QVERIFY(frmServers->lstServer->Enabled());
        QCOMPARE(status(), QStringLiteral("KQM7047W Loading server data"));
        if (ServerCount > 0) // padding kept in the table
            QCOMPARE(ServerTable(1, ServerColumn::Server), QString::fromLatin1(file.left(100)));
    }

    // Other callers: the names alone on the overview, the entries not chosen for a run on the special
    // run page; the server page's list and the run's chosen servers stay as they are.
    void otherCallersFillTheOverviewAndTheSpecialRun()
    {
        frmCurrentConfig->lstServers->Clear();
        frmSpecRun->lstServers->AddItem(QStringLiteral("left over"));
        frmSpecRun->lstSvrsToAgg->Clear();
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("other.corp 00"));
        LoadServerFile(QStringLiteral("frmSpecRun"));
        QCOMPARE(items(frmCurrentConfig->lstServers), (QStringList { "sap1.corp", "sap2.corp" }));
        QCOMPARE(items(frmSpecRun->lstServers), QStringList { "sap2.corp 01" });
        QCOMPARE(items(frmSpecRun->lstSvrsToAgg), (QStringList { "sap1.corp 00", "other.corp 00" }));
        QCOMPARE(frmSpecRun->lstSvrsToAgg->ListIndex(), 1);
        QCOMPARE(items(frmServers->lstServer), (QStringList { "sap1.corp 00", "sap2.corp 01" }));
        frmSpecRun->lstSvrsToAgg->Clear();
    }

    // The table, not the file: rows changed in memory show, and a missing file doesn't matter.
    void fillServerListReadsTheTable()
    {
        QFile::remove(m_path);
        ServerTable(2, ServerColumn::Instance) = QStringLiteral(" 07 ");
        frmServers->lstServer->Clear();
        frmServers->lstServer->SetEnabled(false);
        FillServerList(QStringLiteral("frmServers"));
        QCOMPARE(items(frmServers->lstServer), (QStringList { "sap1.corp 00", "sap2.corp 07" }));
        QVERIFY(frmServers->lstServer->Enabled());
        QCOMPARE(ServerTable(2, ServerColumn::Instance), QStringLiteral(" 07 "));
    }

    void heldFileByEachCaller_data()
    {
        QTest::addColumn<QString>("caller");
        QTest::addColumn<QStringList>("boxes");
        const QStringList locked { QStringLiteral("KQM7035E Cannot open file, another process has locked it") };
        QTest::newRow("server page") << "frmServers" << locked;
        QTest::newRow("special run") << "frmSpecRun" << locked;
        QTest::newRow("start-up: no box") << "frmCurrentConfig" << QStringList();
    }

    void heldFileByEachCaller()
    {
        QFETCH(QString, caller);
        QFETCH(QStringList, boxes);
        useSteppingClock();
        writeBytes(m_path, serverRecord("other.corp"));
        {
            const FileLocker collector(m_path);
            QVERIFY(collector.isLocked());
            MsgBoxRecorder recorder;
            frmServers->lstServer->Clear();
            LoadServerFile(caller);
            QCOMPARE(recorder.texts(), boxes);
        }
        QCOMPARE(status(), QStringLiteral("KQM7044E Server data file is locked by another process."));
        QVERIFY(!frmServers->lstServer->Enabled());
        QCOMPARE(ServerCount, 2);
        QCOMPARE(ServerTable(2, ServerColumn::Server).trimmed(), QStringLiteral("sap2.corp"));
        loadForServerPage();
        QVERIFY(frmServers->lstServer->Enabled());
        QCOMPARE(items(frmServers->lstServer), QStringList { "other.corp 00" });
    }

    // Not found, not a file, no path, more records than the count holds: nothing said, nothing
    // listed, the status left at "Loading server data".
    void otherFailuresAreSilent_data()
    {
        QTest::addColumn<QString>("failure");
        QTest::newRow("missing") << "missing";
        QTest::newRow("a folder in its place") << "folder";
        QTest::newRow("no path set") << "no path";
        QTest::newRow("32768 records") << "too many";
    }

    void otherFailuresAreSilent()
    {
        QFETCH(QString, failure);
        QFile::remove(m_path);
        if (failure == QLatin1String("folder"))
            QDir().mkpath(m_path);
        else if (failure == QLatin1String("no path"))
            ConsoleFixture::setValue("StatiInput", QString());
        else if (failure == QLatin1String("too many"))
            writeBytes(m_path, serverRecord("sap9.corp").repeated(32768));
        MsgBoxRecorder recorder;
        loadForServerPage();
        QVERIFY(recorder.calls.isEmpty());
        QCOMPARE(status(), QStringLiteral("KQM7047W Loading server data"));
        QCOMPARE(frmServers->lstServer->ListCount(), 0);
        QVERIFY(frmServers->lstServer->Enabled());
        QCOMPARE(ServerCount, 2);
        // a count too large empties the table as the resize before it did
        const QString kept = failure == QLatin1String("too many") ? QString() : QStringLiteral("sap2.corp");
        QCOMPARE(ServerTable(2, ServerColumn::Server).trimmed(), kept);
        QDir(m_path).removeRecursively();
    }

private:
    ConsoleFixture m_console;
    QString m_path;
};

QTEST_MAIN(TestServerLists)
#include "tst_server_lists.moc"
