#include "platform/forms/check_box.h"
#include "platform/forms/file_pickers.h"
#include "platform/forms/label.h"
#include "server_files.h"
#include "servers/frmGetServerFile.h"
#include "servers/frmServers.h"
#include "settings/registry_values.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"
#include "support/msg_box_recorder.h"

#include <QDir>

class TestFrmGetServerFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ConsoleFixture::startWithFirstPage());
        m_default = m_console.binDir + QStringLiteral("/qd7server.dat");
        ConsoleFixture::setValue("StatiInput", m_default);
        writeBytes(m_default, serverRecord("sap1.corp"));
        m_share = m_console.dir.filePath(QStringLiteral("share"));
        QDir().mkpath(m_share);
        writeBytes(m_share + QStringLiteral("/QD7Server.DAT"), serverRecord("shared.corp", "PRD", "100", "02"));
    }

    // the location page opened by ticking the box, in BinDir
    void init()
    {
        m_boxes.calls.clear();
        ServerFilePath.clear();
        frmServers->Show();
        frmServers->chkNetwork->SetValue(1);
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmGetServerFile")));
        QCOMPARE(frmGetServerFile->fileFileList->Path(), m_console.binDir);
    }

    // The name in any case, kept as it is; the server page shows that file, and its OK stores it
    // in StatiInput.
    void okTakesTheChosenFile()
    {
        frmGetServerFile->dirDirList->SetPath(m_share);
        QCOMPARE(frmGetServerFile->fileFileList->ListCount(), 1);
        frmGetServerFile->fileFileList->setCurrentRow(0);
        frmGetServerFile->cmdOK_Click();
        const QString chosen = m_share + QStringLiteral("/QD7Server.DAT");
        QCOMPARE(ServerFilePath, chosen);
        QCOMPARE(frmServers->lblFilePath->Caption(), chosen);
        QCOMPARE(frmServers->lstServer->List(0), QStringLiteral("shared.corp 02"));
        frmServers->cmdOK_Click();
        QCOMPARE(ReadRegValue(QStringLiteral("StatiInput")), chosen);
        QCOMPARE(readBytes(chosen), serverRecord("shared.corp", "PRD", "100", "02"));
        // the copy of the old file lies in BinDir all the same
        QCOMPARE(readBytes(m_console.binDir + QStringLiteral("/qd7server.bak")), readBytes(chosen));
        ConsoleFixture::setValue("StatiInput", m_default);
    }

    // Nothing chosen: refused, the page stays. Cancel then leaves ServerFilePath at the path the
    // server page shows, so that its OK keeps it.
    void refusalThenCancel()
    {
        frmGetServerFile->dirDirList->SetPath(m_console.dir.path());
        frmGetServerFile->cmdOK_Click();
        QCOMPARE(m_boxes.texts(),
            QStringList { "KQM7073E Wrong application server file selected. Must select qd7server.dat" });
        QCOMPARE(status(), QStringLiteral("KQM7050E Status: Action failed"));
        QVERIFY(ConsoleFixture::shown(QStringLiteral("frmGetServerFile")));
        frmGetServerFile->cmdCancel_Click();
        QCOMPARE(frmServers->chkNetwork->Value(), 0);
        QCOMPARE(ServerFilePath, m_default);
        QCOMPARE(frmServers->lblFilePath->Caption(), m_default);
        QCOMPARE(status(), QStringLiteral("KQM7054W Action cancelled"));
    }

private:
    ConsoleFixture m_console;
    MsgBoxRecorder m_boxes; // every box is answered and recorded
    QString m_default;
    QString m_share;
};

QTEST_MAIN(TestFrmGetServerFile)
#include "tst_frmGetServerFile.moc"
