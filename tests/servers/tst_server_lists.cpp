#include "platform/support/file_locker.h"
#include "server_files.h"
#include "servers/frmServers.h"
#include "servers/server_lists.h"
#include "shell/frmCurrentConfig.h"
#include "shell/shared_state.h"
#include "specialrun/frmSpecRun.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QDir>

namespace {

const QByteArray TwoServers = serverRecord("  sap1.corp") + serverRecord("sap2.corp", "QAS", "200", "01");

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
        QVERIFY(ConsoleFixture::startWithFirstPage());
        m_path = m_console.binDir + QStringLiteral("/qd7server.dat");
    }

    // each case starts from a good load of two servers
    void init()
    {
        m_boxes.calls.clear();
        QDir(m_path).removeRecursively();
        ConsoleFixture::setValue("StatiInput", m_path);
        writeBytes(m_path, TwoServers);
        loadForServerPage();
        QCOMPARE(ServerCount, 2);
    }

    void recordCountRoundsHalfToEven_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("empty file") << QByteArray() << QStringList();
        QTest::newRow("100 bytes over: one more") << TwoServers + serverRecord("sap3.corp").left(100)
                                                  << QStringList { "sap1.corp 00", "sap2.corp 01", "sap3.corp " };
        QTest::newRow("91 bytes over: none")
            << TwoServers + QByteArray(91, 'x') << QStringList { "sap1.corp 00", "sap2.corp 01" };
    }

    void recordCountRoundsHalfToEven()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, entries);
        writeBytes(m_path, file);
        loadForServerPage();
        QCOMPARE(items(frmServers->lstServer), entries);
        QCOMPARE(ServerCount, entries.size());
        QVERIFY(frmServers->lstServer->Enabled());
        QCOMPARE(status(), QStringLiteral("KQM7047W Loading server data"));
    }

    // Other callers: the names alone on the overview, the entries not chosen for a run on the special
    // run page, whose chosen list is walked to its end.
    void otherCallersFillTheOverviewAndTheSpecialRun()
    {
        frmCurrentConfig->lstServers->Clear();
        frmSpecRun->lstServers->AddItem(QStringLiteral("left over"));
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("sap1.corp 00"));
        frmSpecRun->lstSvrsToAgg->AddItem(QStringLiteral("other.corp 00"));
        LoadServerFile(QStringLiteral("frmSpecRun"));
        QCOMPARE(items(frmCurrentConfig->lstServers), (QStringList { "sap1.corp", "sap2.corp" }));
        QCOMPARE(items(frmSpecRun->lstServers), QStringList { "sap2.corp 01" });
        QCOMPARE(frmSpecRun->lstSvrsToAgg->ListIndex(), 1);
        QCOMPARE(frmServers->lstServer->ListCount(), 2);
        frmSpecRun->lstSvrsToAgg->Clear();
    }

    void heldFileByEachCaller_data()
    {
        QTest::addColumn<QString>("caller");
        QTest::addColumn<QStringList>("boxes");
        const QStringList held { QStringLiteral("KQM7035E Cannot open file, another process has locked it") };
        QTest::newRow("server page") << "frmServers" << held;
        QTest::newRow("special run") << "frmSpecRun" << held;
        QTest::newRow("start-up: no box") << "frmCurrentConfig" << QStringList();
    }

    // The table and the lists stay unread, the server list disabled until the next good load.
    void heldFileByEachCaller()
    {
        QFETCH(QString, caller);
        QFETCH(QStringList, boxes);
        useSteppingClock();
        {
            const FileLocker collector(m_path);
            QVERIFY(collector.isLocked());
            LoadServerFile(caller);
            QCOMPARE(m_boxes.texts(), boxes);
        }
        Clock::reset();
        QCOMPARE(status(), QStringLiteral("KQM7044E Server data file is locked by another process."));
        QVERIFY(!frmServers->lstServer->Enabled());
        QCOMPARE(ServerCount, 2);
        QCOMPARE(frmServers->lstServer->ListCount(), 2);
        loadForServerPage();
        QVERIFY(frmServers->lstServer->Enabled());
    }

    // Nothing said, nothing listed, "Loading server data" left on the bar.
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
        loadForServerPage();
        QVERIFY(m_boxes.calls.isEmpty());
        QCOMPARE(status(), QStringLiteral("KQM7047W Loading server data"));
        QCOMPARE(frmServers->lstServer->ListCount(), 0);
        QCOMPARE(ServerCount, 2);
        // too many records: the table was emptied by the resize before the count failed
        QCOMPARE(ServerTable(2, ServerColumn::Server).isEmpty(), failure == QLatin1String("too many"));
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes; // every box is answered and recorded
    QString m_path;
};

QTEST_MAIN(TestServerLists)
#include "tst_server_lists.moc"
