#include "platform/forms/command_button.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/support/file_locker.h"
#include "server_files.h"
#include "servers/frmServers.h"
#include "settings/registry_values.h"
#include "shell/MDIMainForm.h"
#include "shell/frmCurrentConfig.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QDir>
#include <QStatusBar>

namespace {

// Bytes beyond ASCII, a UTF-8 name among them, pass through as they are.
const QByteArray Sap1 = serverRecord("sap1.corp", "PRD", "100", "00", "\x80\xff\xe4-1");
const QByteArray Sap1OtherClient = serverRecord("sap1.corp", "PRD", "200", "00", "x2-");
const QByteArray Sap2 = serverRecord("s\xc3\xbc" "d.corp", "QAS", "001", "01", "x3-", " ");

QStringList items()
{
    QStringList texts;
    for (int i = 0; i < frmServers->lstServer->ListCount(); ++i)
        texts << frmServers->lstServer->List(i);
    return texts;
}

QString status()
{
    return MDIMainForm->staMainStatusBar->currentMessage();
}

} // namespace

class TestFrmServers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        StartConsole(QStringLiteral("qd7console -D"));
        QTRY_VERIFY_WITH_TIMEOUT(ConsoleFixture::shown(QStringLiteral("frmCurrentConfig")), 10000);
        m_path = m_console.binDir + QStringLiteral("/qd7server.dat");
        m_backup = m_console.binDir + QStringLiteral("/qd7server.bak");
    }

    // the page on screen, freshly read from a file of three servers, two of them under one entry
    void init()
    {
        ConsoleFixture::setValue("StatiInput", m_path);
        writeBytes(m_path, Sap1 + Sap1OtherClient + Sap2);
        QFile::remove(m_backup);
        frmCurrentConfig->Show();
        frmServers->Show();
        QCOMPARE(items(), (QStringList { "sap1.corp 00", "sap1.corp 00", QString::fromLatin1("s\xc3\xbc" "d.corp 01") }));
    }

    // Records in list order, each entry written from the first row that has it.
    void okWritesTheListAndKeepsTheOldFile()
    {
        const QByteArray old = readBytes(m_path);
        ConsoleFixture::setValue("SnapInput", QStringLiteral("elsewhere"));
        frmServers->cmdOK->Click.raise();
        QCOMPARE(readBytes(m_backup), old);
        QCOMPARE(readBytes(m_path), Sap1 + Sap1 + Sap2);
        QCOMPARE(ReadRegValue(QStringLiteral("SnapInput")), m_path);
        QCOMPARE(items().size(), 3);
        QCOMPARE(status(), QStringLiteral("KQM7052I Action successful"));
    }

    // Without a file chosen on the network page, OK goes back to the default path.
    void okWithoutAChosenFileWritesTheDefault()
    {
        const QString shared = m_console.dir.filePath(QStringLiteral("shared.dat"));
        writeBytes(shared, Sap2);
        ConsoleFixture::setValue("StatiInput", shared);
        frmServers->cmdCancel_Click();
        QCOMPARE(items().size(), 1);
        frmServers->cmdOK_Click();
        QCOMPARE(ReadRegValue(QStringLiteral("StatiInput")), m_path);
        QCOMPARE(readBytes(m_path), Sap2);
        QCOMPARE(readBytes(shared), Sap2);
    }

    // Both rows of the entry go, the count falls by one: the empty last row lists as a blank,
    // matches nothing on OK and is not written.
    void deleteDropsEveryRowOfTheEntry()
    {
        frmServers->lstServer->SetListIndex(1);
        frmServers->cmdDelete_Click();
        QCOMPARE(ServerCount, 2);
        QCOMPARE(ServerTable(1, ServerColumn::Client), QStringLiteral("001"));
        QCOMPARE(ServerTable(2, ServerColumn::Server), QString());
        frmServers->Form_Activate();
        QCOMPARE(items(), (QStringList { QString::fromLatin1("s\xc3\xbc" "d.corp 01"), " " }));
        frmServers->cmdOK_Click();
        QCOMPARE(readBytes(m_path), Sap2);
    }

    void cancelReadsTheFileBack()
    {
        frmServers->lstServer->SetListIndex(2);
        frmServers->cmdDelete_Click();
        frmServers->cmdEdit_Click(); // nothing selected: nothing happens
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmServers")));
        ServerFilePath = QStringLiteral("/chosen/qd7server.dat");
        frmServers->cmdCancel_Click();
        QCOMPARE(ServerCount, 3);
        QCOMPARE(items().size(), 3);
        QVERIFY(ServerFilePath.isEmpty());
        QCOMPARE(frmServers->lblFilePath->Caption(), m_path);
        QCOMPARE(status(), QStringLiteral("KQM7054W Action cancelled"));
        QVERIFY(!QFile::exists(m_backup));
    }

    // The save has no failure path: the console ends, and its box says what failed and what is left.
    void okOnAHeldFileEndsTheConsole()
    {
        const QByteArray old = readBytes(m_path);
        MsgBoxRecorder recorder;
        {
            const FileLocker collector(m_path);
            QVERIFY(collector.isLocked());
            frmServers->cmdOK->Click.raise();
        }
        QCOMPARE(m_console.exitStatuses, QList<int> { 1 });
        m_console.exitStatuses.clear();
        QCOMPARE(recorder.texts(),
            QStringList { QStringLiteral("Run-time error '70': Permission denied\n\nSaving the server list failed: "
                                         "Copying %1 to %2.\nThe server file was not changed.")
                              .arg(m_path, m_backup) });
        QCOMPARE(readBytes(m_path), old);
    }

private:
    ConsoleFixture m_console;
    QString m_path;
    QString m_backup;
};

QTEST_MAIN(TestFrmServers)
#include "tst_frmServers.moc"
