#include "platform/forms/command_button.h"
#include "platform/forms/label.h"
#include "platform/support/file_locker.h"
#include "server_files.h"
#include "servers/frmServers.h"
#include "servers/server_lists.h"
#include "settings/registry_values.h"
#include "shell/frmCurrentConfig.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

namespace {
// two rows under one entry; bytes beyond ASCII, a UTF-8 name among them, pass as they are
const QByteArray Sap1 = serverRecord("sap1.corp", "PRD", "100", "00", "\x80\xff\xe4-1");
const QByteArray Sap1OtherClient = serverRecord("sap1.corp", "PRD", "200", "00");
const QByteArray Sap2 = serverRecord("s\xc3\xbc"
                                     "d.corp",
    "QAS", "001", "01");
} // namespace

class TestFrmServers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ConsoleFixture::startWithFirstPage());
        m_path = m_console.binDir + QStringLiteral("/qd7server.dat");
        m_backup = m_console.binDir + QStringLiteral("/qd7server.bak");
        ConsoleFixture::setValue("StatiInput", m_path);
    }

    // the page on screen, freshly read
    void init()
    {
        m_boxes.calls.clear();
        writeBytes(m_path, Sap1 + Sap1OtherClient + Sap2);
        QFile::remove(m_backup);
        frmCurrentConfig->Show();
        // the first page may still be the active one from the start, which a Show doesn't reload
        LoadServerFile(QStringLiteral("frmCurrentConfig"));
        frmServers->Show();
        QCOMPARE(items(frmServers->lstServer).join(QLatin1Char('|')),
            QString::fromLatin1("sap1.corp 00|sap1.corp 00|s\xc3\xbc"
                                "d.corp 01"));
    }

    // Records in list order, each entry from the first row that has it.
    void okWritesTheListAndKeepsTheOldFile()
    {
        ConsoleFixture::setValue("SnapInput", QStringLiteral("elsewhere"));
        frmServers->cmdOK->Click.raise();
        QCOMPARE(readBytes(m_backup), Sap1 + Sap1OtherClient + Sap2);
        QCOMPARE(readBytes(m_path), Sap1 + Sap1 + Sap2);
        QCOMPARE(ReadRegValue(QStringLiteral("SnapInput")), m_path);
        QCOMPARE(status(), QStringLiteral("KQM7052I Action successful"));
    }

    // Both rows of the entry go but the count falls by one: the empty last row lists as a blank,
    // matches nothing on OK and is not written.
    void deleteDropsEveryRowOfTheEntry()
    {
        frmServers->lstServer->SetListIndex(1);
        frmServers->cmdDelete_Click();
        QCOMPARE(ServerCount, 2);
        QCOMPARE(ServerTable(2, ServerColumn::Server), QString());
        frmServers->Form_Activate();
        QCOMPARE(frmServers->lstServer->List(1), QStringLiteral(" "));
        frmServers->cmdOK_Click();
        QCOMPARE(readBytes(m_path), Sap2);
    }

    void cancelReadsTheFileBack()
    {
        frmServers->lstServer->SetListIndex(2);
        frmServers->cmdDelete_Click();
        frmServers->cmdEdit_Click(); // nothing selected any more: nothing happens
        ServerFilePath = QStringLiteral("/chosen/qd7server.dat");
        frmServers->cmdCancel_Click();
        QCOMPARE(ServerCount, 3);
        QCOMPARE(frmServers->lstServer->ListCount(), 3);
        QVERIFY(ServerFilePath.isEmpty());
        QCOMPARE(frmServers->lblFilePath->Caption(), m_path);
        QCOMPARE(status(), QStringLiteral("KQM7054W Action cancelled"));
        QVERIFY(!QFile::exists(m_backup));
    }

    // No failure path: the console ends, its last box telling what failed and what is left.
    void okOnAHeldFileEndsTheConsole()
    {
        {
            const FileLocker collector(m_path);
            QVERIFY(collector.isLocked());
            frmServers->cmdOK->Click.raise();
        }
        QCOMPARE(m_console.exitStatuses, QList<int> { 1 });
        m_console.exitStatuses.clear();
        QCOMPARE(m_boxes.texts(),
            QStringList { QStringLiteral("Run-time error '70': Permission denied\n\nSaving the server list failed: "
                                         "Copying %1 to %2.\nThe server file was not changed.")
                              .arg(m_path, m_backup) });
        QCOMPARE(readBytes(m_path), Sap1 + Sap1OtherClient + Sap2);
    }

    // A short last record has no instance: no row has its trimmed entry, and the table can't shrink.
    void deleteOfARecordCutShortEndsTheConsole()
    {
        writeBytes(m_path, Sap2 + serverRecord("sap3.corp").left(100));
        frmServers->cmdCancel_Click();
        frmServers->lstServer->SetListIndex(1);
        frmServers->cmdDelete->Click.raise();
        QCOMPARE(m_console.exitStatuses, QList<int> { 1 });
        QVERIFY(
            m_boxes.texts().value(0).startsWith(QStringLiteral("Run-time error '9': Subscript out of range\n\n"
                                                               "Deleting \"sap3.corp\" from the server list failed")));
        QCOMPARE(readBytes(m_path).size(), 183 + 100);
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes; // every box is answered and recorded
    QString m_path;
    QString m_backup;
};

QTEST_MAIN(TestFrmServers)
#include "tst_frmServers.moc"
